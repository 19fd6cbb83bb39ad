#include "platform/agw_engine.h"

#include <gtest/gtest.h>

#include "platform/sim/clock.h"
#include "platform/sim/tcp_socket.h"
#include "values/hex.h"

namespace tallyhut {
namespace {

/// A frame as an engine makes it.
std::string Frame(char kind, std::string_view from, std::string_view to, std::string_view data, char radio = '\0') {
    std::string frame(36, '\0');
    frame[0] = radio;
    frame[4] = kind;
    frame.replace(8, from.size(), from);
    frame.replace(18, to.size(), to);
    frame[28] = static_cast<char>(data.size() & 0xFFU);
    frame[29] = static_cast<char>(data.size() >> 8U);
    return frame.append(data);
}

// Recorded on the wire of an engine.
const std::string kRegistering = HexToBytes("000000005800000057314157000000000000000000000000000000000000000000000000");
const std::string kMonitoring = HexToBytes("000000006D00000057314157000000000000000000000000000000000000000000000000");
const std::string kUnregistering =
    HexToBytes("000000007800000057314157000000000000000000000000000000000000000000000000");
const std::string kRegistered =
    HexToBytes("00000000580000005731415700000000000000000000000000000000010000000000000001");
const std::string kHeardSpot = HexToBytes(
    "000000005500000051375A5A512D33000000445800000000000000007B0000000000000020313A466D2051375A5A512D3320546F2044"
    "58203C5549207069643D4630204C656E3D36362050463D30203E5B30393A32383A31395D0D44582064652051324142433A2020202020"
    "31343032352E3020205135585820202020202020202043512053532020202020202020202020202020202020323130315A0D00");
const std::string kConnecting = HexToBytes("00000000430000005731415700000000000051375A5A5100000000000000000000000000");
const std::string kConnection = HexToBytes(
    "000000004300000051375A5A510000000000573141570000000000002200000000000000"
    "2A2A2A20434F4E4E454354454420576974682053746174696F6E2051375A5A510D00");
const std::string kShowDx = HexToBytes(
    "000000004400F0005731415700000000000051375A5A5100000000000800000000000000"
    "73686F772F64780D");
const std::string kDisconnecting =
    HexToBytes("00000000640000005731415700000000000051375A5A5100000000000000000000000000");

struct AgwEngineTest : testing::Test {
    sim::Clock clock{DateTime{}};
    sim::EventPump pump{clock};
    sim::TcpSockets sockets{pump};
    AgwEngine engine{sockets, clock};
    sim::TcpPeer& peer = sockets.Peer(0);

