#include "rig/rig_server.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/sim/clipboard.h"
#include "platform/sim/clock.h"
#include "platform/sim/dialogs.h"
#include "platform/sim/event_pump.h"
#include "platform/sim/tcp_socket.h"
#include "rig/flrig_dialect.h"
#include "rig/rigctld_dialect.h"
#include "tests/fuzz/damage.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

constexpr const char* kFrequencyAnswer = "get_freq:\nFrequency: 14025000\nRPRT 0\n";
constexpr const char* kModeAnswer = "get_mode:\nMode: CW\nPassband: 500\nRPRT 0\n";
constexpr Tick kDay = 24 * 60 * 60 * 1'000;

std::string NameOf(RigServerLink link) {
    constexpr std::array kNames{"Closed", "Connecting", "Connected", "NoAnswer"};
    return kNames.at(static_cast<std::size_t>(link));
}

/// A server that a test speaks for, on the virtual clock.
struct RigServerTest : testing::Test {
    sim::Clock clock;
    sim::EventPump pump{clock};
    sim::Dialogs dialogs;
    sim::Clipboard clipboard;
    Desk desk{clock, pump, dialogs, clipboard};
    sim::TcpSockets sockets{pump};
    RigServer server{sockets, desk};
    std::vector<std::string> told;
    std::string links;

    RigServerTest() {
        server.read = [this](const RigReading& reading) {
            told.push_back(reading.frequency ? std::to_string(*reading.frequency) : std::string{*reading.mode});
        };
        server.linkChanged = [this] { links += (links.empty() ? "" : ", ") + NameOf(server.Link()); };
    }

