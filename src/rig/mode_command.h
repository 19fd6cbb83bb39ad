#pragma once

#include <string>
#include <string_view>

namespace tallyhut {

/// What a mode command is made from.
struct ModeOrder {
    std::string_view mode;
    std::string_view frequencyString;  ///< holds the address of a radio on a bus
    std::string_view modeString;       ///< begins as the command does
};

/// The bytes that set a radio's mode; empty for a mode that the radio has no command for. Throws ValueError for a
/// string whose address is none.
using ModeCommand = std::string (*)(const ModeOrder&);

/// "MD3;"
std::string KenwoodMode(const ModeOrder& order);
/// FE FE 64 E0 06 03 FD
std::string IcomMode(const ModeOrder& order);
/// 02 00 00 00 07
std::string YaesuMode(const ModeOrder& order);
/// 00 00 00 02 0C
std::string YaesuReversedMode(const ModeOrder& order);
/// "MD03;"
std::string DualMode(const ModeOrder& order);

}  // namespace tallyhut