    void Start() {
        peer.accepts = true;
        ASSERT_EQ(engine.AGWStartPoll("127.0.0.1", 8000, "w1aw"), kAgwReady);
        peer.TakeSent();
    }
    void ConnectStation() {
        peer.Arrive(kConnection);
        ASSERT_EQ(Next(), "cQ7ZZQ *** CONNECTED With Station Q7ZZQ\r");
    }
    /// Kind, call, a blank and the data; empty when nothing is there.
    std::string Next() {
        AgwFrame frame;
        return engine.AGWGetData(frame) ? frame.kind + frame.call + ' ' + frame.data : "";
    }
};

TEST_F(AgwEngineTest, StartRegistersTheCallAndTogglesMonitoringOnce) {
    peer.accepts = true;
    EXPECT_EQ(engine.AGWStartPoll("engine", 8001, "w1aw"), kAgwReady);
    EXPECT_EQ(peer.host, "engine");
    EXPECT_EQ(peer.port, 8001);
    EXPECT_EQ(peer.TakeSent(), kRegistering + kMonitoring);
    peer.Arrive(kRegistered);
    EXPECT_EQ(Next(), "");
    EXPECT_EQ(peer.TakeSent(), "");
}

TEST_F(AgwEngineTest, RefusedStartIsNoneAtOnce) {
    peer.refusal = kTcpRefused;
    EXPECT_EQ(engine.AGWStartPoll("127.0.0.1", 8000, "W1AW"), kAgwNone);
    EXPECT_EQ(engine.Failure(), kTcpRefused);
}

TEST_F(AgwEngineTest, HostThatAnswersLaterIsReadyLater) {
    EXPECT_EQ(engine.AGWStartPoll("far", 8000, "W1AW"), kAgwConnecting);
    clock.Advance(1'999);
    EXPECT_EQ(engine.Started(), kAgwConnecting);
    peer.Accept();
    EXPECT_EQ(engine.Started(), kAgwReady);
    EXPECT_EQ(peer.TakeSent(), kRegistering + kMonitoring);
}

TEST_F(AgwEngineTest, HostThatSwallowsPacketsIsGivenUpAfterTwoSeconds) {
    EXPECT_EQ(engine.AGWStartPoll("far", 8000, "W1AW"), kAgwConnecting);
    clock.Advance(2'000);
    EXPECT_EQ(engine.Started(), kAgwNone);
    EXPECT_EQ(engine.Failure(), kTcpTimedOut);
    EXPECT_FALSE(peer.isConnecting);
}

TEST_F(AgwEngineTest, HeardSpotComesWithoutTheNulBehindIt) {
    Start();
    peer.Arrive(kHeardSpot);
    EXPECT_EQ(Next(),
              "UQ7ZZQ-3  1:Fm Q7ZZQ-3 To DX <UI pid=F0 Len=66 PF=0 >[09:28:19]\rDX de Q2ABC:     14025.0  Q5XX        "
              " CQ SS                 2101Z\r");
    EXPECT_EQ(Next(), "");
}

TEST_F(AgwEngineTest, FramesMayBeCutAnywhereAndComeTogether) {
    Start();
    const std::string both = Frame('U', "Q1A", "DX", "one") + Frame('U', "Q1B", "DX", "");
    for (const char byte : both) {
        peer.Arrive({&byte, 1});
    }
    EXPECT_EQ(Next(), "UQ1A one");
    EXPECT_EQ(Next(), "UQ1B ");
    peer.Arrive(both + both);
    EXPECT_EQ(Next(), "UQ1A one");
    EXPECT_EQ(Next(), "UQ1B ");
    EXPECT_EQ(Next(), "UQ1A one");
    EXPECT_EQ(Next(), "UQ1B ");
    EXPECT_EQ(Next(), "");
}

TEST_F(AgwEngineTest, KindsThatAreNotForTheProgramAreKept) {
    Start();
    for (const char kind : {'X', 'R', 'G', 'g', 'P', 'H', 'y', 'Y', 'K', '?', '\0'}) {
        peer.Arrive(Frame(kind, "Q1A", "W1AW", "data"));
    }
    EXPECT_EQ(Next(), "");
}

TEST_F(AgwEngineTest, OwnLinkIsNotHeardASecondTime) {
    Start();
    peer.Arrive(Frame('I', "Q7ZZQ", "W1AW", "before"));
    EXPECT_EQ(Next(), "IQ7ZZQ before");
    ConnectStation();
    for (const char kind : {'I', 'S', 'T'}) {
        peer.Arrive(Frame(kind, "Q7ZZQ", "W1AW", "again"));
        peer.Arrive(Frame(kind, "W1AW", "Q7ZZQ", "again"));
    }
    peer.Arrive(Frame('I', "Q7ZZQ", "Q5XX", "to another"));
    peer.Arrive(Frame('U', "Q7ZZQ", "W1AW", "a post"));
    EXPECT_EQ(Next(), "IQ7ZZQ to another");
    EXPECT_EQ(Next(), "UQ7ZZQ a post");
    EXPECT_EQ(Next(), "");
    peer.Arrive(Frame('d', "Q7ZZQ", "W1AW", "*** DISCONNECTED From Station Q7ZZQ\r"));
    peer.Arrive(Frame('S', "Q7ZZQ", "W1AW", "after"));
    EXPECT_EQ(Next().front(), 'd');
    EXPECT_EQ(Next(), "SQ7ZZQ after");
}

TEST_F(AgwEngineTest, ConnectionIsMadeUsedAndEnded) {
    Start();
    engine.AGWPutData("Q7ZZQ", "", 'c');
    engine.AGWPutData("Q7ZZQ", "", 'P');
    EXPECT_EQ(peer.TakeSent(), kConnecting);
    ConnectStation();
    engine.AGWPutData("Q7ZZQ", "show/dx\r", 'D');
    EXPECT_EQ(peer.TakeSent(), kShowDx);
    engine.AGWPutData("Q7ZZQ", "", 'd');
    EXPECT_EQ(peer.TakeSent(), kDisconnecting);
    engine.AGWClose();
    EXPECT_EQ(peer.TakeSent(), kUnregistering);
    EXPECT_FALSE(peer.isConnected);
    engine.AGWPutData("Q7ZZQ", "", 'd');
    EXPECT_EQ(peer.TakeSent(), "");
}

TEST_F(AgwEngineTest, DataGoToTheRadioThatTheStationIsOn) {
    Start();
    peer.Arrive(Frame('C', "Q7ZZQ", "W1AW", "*** CONNECTED", '\2'));
    Next();
    engine.AGWPutData("Q7ZZQ", "x", 'D');
    EXPECT_EQ(peer.TakeSent().front(), '\2');
}

TEST_F(AgwEngineTest, NulsBelongToDataAndNotToTexts) {
    Start();
    const std::string nuls("a\0b\0\0", 5);
    peer.Arrive(Frame('D', "Q7ZZQ", "W1AW", nuls) + Frame('U', "Q7ZZQ", "DX", nuls));
    EXPECT_EQ(Next(), "DQ7ZZQ " + nuls);
    EXPECT_EQ(Next(), "UQ7ZZQ " + nuls.substr(0, 3));
}

TEST_F(AgwEngineTest, LongFramesAreCutAndTheNextIsFound) {
    Start();
    peer.Arrive(Frame('D', "Q7ZZQ", "W1AW", std::string(30'000, 'x')) + Frame('U', "Q1A", "DX", "next"));
    EXPECT_EQ(Next(), "DQ7ZZQ " + std::string(4'000, 'x'));
    EXPECT_EQ(Next(), "UQ1A next");
}

TEST_F(AgwEngineTest, FrameOfFourGigabytesTakesNoMemoryAndHoldsNobody) {
    Start();
    std::string frame = Frame('D', "Q7ZZQ", "W1AW", "");
    frame.replace(28, 4, "\xFF\xFF\xFF\xFF");
    peer.Arrive(frame);
    for (int i = 0; i < 1'000; ++i) {
        peer.Arrive(std::string(8'192, 'x'));
        EXPECT_EQ(Next(), "");
    }
    EXPECT_EQ(engine.Started(), kAgwReady);
}

TEST_F(AgwEngineTest, FloodWithinOneFrameIsTakenInParts) {
    Start();
    std::string frame = Frame('D', "Q7ZZQ", "W1AW", "");
    frame.replace(28, 4, "\xFF\xFF\xFF\xFF");
    peer.Arrive(frame);
    for (int i = 0; i < 2 * AgwEngine::kMostArrivals; ++i) {
        peer.Arrive("x");
    }
    EXPECT_EQ(Next(), "");
    EXPECT_TRUE(pump.readable.contains(peer.descriptor));
    EXPECT_EQ(Next(), "");
    EXPECT_EQ(Next(), "");
    EXPECT_FALSE(pump.readable.contains(peer.descriptor));
}

TEST_F(AgwEngineTest, FloodWaitsInTheEngine) {
    Start();
    constexpr int kSent = 3'000;
    for (int i = 0; i < kSent; ++i) {
        peer.Arrive(Frame('U', "Q1A", "DX", "x"));
    }
    EXPECT_EQ(engine.Started(), kAgwReady);
    EXPECT_TRUE(pump.readable.contains(peer.descriptor));
    int taken = 0;
    while (!Next().empty()) {
        ++taken;
    }
    EXPECT_EQ(taken, kSent);
}

TEST_F(AgwEngineTest, FramesBeforeTheEndAreStillDelivered) {
    Start();
    peer.Arrive(Frame('U', "Q1A", "DX", "last"));
    peer.Fail(kTcpReset);
    EXPECT_EQ(Next(), "UQ1A last");
    EXPECT_EQ(Next(), "");
    EXPECT_EQ(engine.Started(), kAgwNone);
    EXPECT_EQ(engine.Failure(), kTcpReset);
}

TEST_F(AgwEngineTest, HalfAFrameOfBeforeIsForgottenAtAStart) {
    Start();
    peer.Arrive(Frame('U', "Q1A", "DX", "half").substr(0, 38));
    EXPECT_EQ(Next(), "");
    Start();
    peer.Arrive(Frame('U', "Q1B", "DX", "whole"));
    EXPECT_EQ(Next(), "UQ1B whole");
}

TEST_F(AgwEngineTest, LongCallsAreCutToTheirField) {
    peer.accepts = true;
    engine.AGWStartPoll("127.0.0.1", 8000, "W1AW/PORTABLE");
    EXPECT_EQ(peer.TakeSent().substr(8, 10), std::string("W1AW/PORT\0", 10));
}

}  // namespace
}  // namespace tallyhut
