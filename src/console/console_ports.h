#pragma once

#include <map>
#include <string>

#include "console/json_output.h"
#include "platform/real/tty_ports.h"
#include "platform/sim/serial_port.h"

namespace tallyhut {

/// The serial ports of a program without a screen: simulated where the command line says "sim" for the number, which
/// the driver is told of, and the machine's for all other numbers.
struct ConsolePorts : SerialPorts {
    /// @param ports  what the command line says, by number
    ConsolePorts(SettingsStore& settings, const Clock& clock, const std::map<int, std::string>& ports,
                 JsonOutput& output);

    std::unique_ptr<SerialPort> NewPort() override;
    PortMeaning MeaningOf(int number) const override;
    std::vector<SerialDevice> Devices() const override { return real.Devices(); }
    void Choose(int number, const std::string& path) override { real.Choose(number, path); }

    bool IsSimulated(int number) const;

    JsonOutput& out;
    TtyPorts real;
    sim::SerialPorts simulated;
};

}  // namespace tallyhut
