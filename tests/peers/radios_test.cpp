#include <gtest/gtest.h>

#include "tests/peers/block_radio.h"
#include "tests/peers/bus_radio.h"
#include "tests/peers/five_byte_radio.h"
#include "tests/peers/kenwood_radio.h"
#include "tests/peers/nine_digit_radio.h"
#include "values/hex.h"

namespace tallyhut {
namespace {

/// Pairs of hexadecimal digits as bytes go over the wire, in what the radio says as well.
template <typename Radio>
std::string Exchange(Radio& radio, std::string_view pairs) {
    std::string answer = BytesToHexDump(radio.Hear(SpacedHexToBytes(pairs)));
    return answer.substr(0, answer.find_last_not_of(' ') + 1);
}

TEST(KenwoodRadio, TellsWhereItStands) {
    KenwoodRadio radio;
    EXPECT_EQ(radio.Hear("FA;MD;"), "FA00014025000;MD3;");
    EXPECT_EQ(radio.Hear("FB;"), "FB00014030000;");
    EXPECT_EQ(radio.Hear("IF;"), "IF00014025000     +00000000003000000 ;");
    radio.vfo = 1;
    EXPECT_EQ(radio.Hear("IF;"), "IF00014030000     +00000000003100000 ;");
}

TEST(KenwoodRadio, IsSetWithoutAnAnswer) {
    KenwoodRadio radio;
    EXPECT_EQ(radio.Hear("FA00007025100;FB00003800000;MD1;"), "");
    EXPECT_EQ(radio.hertz[0], 7'025'100);
    EXPECT_EQ(radio.hertz[1], 3'800'000);
    EXPECT_EQ(radio.mode, '1');
}

TEST(KenwoodRadio, TakesACommandInPieces) {
    KenwoodRadio radio;
    EXPECT_EQ(radio.Hear("M"), "");
    EXPECT_EQ(radio.Hear("D;M"), "MD3;");
    EXPECT_EQ(radio.Hear("D2;"), "");
    EXPECT_EQ(radio.mode, '2');
}

TEST(KenwoodRadio, RefusesWhatItDoesNotKnow) {
    KenwoodRadio radio;
    for (const char* command : {"XX;", ";", "FA7.0;", "FA7025000;", "MD9;", "MD33;", "IF1;"}) {
        EXPECT_EQ(radio.Hear(command), "?;") << command;
    }
    EXPECT_EQ(radio.hertz[0], 14'025'000);
    EXPECT_EQ(radio.mode, '3');
}

TEST(NineDigitRadio, TellsWhereItStands) {
    NineDigitRadio radio;
    EXPECT_EQ(radio.Hear("FA;MD0;"), "FA014025000;MD03;");
}

TEST(NineDigitRadio, IsSetWithoutAnAnswer) {
    NineDigitRadio radio;
    EXPECT_EQ(radio.Hear("FA007025100;MD01;"), "");
    EXPECT_EQ(radio.hertz, 7'025'100);
    EXPECT_EQ(radio.mode, '1');
}

TEST(NineDigitRadio, RefusesWhatItDoesNotKnow) {
    NineDigitRadio radio;
    for (const char* command : {"XX;", ";", "FA07025100;", "FA00007025100;", "MD;", "MD3;", "MD09;"}) {
        EXPECT_EQ(radio.Hear(command), "?;") << command;
    }
    EXPECT_EQ(radio.hertz, 14'025'000);
    EXPECT_EQ(radio.mode, '3');
}

TEST(BusRadio, EchoesAndTellsWhereItStands) {
    BusRadio radio;
    EXPECT_EQ(Exchange(radio, "FE FE 64 E0 03 FD"), "FE FE 64 E0 03 FD FE FE E0 64 03 00 50 02 14 00 FD");
    EXPECT_EQ(Exchange(radio, "FE FE 64 E0 04 FD"), "FE FE 64 E0 04 FD FE FE E0 64 04 03 02 FD");
}

TEST(BusRadio, SetsAndConfirms) {
    BusRadio radio;
    EXPECT_EQ(Exchange(radio, "FE FE 64 E0 05 00 51 02 07 00 FD"),
              "FE FE 64 E0 05 00 51 02 07 00 FD FE FE E0 64 FB FD");
    EXPECT_EQ(radio.hertz, 7'025'100);
    EXPECT_EQ(Exchange(radio, "FE FE 64 E0 06 00 FD"), "FE FE 64 E0 06 00 FD FE FE E0 64 FB FD");
    EXPECT_EQ(radio.mode, 0);
}

TEST(BusRadio, RefusesWhatItDoesNotKnow) {
    BusRadio radio;
    for (const char* command : {"FE FE 64 E0 7F FD", "FE FE 64 E0 05 00 51 FD", "FE FE 64 E0 05 0A 51 02 07 00 FD",
                                "FE FE 64 E0 06 09 FD", "FE FE 64 E0 06 FD"}) {
        EXPECT_EQ(Exchange(radio, command), command + std::string{" FE FE E0 64 FA FD"});
    }
    EXPECT_EQ(radio.hertz, 14'025'000);
    EXPECT_EQ(radio.mode, 3);
}

TEST(BusRadio, OnlyEchoesWhatIsNotForIt) {
    BusRadio radio;
    radio.address = 0x3A;
    for (const char* command : {"FE FE 64 E0 03 FD", "FE FE FD", "00 FD", "FE 3A E0 03 FD"}) {
        EXPECT_EQ(Exchange(radio, command), command);
    }
    EXPECT_EQ(Exchange(radio, "FE FE 3A E0 03 FD"), "FE FE 3A E0 03 FD FE FE E0 3A 03 00 50 02 14 00 FD");
}

TEST(BusRadio, TellsEverybodyWhenTheKnobIsTurned) {
    BusRadio radio;
    EXPECT_EQ(BytesToHexText(radio.TurnTo(21'300'000)), "FEFE0064000000302100FD");
}

TEST(FiveByteRadio, IsDeafUntilItIsToldToListen) {
    FiveByteRadio radio;
    EXPECT_EQ(Exchange(radio, "00 00 00 00 03"), "");
    EXPECT_EQ(Exchange(radio, "00 00 00 00 00"), "");
    EXPECT_EQ(Exchange(radio, "00 00 00 00 03"), "01 40 25 00 02");
    EXPECT_EQ(Exchange(radio, "00 00 00 00 80 00 00 00 00 03"), "");
}

TEST(FiveByteRadio, IsSetWithoutAnAnswer) {
    FiveByteRadio radio;
    radio.listens = true;
    EXPECT_EQ(Exchange(radio, "00 70 25 10 01 01 00 00 00 07"), "");
    EXPECT_EQ(radio.hertz, 7'025'100);
    EXPECT_EQ(radio.mode, 1);
}

TEST(BlockRadio, TellsItsStateInABlock) {
    BlockRadio radio;
    EXPECT_EQ(Exchange(radio, "00 00 00 02 10"), "00 00 15 66 84 00 00 02 00 00 00 00 00 00 00 00 00 00 00");
    radio.frequencyAt = 1;
    EXPECT_EQ(Exchange(radio, "00 00 00 02 10"), "00 15 66 84 00 00 00 02 00 00 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(Exchange(radio, "00 00 00 07 10"), "");
}

TEST(BlockRadio, IsSetWithoutAnAnswer) {
    BlockRadio radio;
    EXPECT_EQ(Exchange(radio, "10 25 70 00 0A 00 00 00 04 0C"), "");
    EXPECT_EQ(radio.hertz, 7'025'100);
    EXPECT_EQ(radio.mode, 3);
}

}  // namespace
}  // namespace tallyhut
