#include "rig/mode_command.h"

#include <algorithm>
#include <array>

#include "rig/reply_numbers.h"
#include "values/hex.h"

namespace tallyhut {
namespace {

struct ModeCommandRow {
    std::string_view mode;
    std::string_view kenwood;
    std::string_view icom;
    std::string_view yaesu;
    std::string_view yaesuReversed;
    std::string_view dual;
};

constexpr std::array<ModeCommandRow, 11> kModeCommands{{
    {"CW", "MD3;", "E00603FD", "0200000007", "000000020C", "3"},
    {"CW-R", "", "E00607FD", "", "000000030C", "7"},
    {"LSB", "MD1;", "E00600FD", "0000000007", "000000000C", "1"},
    {"USB", "MD2;", "E00601FD", "0100000007", "000000010C", "2"},
    {"AM", "MD5;", "E00602FD", "0400000007", "000000040C", "5"},
    {"FM", "MD4;", "E00605FD", "0800000007", "000000060C", "4"},
    {"RTTY", "MD6;", "E00604FD", "0A00000007", "000000080C", "6"},
    {"RTTY-R", "", "E00608FD", "", "", ""},
    {"FSK", "MD6;", "", "", "", ""},
    {"DIG", "", "", "0A00000007", "", ""},
    {"PKT", "", "", "0C00000007", "0000000A0C", ""},
}};

std::string_view Cell(std::string_view mode, std::string_view ModeCommandRow::*column) {
    const auto* row = std::ranges::find(kModeCommands, mode, &ModeCommandRow::mode);
    return row == kModeCommands.end() ? std::string_view{} : row->*column;
}

}  // namespace

std::string KenwoodMode(const ModeOrder& order) {
    return std::string{Cell(order.mode, &ModeCommandRow::kenwood)};
}

std::string IcomMode(const ModeOrder& order) {
    const std::string_view cell = Cell(order.mode, &ModeCommandRow::icom);
    if (cell.empty()) {
        return {};
    }
    return HexToBytes("FEFE" + std::string{Middle(order.frequencyString, 6, 2)} + std::string{cell});
}

std::string YaesuMode(const ModeOrder& order) {
    return HexToBytes(Cell(order.mode, &ModeCommandRow::yaesu));
}

std::string YaesuReversedMode(const ModeOrder& order) {
    return HexToBytes(Cell(order.mode, &ModeCommandRow::yaesuReversed));
}

std::string DualMode(const ModeOrder& order) {
    const std::string_view digit = Cell(order.mode, &ModeCommandRow::dual);
    if (digit.empty()) {
        return {};
    }
    return std::string{order.modeString.substr(0, 3)} + std::string{digit} + ';';
}

}  // namespace tallyhut
