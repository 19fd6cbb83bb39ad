#pragma once

#include <string>

#include "platform/real/descriptor.h"
#include "platform/serial_settings.h"

namespace tallyhut {

/// Opens a terminal device for this program alone, without waiting for anything, and leaves its settings as they are.
/// Throws PlatformError with the path, also where another program has the device; PortOpenError where it is no
/// terminal.
Descriptor OpenTty(const std::string& path);

/// True where the system itself works the line RTS for the handshake.
bool DriverOwnsRts(Handshake handshake);

/// Frees the device for others and closes it. Never waits long: what the device has not taken is dropped, but for a few
/// bytes on a line where no handshake can hold them.
void CloseTty(Descriptor& tty, Handshake handshake);

// Each returns 0, or the errno value of its failure.

/// Sets speed, form of the characters and handshake; everything else raw. What a pseudo terminal leaves out of these is
/// no failure.
int ApplySettings(const Descriptor& tty, const SerialSettings& settings, Handshake handshake);
/// A pseudo terminal has no control lines; that is no failure.
int ApplyDtr(const Descriptor& tty, bool on);
int ApplyRts(const Descriptor& tty, bool on);

/// Bytes that the system has taken and the device has not sent; 0 where the system cannot tell.
int QueuedOutput(const Descriptor& tty);

}  // namespace tallyhut
