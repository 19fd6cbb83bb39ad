#pragma once

#include <string>

#include "platform/machine.h"
#include "platform/sim/clipboard.h"
#include "platform/sim/clock.h"
#include "platform/sim/datagram_socket.h"
#include "platform/sim/dialogs.h"
#include "platform/sim/environment.h"
#include "platform/sim/event_pump.h"
#include "platform/sim/files.h"
#include "platform/sim/keyring.h"
#include "platform/sim/parallel_port.h"
#include "platform/sim/printer.h"
#include "platform/sim/screen.h"
#include "platform/sim/serial_port.h"
#include "platform/sim/settings_store.h"
#include "platform/sim/sound.h"
#include "platform/sim/tcp_socket.h"

namespace tallyhut::sim {

/// Devices that take the place of their twins; a null keeps the twin.
struct InPlaceOfTwins {
    tallyhut::Clock* clock = nullptr;
    tallyhut::EventPump* pump = nullptr;
    tallyhut::Dialogs* dialogs = nullptr;
    tallyhut::Clipboard* clipboard = nullptr;
    tallyhut::Files* files = nullptr;
    tallyhut::Screen* screen = nullptr;
    tallyhut::SerialPorts* serialPorts = nullptr;
    tallyhut::TcpSockets* tcpSockets = nullptr;
    tallyhut::DatagramSockets* datagramSockets = nullptr;
    tallyhut::Keyring* keyring = nullptr;
};

/// Every device's twin.
struct Machine {
    explicit Machine(const DateTime& start, std::string data = "/data") : clock{start}, dataFolder{std::move(data)} {}

    Clock clock;
    EventPump pump{clock};
    Dialogs dialogs;
    Clipboard clipboard;
    Printer printer;
    Files files{"/contest"};
    SettingsStore settings;
    Screen screen;
    Environment environment;
    SerialPorts serialPorts{clock};
    ParallelPorts parallelPorts{clock};
    TcpSockets tcpSockets{pump};
    DatagramSockets datagramSockets{clock, pump};
    Keyring keyring{pump};
    Sound sound{clock, files};
    std::string dataFolder;

    /// What a program is lent.
    tallyhut::Machine Lend(const InPlaceOfTwins& real = {}) {
        return {.clock = Chosen(real.clock, clock),
                .pump = Chosen(real.pump, pump),
                .dialogs = Chosen(real.dialogs, dialogs),
                .clipboard = Chosen(real.clipboard, clipboard),
                .printer = printer,
                .files = Chosen(real.files, files),
                .settings = settings,
                .screen = Chosen(real.screen, screen),
                .environment = environment,
                .serialPorts = Chosen(real.serialPorts, serialPorts),
                .parallelPorts = parallelPorts,
                .tcpSockets = Chosen(real.tcpSockets, tcpSockets),
                .datagramSockets = Chosen(real.datagramSockets, datagramSockets),
                .keyring = Chosen(real.keyring, keyring),
                .sound = sound,
                .dataFolder = dataFolder};
    }

private:
    template <typename Device, typename Twin>
    static Device& Chosen(Device* real, Twin& twin) {
        return real != nullptr ? *real : static_cast<Device&>(twin);
    }
};

}  // namespace tallyhut::sim
