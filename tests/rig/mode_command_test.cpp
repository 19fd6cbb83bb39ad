#include "rig/mode_command.h"

#include <gtest/gtest.h>

#include <array>

#include "values/hex.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

struct ModeCase {
    std::string_view mode;
    std::string_view kenwood;
    std::string_view icom;
    std::string_view yaesu;
    std::string_view yaesuReversed;
    std::string_view dual;
};

// Text as it goes out, bytes as pairs; empty where a radio has no such command.
constexpr std::array<ModeCase, 13> kCases{{
    {"CW", "MD3;", "FEFE64E00603FD", "0200000007", "000000020C", "MD03;"},
    {"CW-R", "", "FEFE64E00607FD", "", "000000030C", "MD07;"},
    {"LSB", "MD1;", "FEFE64E00600FD", "0000000007", "000000000C", "MD01;"},
    {"USB", "MD2;", "FEFE64E00601FD", "0100000007", "000000010C", "MD02;"},
    {"AM", "MD5;", "FEFE64E00602FD", "0400000007", "000000040C", "MD05;"},
    {"FM", "MD4;", "FEFE64E00605FD", "0800000007", "000000060C", "MD04;"},
    {"RTTY", "MD6;", "FEFE64E00604FD", "0A00000007", "000000080C", "MD06;"},
    {"RTTY-R", "", "FEFE64E00608FD", "", "", ""},
    {"FSK", "MD6;", "", "", "", ""},
    {"DIG", "", "", "0A00000007", "", ""},
    {"PKT", "", "", "0C00000007", "0000000A0C", ""},
    {"PH", "", "", "", "", ""},
    {"", "", "", "", "", ""},
}};

std::string CommandOf(ModeCommand command, std::string_view mode,
                      std::string_view frequencyString = "FE FE 64 E0 03 FD") {
    return command({.mode = mode, .frequencyString = frequencyString, .modeString = "MD0;"});
}

TEST(ModeCommand, EachModeInEachDialect) {
    for (const ModeCase& one : kCases) {
        EXPECT_EQ(CommandOf(KenwoodMode, one.mode), one.kenwood) << one.mode;
        EXPECT_EQ(BytesToHexText(CommandOf(IcomMode, one.mode)), one.icom) << one.mode;
        EXPECT_EQ(BytesToHexText(CommandOf(YaesuMode, one.mode)), one.yaesu) << one.mode;
        EXPECT_EQ(BytesToHexText(CommandOf(YaesuReversedMode, one.mode)), one.yaesuReversed) << one.mode;
        EXPECT_EQ(CommandOf(DualMode, one.mode), one.dual) << one.mode;
    }
}

TEST(ModeCommand, AddressIsThatOfTheFrequencyString) {
    EXPECT_EQ(BytesToHexText(CommandOf(IcomMode, "CW", "FE FE 3A E0 03 FD")), "FEFE3AE00603FD");
    EXPECT_THROW(CommandOf(IcomMode, "CW", "FE FE zz E0 03 FD"), ValueError);
    EXPECT_EQ(CommandOf(IcomMode, "FSK", "FE FE zz E0 03 FD"), "");
}

TEST(ModeCommand, BeginsAsTheModeStringDoes) {
    EXPECT_EQ(DualMode({.mode = "CW", .frequencyString = "FA;", .modeString = "MD1;"}), "MD13;");
}

}  // namespace
}  // namespace tallyhut
