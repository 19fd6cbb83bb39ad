#include <gtest/gtest.h>

#include "platform/sim/clock.h"
#include "platform/sim/serial_port.h"
#include "tests/platform/failure_of.h"

namespace tallyhut {
namespace {

using sim::ControlLine;

struct SimSerialPort : testing::Test {
    sim::Clock clock;
    sim::SerialPorts ports{clock};
    sim::SerialPort port{ports};
    sim::SerialLine& line = ports.Line(1);
};

TEST_F(SimSerialPort, WhatIsSetBeforeOpeningCountsAtOpening) {
    port.SetSettings("4800,N,8,2");
    port.SetHandshake(Handshake::RtsXonXoff);
    EXPECT_FALSE(line.isOpen);
    port.Open();
    EXPECT_TRUE(port.IsOpen());
    EXPECT_TRUE(line.isOpen);
    EXPECT_EQ(SettingsText(line.settings), "4800,N,8,2");
    EXPECT_EQ(line.handshake, Handshake::RtsXonXoff);
    port.SetSettings("56000,N,8,1");
    port.SetHandshake(Handshake::Rts);
    EXPECT_EQ(SettingsText(line.settings), "56000,N,8,1");
    EXPECT_EQ(line.handshake, Handshake::Rts);
}

TEST_F(SimSerialPort, SettingsThatAreNoneAreRefused) {
    EXPECT_EQ(FailureOf([&] { port.SetSettings("fast"); }), "fast: These are no settings of a serial port");
}

TEST_F(SimSerialPort, WritesAreRecordedWithTheirMoments) {
    port.Open();
    port.Write("FA;");
    clock.Advance(250);
    port.Write("MD;");
    port.Write("");
    EXPECT_EQ(line.written, (std::vector<sim::SerialLine::Written>{{0, "FA;"}, {250, "MD;"}}));
    EXPECT_EQ(port.TakeSent(), "FA;MD;");
    EXPECT_EQ(port.TakeSent(), "");
}

TEST_F(SimSerialPort, RecordOfDaysKeepsTheLatestAndDoesNotGrow) {
    const std::size_t kept = sim::SerialLine::kKept;
    port.Open();
    for (int poll = 1; poll <= 100'000; ++poll) {
        port.Write(std::to_string(poll) + ';');
        port.SetRts(poll % 2 == 0);
        ASSERT_LE(line.written.size(), 2 * kept);
        ASSERT_LE(line.levels.size(), 2 * kept);
    }
    ASSERT_GE(line.written.size(), kept);
    EXPECT_EQ(line.written.back().bytes, "100000;");
    EXPECT_EQ(line.written.at(line.written.size() - kept).bytes, std::to_string(100'000 - kept + 1) + ';');
    port.TakeSent();
    for (std::size_t poll = 0; poll < 2 * kept; ++poll) {
        port.Write("x");
        ASSERT_EQ(port.TakeSent(), "x");
    }
}

TEST_F(SimSerialPort, BytesThatArriveAreReadOnce) {
    port.Open();
    port.Receive(std::string_view{"FA\0;", 4});
    port.Receive("MD1;");
    EXPECT_EQ(port.ReadAll(), std::string("FA\0;MD1;", 8));
    EXPECT_EQ(port.ReadAll(), "");
}

TEST_F(SimSerialPort, WhatArrivesAtAClosedPortIsLost) {
    port.Receive("early");
    port.Open();
    EXPECT_EQ(port.ReadAll(), "");
    port.Receive("unread");
    port.Close();
    port.Open();
    EXPECT_EQ(port.ReadAll(), "");
}

TEST_F(SimSerialPort, CannedReplyFollowsItsRequestAfterItsTime) {
    line.Reply("FA;", "FA00014200000;", 30);
    line.Reply("MD;", "MD3;");
    port.Open();
    port.Write("FA;MD;");
    EXPECT_EQ(port.ReadAll(), "MD3;");
    clock.Advance(29);
    EXPECT_EQ(port.ReadAll(), "");
    clock.Advance(1);
    EXPECT_EQ(port.ReadAll(), "FA00014200000;");
}

TEST_F(SimSerialPort, RequestMayComeInPiecesAndAmongOthers) {
    line.Reply("FA;", "1");
    port.Open();
    for (const char* piece : {"xF", "A", ";F", "FA;"}) {
        port.Write(piece);
    }
    EXPECT_EQ(port.ReadAll(), "11");
}

TEST_F(SimSerialPort, BytesOfOneRequestAreNotCountedTwice) {
    const std::string zeros(10, '\0');
    line.Reply(zeros.substr(5), "1");
    port.Open();
    port.Write(zeros);
    EXPECT_EQ(port.ReadAll(), "11");
}

TEST_F(SimSerialPort, ReplyIsReplacedAndEnded) {
    line.Reply("FA;", "1");
    line.Reply("FA;", "2");
    port.Open();
    port.Write("FA;");
    EXPECT_EQ(port.ReadAll(), "2");
    line.Reply("FA;", "");
    port.Write("FA;");
    EXPECT_EQ(port.ReadAll(), "");
}

TEST_F(SimSerialPort, HeldOutputIsCountedUntilItIsLetGo) {
    port.Open();
    port.Write("FA;");
    EXPECT_EQ(port.OutputCount(), 0);
    line.holding = true;
    port.Write("FA;");
    port.Write("MD;");
    EXPECT_EQ(port.OutputCount(), 6);
    line.LetGo();
    EXPECT_EQ(port.OutputCount(), 0);
    line.outputCount = 5;
    EXPECT_EQ(port.OutputCount(), 5);
    port.Close();
    EXPECT_EQ(port.OutputCount(), 0);
    port.Open();
    EXPECT_EQ(port.OutputCount(), 0);
}

TEST_F(SimSerialPort, LevelsAreRecordedWhenTheyChange) {
    port.Open();
    EXPECT_EQ(line.rts, std::nullopt);
    port.SetRts(true);
    clock.Advance(60);
    port.SetRts(true);
    port.SetRts(false);
    EXPECT_EQ(line.levels,
              (std::vector<sim::SerialLine::Level>{{0, ControlLine::Rts, true}, {60'000, ControlLine::Rts, false}}));
    EXPECT_EQ(line.dtr, std::nullopt);
}

TEST_F(SimSerialPort, LevelsSetBeforeAreRecordedAtEachOpening) {
    port.SetRts(true);
    port.SetDtr(false);
    EXPECT_TRUE(line.levels.empty());
    port.Open();
    const std::vector<sim::SerialLine::Level> atOpening{{0, ControlLine::Dtr, false}, {0, ControlLine::Rts, true}};
    EXPECT_EQ(line.levels, atOpening);
    port.Close();
    line.levels.clear();
    port.Open();
    EXPECT_EQ(line.levels, atOpening);
}

TEST_F(SimSerialPort, NumberIsOneLineForAllItsPorts) {
    sim::SerialPort other{ports};
    other.SetNumber(2);
    port.Open();
    other.Open();
    port.Write("one");
    other.Write("two");
    EXPECT_EQ(ports.Line(1).TakeSent(), "one");
    EXPECT_EQ(ports.Line(2).TakeSent(), "two");
    other.Close();
    other.SetNumber(1);
    EXPECT_EQ(FailureOf([&] { other.Open(); }), "Serial port 1: Device or resource busy");
    other.Close();  // it had not opened: the line is not its own to close
    EXPECT_TRUE(line.isOpen);
    port.Close();
    other.Open();
    EXPECT_TRUE(other.IsOpen());
}

TEST_F(SimSerialPort, PortThatGoesIsClosed) {
    {
        sim::SerialPort other{ports};
        other.Open();
        EXPECT_TRUE(line.isOpen);
    }
    EXPECT_FALSE(line.isOpen);
}

TEST_F(SimSerialPort, NumberIsFrom1To10AndStandsWhileThePortIsOpen) {
    EXPECT_EQ(FailureOf([&] { port.SetNumber(0); }), "Serial port 0: There is no port of that number");
    EXPECT_EQ(FailureOf([&] { port.SetNumber(11); }), "Serial port 11: There is no port of that number");
    port.SetNumber(10);
    port.Open();
    EXPECT_TRUE(ports.Line(10).isOpen);
    EXPECT_EQ(FailureOf([&] { port.SetNumber(2); }), "Serial port 10: The port is open");
    EXPECT_EQ(FailureOf([&] { port.Open(); }), "Serial port 10: The port is open");
}

TEST_F(SimSerialPort, ClosedPortTakesNothingAndGivesNothing) {
    EXPECT_EQ(FailureOf([&] { port.Write("FA;"); }), "Serial port 1: The port is not open");
    EXPECT_EQ(port.ReadAll(), "");
    port.Close();
    EXPECT_FALSE(port.IsOpen());
}

TEST_F(SimSerialPort, RefusedOpeningGivesItsReason) {
    line.refusal = "Permission denied";
    EXPECT_EQ(FailureOf([&] { port.Open(); }), "Serial port 1: Permission denied");
    EXPECT_FALSE(port.IsOpen());
    line.refusal.clear();
    port.Open();
    EXPECT_TRUE(port.IsOpen());
}

TEST_F(SimSerialPort, PulledCableFailsUntilThePortIsOpenedAnew) {
    port.Open();
    port.Receive("lost");
    line.outputCount = 5;
    line.Unplug();
    const std::string gone = "Serial port 1: Input/output error";
    EXPECT_EQ(FailureOf([&] { port.Write("FA;"); }), gone);
    EXPECT_EQ(FailureOf([&] { port.SetDtr(true); }), gone);
    EXPECT_EQ(FailureOf([&] { port.SetRts(true); }), gone);
    EXPECT_EQ(FailureOf([&] { port.SetSettings("9600,N,8,1"); }), gone);
    EXPECT_EQ(FailureOf([&] { port.SetHandshake(Handshake::Rts); }), gone);
    port.Receive("lost");
    EXPECT_EQ(port.ReadAll(), "");
    EXPECT_EQ(port.OutputCount(), 0);
    EXPECT_TRUE(port.IsOpen());
    line.Plug();
    EXPECT_EQ(FailureOf([&] { port.Write("FA;"); }), gone);
    port.Close();
    port.Open();
    port.Write("FA;");
    EXPECT_EQ(port.TakeSent(), "FA;");
}

TEST_F(SimSerialPort, PulledCableCannotBeOpened) {
    line.Unplug();
    EXPECT_EQ(FailureOf([&] { port.Open(); }), "Serial port 1: No such file or directory");
    port.SetDtr(true);  // a closed port only remembers
    line.Plug();
    port.Open();
    EXPECT_EQ(line.dtr, true);
}

TEST_F(SimSerialPort, WhatHappensIsToldInItsOrder) {
    std::string told;
    ports.onPort = [&](int number, const sim::SerialLine& at) {
        told += std::to_string(number) + (at.isOpen ? " open " : " closed ") + SettingsText(at.settings) + '\n';
    };
    ports.onWrite = [&](int number, std::string_view bytes) {
        told += std::to_string(number) + " sent " + std::string{bytes} + '\n';
    };
    ports.onLevel = [&](int number, ControlLine which, bool on) {
        told += std::to_string(number) + (which == ControlLine::Dtr ? " DTR " : " RTS ") + (on ? "on\n" : "off\n");
    };
    port.SetNumber(2);
    port.SetDtr(true);
    port.Open();
    port.SetRts(false);
    port.Write("FA;");
    port.Close();
    port.SetDtr(false);
    EXPECT_EQ(told, "2 open 9600,N,8,1\n2 DTR on\n2 RTS off\n2 sent FA;\n2 closed 9600,N,8,1\n");
}

TEST_F(SimSerialPort, NumbersMeanWhatIsArranged) {
    ports.devices = {{.path = "/dev/ttyS0"}, {.path = "/dev/ttyUSB0", .description = "Cable", .mayOpen = false}};
    EXPECT_EQ(ports.DeviceOf(1), "/dev/ttyS0");
    EXPECT_EQ(ports.DeviceOf(3), "");
    ports.Choose(1, "/dev/ttyUSB0");
    EXPECT_EQ(ports.MeaningOf(1).device, ports.devices[1]);
    EXPECT_EQ(ports.MeaningOf(1).source, PortMeaning::Source::Choice);
    ports.commandLine[1] = "/tmp/rig";
    EXPECT_EQ(ports.DeviceOf(1), "/tmp/rig");
    ports.choiceFailure = "no room";
    EXPECT_EQ(FailureOf([&] { ports.Choose(1, ""); }), "no room");
}

}  // namespace
}  // namespace tallyhut
