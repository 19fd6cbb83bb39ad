#pragma once

#include <string>
#include <string_view>

#include "platform/serial_port.h"
#include "toolkit/controls.h"

namespace tallyhut {

/// How a port number came by its device: "automatic", "chosen", "--port"; empty where it has none.
std::string_view HowMeant(const PortMeaning& meaning);

/// What stands at the device of a port number, in a few words; empty where nothing is known of it.
std::string WhatIsThere(const PortMeaning& meaning);

/// What the operator should do or know about a port number; empty where all is well.
std::string NoteOn(const PortMeaning& meaning);

/// The device of a port number in one line: "/dev/ttyUSB0, no right to open it, Acme Cable"; "no device".
std::string PortToolTip(const PortMeaning& meaning);

/// Gives each choice of a port number, 0 for port 1 and on, its device as tool tip.
void SetPortToolTips(ControlArray<Option>& optComm, const SerialPorts& ports);

}  // namespace tallyhut
