#include "rig/status_reply.h"

#include <gtest/gtest.h>

#include "tests/rig/reply_cases.h"
#include "values/hex.h"

namespace tallyhut {
namespace {

struct HexCase {
    std::string hex;
    std::string_view reading;
};

void ExpectBlocks(RigDecoder decoder, const std::vector<HexCase>& cases) {
    for (const HexCase& one : cases) {
        EXPECT_EQ(ReadingText(decoder({.rxBuffer = HexToBytes(one.hex), .frequencyString = {}, .modeString = {}})),
                  one.reading)
            << one.hex;
    }
}

TEST(ReadFiveByteStatus, FourBytesAreTensOfHertz) {
    ExpectBlocks(ReadFiveByteStatus, {
                                         {"0142345601", "14.23456 PH -"},
                                         {"0070251002", "7.02510 CW -"},
                                         {"0018100000", "1.81000 PH -"},
                                         {"1442000008", "144.20000 PH -"},
                                         {"0104200003", "10.42000 CW -"},
                                         {"01423456010000", "14.23456 PH -"},
                                     });
}

TEST(ReadFiveByteStatus, PointIsMissingBelowAMegahertz) {
    ExpectBlocks(ReadFiveByteStatus, {{"0001234501", "12345.00000 PH -"}, {"0000000001", ".00000 PH -"}});
}

TEST(ReadFiveByteStatus, ModeByteIsReadAsADecimalNumber) {
    ExpectBlocks(ReadFiveByteStatus, {
                                         {"0142000000", "14.20000 PH -"},
                                         {"0142000004", "14.20000 PH -"},
                                         {"0142000008", "14.20000 PH -"},
                                         {"0142000084", "14.20000 PH -"},
                                         {"0142000088", "14.20000 PH -"},
                                         {"0142000003", "14.20000 CW -"},
                                         {"0142000082", "14.20000 CW -"},
                                         {"0142000083", "14.20000 CW -"},
                                         {"0142000005", "14.20000 - -"},
                                         {"0142000099", "14.20000 - -"},
                                     });
}

TEST(ReadFiveByteStatus, LetterSpoilsTheWholeReply) {
    ExpectBlocks(ReadFiveByteStatus, {
                                         {"014200000A", "- - -"},
                                         {"014200000C", "- - -"},
                                         {"01420000FF", "- - -"},
                                         {"014A000001", "- - -"},
                                         {"FFFFFFFF01", "- - -"},
                                     });
}

TEST(ReadFiveByteStatus, NeedsFiveBytes) {
    ExpectBlocks(ReadFiveByteStatus, {{"", "- - -"}, {"01423456", "- - -"}});
}

// 14.2 MHz is 15AAE0 in tens of hertz; 7.0251 MHz is 0AB82E.
TEST(ReadStatusBlock, FieldStandsWhereTheRadioPutsIt) {
    ExpectBlocks(ReadStatusBlock<kYaesu890Field>, {{"000015AAE0000001", "14.20000 PH -"}});
    ExpectBlocks(ReadStatusBlock<kYaesu990Field>, {{"0015AAE000000001", "14.20000 PH -"}});
    ExpectBlocks(ReadStatusBlock<kYaesu1000Field>, {{"00015AAE00000001", "14.20000 PH -"}});
    // 14.2 MHz is 00D8ACC0 in hertz.
    ExpectBlocks(ReadStatusBlock<kYaesu920Field>, {{"0000D8ACC0000001", "14.20000 CW -"}});
}

TEST(ReadStatusBlock, FieldMayBeginInTheMiddleOfAByte) {
    ExpectBlocks(ReadStatusBlock<kYaesu1000Field>,
                 {{"0FF0AB82EFFFFFF2", "7.02510 CW -"}, {"FF00AB82EFFFFFF2", "7.02510 CW -"}});
}

TEST(ReadStatusBlock, ModeIsTheLowHalfOfByteEight) {
    for (const char digit : {'0', '1', '3', '4', '5', '6', '7'}) {
        ExpectBlocks(ReadStatusBlock<kYaesu890Field>, {{std::string{"000015AAE000002"} + digit, "14.20000 PH -"}});
    }
    ExpectBlocks(ReadStatusBlock<kYaesu890Field>, {
                                                      {"000015AAE0000012", "14.20000 CW -"},
                                                      {"000015AAE0000028", "14.20000 - -"},
                                                      {"000015AAE000002F", "14.20000 - -"},
                                                  });
    for (const char digit : {'0', '2', '9', 'F'}) {
        ExpectBlocks(ReadStatusBlock<kYaesu920Field>, {{std::string{"0000D8ACC000001"} + digit, "14.20000 PH -"}});
    }
}

TEST(ReadStatusBlock, CutBlockHasItsFrequency) {
    ExpectBlocks(ReadStatusBlock<kYaesu890Field>,
                 {{"000015AAE0", "14.20000 - -"}, {"000015AA", "- - -"}, {"", "- - -"}});
    ExpectBlocks(ReadStatusBlock<kYaesu920Field>, {{"0000D8ACC0", "14.20000 PH -"}});
}

TEST(ReadStatusBlock, WhatStandsBehindIsNotLookedAt) {
    ExpectBlocks(ReadStatusBlock<kYaesu890Field>,
                 {{"000015AAE0000002FFFFFFFFFFFFFFFF000015AAE0000001", "14.20000 CW -"}});
}

TEST(ReadYaesu757, BytesNineToSixAreTheNumber) {
    ExpectBlocks(ReadYaesu757, {
                                   {"00000000000000420102", "14.20000 CW -"},
                                   {"FFFFFFFFFF1025700000", "7.02510 PH -"},
                               });
}

TEST(ReadYaesu757, ModeIsByteTen) {
    for (const auto& [mode, reading] : std::vector<std::pair<std::string, std::string_view>>{
             {"00", "14.20000 PH -"},
             {"01", "14.20000 PH -"},
             {"02", "14.20000 CW -"},
             {"03", "14.20000 CW -"},
             {"04", "14.20000 AM -"},
             {"05", "14.20000 FM -"},
             {"06", "14.20000 - -"},
             {"0A", "14.20000 - -"},
         }) {
        ExpectBlocks(ReadYaesu757, {{"000000000000004201" + mode, reading}});
    }
}

TEST(ReadYaesu757, CutBlockIsAShorterNumberOrNone) {
    ExpectBlocks(ReadYaesu757, {
                                   {"", "- - -"},
                                   {"00000000", "- - -"},
                                   {"0000000000", "- - -"},
                                   {"00000000001025", ".02510 - -"},
                                   {"000000000000004201", "14.20000 - -"},
                                   {"0000000000000A420102", "- - -"},
                               });
}

TEST(ReadPanelFrequency, FourBytesAreHertz) {
    ExpectBlocks(ReadPanelFrequency, {
                                         {"4100D8ACC00D", "14.20000 - -"},
                                         {"41006B320C0D", "7.02516 - -"},
                                         {"41FFFFFFFF0D", "4294.96700 - -"},
                                         {"4100D8AC", ".05547 - -"},
                                         {"4100D8", "- - -"},
                                         {"", "- - -"},
                                     });
}

TEST(ReadPanelMode, ThreeIsCw) {
    ExpectBlocks(ReadPanelMode, {
                                    {"4D330D", "- CW -"},
                                    {"4D300D", "- PH -"},
                                    {"4D310D", "- PH -"},
                                    {"4D320D", "- PH -"},
                                    {"4D340D", "- PH -"},
                                    {"4D350D", "- - -"},
                                    {"4D3F0D", "- - -"},
                                    {"4D33", "- - -"},
                                    {"", "- - -"},
                                });
}

}  // namespace
}  // namespace tallyhut
