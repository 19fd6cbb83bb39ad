#include "platform/real/tty_port.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>

#include "platform/real/tty_ports.h"
#include "platform/sim/settings_store.h"
#include "tests/platform/child_process.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/pseudo_terminal.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

std::string ManyBytes(std::size_t count) {
    std::string bytes;
    for (std::size_t i = 0; i < count; ++i) {
        bytes += static_cast<char>(i * 7 + i / 256);
    }
    return bytes;
}

/// Port 1 is a pseudo terminal, port 2 a name without a device, port 3 no terminal; no number means anything else.
struct TtyPortTest : testing::Test {
    PseudoTerminal radio;
    sim::SettingsStore settings;
    TtyPorts ports{settings,
                   {{1, radio.Path()}, {2, "/dev/nowhere"}, {3, "/dev/null"}},
                   {.devices = "/nowhere", .descriptions = "/nowhere"}};
    TtyPort port{ports};

    std::string Busy() const { return radio.Path() + ": Device or resource busy"; }
    /// What another port of this program says when it is opened on the same device.
    std::string OpeningByAnother() {
        return FailureOf([&] {
            TtyPort another{ports};
            another.Open();
        });
    }
};

TEST_F(TtyPortTest, BytesGoBothWaysAsTheyAre) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    port.Open();
    port.Write(everyByte);
    EXPECT_EQ(radio.Receive(), everyByte);
    radio.Send(everyByte);
    EXPECT_EQ(port.ReadAll(), everyByte);
    EXPECT_EQ(port.ReadAll(), "");
    EXPECT_EQ(port.OutputCount(), 0);
}

TEST_F(TtyPortTest, SettingsAndHandshakeReachTheDeviceAtOpening) {
    struct Case {
        const char* settings;
        Handshake handshake;
        const char* line;
        const char* form;
    };
    const Case cases[] = {
        {"1200,N,8,1", Handshake::None, "1200 1", "8N"},
        {"2400,E,7,1", Handshake::None, "2400 1", "7E"},
        {"4800,N,8,2", Handshake::None, "4800 2", "8N"},
        {"9600,O,7,2", Handshake::None, "9600 2", "7O"},
        {"14400,N,8,1", Handshake::None, "14400 1", "8N"},
        {"19200,N,8,1", Handshake::XonXoff, "19200 1 IXON IXOFF", "8N"},
        {"28800,N,8,1", Handshake::None, "28800 1", "8N"},
        {"38400,O,8,1", Handshake::None, "38400 1", "8O"},
        {"56000,N,8,1", Handshake::Rts, "56000 1 CRTSCTS", "8N"},
        {"115200,N,8,1", Handshake::RtsXonXoff, "115200 1 IXON IXOFF CRTSCTS", "8N"},
        {"110,E,5,2", Handshake::None, "110 2", "5E"},
        {"256000,N,6,1", Handshake::None, "256000 1", "6N"},
    };
    TerminalCalls calls;
    for (const Case& each : cases) {
        port.SetSettings(each.settings);
        port.SetHandshake(each.handshake);
        port.Open();
        EXPECT_EQ(radio.Settings(), each.line) << each.settings;
        EXPECT_EQ(calls.AskedForm(), each.form) << each.settings;
        port.Close();
    }
}

TEST_F(TtyPortTest, ChangesOfAnOpenPortCountAtOnce) {
    port.Open();
    EXPECT_EQ(radio.Settings(), "9600 1");
    port.SetSettings("56000,N,8,2");
    EXPECT_EQ(radio.Settings(), "56000 2");
    port.SetHandshake(Handshake::RtsXonXoff);
    EXPECT_EQ(radio.Settings(), "56000 2 IXON IXOFF CRTSCTS");
}

TEST_F(TtyPortTest, SettingsThatAreNoneAreRefusedAndTheFormerStand) {
    port.SetSettings("4800,N,8,2");
    EXPECT_EQ(FailureOf([&] { port.SetSettings("fast"); }), "fast: These are no settings of a serial port");
    port.Open();
    EXPECT_EQ(radio.Settings(), "4800 2");
}

