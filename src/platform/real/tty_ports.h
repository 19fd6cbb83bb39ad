#pragma once

#include <map>
#include <string>

#include "platform/serial_port.h"
#include "platform/settings_store.h"

namespace tallyhut {

/// Where the system keeps its devices and tells of them.
struct TtyFolders {
    std::string devices = "/dev";
    std::string descriptions = "/sys/class/tty";
};

/// The serial ports of the machine. A number means the device of the command line, else the one stored under "Port1" to
/// "Port10" in the settings' section "Machine", else the nth of those found: the ports of the board (ttyS with hardware
/// behind it), then ttyUSB, then ttyACM, each by their numbers.
struct TtyPorts : SerialPorts {
    TtyPorts(SettingsStore& store, std::map<int, std::string> pathsOfCommandLine, TtyFolders systemFolders = {})
        : settings{store}, commandLine{std::move(pathsOfCommandLine)}, folders{std::move(systemFolders)} {}

    SettingsStore& settings;
    const std::map<int, std::string> commandLine;
    const TtyFolders folders;

    std::unique_ptr<SerialPort> NewPort() override;
    PortMeaning MeaningOf(int number) const override;
    std::vector<SerialDevice> Devices() const override;
    void Choose(int number, const std::string& path) override;
};

}  // namespace tallyhut
