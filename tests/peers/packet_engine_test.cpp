// The whole program in real time, as a client of a packet engine: of a real one, and of what pretends to be one.

#include <atomic>
#include <future>
#include <iostream>
#include <string>

#include "tests/peers/packet_air.h"
#include "tests/peers/spots_program.h"
#include "tests/platform/loopback_server.h"

namespace tallyhut {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

struct PacketEngineProgram : SpotsProgram {
    void OpenEngine(int port) {
        Start({"--agw", "127.0.0.1:" + std::to_string(port)});
        ChooseSource(kEngine);
        Do("click Command1");
    }
    std::string Newest() const { return Get("$SpotCall(49)") + ' ' + Get("$SpotFreq(49)"); }
};

constexpr auto kReady = "** Successfully connected to AGW Packet Engine **";

/// The program at one of two engines, a node at the other.
struct EnginesOnTheAir : PacketEngineProgram {
    PacketAir air{folder.Path()};
    PacketStation other{air.Port(0), "Q1ABC"};  // until the program's engine takes clients
    PacketStation node{air.Port(1), "Q7ZZQ"};

    void TearDown() override {
        if (HasFailure()) {
            std::cout << folder.Read("engine0/log") << "\n----\n" << folder.Read("engine1/log");
        }
    }
    void OpenOverTheAir() {
        OpenEngine(air.Port(0));
        ASSERT_TRUE(TerminalTells(kReady));
        std::this_thread::sleep_for(2s);  // an engine reads from a new client once a second
    }
};

TEST_F(EnginesOnTheAir, ConnectionOverTheAirIsMadeUsedAndEnded) {
    EXPECT_EQ(node.Next('X'), "\x01"s);
    OpenOverTheAir();
    node.Send('M', "DX", "DX de K3LR:      14030.0  W2XX         heard                          2101Z");
    EXPECT_TRUE(Shows("$SpotCall(49)", "W2XX")) << "no connection is needed for what is heard";

    Say(":c q7zzq");
    ASSERT_TRUE(TerminalTells("** Connected to Q7ZZQ **"));
    EXPECT_EQ(Get("PacketSpotfrm.caption"), "DX Spotting Setup - Connected to Q7ZZQ");
    EXPECT_EQ(node.Next('C'), "*** CONNECTED To Station W1AW\r\0"s);
    node.Send('D', "W1AW", "DX de K3LR:      14025.0  W1XX         CQ SS                          2101Z\r");
    EXPECT_TRUE(Shows("$SpotCall(49)", "W1XX"));
    EXPECT_EQ(Newest(), "W1XX 14.025");
    EXPECT_EQ(Get("$SpotCall(48)"), "W2XX") << "a line of the own link counts once";
    Say("sh/dx");
    EXPECT_EQ(node.Next('D'), "sh/dx\r");
    node.Send('D', "W1AW", "Hello W1AW\r");
    EXPECT_TRUE(TerminalTells("\r\nHello W1AW\r\n"));
    EXPECT_TRUE(LogsAContact());

    Say(":D");
    EXPECT_TRUE(TerminalTells("** Disconnected from Q7ZZQ **"));
    EXPECT_EQ(node.Next('d'), "*** DISCONNECTED From Station W1AW\r\0"s);
    EXPECT_EQ(Get("PacketSpotfrm.caption"), "DX Spotting Setup");
}

TEST_F(EnginesOnTheAir, StationIsLeftWhenTheProgramClosesTheEngine) {
    OpenOverTheAir();
    Say(":C Q7ZZQ");
    ASSERT_TRUE(TerminalTells("** Connected to Q7ZZQ **"));
    Do("click PacketSpotfrm.Command2");
    EXPECT_EQ(node.Next('d'), "*** DISCONNECTED From Station W1AW\r\0"s);
}

TEST_F(EnginesOnTheAir, EngineThatEndsLeavesTheProgramToTheOperator) {
    OpenOverTheAir();
    air.Stop(0);
    EXPECT_TRUE(LogsAContact());
    Say(":C Q7ZZQ");
    EXPECT_TRUE(LogsAContact());
    EXPECT_EQ(Get("PacketSpotfrm.Label4.visible"), "true");
}

/// What a server sends that is no engine.
struct WhatIsNoEngine : PacketEngineProgram {
    LoopbackServer server;

