#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/event_pump.h"
#include "platform/files.h"
#include "platform/parallel_port.h"
#include "platform/printer.h"
#include "platform/screen.h"
#include "platform/serial_port.h"
#include "platform/settings_store.h"
#include "platform/sound.h"
#include "platform/tcp_socket.h"

namespace tallyhut {

struct DatagramSockets;
struct Keyring;

/// What a host lends to the program. All of it must outlive the program.
struct Machine {
    Clock& clock;
    EventPump& pump;
    Dialogs& dialogs;
    Clipboard& clipboard;
    Printer& printer;
    Files& files;
    SettingsStore& settings;
    Screen& screen;
    Environment& environment;
    SerialPorts& serialPorts;
    ParallelPorts& parallelPorts;
    TcpSockets& tcpSockets;
    DatagramSockets& datagramSockets;
    Keyring& keyring;
    Sound& sound;
    std::optional<std::uint32_t> seed = {};  ///< of random numbers; none for the clock's
    std::string agwEngine = {};              ///< HOST:PORT of the packet engine, where the command line says so
    std::string dataFolder = {};             ///< where the files lie that a fresh installation gets
};

}  // namespace tallyhut
