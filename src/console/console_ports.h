#pragma once

#include "console/device_commands.h"
#include "console/json_output.h"
#include "platform/real/tty_ports.h"
#include "platform/sim/serial_port.h"

namespace tallyhut {

/// The serial ports of a program without a screen: simulated where the command line says "sim" for the number, which
/// the driver is told of, and the machine's for all other numbers.
struct ConsolePorts : SerialPorts {
    /// The machine's ports know what the command line says.
    ConsolePorts(TtyPorts& machinePorts, const Clock& clock, JsonOutput& output);

    std::unique_ptr<SerialPort> NewPort() override;
    PortMeaning MeaningOf(int number) const override;
    std::vector<SerialDevice> Devices() const override { return real.Devices(); }
    void Choose(int number, const std::string& path) override { real.Choose(number, path); }

    bool IsSimulated(int number) const;
    /// The far end of the simulated ports: rx, reply, hold, unplug, plug.
    void AddTo(DeviceCommands& commands);

    JsonOutput& out;
    TtyPorts& real;
    sim::SerialPorts simulated;

private:
    sim::SerialLine& TakeLine(CommandWords& words);
    /// The same where nothing else may stand in the command.
    sim::SerialLine& TakeOnlyLine(CommandWords& words);
    void Receive(CommandWords& words);
    void Reply(CommandWords& words);
    void Hold(CommandWords& words);
};

}  // namespace tallyhut
