#include <gtest/gtest.h>

#include "platform/sim/clock.h"
#include "platform/sim/tcp_socket.h"

namespace tallyhut::sim {
namespace {

using Kind = TcpEvent::Kind;

struct SimTcpSocketTest : testing::Test {
    Clock clock{DateTime{}};
    EventPump pump{clock};
    TcpSockets sockets{pump};
    std::unique_ptr<tallyhut::TcpSocket> socket = sockets.NewSocket();
    TcpPeer& peer = sockets.Peer(0);
};

TEST_F(SimTcpSocketTest, AttemptHangsUntilThePeerDecides) {
    socket->Connect("cluster", 7300);
    EXPECT_EQ(peer.host, "cluster");
    EXPECT_EQ(peer.port, 7300);
    EXPECT_TRUE(pump.readable.empty());
    peer.Accept();
    EXPECT_EQ(pump.readable.count(socket->EventDescriptor()), 1U);
    EXPECT_EQ(socket->Take().kind, Kind::Connected);
    EXPECT_TRUE(socket->IsConnected());
    EXPECT_TRUE(pump.readable.empty());
}

TEST_F(SimTcpSocketTest, EventsComeInOrderAndBytesGoOut) {
    peer.accepts = true;
    socket->Connect("cluster", 7300);
    socket->Send("lost");  // the program knows of no connection yet
    EXPECT_EQ(socket->Take().kind, Kind::Connected);
    socket->Send("W1AW\r\n");
    EXPECT_EQ(peer.TakeSent(), "W1AW\r\n");
    peer.Arrive("one");
    peer.Arrive("two");
    peer.End();
    peer.Arrive("lost");
    EXPECT_EQ(socket->Take().bytes, "one");
    EXPECT_EQ(socket->Take().bytes, "two");
    EXPECT_EQ(socket->Take().kind, Kind::Ended);
    EXPECT_FALSE(socket->IsConnected());
    EXPECT_EQ(socket->Take(), TcpEvent{});
}

TEST_F(SimTcpSocketTest, FailureClosesAndClosingForgets) {
    peer.refusal = kTcpRefused;
    socket->Connect("cluster", 7300);
    EXPECT_EQ(socket->Take(), (TcpEvent{.kind = Kind::Failed, .failure = kTcpRefused}));
    peer.refusal.reset();
    peer.accepts = true;
    socket->Connect("cluster", 7300);
    socket->Close();
    EXPECT_EQ(socket->Take(), TcpEvent{});
    EXPECT_TRUE(pump.readable.empty());
    peer.Fail(kTcpReset);  // of nothing
    EXPECT_EQ(socket->Take(), TcpEvent{});
}

}  // namespace
}  // namespace tallyhut::sim
