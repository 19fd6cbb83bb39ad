#include "rig/icom_reply.h"

#include <gtest/gtest.h>

#include "tests/rig/reply_cases.h"
#include "values/hex.h"

namespace tallyhut {
namespace {

struct HexCase {
    std::string_view hex;
    std::string_view reading;
};

void ExpectFrames(RigDecoder decoder, const std::vector<HexCase>& cases) {
    for (const HexCase& one : cases) {
        EXPECT_EQ(ReadingText(decoder({.rxBuffer = HexToBytes(one.hex), .frequencyString = {}, .modeString = {}})),
                  one.reading)
            << one.hex;
    }
}

TEST(ReadIcomFrequency, PairsComeLowFirst) {
    ExpectFrames(ReadIcomFrequency, {
                                        {"FEFEE06403"
                                         "0000201400"
                                         "FD",
                                         "14.20000 - -"},
                                        {"FEFEE06403"
                                         "5634121400"
                                         "FD",
                                         "14.12346 - -"},
                                        {"FEFEE06403"
                                         "0000205001"
                                         "FD",
                                         "150.20000 - -"},
                                        {"FEFEE06403"
                                         "0000009612"
                                         "FD",
                                         "1296.00000 - -"},
                                        {"FEFEE06403"
                                         "0000810100"
                                         "FD",
                                         "1.81000 - -"},
                                        {"FEFEE06403"
                                         "0000500000"
                                         "FD",
                                         ".50000 - -"},
                                        {"FEFEE06403"
                                         "0000000000"
                                         "FD",
                                         ".00000 - -"},
                                    });
}

TEST(ReadIcomFrequency, EchoOfTheRequestSaysNothing) {
    ExpectFrames(ReadIcomFrequency, {
                                        {"FEFE64E003FD", "- - -"},
                                        {"FEFE64E003FDFEFEE064030000201400FD", "14.20000 - -"},
                                        {"FEFE64E004FDFEFEE0640403FD", "- - -"},
                                    });
}

TEST(ReadIcomFrequency, GarbageIsPassedOver) {
    ExpectFrames(ReadIcomFrequency, {
                                        {"", "- - -"},
                                        {"00FF1203FEFEE064030000201400FD", "14.20000 - -"},
                                        {"FE00FEFEE064030000201400FD8899", "14.20000 - -"},
                                        {"FEFEE064030000201400FDFEFE", "14.20000 - -"},
                                        {"FEFEE0640401FDFEFEE064030000201400FD", "14.20000 - -"},
                                        {"FEFEFE", "- - -"},
                                        {"FE03FD", "- - -"},
                                        {"FEFEE0640500002014", "- - -"},
                                    });
}

TEST(ReadIcomFrequency, AddressesMayBeAnyBytes) {
    ExpectFrames(ReadIcomFrequency, {{"FEFEFDFE030000201400FD", "14.20000 - -"}});
}

TEST(ReadIcomFrequency, CutFrameIsAShorterNumberOrNone) {
    ExpectFrames(ReadIcomFrequency, {
                                        {"FEFEE06403", "- - -"},
                                        {"FEFEE0640300", "- - -"},
                                        {"FEFEE064030000", ".00000 - -"},
                                        {"FEFEE06403000020", "2000.00000 - -"},
                                        {"FEFEE0640300002014", "1420.00000 - -"},
                                        {"FEFEE064030000201400", "14.20000 - -"},  // only the end is missing
                                    });
}

TEST(ReadIcomFrequency, SecondFrameOfABufferCounts) {
    ExpectFrames(ReadIcomFrequency, {{"FEFEE064030000201400FDFEFEE064030000032100FD", "21.03000 - -"}});
}

TEST(ReadIcomFrequency, LettersAreNoFrequency) {
    ExpectFrames(ReadIcomFrequency, {{"FEFEE0640300002A1400FD", "- - -"}, {"FEFEE06403FFFFFFFFFFFD", "- - -"}});
}

TEST(ReadIcom735Frequency, HasFourBytesOfDigits) {
    ExpectFrames(ReadIcom735Frequency, {
                                           {"FEFEE0640300002014FD", "14.20000 - -"},
                                           {"FEFE64E003FDFEFEE0640300510207FD", "7.02510 - -"},
                                           {"FEFE64E003FD", "- - -"},
                                           {"", "- - -"},
                                       });
}

TEST(ReadIcomMode, ThreeIsCwAndEveryOtherModePhone) {
    ExpectFrames(ReadIcomMode, {
                                   {"FEFEE0640403FD", "- CW -"},
                                   {"FEFEE064040301FD", "- CW -"},
                                   {"FEFEE0640400FD", "- PH -"},
                                   {"FEFEE0640407FD", "- PH -"},
                                   {"FEFEE0640404FD", "- PH -"},
                                   {"FEFEE0640405FD", "- PH -"},
                                   {"FEFEE0640413FD", "- PH -"},
                               });
}

TEST(ReadIcomMode, NeedsAModeByte) {
    ExpectFrames(ReadIcomMode, {
                                   {"", "- - -"},
                                   {"FEFE64E004FD", "- - -"},
                                   {"FEFE64E004FDFEFEE0640403FD", "- CW -"},
                                   {"FEFEE06404", "- - -"},
                                   {"FEFEE064030000201400FD", "- - -"},
                                   {"112233FEFEE0640403FD445566", "- CW -"},
                                   {"FEFEE0640403FDFEFEE0640401FD", "- CW -"},  // the first one ends the scan
                               });
}

}  // namespace
}  // namespace tallyhut
