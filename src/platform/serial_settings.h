#pragma once

#include <optional>
#include <string>

#include "platform/serial_port.h"

namespace tallyhut {

/// How the bits of a serial line are sent.
struct SerialSettings {
    int baud = 9600;
    char parity = 'N';  ///< N none, E even, O odd
    int dataBits = 8;   ///< 5 to 8
    int stopBits = 1;   ///< 1 or 2

    bool operator==(const SerialSettings&) const = default;
};

/// Reads "4800,N,8,2": baud from 50 to 4,000,000, parity letter in either case, data bits, stop bits. Blanks around a
/// part do not count. Throws PlatformError naming a text that is no such settings.
SerialSettings ParseSerialSettings(const std::string& text);

/// The settings as they are written: "4800,N,8,2".
std::string SettingsText(const SerialSettings& settings);

/// What a port has been told, open or not. Both twins keep it so.
struct SerialSetup {
    int number = kFirstPort;
    SerialSettings settings = {};
    Handshake handshake = Handshake::None;
    std::optional<bool> dtr = {};  ///< nothing until it is set
    std::optional<bool> rts = {};
};

/// Throws PlatformError for a number that no port can have.
void CheckPortNumber(int number);

/// The reasons that both twins give.
inline constexpr const char* kPortIsOpen = "The port is open";
inline constexpr const char* kPortIsClosed = "The port is not open";

/// The name of a port in the reasons of failures that concern no device yet: "Serial port 3".
std::string PortName(int number);

}  // namespace tallyhut
