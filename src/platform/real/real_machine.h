#pragma once

#include <map>
#include <string>

#include "platform/real/desktop_environment.h"
#include "platform/real/ini_settings.h"
#include "platform/real/posix_files.h"
#include "platform/real/system_clock.h"
#include "platform/real/tty_ports.h"

namespace tallyhut {

/// The devices of the machine that every host has.
struct RealMachine {
    explicit RealMachine(const std::map<int, std::string>& ports) : serialPorts{settings, ports} {}

    SystemClock clock;
    PosixFiles files;
    IniSettings settings{files};
    DesktopEnvironment environment;
    TtyPorts serialPorts;
};

}  // namespace tallyhut