    sim::TcpPeer& Peer() { return sockets.Peer(0); }
    /// Until nothing has anything to read, as the loop of the program does.
    void Run() {
        do {
            desk.RunPending();
        } while (!pump.readable.empty());
    }
    /// To the next alarm, or to the tick before it.
    void RunTo(Tick end) {
        clock.AdvanceTo(std::min(desk.NextDue().value_or(end), end));
        Run();
    }
    /// Every alarm runs at its own moment.
    void Pass(Tick milliseconds) {
        const Tick end = clock.TickMs() + milliseconds;
        do {
            RunTo(end);
        } while (clock.TickMs() < end);
    }
    void Arrive(std::string_view bytes) {
        Peer().Arrive(bytes);
        Run();
    }
    void Fail() {
        Peer().Fail(kTcpReset);
        Run();
    }
    void Open(const ServerDialect& dialect = kRigctld) {
        server.Open(dialect, "shack", 4532);
        Peer().Accept();
        Run();
    }
    /// Open, introduced, and the first frequency and mode are told.
    void OpenWell() {
        Open();
        Arrive("0\n");
        AnswerPoll();
        Forget();
    }
    void AnswerPoll() {
        Arrive(kFrequencyAnswer);
        Arrive(kModeAnswer);
    }
    void Forget() {
        told.clear();
        links.clear();
        Peer().TakeSent();
    }
    std::string Sent() { return Peer().TakeSent(); }
    /// The moments of the attempts from now on, in seconds from now.
    std::vector<Tick> AttemptsIn(Tick milliseconds) {
        std::vector<Tick> moments;
        const Tick start = clock.TickMs();
        while (clock.TickMs() < start + milliseconds) {
            const int known = Peer().attempts;
            RunTo(start + milliseconds);
            if (Peer().attempts != known) {
                moments.push_back((clock.TickMs() - start) / 1'000);
            }
        }
        return moments;
    }
};

TEST_F(RigServerTest, IsClosedAndAsksForNoSocketUntilItIsOpened) {
    EXPECT_EQ(server.Link(), RigServerLink::Closed);
    server.Poll();
    server.Close();
    EXPECT_FALSE(server.Tune(14'025'000, "CW"));
    EXPECT_FALSE(server.SetMode("CW"));
    EXPECT_FALSE(desk.NextDue());
    EXPECT_THROW(Peer(), std::out_of_range);
    EXPECT_EQ(links, "");
}

TEST_F(RigServerTest, OpeningReturnsAtOnceAndTheRestComesByItself) {
    server.Open(kRigctld, "shack", 4532);
    EXPECT_EQ(server.Link(), RigServerLink::Connecting);
    EXPECT_EQ(Peer().host, "shack");
    EXPECT_EQ(Peer().port, 4532);
    Peer().Accept();
    Run();
    EXPECT_EQ(Sent(), "\\chk_vfo\n");
    Arrive("0\n");
    EXPECT_EQ(Sent(), "+f\n");
    EXPECT_EQ(server.Link(), RigServerLink::Connecting);
    Arrive(kFrequencyAnswer);
    EXPECT_EQ(server.Link(), RigServerLink::Connected);
    EXPECT_EQ(Sent(), "+m\n");
    Arrive(kModeAnswer);
    EXPECT_EQ(Sent(), "");
    EXPECT_EQ(told, (std::vector<std::string>{"14.025000", "CW"}));
    EXPECT_EQ(links, "Connecting, Connected");
    EXPECT_FALSE(desk.NextDue()) << "nothing is waited for";
}

TEST_F(RigServerTest, OneRequestIsOpenAtATime) {
    OpenWell();
    server.Poll();
    server.Poll();
    EXPECT_EQ(Sent(), "+f\n");
    Arrive("get_freq:\nFrequency: 14040");
    server.Poll();
    EXPECT_EQ(Sent(), "");
    Arrive("500\nRPRT 0\n");
    EXPECT_EQ(Sent(), "+m\n");
    server.Poll();
    EXPECT_EQ(Sent(), "");
    Arrive(kModeAnswer);
    EXPECT_EQ(Sent(), "");
    EXPECT_EQ(told, (std::vector<std::string>{"14.040500", "CW"}));
}

TEST_F(RigServerTest, EachByteMayComeByItself) {
    OpenWell();
    server.Poll();
    for (const std::string whole : {kFrequencyAnswer, kModeAnswer}) {
        for (const char byte : whole) {
            Peer().Arrive({&byte, 1});
        }
        Run();
        for (int round = 0; round < 100; ++round) {
            desk.RunTimersAndIo();
        }
    }
    EXPECT_EQ(told, (std::vector<std::string>{"14.025000", "CW"}));
    EXPECT_EQ(links, "");
}

TEST_F(RigServerTest, AnswerIsTakenForFiveSecondsAndNotLonger) {
    OpenWell();
    server.Poll();
    Pass(4'999);
    EXPECT_EQ(server.Link(), RigServerLink::Connected);
    Arrive("get_freq:\nFrequency: 14030000\nRPRT 0\n");
    EXPECT_EQ(told.back(), "14.030000");
    Pass(4'999);
    Arrive("get_mode:\nMode: USB\n");
    Pass(1);
    EXPECT_EQ(server.Link(), RigServerLink::NoAnswer);
    EXPECT_FALSE(Peer().isConnected) << "half an answer is none, and what comes late comes to nobody";
    Arrive("Passband: 2400\nRPRT 0\n");
    EXPECT_EQ(told.size(), 1U);
    EXPECT_EQ(links, "NoAnswer");
}

TEST_F(RigServerTest, ConnectsAgainByItselfAfterPausesThatGrow) {
    server.Open(kRigctld, "shack", 4532);
    Peer().refusal = kTcpRefused;
    Fail();
    EXPECT_EQ(AttemptsIn(60'000), (std::vector<Tick>{1, 3, 8, 18, 28, 38, 48, 58}));
    EXPECT_EQ(links, "Connecting, NoAnswer");
    Peer().refusal.reset();
    Peer().accepts = true;
    Pass(10'000);
    Arrive("0\n");
    AnswerPoll();
    EXPECT_EQ(links, "Connecting, NoAnswer, Connected");
    EXPECT_EQ(told, (std::vector<std::string>{"14.025000", "CW"}));
}

TEST_F(RigServerTest, AttemptThatHangsIsGivenUpAfterTwoSeconds) {
    server.Open(kRigctld, "shack", 4532);
    Pass(1'999);
    EXPECT_EQ(server.Link(), RigServerLink::Connecting);
    Pass(1);
    EXPECT_EQ(server.Link(), RigServerLink::NoAnswer);
    EXPECT_FALSE(Peer().isConnecting);
    EXPECT_EQ(AttemptsIn(40'000), (std::vector<Tick>{1, 5, 12, 24, 36})) << "two seconds and the pause";
}

TEST_F(RigServerTest, PausesBeginAnewBehindAMinuteOfAGoodConnection) {
    server.Open(kRigctld, "shack", 4532);
    Peer().refusal = kTcpRefused;
    Fail();
    Pass(8'500);
    Peer().refusal.reset();
    const auto loseAfter = [this](Tick good) {
        Peer().accepts = true;
        Pass(10'000);
        Arrive("0\n");
        AnswerPoll();
        EXPECT_EQ(server.Link(), RigServerLink::Connected);
        Pass(good);
        Peer().accepts = false;
        Peer().refusal = kTcpRefused;
        Fail();
        const std::vector<Tick> attempts = AttemptsIn(40'000);
        Peer().refusal.reset();
        return attempts;
    };
    EXPECT_EQ(loseAfter(59'000), (std::vector<Tick>{10, 20, 30, 40}));
    EXPECT_EQ(loseAfter(60'000), (std::vector<Tick>{1, 3, 8, 18, 28, 38}));
}

TEST_F(RigServerTest, ServerThatClosesBehindEachAnswerIsNotRunAfter) {
    OpenWell();
    Peer().accepts = true;
    int attempts = 0;
    for (Tick passed = 0; passed < 60'000; passed += 10) {
        Pass(10);
        server.Poll();
        const std::string sent = Sent();
        if (sent == "\\chk_vfo\n") {
            Arrive("0\n");
        } else if (sent == "+f\n") {
            Peer().Arrive(kFrequencyAnswer);
            Peer().End();
            ++attempts;
        }
    }
    EXPECT_EQ(attempts, 9) << "at 0, 1, 3, 8, 18, 28, 38, 48 and 58 s";
}

TEST_F(RigServerTest, EndOfTheConnectionIsNoAnswer) {
    OpenWell();
    Peer().End();
    Run();
    EXPECT_EQ(links, "NoAnswer");
    EXPECT_FALSE(server.Tune(14'025'000, "CW"));
}

TEST_F(RigServerTest, SilenceToTheFirstQuestionIsTheNormalManner) {
    Open();
    Sent();
    Pass(1'999);
    EXPECT_EQ(Sent(), "");
    Pass(1);
    EXPECT_EQ(Sent(), "+f\n");
    Arrive("0\n");  // late, and known for what it is
    Arrive(kFrequencyAnswer);
    EXPECT_EQ(server.Link(), RigServerLink::Connected);
    EXPECT_EQ(Sent(), "+m\n");
    Arrive("0\n");
    EXPECT_EQ(server.Link(), RigServerLink::NoAnswer) << "nothing is owed any more";
}

TEST_F(RigServerTest, ServerThatWantsVfosIsToldThemOnEachConnection) {
    Open();
    Sent();
    Arrive("1\n");
    EXPECT_EQ(Sent(), "+f currVFO\n");
    Arrive("get_freq: currVFO\nFrequency: 7035000\nRPRT 0\n");
    Arrive("get_mode: currVFO\nMode: USB\nPassband: 0\nRPRT 0\n");
    EXPECT_EQ(told, (std::vector<std::string>{"7.035000", "PH"}));
    Peer().End();
    Run();
    Peer().accepts = true;
    Pass(1'000);
    Sent();
    Arrive("0\n");
    EXPECT_EQ(Sent(), "+f\n");
}

TEST_F(RigServerTest, TuningIsTheModeAndThenTheFrequency) {
    OpenWell();
    EXPECT_TRUE(server.Tune(7'035'000, "CW-R"));
    EXPECT_EQ(Sent(), "+M CWR -1\n");
    Arrive("set_mode: CWR -1\nRPRT 0\n");
    EXPECT_EQ(Sent(), "+F 7035000\n");
    Arrive("set_freq: 7035000\nRPRT 0\n");
    EXPECT_EQ(Sent(), "");
    EXPECT_EQ(links, "");
    EXPECT_TRUE(told.empty()) << "the next poll tells";
}

TEST_F(RigServerTest, ModeThatTheServerHasNoNameForIsLeftOut) {
    OpenWell();
    EXPECT_TRUE(server.Tune(1'825'000, ""));
    EXPECT_EQ(Sent(), "+F 1825000\n");
    Arrive("set_freq: 1825000\nRPRT 0\n");
    EXPECT_TRUE(server.SetMode("PH"));
    EXPECT_EQ(Sent(), "");
    EXPECT_TRUE(server.SetMode("LSB"));
    EXPECT_EQ(Sent(), "+M LSB -1\n");
}

TEST_F(RigServerTest, CommandWaitsForTheOpenRequestAndTheNewestGoesOut) {
    OpenWell();
    server.Poll();
    EXPECT_EQ(Sent(), "+f\n");
    EXPECT_TRUE(server.Tune(7'035'000, "CW"));
    EXPECT_TRUE(server.Tune(14'250'000, "USB"));
    EXPECT_EQ(Sent(), "");
    Arrive(kFrequencyAnswer);
    EXPECT_EQ(Sent(), "+M USB -1\n");
    EXPECT_TRUE(server.SetMode("AM"));
    Arrive("set_mode: USB -1\nRPRT 0\n");
    EXPECT_EQ(Sent(), "+M AM -1\n") << "a mode alone takes no frequency's place";
    Arrive("set_mode: AM -1\nRPRT 0\n");
    EXPECT_EQ(Sent(), "+F 14250000\n");
    Arrive("set_freq: 14250000\nRPRT 0\n");
    EXPECT_EQ(Sent(), "+m\n") << "the poll goes on";
}

TEST_F(RigServerTest, CommandThatIsRefusedIsSilent) {
    OpenWell();
    server.Tune(7'035'000, "DIG");
    Sent();
    Arrive("set_mode: PKTUSB -1\nRPRT -1\n");
    EXPECT_EQ(Sent(), "+F 7035000\n") << "the frequency is set all the same";
    Arrive("set_freq: 7035000\nRPRT -9\n");
    EXPECT_EQ(links, "");
    EXPECT_TRUE(Peer().isConnected);
    server.Poll();
    EXPECT_EQ(Sent(), "+f\n");
}

TEST_F(RigServerTest, RadioThatCannotTellItsModeIsTunedAllTheSame) {
    for (const char* refusal : {"get_mode:\nRPRT -9\n", "get_mode:\nRPRT -11\n", "RPRT -4\n"}) {
        Open();
        Arrive("0\n");
        Arrive(kFrequencyAnswer);
        Arrive(refusal);
        EXPECT_EQ(links, "Connecting, Connected") << refusal;
        EXPECT_EQ(told, std::vector<std::string>{"14.025000"});
        Sent();
        EXPECT_TRUE(server.Tune(7'035'000, "CW"));
        EXPECT_EQ(Sent(), "+M CW -1\n");
        server.Close();
        Forget();
    }
}

TEST_F(RigServerTest, AFrequencyWithoutAModeOfItsOwnKeepsTheModeThatWaits) {
    OpenWell();
    server.Poll();
    Sent();
    EXPECT_TRUE(server.SetMode("USB"));
    EXPECT_TRUE(server.Tune(1'850'000, ""));
    Arrive(kFrequencyAnswer);
    EXPECT_EQ(Sent(), "+M USB -1\n");
    Arrive("set_mode: USB -1\nRPRT 0\n");
    EXPECT_EQ(Sent(), "+F 1850000\n");
}

TEST_F(RigServerTest, WhatWaitsCanBeDropped) {
    OpenWell();
    server.Poll();
    EXPECT_TRUE(server.Tune(7'035'000, "CW"));
    server.DropCommands();
    Sent();
    Arrive(kFrequencyAnswer);
    EXPECT_EQ(Sent(), "+m\n");
}

TEST_F(RigServerTest, CommandIsDroppedWithTheConnection) {
    OpenWell();
    server.Poll();
    EXPECT_TRUE(server.Tune(7'035'000, "CW"));
    Fail();
    Peer().accepts = true;
    Pass(1'000);
    EXPECT_FALSE(server.Tune(7'040'000, "CW")) << "not connected until the radio has told something";
    EXPECT_FALSE(server.SetMode("CW"));
    Sent();
    Arrive("0\n");
    AnswerPoll();
    server.Poll();
    AnswerPoll();
    EXPECT_EQ(Sent(), "+f\n+m\n+f\n+m\n") << "what was dropped is never delivered";
}

TEST_F(RigServerTest, RadioThatIsSilentBehindTheServerIsNoAnswerAndNoReasonToReconnect) {
    OpenWell();
    server.Poll();
    EXPECT_TRUE(server.Tune(7'035'000, "CW"));
    Sent();
    Arrive("get_freq:\nRPRT -5\n");
    EXPECT_EQ(links, "NoAnswer");
    EXPECT_EQ(Sent(), "") << "neither the mode is asked for nor anything set";
    EXPECT_FALSE(server.Tune(7'035'000, "CW"));
    EXPECT_TRUE(Peer().isConnected);
    server.Poll();
    EXPECT_EQ(Sent(), "+f\n");
    AnswerPoll();
    EXPECT_EQ(links, "NoAnswer, Connected");
    EXPECT_EQ(Peer().attempts, 1);
}

TEST_F(RigServerTest, WrongAnswersGiveNoReadingAndEndTheConnection) {
    for (const char* wrong : {"get_mode:\nMode: CW\nPassband: 500\nRPRT 0\n", "14040500\n", "RPRT 0\n",
                              "get_freq:\nFrequency: 99999999999999999\nRPRT 0\n", "\x16\x03\x01\n",
                              "get_freq:\nFrequency: 14040500\nRPRT 0\nget_freq:\nFrequency: 7000000\nRPRT 0\n"}) {
        Open();
        Arrive("0\n");
        Forget();
        Arrive(wrong);
        EXPECT_TRUE(told.empty()) << wrong;
        EXPECT_FALSE(Peer().isConnected) << wrong;
        EXPECT_EQ(server.Link(), RigServerLink::NoAnswer) << wrong;
    }
}

TEST_F(RigServerTest, BytesThatNobodyAskedForEndTheConnection) {
    for (const char* unasked : {kModeAnswer, kFrequencyAnswer, "0\n", "\n"}) {
        OpenWell();
        Arrive(unasked);
        EXPECT_TRUE(told.empty()) << unasked << "though the last request may have been for it";
        EXPECT_EQ(links, "NoAnswer") << unasked;
        EXPECT_FALSE(Peer().isConnected) << unasked;
    }
}

TEST_F(RigServerTest, FloodIsTakenInPartsAndThenNotAtAll) {
    for (const ServerDialect* dialect : {&kRigctld, &kFlrig}) {
        Open(*dialect);
        for (int i = 0; i < 1'000; ++i) {
            Peer().Arrive(std::string(8'192, 'x'));
        }
        Run();
        EXPECT_FALSE(Peer().isConnected);
        EXPECT_TRUE(pump.readable.empty()) << "what is left is dropped";
        EXPECT_EQ(server.Link(), RigServerLink::NoAnswer);
        EXPECT_EQ(desk.NextDue(), clock.TickMs() + 1'000);
    }
}

TEST_F(RigServerTest, ClosingStopsEverythingAtAnyStage) {
    const auto isStopped = [this] {
        server.Close();
        return server.Link() == RigServerLink::Closed && !desk.NextDue() && !Peer().isConnected && !Peer().isConnecting;
    };
    server.Open(kRigctld, "shack", 4532);
    EXPECT_TRUE(isStopped());
    Open();
    EXPECT_TRUE(isStopped());
    Open();
    Arrive("0\n");
    EXPECT_TRUE(isStopped());
    Open();
    Peer().End();
    Run();
    EXPECT_TRUE(isStopped()) << "in a pause";
    Pass(60'000);
    EXPECT_EQ(Peer().attempts, 4);
}

TEST_F(RigServerTest, OpeningAnewForgetsTheOldServer) {
    OpenWell();
    server.Poll();
    server.Tune(7'035'000, "CW");
    Peer().Arrive(kFrequencyAnswer);
    server.Open(kFlrig, "attic", 12345);
    Run();
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(links, "Connecting");
    EXPECT_EQ(Peer().host, "attic");
    Sent();
    Peer().Accept();
    Run();
    EXPECT_NE(Sent().find("rig.get_xcvr"), std::string::npos);
}

TEST_F(RigServerTest, HandlersMayCloseAndOpen) {
    Open();
    Arrive("0\n");
    server.read = [this](const RigReading& /*reading*/) { server.Close(); };
    Arrive(kFrequencyAnswer);
    EXPECT_EQ(server.Link(), RigServerLink::Closed);
    server.linkChanged = [this] {
        if (server.Link() == RigServerLink::Connected) {
            server.Open(kRigctld, "attic", 4533);
        }
    };
    server.read = [](const RigReading& /*reading*/) { FAIL() << "of a server that is left"; };
    Open();
    Arrive("0\n");
    Arrive(kFrequencyAnswer);
    EXPECT_EQ(server.Link(), RigServerLink::Connecting);
    EXPECT_EQ(Peer().host, "attic");
    server.linkChanged = [this] { server.Close(); };
    Fail();
    EXPECT_EQ(server.Link(), RigServerLink::Closed);
    EXPECT_FALSE(desk.NextDue());
}

TEST_F(RigServerTest, DayOfReconnectingTakesNoMoreThanItsFirstMinute) {
    server.Open(kRigctld, "shack", 4532);
    Peer().refusal = kTcpRefused;
    Fail();
    Pass(18'000);
    const int before = Peer().attempts;
    Pass(kDay);
    EXPECT_EQ(Peer().attempts - before, 8'640) << "one each ten seconds";
    EXPECT_THROW(sockets.Peer(1), std::out_of_range) << "all over one socket";
    EXPECT_TRUE(pump.readable.empty());
    EXPECT_EQ(links, "Connecting, NoAnswer");
    Peer().refusal.reset();
    Peer().accepts = true;
    Pass(10'000);
    Arrive("0\n");
    AnswerPoll();
    EXPECT_EQ(server.Link(), RigServerLink::Connected);
}

TEST_F(RigServerTest, DayWithAServerThatHangsUpInEveryPollEndsWell) {
    Open();
    Peer().accepts = true;
    int polls = 0;
    for (Tick passed = 0; passed < kDay; passed += 500) {
        Pass(500);
        server.Poll();
        const std::string sent = Sent();
        if (sent == "\\chk_vfo\n") {
            Arrive("0\n");
            Arrive(kFrequencyAnswer);
            Sent();
            Peer().Arrive("get_mode:\nMode: C");
            Peer().Fail(kTcpReset);
            ++polls;
        }
    }
    EXPECT_GE(polls, 8'000);
    EXPECT_LE(polls, 8'700);
    EXPECT_EQ(told.size(), static_cast<std::size_t>(polls));
    EXPECT_EQ(Peer().attempts, polls);
    EXPECT_THROW(sockets.Peer(1), std::out_of_range);
}

TEST_F(RigServerTest, WhateverAServerDoesItIsNeverStuckAndTellsNothingElse) {
    Damage damage{2026};
    const std::vector<std::string> lines{
        "0\n", kFrequencyAnswer, kModeAnswer, "set_mode: CW -1\nRPRT 0\n", "set_freq: 7035000\nRPRT 0\n", "RPRT -5\n"};
    Open();
    Peer().accepts = true;
    const std::vector<std::function<void()>> steps{
        [&] { Arrive(lines.at(damage.Below(lines.size()))); },
        [&] { Arrive(damage.Damaged(lines, "\n\r :-RPT")); },
        [&] { Arrive(kFrequencyAnswer); },
        [&] { Arrive(kModeAnswer); },
        [&] { server.Poll(); },
        [&] { EXPECT_EQ(server.Tune(7'035'000, "CW"), server.Link() == RigServerLink::Connected); },
        [&] { Pass(damage.Below(4'000)); },
        [&] {
            if (damage.Below(20) == 0) {
                Fail();
            }
        },
    };
    server.read = [this](const RigReading& /*reading*/) {
        EXPECT_EQ(server.Link(), RigServerLink::Connected);
        told.push_back({});
    };
    for (int i = 0; i < 20'000; ++i) {
        steps.at(damage.Below(steps.size()))();
        ASSERT_TRUE(Peer().isConnected || desk.NextDue()) << "there is something to wait for";
    }
    EXPECT_GT(told.size(), 20U) << "it did well now and then";
    Pass(20'000);
    Fail();
    Pass(10'000);
    Arrive("0\n");
    AnswerPoll();
    EXPECT_EQ(server.Link(), RigServerLink::Connected);
}

/// A server of the other kind, which answers each call by its name.
struct FlrigServerTest : RigServerTest {
    std::string radio = "IC-7300";
    std::string frequency = "14025000";
    std::string mode = "CW";
    std::string modes = "<array><data><value>LSB</value><value>USB</value><value>CW</value></data></array>";

    /// Answers until nothing is asked any more; the methods that were called.
    std::string Serve() {
        std::string calls;
        for (std::string sent = Sent(); !sent.empty(); sent = Sent()) {
            const std::size_t begin = sent.find("<methodName>") + 12;
            const std::string method = sent.substr(begin, sent.find('<', begin) - begin);
            const std::size_t parameter = sent.find("<value><");
            calls += (calls.empty() ? "" : ", ") + method;
            calls += parameter == std::string::npos
                         ? ""
                         : ' ' + sent.substr(parameter + 7, sent.find("</value") - parameter - 7);
            Arrive(AnswerOf(method));
        }
        return calls;
    }
    std::string AnswerOf(const std::string& method) const {
        const std::string value = method == "rig.get_xcvr"    ? radio
                                  : method == "rig.get_modes" ? modes
                                  : method == "rig.get_vfo"   ? frequency
                                  : method == "rig.get_mode"  ? mode
                                                              : "";
        const std::string body = "<?xml version=\"1.0\"?>\r\n<methodResponse><params><param>\r\n\t<value>" + value +
                                 "</value>\r\n</param></params></methodResponse>\r\n";
        return "HTTP/1.1 200 OK\r\nContent-length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
    }
};

TEST_F(FlrigServerTest, RadioIsAskedForItsNameAndItsModesFirst) {
    Open(kFlrig);
    EXPECT_EQ(Serve(), "rig.get_xcvr, rig.get_modes, rig.get_vfo, rig.get_mode");
    EXPECT_EQ(told, (std::vector<std::string>{"14.025000", "CW"}));
    EXPECT_EQ(links, "Connecting, Connected");
    server.Poll();
    EXPECT_EQ(Serve(), "rig.get_vfo, rig.get_mode");
}

TEST_F(FlrigServerTest, CommandsUseTheRadiosNames) {
    modes = "<array><data><value>LSB</value><value>USB</value><value>CW-U</value></data></array>";
    Open(kFlrig);
    Serve();
    EXPECT_TRUE(server.Tune(7'035'000, "CW"));
    EXPECT_EQ(Serve(), "rig.set_mode <string>CW-U</string>, rig.set_vfo <double>7035000</double>");
    EXPECT_TRUE(server.Tune(7'035'000, "RTTY"));
    EXPECT_EQ(Serve(), "rig.set_vfo <double>7035000</double>");
}

TEST_F(FlrigServerTest, NothingIsBelievedAndNothingSetWhileTheNameIsEmpty) {
    radio = "";
    Open(kFlrig);
    EXPECT_EQ(Serve(), "rig.get_xcvr");
    EXPECT_EQ(links, "Connecting, NoAnswer");
    std::string calls;
    for (int i = 0; i < 20; ++i) {
        server.Poll();
        EXPECT_FALSE(server.Tune(7'035'000, "CW"));
        calls += Serve();
        Pass(300);
    }
    EXPECT_EQ(calls, "rig.get_xcvr") << "again after three seconds";
    EXPECT_TRUE(told.empty());
    radio = "IC-7300";
    server.Poll();
    EXPECT_EQ(Serve(), "rig.get_xcvr, rig.get_modes, rig.get_vfo, rig.get_mode");
    EXPECT_EQ(links, "Connecting, NoAnswer, Connected");
    EXPECT_EQ(Peer().attempts, 1);
}

TEST_F(FlrigServerTest, RadioThatGoesIsSeenWithinThreeSecondsOfPolling) {
    Open(kFlrig);
    Serve();
    Pass(2'999);
    radio = "";
    server.Poll();
    EXPECT_EQ(Serve(), "rig.get_vfo, rig.get_mode");
    Pass(1);
    Forget();
    server.Poll();
    EXPECT_TRUE(server.Tune(7'035'000, "CW"));
    EXPECT_EQ(Serve(), "rig.get_xcvr");
    EXPECT_EQ(links, "NoAnswer");
    EXPECT_TRUE(told.empty());
}

}  // namespace
}  // namespace tallyhut
