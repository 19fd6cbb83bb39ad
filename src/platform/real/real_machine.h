#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/machine.h"
#include "platform/real/desktop_environment.h"
#include "platform/real/ini_settings.h"
#include "platform/real/posix_datagrams.h"
#include "platform/real/posix_files.h"
#include "platform/real/posix_socket.h"
#include "platform/real/ppdev_ports.h"
#include "platform/real/sdl_sound.h"
#include "platform/real/secret_service.h"
#include "platform/real/system_clock.h"
#include "platform/real/tty_ports.h"

namespace tallyhut {

/// The devices that a host makes itself, since they need its screen or its driver. A null keeps the machine's own.
struct HostDevices {
    EventPump& pump;
    Dialogs& dialogs;
    Clipboard& clipboard;
    Printer& printer;
    Screen& screen;
    Clock* clock = nullptr;
    SerialPorts* serialPorts = nullptr;
    ParallelPorts* parallelPorts = nullptr;
    Sound* sound = nullptr;
    std::optional<std::uint32_t> seed = {};
    std::string agwEngine = {};
};

/// The devices of the machine that every host has.
struct RealMachine {
    RealMachine(const std::map<int, std::string>& ports, std::string data)
        : serialPorts{settings, ports}, dataFolder{std::move(data)} {}

    SystemClock clock;
    PosixFiles files;
    IniSettings settings{files};
    DesktopEnvironment environment;
    TtyPorts serialPorts;
    PpdevPorts parallelPorts;
    PosixSockets tcpSockets;
    PosixDatagrams datagramSockets;
    SecretService keyring;
    SdlSound sound{files};
    std::string dataFolder;

    /// What a program is lent.
    Machine Lend(const HostDevices& host) {
        return {.clock = host.clock != nullptr ? *host.clock : clock,
                .pump = host.pump,
                .dialogs = host.dialogs,
                .clipboard = host.clipboard,
                .printer = host.printer,
                .files = files,
                .settings = settings,
                .screen = host.screen,
                .environment = environment,
                .serialPorts = host.serialPorts != nullptr ? *host.serialPorts : serialPorts,
                .parallelPorts = host.parallelPorts != nullptr ? *host.parallelPorts : parallelPorts,
                .tcpSockets = tcpSockets,
                .datagramSockets = datagramSockets,
                .keyring = keyring,
                .sound = host.sound != nullptr ? *host.sound : sound,
                .seed = host.seed,
                .agwEngine = host.agwEngine,
                .dataFolder = dataFolder};
    }
};

}  // namespace tallyhut
