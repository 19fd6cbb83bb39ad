#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/serial_port.h"

namespace tallyhut {

/// Which device a port number means: that of the command line, else the operator's choice, else the device of that
/// number, counted from 1, among those found.
///
/// @param devices      those found, in their order
/// @param commandLine  paths by number
/// @param choice       the path that the operator chose for the number; empty for none
/// @return of a path that is none of the devices found nothing else is filled in
PortMeaning MeaningAmong(const std::vector<SerialDevice>& devices, const std::map<int, std::string>& commandLine,
                         int number, const std::string& choice);

}  // namespace tallyhut