TEST_F(TtyPortTest, XoffOfTheFarEndHoldsTheOutputUntilXon) {
    port.SetHandshake(Handshake::XonXoff);
    port.Open();
    radio.Send("a\x13");
    EXPECT_EQ(port.ReadAll(), "a");
    port.Write("FA;");
    port.Write("MD;");
    EXPECT_EQ(port.OutputCount(), 6);
    EXPECT_EQ(radio.Receive(), "");
    radio.Send("\x11");
    EXPECT_EQ(port.ReadAll(), "");
    EXPECT_EQ(port.OutputCount(), 0);
    EXPECT_EQ(radio.Receive(), "FA;MD;");
}

TEST_F(TtyPortTest, WithoutThatHandshakeXonAndXoffAreBytesLikeOthers) {
    port.Open();
    radio.Send("\x13");
    port.Write("\x13\x11");
    EXPECT_EQ(port.ReadAll(), "\x13");
    EXPECT_EQ(radio.Receive(), "\x13\x11");
}

TEST_F(TtyPortTest, WhatTheLineDoesNotTakeAtOnceFollows) {
    const std::string bytes = ManyBytes(50'000);
    port.Open();
    port.Write(bytes);
    EXPECT_GT(port.OutputCount(), 0);
    std::string received = radio.Receive();
    EXPECT_LT(received.size(), bytes.size());
    while (port.OutputCount() > 0) {
        received += radio.Receive();
    }
    received += radio.Receive();
    EXPECT_EQ(received, bytes);
}

TEST_F(TtyPortTest, LineThatTakesNothingRefusesWholeWritesAtLast) {
    port.Open();
    const std::string bytes = ManyBytes(60'000);
    port.Write(bytes);
    const int waiting = port.OutputCount();
    EXPECT_EQ(FailureOf([&] { port.Write(bytes); }), radio.Path() + ": The device takes no bytes");
    EXPECT_LE(port.OutputCount(), waiting);
    std::string received;
    while (port.OutputCount() > 0) {
        received += radio.Receive();
    }
    received += radio.Receive();
    EXPECT_EQ(received, bytes);
    port.Write("FA;");
    EXPECT_EQ(radio.Receive(), "FA;");
}

TEST_F(TtyPortTest, OutputCountIsWhatTheDeviceHasNotSentYet) {
    TerminalCalls calls;
    port.Open();
    calls.queuedOutput = 12;
    EXPECT_EQ(port.OutputCount(), 12);
}

TEST_F(TtyPortTest, FloodIsReadInPortions) {
    port.Open();
    const std::string bytes = ManyBytes(65'536);
    ChildProcess flood{[&]() -> std::string {
        for (std::size_t sent = 0;; sent = (sent + radio.Send(bytes.substr(sent))) % bytes.size()) {
        }
    }};
    constexpr std::size_t kEnough = 2'000'000;
    std::string received;
    while (received.size() < kEnough) {
        const std::string portion = port.ReadAll();
        ASSERT_LE(portion.size(), 65'536U);
        received += portion;
    }
    std::string expected;
    while (expected.size() < received.size()) {
        expected += bytes;
    }
    EXPECT_TRUE(received == expected.substr(0, received.size()));
}

TEST_F(TtyPortTest, PulledCableReadsAsNothingAndFailsAtWriting) {
    port.SetDtr(true);
    port.Open();
    radio.HangUp();
    EXPECT_EQ(port.ReadAll(), "");
    EXPECT_EQ(port.OutputCount(), 0);
    const std::string gone = radio.Path() + ": Input/output error";
    EXPECT_EQ(FailureOf([&] { port.Write("FA;"); }), gone);
    EXPECT_EQ(FailureOf([&] { port.SetSettings("4800,N,8,1"); }), gone);
    EXPECT_EQ(FailureOf([&] { port.SetHandshake(Handshake::Rts); }), gone);
    EXPECT_EQ(FailureOf([&] { port.SetRts(true); }), gone);
    EXPECT_EQ(port.OutputCount(), 0);
    EXPECT_TRUE(port.IsOpen());
    port.Close();
    EXPECT_FALSE(port.IsOpen());
}

TEST_F(TtyPortTest, ControlLinesAreSetWhenTheyAreTold) {
    TerminalCalls calls;
    port.Open();
    EXPECT_EQ(calls.Take(), "");  // a line that nobody set stays as the machine raises it
    port.SetDtr(true);
    port.SetDtr(false);
    port.SetRts(true);
    port.SetRts(false);
    EXPECT_EQ(calls.Take(), "DTR on, DTR off, RTS on, RTS off");
}

TEST_F(TtyPortTest, ControlLinesSetBeforeAreSetAtOpening) {
    TerminalCalls calls;
    port.SetRts(true);
    port.SetDtr(false);
    EXPECT_EQ(calls.Take(), "");
    port.Open();
    EXPECT_EQ(calls.Take(), "DTR off, RTS on");
    port.Close();
    port.SetRts(false);
    EXPECT_EQ(calls.Take(), "");
    port.Open();
    EXPECT_EQ(calls.Take(), "DTR off, RTS off");
}

TEST_F(TtyPortTest, TransmitterOnALineIsKeyedNoLongerThanTheOpeningTakes) {
    TerminalCalls calls;
    port.SetDtr(false);
    port.SetRts(false);
    port.Open();
    EXPECT_EQ(calls.AskedBeforeSettings(), "DTR off, RTS off");
}

TEST_F(TtyPortTest, ProgramThatIsKilledLeavesItsLinesToTheSystemToLower) {
    TerminalCalls calls;
    port.Open();
    EXPECT_TRUE(calls.LowersAtClose());
}

TEST_F(TtyPortTest, LineIsAskedForEachTimeThoughAPseudoTerminalHasNone) {
    TerminalCalls calls;
    port.Open();
    port.SetDtr(true);
    port.SetDtr(true);
    EXPECT_EQ(calls.Take(), "DTR on, DTR on");
}

TEST_F(TtyPortTest, CablePulledWhileALineIsUpFailsAtTheNextLevelAndOpensAnew) {
    port.Open();
    port.SetDtr(true);
    radio.HangUp();
    EXPECT_EQ(FailureOf([&] { port.SetDtr(false); }), radio.Path() + ": Input/output error");
    port.Close();
    EXPECT_NE(FailureOf([&] { port.Open(); }), "");
    EXPECT_FALSE(port.IsOpen());
}

// Lowered at the opening it would stay so: the driver moves it only when its own buffer fills.
TEST_F(TtyPortTest, LineRtsIsTheDriversWhereTheHandshakeUsesIt) {
    TerminalCalls calls;
    port.SetHandshake(Handshake::Rts);
    port.SetDtr(false);
    port.SetRts(false);
    port.Open();
    EXPECT_EQ(calls.Take(), "DTR off");
}

TEST_F(TtyPortTest, ControlLineThatFailsIsAFailureAndLeavesTheDeviceFree) {
    {
        TerminalCalls calls;
        calls.lineFailure = EIO;
        port.SetDtr(false);
        EXPECT_EQ(FailureOf([&] { port.Open(); }), radio.Path() + ": Input/output error");
    }
    EXPECT_FALSE(port.IsOpen());
    EXPECT_EQ(OpeningByAnother(), "");
}

TEST_F(TtyPortTest, DeviceIsForOnePortAtATime) {
    port.Open();
    EXPECT_EQ(OpeningByAnother(), Busy());
    EXPECT_EQ(FailureOf([&] { port.Open(); }), radio.Path() + ": The port is open");
    port.Write("FA;");
    EXPECT_EQ(radio.Receive(), "FA;");
    port.Close();
    EXPECT_EQ(OpeningByAnother(), "");
}

TEST_F(TtyPortTest, AnotherProgramMayNotOpenTheDeviceUntilItIsClosed) {
    chmod(radio.Path().c_str(), 0666);
    const auto openByOther = [&] {
        return InUnprivilegedChild([&]() -> std::string {
            const Descriptor other{open(radio.Path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK)};
            return other.IsOpen() ? "open" : errno == EBUSY ? "busy" : "failed";
        });
    };
    port.Open();
    EXPECT_EQ(openByOther(), "busy");
    port.Close();
    EXPECT_EQ(openByOther(), "open");
    {
        TtyPort shortLived{ports};
        shortLived.Open();
        EXPECT_EQ(openByOther(), "busy");
    }
    EXPECT_EQ(openByOther(), "open");
}

TEST_F(TtyPortTest, DeviceThatAnotherProgramHasLockedIsBusy) {
    const Descriptor other{open(radio.Path().c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)};
    ASSERT_EQ(flock(other.Number(), LOCK_EX | LOCK_NB), 0);
    EXPECT_EQ(FailureOf([&] { port.Open(); }), Busy());
}

TEST_F(TtyPortTest, DeviceThatCannotBeOpenedIsNamedWithTheReason) {
    const std::pair<int, const char*> cases[] = {
        {2, "/dev/nowhere: No such file or directory"},
        {3, "/dev/null: Inappropriate ioctl for device"},
        {4, "Serial port 4: No device is there for it"},
    };
    for (const auto& [number, reason] : cases) {
        port.SetNumber(number);
        EXPECT_EQ(FailureOf([&] { port.Open(); }), reason);
        EXPECT_FALSE(port.IsOpen());
    }
}

TEST_F(TtyPortTest, MissingRightIsTold) {
    chmod(radio.Path().c_str(), 0600);
    EXPECT_EQ(InUnprivilegedChild([&] { return FailureOf([&] { port.Open(); }); }),
              radio.Path() + ": Permission denied");
}

TEST_F(TtyPortTest, LinkToADeviceIsOpenedLikeTheDevice) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink(radio.Path(), folder.At("rig"));
    const TtyPorts linked{settings, {{1, folder.At("rig")}}};
    TtyPort throughLink{linked};
    throughLink.Open();
    throughLink.Write("FA;");
    EXPECT_EQ(radio.Receive(), "FA;");
    EXPECT_EQ(OpeningByAnother(), Busy());
}

TEST_F(TtyPortTest, NumberIsFrom1To10AndStandsWhileThePortIsOpen) {
    EXPECT_EQ(FailureOf([&] { port.SetNumber(0); }), "Serial port 0: There is no port of that number");
    EXPECT_EQ(FailureOf([&] { port.SetNumber(11); }), "Serial port 11: There is no port of that number");
    port.Open();
    EXPECT_EQ(FailureOf([&] { port.SetNumber(2); }), radio.Path() + ": The port is open");
}

TEST_F(TtyPortTest, ClosedPortTakesNothingAndGivesNothing) {
    EXPECT_EQ(FailureOf([&] { port.Write("FA;"); }), "Serial port 1: The port is not open");
    EXPECT_EQ(port.ReadAll(), "");
    EXPECT_EQ(port.OutputCount(), 0);
    port.Close();
    EXPECT_FALSE(port.IsOpen());
}

TEST_F(TtyPortTest, ClosingDropsWhatWaitsButALastShortCommand) {
    TerminalCalls calls;
    struct Case {
        int queued;
        Handshake handshake;
        const char* asked;
    };
    const Case cases[] = {
        {0, Handshake::None, ""},         {16, Handshake::None, ""},    {17, Handshake::None, "flush"},
        {1, Handshake::XonXoff, "flush"}, {1, Handshake::Rts, "flush"},
    };
    for (const Case& each : cases) {
        port.SetHandshake(each.handshake);
        port.Open();
        calls.queuedOutput = each.queued;
        port.Close();
        calls.queuedOutput = 0;
        EXPECT_EQ(calls.Take(), each.asked) << each.queued;
    }
}

TEST_F(TtyPortTest, WhatWaitedAtClosingIsNotSentAtTheNextOpening) {
    port.Open();
    port.Write(ManyBytes(60'000));
    port.Close();
    radio.Receive();
    port.Open();
    EXPECT_EQ(port.OutputCount(), 0);
    port.Write("FA;");
    EXPECT_EQ(radio.Receive(), "FA;");
}

}  // namespace
}  // namespace tallyhut
