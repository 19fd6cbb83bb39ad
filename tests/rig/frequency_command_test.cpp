#include "rig/frequency_command.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "values/hex.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

struct Case {
    FrequencyCommand command;
    float frequency;
    std::string_view frequencyString;
    int vfoDigit;
    std::string bytes;
};

std::string CommandOf(FrequencyCommand command, float frequency, std::string_view frequencyString = "FA;",
                      int vfoDigit = 10) {
    float copy = frequency;
    return command(
        {.frequency = copy, .frequencyString = frequencyString, .vfoDigit = static_cast<std::uint8_t>(vfoDigit)});
}

TEST(FrequencyCommand, TextRadios) {
    const std::vector<Case> cases{
        {KenwoodFrequency, 14.2F, "FA;", 10, "FA00014200000;"},
        {KenwoodFrequency, 14.2F, "FB;", 10, "FB00014200000;"},
        {KenwoodFrequency, 7.0251F, "FA;", 10, "FA00007025100;"},
        {KenwoodFrequency, 1270, "FA;", 10, "FA01270000000;"},
        {KenwoodFrequency, 14.2F, "", 10, "00014200000;"},
        {KenwoodActiveFrequency, 14.2F, "IF;", 10, "FA00014200000;"},
        {KenwoodActiveFrequency, 14.2F, "IF;", 0, "FA00014200000;"},
        {KenwoodActiveFrequency, 14.2F, "IF;", 1, "FB00014200000;"},
        {KenwoodActiveFrequency, 14.2F, "IF;", 2, "FA00014200000;"},
        {ElecraftFrequency, 14.2F, "FB;", 1, "FA00014200000;"},
        {DualFrequency, 14.2F, "FA;", 10, "FA14200000;"},
        {DualFrequency, 7.0251F, "FB;", 10, "FB07025100;"},
        {DualFrequency, 435, "FA;", 10, "FA435000000;"},  // a longer number stays longer
        {NineDigitFrequency, 14.2F, "FA;", 10, "FA014200000;"},
        {NineDigitFrequency, 1.84F, "FA;", 10, "FA001840000;"},
        {NineDigitFrequency, 7.0251F, "FB;", 10, "FB007025100;"},
        {NineDigitFrequency, 435, "FA;", 10, "FA435000000;"},
        {OrionFrequency, 14.2F, "?AF", 10, "*AF14.2\r"},
        {OrionFrequency, 7.0251F, "?AF", 10, "*AF7.0251\r"},
        {OrionFrequency, 28, "?AF", 10, "*AF28\r"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(CommandOf(one.command, one.frequency, one.frequencyString, one.vfoDigit), one.bytes);
    }
}

TEST(FrequencyCommand, ByteRadios) {
    const std::vector<Case> cases{
        {IcomFrequency, 14.2F, "FE FE 64 E0 03 FD", 10, "FEFE64E0050000201400FD"},
        {IcomFrequency, 14.2F, "FE FE 3A E0 03 FD", 10, "FEFE3AE0050000201400FD"},
        {IcomFrequency, 7.0251F, "FE FE 04 E0 03 FD", 10, "FEFE04E0050051020700FD"},
        {IcomFrequency, 1270, "FE FE 64 E0 03 FD", 10, "FEFE64E0050000007012FD"},
        {IcomFrequency, 14.2F, "FE FE", 10, "FEFEE0050000201400FD"},
        {YaesuFrequency, 14.2F, "", 10, "0142000001"},
        {YaesuFrequency, 7.0251F, "", 10, "0070251001"},
        {YaesuReversedFrequency, 14.2F, "", 10, "000042010A"},
        {YaesuReversedFrequency, 7.0251F, "", 10, "102570000A"},
        {PanelFrequency, 14.2F, "", 10, "2A4100D8ACC00D"},
        {PanelFrequency, 7.0251F, "", 10, "2A41006B31CC0D"},
        {PanelFrequency, 28.475F, "", 10, "2A4101B27E780D"},
        {PanelFrequency, 0, "", 10, "2A41000000000D"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(BytesToHexText(CommandOf(one.command, one.frequency, one.frequencyString, one.vfoDigit)), one.bytes)
            << one.frequency;
    }
}

TEST(FrequencyCommand, TensOfHertzRoundHalvesToTheEvenNeighbour) {
    EXPECT_EQ(BytesToHexText(CommandOf(YaesuFrequency, 2.0F + 0.5F / 32)), "0020156201");  // 201562.5 counts
    EXPECT_EQ(BytesToHexText(CommandOf(YaesuFrequency, 2.0F + 1.5F / 32)), "0020468801");  // 204687.5 counts
}

TEST(FrequencyCommand, PanelCommandCarriesWhatAFloatHolds) {
    EXPECT_EQ(BytesToHexText(CommandOf(PanelFrequency, 17.0000114F)), "2A410103664C0D");  // 17000011 Hz is none
}

TEST(FrequencyCommand, PanelCommandLeavesZero) {
    float frequency = 14.2F;
    PanelFrequency({.frequency = frequency, .frequencyString = {}, .vfoDigit = 10});
    EXPECT_EQ(frequency, 0);
}

TEST(FrequencyCommand, OthersLeaveTheFrequency) {
    for (const FrequencyCommand command : {KenwoodFrequency, KenwoodActiveFrequency, ElecraftFrequency, DualFrequency,
                                           IcomFrequency, YaesuFrequency, YaesuReversedFrequency, OrionFrequency}) {
        float frequency = 14.2F;
        command({.frequency = frequency, .frequencyString = "FE FE 64 E0 03 FD", .vfoDigit = 10});
        EXPECT_EQ(frequency, 14.2F);
    }
}

TEST(FrequencyCommand, RefusesWhatNoRadioCanBeTunedTo) {
    for (const FrequencyCommand command : {KenwoodFrequency, DualFrequency, NineDigitFrequency, IcomFrequency,
                                           YaesuFrequency, YaesuReversedFrequency, PanelFrequency, OrionFrequency}) {
        for (const float frequency : {-0.5F, 1e20F, std::numeric_limits<float>::infinity()}) {
            EXPECT_THROW(CommandOf(command, frequency, "FE FE 64 E0 03 FD"), ValueError) << frequency;
        }
    }
}

TEST(FrequencyCommand, RefusesAnAddressThatIsNone) {
    EXPECT_THROW(CommandOf(IcomFrequency, 14.2F, "FE FE 6"), ValueError);
    EXPECT_THROW(CommandOf(IcomFrequency, 14.2F, "FE FE xx E0 03 FD"), ValueError);
}

TEST(FrequencyCommand, RefusesANumberThatIsNoRowOfPairs) {
    EXPECT_THROW(CommandOf(YaesuFrequency, 1270), ValueError);  // nine digits
    EXPECT_THROW(CommandOf(YaesuReversedFrequency, 1270), ValueError);
}

TEST(FrequencyCommand, NineDigitsAreNeverTen) {
    EXPECT_EQ(CommandOf(NineDigitFrequency, 999.9F), "FA999900024;");  // as a float holds it
    EXPECT_THROW(CommandOf(NineDigitFrequency, 1'000), ValueError);
    EXPECT_THROW(CommandOf(NineDigitFrequency, 14'200), ValueError);
}

}  // namespace
}  // namespace tallyhut