    void Connect() {
        OpenEngine(server.Port());
        server.Accept();
        ASSERT_TRUE(TerminalTells(kReady));
    }
    static std::string Head(char kind, std::uint32_t length) {
        std::string head(36, '\0');
        head[4] = kind;
        head.replace(8, 5, "Q7ZZQ");
        head.replace(18, 4, "W1AW");
        for (std::size_t i = 0; i < 4; ++i, length >>= 8U) {
            head[28 + i] = static_cast<char>(length & 0xFFU);
        }
        return head;
    }
    static std::string Frame(char kind, const std::string& data) {
        return Head(kind, static_cast<std::uint32_t>(data.size())) + data;
    }
};

TEST_F(WhatIsNoEngine, SilenceIsWaitedForWithoutWaiting) {
    Connect();
    EXPECT_EQ(server.Read(72).size(), 72U) << "the call is registered, the monitoring on";
    EXPECT_TRUE(LogsAContact());
}

TEST_F(WhatIsNoEngine, RefusalIsToldInABox) {
    server.StopListening();
    Start({"--agw", "127.0.0.1:" + std::to_string(server.Port())});
    ChooseSource(kEngine);
    const std::vector<std::string> printed = Do("click Command1");
    EXPECT_EQ(program->LastTurn(), R"({"ready":"answer","dialog":"msgbox"})") << printed.size();
    Do("answer OK");
    EXPECT_EQ(Get("PacketSpotfrm.Label4.visible"), "false");
    EXPECT_TRUE(LogsAContact());
}

TEST_F(WhatIsNoEngine, HalfAFrameWaitsForItsRest) {
    Connect();
    const std::string frame = Frame('U', " 1:Fm Q7ZZQ To DX <UI>[09:28:19]\rDX de K3LR:      14025.0  W1XX\r");
    server.Write(frame.substr(0, 50));
    EXPECT_TRUE(LogsAContact());
    EXPECT_EQ(Newest(), " 0");
    server.Write(frame.substr(50));
    EXPECT_TRUE(Shows("$SpotFreq(49)", "14.025"));
}

TEST_F(WhatIsNoEngine, FrameOfFourGigabytesAsFastAsItComesHoldsNobody) {
    Connect();
    Do("click PacketSpotfrm.cmdDone");
    const std::size_t before = Resident();
    std::atomic<bool> over = false;
    auto flood = std::async(std::launch::async, [&] {
        server.Write(Head('D', 0xFFFF'FFFFU));
        const std::string block(65'536, 'x');
        std::size_t sent = 0;
        while (!over) {
            server.Write(block);
            sent += block.size();
        }
        return sent;
    });
    for (int i = 0; i < 10; ++i) {
        EXPECT_TRUE(LogsAContact());
    }
    std::this_thread::sleep_for(2s);
    EXPECT_TRUE(LogsAContact());
    const std::size_t after = Resident();
    over = true;
    EXPECT_EQ(flood.wait_for(kPatience), std::future_status::ready);
    EXPECT_LT(after, before + 8'000) << "kilobytes";
}

TEST_F(WhatIsNoEngine, ResetLeavesTheProgramToTheOperator) {
    Connect();
    server.Write(Frame('U', "half").substr(0, 38));
    server.Reset();
    EXPECT_TRUE(LogsAContact());
    Say(":C Q7ZZQ");
    EXPECT_TRUE(LogsAContact());
}

}  // namespace
}  // namespace tallyhut
