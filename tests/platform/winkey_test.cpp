#include "platform/winkey.h"

#include <gtest/gtest.h>

#include "platform/sim/clock.h"
#include "platform/sim/serial_port.h"

namespace tallyhut {
namespace {

using std::string_literals::operator""s;

const std::string kReset = "\x13\x13\x13\x13\x00\x03"s;
const std::string kEchoTest = "\x00\x04U"s;
const std::string kHostOpen = "\x00\x02"s;
constexpr Tick kAnswerTime = 15;

struct WinKeyTest : testing::Test {
    sim::Clock clock;
    sim::SerialPorts ports{clock};
    WinKey device{ports, clock};
    std::uint8_t version = 0;

    sim::SerialLine& Line() { return ports.Line(1); }
    void Connect(char answeredVersion = 23) {
        Line().Reply(kEchoTest, "U", kAnswerTime);
        Line().Reply(kHostOpen, std::string{answeredVersion}, kAnswerTime);
    }
    void Open() {
        Connect();
        ASSERT_EQ(device.wk_open(version, 1), kWkSuccess);
        Line().TakeSent();
    }
    /// Milliseconds that the step holds the program.
    Tick TimeOf(const auto& step) {
        const Tick before = clock.TickMs();
        step();
        return clock.TickMs() - before;
    }
    void Status(char status) { Line().Receive({&status, 1}); }
    /// What was sent but for questions for the status.
    std::string Sent() {
        std::string sent = Line().TakeSent();
        std::erase(sent, '\x15');
        return sent;
    }
};

TEST_F(WinKeyTest, OpensInTheMakersOrderOnALineOfItsOwn) {
    Connect();
    EXPECT_EQ(device.wk_open(version, 1), kWkSuccess);
    EXPECT_EQ(version, 23);
    EXPECT_EQ(Line().TakeSent(), kReset + kEchoTest + kHostOpen);
    EXPECT_EQ(SettingsText(Line().settings), "1200,N,8,2");
    EXPECT_EQ(Line().handshake, Handshake::None);
    EXPECT_EQ(Line().dtr, true);
    EXPECT_EQ(Line().rts, false);
}

TEST_F(WinKeyTest, EveryGenerationOpens) {
    for (const char generation : {'\x0A', '\x14', '\x17', '\x1E', '\x1F'}) {
        Connect(generation);
        EXPECT_EQ(device.wk_open(version, 1), kWkSuccess);
        EXPECT_EQ(version, generation);
        device.wk_close();
    }
}

TEST_F(WinKeyTest, AFirstOpeningGivesTheDeviceTimeToWakeUp) {
    Connect();
    EXPECT_GE(TimeOf([&] { device.wk_open(version, 1); }), 500U);
}

TEST_F(WinKeyTest, NoFailureOfAnOpeningHoldsTheProgramLong) {
    struct Case {
        const char* echo;
        const char* opened;
        std::int32_t result;
    };
    for (const Case& one :
         {Case{"", "\x17", kWkNoEcho}, Case{"V", "\x17", kWkWrongEcho}, Case{"U", "", kWkNoVersion}}) {
        Line().Reply(kEchoTest, one.echo, kAnswerTime);
        Line().Reply(kHostOpen, one.opened, kAnswerTime);
        EXPECT_LE(TimeOf([&] { EXPECT_EQ(device.wk_open(version, 1), one.result); }), 1'200U);
        EXPECT_EQ(version, 0);
        EXPECT_FALSE(Line().isOpen) << "the port is free for others";
    }
}

TEST_F(WinKeyTest, PortThatCannotBeOpenedIsToldWithTheSystemsWords) {
    Line().refusal = "Permission denied";
    EXPECT_EQ(device.wk_open(version, 1), kWkNoPort);
    EXPECT_NE(device.PortFailure().find("Permission denied"), std::string::npos);
    EXPECT_EQ(device.wk_open(version, 0), kWkNoPort);
    EXPECT_EQ(device.wk_open(version, 11), kWkNoPort);
}

TEST_F(WinKeyTest, BytesOfAnOldSessionAreNoAnswers) {
    Line().Reply(kEchoTest, "\xC4\x90\xC0U", kAnswerTime);
    Line().Reply(kHostOpen, "\xC0\x91\x1E", kAnswerTime);
    EXPECT_EQ(device.wk_open(version, 1), kWkSuccess);
    EXPECT_EQ(version, 0x1E);
}

TEST_F(WinKeyTest, DeviceLeftOpenIsClosedBeforeItIsAsked) {
    Connect();
    Line().Reply(kReset, "ABC", 20);  // the echo of letters that it was sending
    EXPECT_EQ(device.wk_open(version, 1), kWkSuccess);
}

TEST_F(WinKeyTest, SecondOpeningSendsNothingAndLeavesTheVersion) {
    Open();
    version = 99;
    EXPECT_EQ(device.wk_open(version, 1), kWkAlreadyOpen);
    EXPECT_EQ(version, 99);
    EXPECT_EQ(Line().TakeSent(), "");
}

TEST_F(WinKeyTest, AKnownDeviceIsOpenedAgainInAQuarterOfASecond) {
    Open();
    device.wk_close();
    EXPECT_LE(TimeOf([&] { EXPECT_EQ(device.wk_open(version, 1), kWkSuccess); }), 250U);
    device.wk_close();
    Line().Reply(kEchoTest, "");
    EXPECT_LE(TimeOf([&] { EXPECT_EQ(device.wk_open(version, 1), kWkNoEcho); }), 250U);
}

TEST_F(WinKeyTest, OperationsOfAClosedDeviceSendNothing) {
    for (const std::int32_t result :
         {device.wk_close(), device.wk_getstatus(), device.wk_char('A'), device.wk_clearbuf(), device.wk_backspace(),
          device.wk_wpm(18), device.wk_weight(50), device.wk_ditdah_ratio(50), device.wk_ptt_leadtail(0, 0),
          device.wk_pincfg(6), device.wk_setmode(0)}) {
        EXPECT_EQ(result, kWkNotOpen);
    }
    EXPECT_EQ(Line().TakeSent(), "");
}

TEST_F(WinKeyTest, EachOperationIsOneCommand) {
    Open();
    device.wk_wpm(18);
    device.wk_weight(50);
    device.wk_ptt_leadtail(0, 250);
    device.wk_ditdah_ratio(50);
    device.wk_pincfg(6);
    device.wk_setmode(0);
    EXPECT_EQ(Line().TakeSent(), "\x02\x12\x03\x32\x04\x00\xFA\x17\x32\x09\x06\x0E\x00"s);
    device.wk_char('T');
    device.wk_backspace();
    device.wk_clearbuf();
    EXPECT_EQ(Line().TakeSent(), "T\x08\x0A");
    device.wk_close();
    EXPECT_EQ(Line().TakeSent(), "\x00\x03"s);
    EXPECT_FALSE(Line().isOpen);
}

TEST_F(WinKeyTest, CharactersThatWouldBeCommandsAreDropped) {
    Open();
    for (const int code : {0x00, 0x09, 0x0D, 0x1F, 0x80, 0xFF}) {
        EXPECT_EQ(device.wk_char(code), kWkSuccess);
    }
    EXPECT_EQ(Line().TakeSent(), "");
    device.wk_char(0x20);
    device.wk_char(0x7F);
    EXPECT_EQ(Line().TakeSent(), " \x7F");
}

TEST_F(WinKeyTest, StatusIsTheNewestOneAndNothingElseThatCame) {
    Open();
    EXPECT_EQ(device.wk_getstatus(), 0);
    Status('\xC4');
    Status('\x90');
    Status('E');
    EXPECT_EQ(device.wk_getstatus(), 4);
    Status('\xC4');
    Status('\xC5');
    EXPECT_EQ(device.wk_getstatus(), 5);
    Status('\xC6');
    EXPECT_EQ(device.wk_getstatus(), 6);
    Status('\xD8');
    EXPECT_EQ(device.wk_getstatus(), 24);
    Status('\xC0');
    EXPECT_EQ(device.wk_getstatus(), 0);
}

TEST_F(WinKeyTest, AnswerThatComesAtOnceIsTheAnswer) {
    Open();
    Line().Reply("\x15", "\xC5", 1);
    EXPECT_EQ(device.wk_getstatus(), 5);
}

TEST_F(WinKeyTest, LateAnswerIsNotWaitedForAndNotAskedForTwice) {
    Open();
    Line().Reply("\x15", "\xC5", 20);
    EXPECT_LE(TimeOf([&] { EXPECT_EQ(device.wk_getstatus(), 0); }), 2U);
    EXPECT_LE(TimeOf([&] { EXPECT_EQ(device.wk_getstatus(), 0); }), 2U);
    EXPECT_EQ(Line().TakeSent(), "\x15");
    clock.Advance(20);
    EXPECT_EQ(device.wk_getstatus(), 5);
}

TEST_F(WinKeyTest, DeviceCountsAsBusyBetweenACharacterAndItsWordThatItIs) {
    Open();
    device.wk_char('E');
    EXPECT_EQ(device.wk_getstatus(), 4);
    clock.Advance(100);
    EXPECT_EQ(device.wk_getstatus(), 0);
    device.wk_char('E');
    device.wk_clearbuf();
    EXPECT_EQ(device.wk_getstatus(), 0);
}

TEST_F(WinKeyTest, DeviceThatIsSilentForASecondHoldsNobodyUp) {
    Open();
    Status('\xC5');
    EXPECT_EQ(device.wk_getstatus(), 5);
    Line().TakeSent();
    clock.Advance(500);
    EXPECT_EQ(device.wk_getstatus(), 5);
    EXPECT_FALSE(device.IsSilent());
    clock.Advance(600);
    EXPECT_EQ(device.wk_getstatus(), 0);
    EXPECT_TRUE(device.IsSilent());
    Status('\xC4');
    EXPECT_EQ(device.wk_getstatus(), 4);
    EXPECT_FALSE(device.IsSilent());
}

TEST_F(WinKeyTest, PulledCableMakesNothingFailAndTheDeviceComesBackWithItsSettings) {
    Open();
    device.wk_wpm(28);
    device.wk_wpm(30);
    device.wk_setmode(16);
    Sent();
    Line().Unplug();
    EXPECT_EQ(device.wk_char('A'), kWkNotOpen);
    EXPECT_EQ(device.wk_getstatus(), kWkNotOpen);
    EXPECT_TRUE(device.IsOpen());
    EXPECT_TRUE(device.IsSilent());
    Line().Plug();
    clock.Advance(2'000);
    EXPECT_LE(TimeOf([&] { EXPECT_EQ(device.wk_char('B'), kWkSuccess); }), 250U);
    EXPECT_EQ(Sent(), kReset + kEchoTest + kHostOpen + "\x02\x1E\x0E\x10" + "B");
    EXPECT_FALSE(device.IsSilent());
}

TEST_F(WinKeyTest, CableThatStaysOutIsTriedSeldomAndCostsNothing) {
    Open();
    Line().Unplug();
    EXPECT_EQ(TimeOf([&] {
                  for (int i = 0; i < 1'000; ++i) {
                      device.wk_char('A');
                  }
              }),
              0U);
}

TEST_F(WinKeyTest, LostDeviceIsOpenedAnewWhenAsked) {
    Open();
    Line().Unplug();
    device.wk_char('A');
    Line().Plug();
    version = 0;
    EXPECT_EQ(device.wk_open(version, 1), kWkSuccess);
    EXPECT_EQ(version, 23);
}

TEST_F(WinKeyTest, EndOfTheObjectClosesTheDevice) {
    Connect();
    {
        WinKey other{ports, clock};
        other.wk_open(version, 1);
        Line().TakeSent();
    }
    EXPECT_EQ(Line().TakeSent(), "\x00\x03"s);
    EXPECT_FALSE(Line().isOpen);
}

}  // namespace
}  // namespace tallyhut
