#include "rig/text_reply.h"

#include <gtest/gtest.h>

#include "tests/rig/reply_cases.h"

namespace tallyhut {
namespace {

TEST(ReadFaMd, FindsElevenDigitsOfHertzBehindTheLetters) {
    ExpectReadings(ReadFaMd, {
                                 {"FA00014200000;", "14.20000 - -"},
                                 {"FA00014200000;MD3;", "14.20000 - -"},
                                 {"MD3;FA00014200000;", "14.20000 - -"},
                                 {"\xFF?;0;FA00007025100;\xFE", "7.02510 - -"},
                                 {"FA00014200000;FA00021300000;", "14.20000 - -"},  // the first of a doubled reply
                                 {"FA00000000000;", ".00000 - -"},
                                 {"FA00014234567;", "14.23457 - -"},
                                 {"FA00144200000;", "144.20000 - -"},
                             });
}

TEST(ReadFaMd, NeedsACharacterBehindTheDigits) {
    ExpectReadings(ReadFaMd, {
                                 {"", "- - -"},
                                 {"FA", "- - -"},
                                 {"FA0001420000", "- - -"},
                                 {"FA00014200000", "- - -"},
                                 {"A00014200000;MD3;", "- - -"},
                                 {"00014200000;", "- - -"},
                             });
}

TEST(ReadFaMd, WhatIsNoNumberIsNoFrequency) {
    ExpectReadings(ReadFaMd, {
                                 {"FA;FA00014200000;", "- - -"},  // an echo in front spoils the search
                                 {"FA0001X200000;", "- - -"},
                                 {"FAxxxxxxxxxxx;", "- - -"},
                                 {"FA9E999999999;", "- - -"},
                                 {std::string("FA\0\0\0\0\0\0\0\0\0\0\0;", 14), "- - -"},
                             });
}

TEST(ReadFaMd, FollowsTheVfoThatTheStringNames) {
    ExpectReadings(ReadFaMd, {{"FA00014200000;", "- - -"}, {"FA00014200000;FB00007030000;", "7.03000 - -"}}, "FB;");
}

TEST(ReadMdDigit, ThreeAndSevenAreCw) {
    ExpectReadings(ReadMdDigit, {
                                    {"MD3;", "- CW -"},
                                    {"MD7;", "- CW -"},
                                    {"MD1;", "- PH -"},
                                    {"MD2;", "- PH -"},
                                    {"MDx", "- PH -"},
                                    {"FA00014200000;MD3;", "- CW -"},
                                    {"MD3;FA00014200000;", "- CW -"},
                                    {"##MD3;##", "- CW -"},
                                    {"MD", "- - -"},
                                    {"M", "- - -"},
                                    {"D3;", "- - -"},
                                    {"", "- - -"},
                                });
}

// "IF", 11 digits of frequency, 16 characters that are not looked at, mode, VFO and the rest.
constexpr const char* kIfCwB = "IF00014200000     +000000000031000000;";

TEST(ReadIfBlock, HoldsFrequencyModeAndVfo) {
    ExpectReadings(ReadIfBlock, {
                                    {kIfCwB, "14.20000 CW 1"},
                                    {"IF00014200000     +000000000030000000;", "14.20000 CW 0"},
                                    {"IF00014200000     +000000000010000000;", "14.20000 PH 0"},
                                    {"IF00014200000     +000000000070000000;", "14.20000 PH 0"},  // unlike MD7;
                                    {std::string("?;\xFE") + kIfCwB + "garbage", "14.20000 CW 1"},
                                    {std::string(kIfCwB) + kIfCwB, "14.20000 CW 1"},
                                });
}

TEST(ReadIfBlock, CutReplyGivesWhatItHolds) {
    ExpectReadings(ReadIfBlock, {
                                    {"IF00014200000", "- - -"},
                                    {"IF00014200000;", "14.20000 PH -"},
                                    {std::string(kIfCwB).substr(0, 29), "14.20000 PH -"},
                                    {std::string(kIfCwB).substr(0, 30), "14.20000 CW -"},
                                    {std::string(kIfCwB).substr(0, 31), "14.20000 CW 1"},
                                    {"IF00014200000     +00000000003X000000;", "14.20000 CW -"},
                                    {"IF0001420X000     +000000000031000000;", "- - -"},
                                    {"F00014200000     +000000000031000000;", "- - -"},
                                });
}

TEST(ReadDualCommand, EachReplyUpdatesOnlyWhatItHolds) {
    ExpectReadings(ReadDualCommand, {
                                        {"FA14200000;", "14.20000 - -"},
                                        {"MD03;", "- CW -"},
                                        {"MD07;", "- PH -"},
                                        {"MD01;", "- PH -"},
                                        {"FA14200000;MD03;", "14.20000 CW -"},
                                        {"MD02;FA07030000;", "7.03000 PH -"},
                                        {"xxFA14200000;MD03;xx", "14.20000 CW -"},
                                        {"MD13;", "- - -"},
                                        {"", "- - -"},
                                    });
}

TEST(ReadDualCommand, FailureInTheFrequencyLeavesTheMode) {
    ExpectReadings(ReadDualCommand, {
                                        {"FA142x0000;MD03;", "- CW -"},
                                        {"FA1420000", "1.42000 - -"},  // a frame cut by the end is a shorter number
                                        {"FA142000", "- - -"},
                                        {"MD0", "- - -"},
                                    });
}

TEST(ReadDualCommand, FollowsTheStringsOfTheForm) {
    ExpectReadings(ReadDualCommand, {{"FB07030000;MD13;", "7.03000 CW -"}, {"FA07030000;MD03;", "- - -"}}, "FB;",
                   "MD1;");
}

TEST(ReadNineDigitCommand, EachReplyUpdatesOnlyWhatItHolds) {
    ExpectReadings(ReadNineDigitCommand, {
                                             {"FA014200000;", "14.20000 - -"},
                                             {"FA001840000;", "1.84000 - -"},
                                             {"FA435000000;", "435.00000 - -"},
                                             {"MD03;", "- CW -"},
                                             {"MD07;", "- CW -"},
                                             {"MD01;", "- PH -"},
                                             {"MD0C;", "- PH -"},
                                             {"FA014200000;MD03;", "14.20000 CW -"},
                                             {"MD02;FA007030000;", "7.03000 PH -"},
                                             {"FA;FA014200000;MD0;MD03;", "14.20000 CW -"},  // with an echo in front
                                             {"?;FA014200000;MD03;?;", "14.20000 CW -"},
                                             {"MD13;", "- - -"},
                                             {"", "- - -"},
                                         });
}

TEST(ReadNineDigitCommand, CutReplySaysNothing) {
    const std::string frequency = "FA014200000;";
    const std::string mode = "MD03;";
    for (std::size_t length = 0; length < frequency.size(); ++length) {
        const std::string cut = frequency.substr(0, length);
        ExpectReadings(ReadNineDigitCommand, {{cut, "- - -"}, {cut + mode, "- CW -"}});
        if (length > 0) {
            ExpectReadings(ReadNineDigitCommand, {{frequency.substr(length), "- - -"}});
        }
    }
    for (std::size_t length = 0; length < mode.size(); ++length) {
        const std::string cut = mode.substr(0, length);
        ExpectReadings(ReadNineDigitCommand, {{cut, "- - -"}, {cut + frequency, "14.20000 - -"}});
    }
}

TEST(ReadNineDigitCommand, FrequencyOfAnotherLengthSaysNothing) {
    ExpectReadings(ReadNineDigitCommand, {
                                             {"FA14200000;", "- - -"},
                                             {"FA00014200000;", "- - -"},
                                             {"FA01420000x;", "- - -"},
                                             {"FA 14200000;", "- - -"},
                                             {"FA+14200000;", "- - -"},
                                             {"FA14200000;FA014200000;", "14.20000 - -"},
                                         });
}

TEST(ReadNineDigitCommand, ZeroIsNoFrequency) {
    ExpectReadings(ReadNineDigitCommand, {{"FA000000000;", "- - -"}, {"FA000000000;MD03;", "- CW -"}});
}

TEST(ReadNineDigitCommand, FollowsTheStringsOfTheForm) {
    ExpectReadings(ReadNineDigitCommand, {{"FB007030000;MD13;", "7.03000 CW -"}, {"FA007030000;MD03;", "- - -"}}, "FB;",
                   "MD1;");
}

TEST(ReadOrionFrequency, CountsTheDigitsFromTheBeginOfTheBuffer) {
    ExpectReadings(ReadOrionFrequency, {
                                           {"@AF14200000\r", "14.20000 - -"},
                                           {"@AF07025100\r@RMM3\r", "7.02510 - -"},
                                           {"@AF14200000\r@AF21300000\r", "14.20000 - -"},
                                           {"@AF1\r", ".00000 - -"},
                                           // A reply that stands later takes the carriage return for a digit.
                                           {"@RMM3\r@AF14200000\r", "- - -"},
                                           {"x@AF14200000\r", "- - -"},
                                           {"@AF14200000", "- - -"},
                                           {"@AF\r", "- - -"},
                                           {"@AF", "- - -"},
                                           {"\r@AF14200000", "- - -"},
                                           {"AF14200000\r", "- - -"},
                                           {"@AF14.2x\r", "- - -"},
                                           {"", "- - -"},
                                       });
}

TEST(ReadOrionMode, ThreeAndTwoAreCw) {
    ExpectReadings(ReadOrionMode, {
                                      {"@RMM3\r", "- CW -"},
                                      {"@RMM2\r", "- CW -"},
                                      {"@RMM0\r", "- PH -"},
                                      {"@AF14200000\r@RMM3\r", "- CW -"},
                                      {"junk@RMM1\rjunk", "- PH -"},
                                      {"@RMM", "- PH -"},
                                      {"@RM", "- - -"},
                                      {"", "- - -"},
                                  });
}

}  // namespace
}  // namespace tallyhut
