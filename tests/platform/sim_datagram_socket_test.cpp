#include <gtest/gtest.h>

#include "platform/sim/datagram_socket.h"
#include "platform/tcp_socket.h"

namespace tallyhut::sim {
namespace {

using Kind = DatagramEvent::Kind;

struct SimDatagramSocketTest : testing::Test {
    Clock clock{DateTime{}};
    EventPump pump{clock};
    DatagramSockets network{clock, pump};
    std::unique_ptr<tallyhut::DatagramSocket> socket = network.NewSocket();

    bool HasEvent() const { return pump.readable.contains(socket->EventDescriptor()); }
};

TEST_F(SimDatagramSocketTest, RecordsWhatIsSentWithItsMoment) {
    socket->Open("shack", 12'060);
    EXPECT_FALSE(socket->IsReady());
    EXPECT_EQ(socket->Take().kind, Kind::Ready);
    clock.Advance(250);
    EXPECT_EQ(socket->Send("<one/>"), 0);
    EXPECT_EQ(network.sent, (std::vector<SentDatagram>{{"shack:12060", "<one/>", 250}}));
    EXPECT_FALSE(HasEvent());
}

TEST_F(SimDatagramSocketTest, AHostIsFoundWhenTheTestSaysSo) {
    network.slow = {"far:1"};
    socket->Open("far", 1);
    EXPECT_FALSE(HasEvent());
    EXPECT_NE(socket->Send("lost"), 0);
    network.Find("far:1");
    EXPECT_TRUE(HasEvent());
    EXPECT_EQ(socket->Take().kind, Kind::Ready);
    EXPECT_TRUE(network.sent.empty());
}

TEST_F(SimDatagramSocketTest, FailuresAreAsArranged) {
    network.unopenable["none:1"] = kTcpHostNotFound;
    socket->Open("none", 1);
    EXPECT_EQ(socket->Take(), (DatagramEvent{.kind = Kind::Failed, .failure = kTcpHostNotFound}));
    EXPECT_FALSE(socket->IsReady());
    network.refused["deaf:1"] = kTcpRefused;
    socket->Open("deaf", 1);
    socket->Take();
    EXPECT_EQ(socket->Send("x"), 0);
    EXPECT_TRUE(HasEvent());
    EXPECT_EQ(socket->Take(), (DatagramEvent{.kind = Kind::Failed, .failure = kTcpRefused}));
    EXPECT_TRUE(socket->IsReady());
    network.unsendable["deaf:1"] = kTcpUnreachable;
    EXPECT_EQ(socket->Send("y"), kTcpUnreachable);
    socket->Close();
    EXPECT_FALSE(socket->IsReady());
    EXPECT_EQ(socket->Take(), DatagramEvent{});
}

}  // namespace
}  // namespace tallyhut::sim
