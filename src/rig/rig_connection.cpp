#include "rig/rig_connection.h"

#include "platform/platform_error.h"
#include "toolkit/desk.h"

namespace tallyhut {
RigConnection::RigConnection(Radio& ofTheRadio, const Machine& machine, Desk& owner)
    : radio{ofTheRadio},
      server{machine.tcpSockets, owner},
      ports_{machine.serialPorts},
      store_{machine.settings},
      clock_{owner.clock},
      again_{owner, [this] { OpenAgain(); }} {}

void RigConnection::Open() {
    EndReopening();
    const RigRow& rig = radio.Row();
    if (rig.link == RigLink::Port) {
        OpenPort();
    } else if (rig.link == RigLink::Server) {
        server.Open(*rig.server.dialect, address.host, address.PortNumber());
    }
}

bool RigConnection::IsOpen() const {
    switch (radio.Row().link) {
        case RigLink::None:
            return false;
        case RigLink::Port:
            return radio.comComm1.IsOpen();
        case RigLink::Files:
            return true;
        case RigLink::Server:
            return server.Link() != RigServerLink::Closed;
    }
    return false;
}

RigAddress RigConnection::StoredAddress() const {
    return tallyhut::StoredAddress(store_, radio.Row().server);
}

void RigConnection::StoreAddress() {
    if (radio.Row().link == RigLink::Server) {
        tallyhut::StoreAddress(store_, radio.Row().server, address);
    }
}

void RigConnection::OpenPort() {
    pauses_ = {};
    radio.comComm1.Close();
    portIsTaken(radio.settings.commPort);
    openPath_ = ports_.DeviceOf(radio.settings.commPort);
    radio.comComm1.SetNumber(radio.settings.commPort);
    openNumber = radio.settings.commPort;
    TryOpen();
}

/// Everything that an opening sends and sets, also when the device has come back.
void RigConnection::TryOpen() {
    const RigRow& rig = radio.Row();
    if (rig.rtsHandshake) {
        radio.comComm1.SetHandshake(Handshake::Rts);
        handshakes = true;
    }
    powered = radio.settings.power;
    radio.comComm1.SetSettings(radio.settings.portSettings);
    radio.comComm1.SetDtr(false);
    radio.comComm1.SetRts(false);
    radio.comComm1.Open();
    openedAt_ = clock_.TickMs();
    if (radio.settings.power == "R") {
        radio.comComm1.SetRts(true);
    } else if (radio.settings.power == "D") {
        radio.comComm1.SetDtr(true);
    }
    if (!rig.greeting.empty()) {
        radio.comComm1.Write(rig.greeting);
    }
}

void RigConnection::Close() {
    EndReopening();
    radio.comComm1.Close();
    server.Close();
}

void RigConnection::EndReopening() {
    again_.Stop();
    radio.state.portGone = false;
}

void RigConnection::PortHasFailed() {
    if (!radio.state.polls || radio.state.portGone || !CanBeLost(radio.Row())) {
        return;
    }
    radio.state.portGone = true;
    radio.comComm1.Close();
    again_.StartOnce(pauses_.After(clock_.TickMs() - openedAt_));
}

void RigConnection::OpenAgain() {
    if (!radio.state.polls) {
        return;
    }
    try {
        if (DeviceIsBack() && mayTakePort(openNumber)) {
            portIsTaken(openNumber);
            TryOpen();
            radio.state.portGone = false;
            return;
        }
    } catch (const PlatformError&) {  // it is not there yet, or somebody else has it: that is nobody's news
        radio.comComm1.Close();
    }
    again_.StartOnce(pauses_.After(0));
}

/// A number that nobody has chosen a device for may mean another one meanwhile, such as the keyer's: that one is let
/// be.
bool RigConnection::DeviceIsBack() const {
    const PortMeaning meaning = ports_.MeaningOf(openNumber);
    return meaning.source != PortMeaning::Source::Found || meaning.device.path == openPath_;
}

}  // namespace tallyhut
