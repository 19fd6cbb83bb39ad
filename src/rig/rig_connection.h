#pragma once

#include <functional>
#include <string>

#include "platform/machine.h"
#include "rig/radio.h"
#include "rig/retry_pauses.h"
#include "rig/rig_address.h"
#include "rig/rig_server.h"
#include "toolkit/alarm.h"

namespace tallyhut {

/// The radio's port or server: opened by Test, and opened again by itself when it has gone and come back. A server does
/// that on its own. A port is tried after 1, 2, 5 and then every 10 seconds, silently; these pauses begin anew after a
/// minute in which it was open.
struct RigConnection {
    RigConnection(Radio& ofTheRadio, const Machine& machine, Desk& owner);

    Radio& radio;
    RigServer server;
    RigAddress address = {};  ///< of the server, as the form last committed it

    /// Before the port of a number is opened: whoever else holds it lets go of it.
    std::function<void(int number)> portIsTaken = [](int) {};
    /// Whether whoever holds the port of a number can let go of it now. Only an opening that nobody has asked for asks.
    std::function<bool(int number)> mayTakePort = [](int) { return true; };

    // What the connection does with the control lines of its port while that is open.
    bool handshakes = false;    ///< RTS is the line's own; no radio takes it back until the program ends
    std::string powered = "N";  ///< by "R" RTS, "D" DTR
    int openNumber = 0;         ///< of the port
    bool TakesRts() const { return handshakes || powered == "R"; }
    bool TakesDtr() const { return powered == "D"; }

    /// Opens the port with the settings, or begins with the server, after closing what was open. Throws PlatformError.
    void Open();
    void Close();
    /// Whether there is something to poll.
    bool IsOpen() const;
    /// What is kept for the server that is chosen.
    RigAddress StoredAddress() const;
    /// Keeps the address, where a server is chosen. Throws PlatformError.
    void StoreAddress();
    /// The port is not opened again by itself.
    void EndReopening();
    /// An operation of the port has failed while the radio is polled: it is closed, to be opened again.
    void PortHasFailed();

private:
    void OpenPort();
    void TryOpen();
    void OpenAgain();
    bool DeviceIsBack() const;

    const SerialPorts& ports_;
    SettingsStore& store_;
    const Clock& clock_;
    Alarm again_;
    std::string openPath_;  // of the device
    RetryPauses pauses_;
    Tick openedAt_ = 0;
};

}  // namespace tallyhut
