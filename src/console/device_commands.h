#pragma once

#include <functional>
#include <map>
#include <string>

#include "console/command_words.h"

namespace tallyhut {

/// The commands by which a driver is the far end of a device, by name. Each device adds its own; a command throws
/// ConsoleError for words that it cannot take.
using DeviceCommands = std::map<std::string, std::function<void(CommandWords& words)>, std::less<>>;

}  // namespace tallyhut
