#include "platform/real/posix_datagrams.h"

#include <gtest/gtest.h>
#include <poll.h>

#include "platform/tcp_socket.h"
#include "tests/platform/datagram_listener.h"

namespace tallyhut {
namespace {

using Kind = DatagramEvent::Kind;

struct PosixDatagramsTest : testing::Test {
    DatagramListener listener;
    PosixDatagramSocket socket;

    bool HasEvent(int patience = 0) const {
        pollfd decided{.fd = socket.EventDescriptor(), .events = POLLIN, .revents = 0};
        return poll(&decided, 1, patience) == 1;
    }
    /// The next event, waited for as a pump waits.
    DatagramEvent Next() {
        while (HasEvent(10'000)) {
            if (const DatagramEvent event = socket.Take(); event.kind != Kind::Nothing) {
                return event;
            }
        }
        return {};
    }
    void Open() {
        socket.Open("127.0.0.1", listener.Port());
        ASSERT_EQ(socket.Take(), DatagramEvent{.kind = Kind::Ready});
    }
    static DatagramEvent Failure(int number) { return {.kind = Kind::Failed, .failure = number}; }
};

TEST_F(PosixDatagramsTest, ADatagramArrivesWhole) {
    Open();
    EXPECT_TRUE(socket.IsReady());
    EXPECT_EQ(socket.Send("<one/>"), 0);
    EXPECT_EQ(socket.Send(std::string(3'000, 'x')), 0);
    EXPECT_EQ(listener.Next(), "<one/>");
    EXPECT_EQ(listener.Next(), std::string(3'000, 'x'));
    EXPECT_FALSE(HasEvent());
}

TEST_F(PosixDatagramsTest, ANumericAddressIsReadyAtOnceAndANameAside) {
    Open();
    socket.Open("localhost", listener.Port());
    EXPECT_FALSE(socket.IsReady());
    EXPECT_EQ(Next().kind, Kind::Ready);
    EXPECT_EQ(socket.Send("by name"), 0);
    EXPECT_EQ(listener.Next(), "by name") << "the older kind of address comes first";
}

TEST_F(PosixDatagramsTest, ARefusedOneIsToldAndTheNextIsSentAllTheSame) {
    Open();
    const int port = listener.Port();
    listener.StopListening();
    EXPECT_EQ(socket.Send("lost"), 0);
    EXPECT_EQ(Next(), Failure(kTcpRefused));
    EXPECT_TRUE(socket.IsReady());
    EXPECT_EQ(socket.Send("lost too"), 0);
    ASSERT_TRUE(HasEvent(10'000));
    listener.ListenOn(port);
    EXPECT_EQ(socket.Send("here"), 0) << "though the refusal of the one before was not taken yet";
    EXPECT_EQ(listener.Next(), "here");
    EXPECT_EQ(socket.Take(), Failure(kTcpRefused)) << "of the one before";
    EXPECT_EQ(socket.Take(), DatagramEvent{});
    EXPECT_FALSE(HasEvent());
}

TEST_F(PosixDatagramsTest, WhatTheOtherEndSendsIsDroppedByTheSystem) {
    Open();
    EXPECT_EQ(socket.Send("x"), 0);
    EXPECT_EQ(listener.Next(), "x");
    listener.Answer(std::string(1'000, 'y'));
    EXPECT_FALSE(HasEvent());
    EXPECT_EQ(listener.WaitingAtTheSender(), 0) << "bytes in the memory of the system";
}

TEST_F(PosixDatagramsTest, NoHostAndNoPortAreToldAsFailures) {
    socket.Open("", 12'060);
    EXPECT_EQ(Next(), Failure(kTcpHostNotFound));
    for (const int port : {0, -1, 65'536}) {
        socket.Open("127.0.0.1", port);
        EXPECT_EQ(Next(), Failure(kTcpInvalidValue)) << port;
    }
    socket.Open("256.256.256.256.invalid", 12'060);
    const DatagramEvent event = Next();
    EXPECT_EQ(event.kind, Kind::Failed);
    EXPECT_GE(event.failure, kTcpHostNotFound);
    EXPECT_LE(event.failure, kTcpNoAddress);
    EXPECT_NE(socket.Send("x"), 0);
}

TEST_F(PosixDatagramsTest, ABroadcastAddressIsOneLikeOthers) {
    DatagramListener everywhere{INADDR_ANY};
    socket.Open("127.255.255.255", everywhere.Port());
    ASSERT_EQ(socket.Take(), DatagramEvent{.kind = Kind::Ready});
    EXPECT_EQ(socket.Send("to all"), 0);
    EXPECT_EQ(everywhere.Next(), "to all");
}

TEST_F(PosixDatagramsTest, OneTooLongIsLostAndTold) {
    Open();
    EXPECT_NE(socket.Send(std::string(70'000, 'x')), 0);
    EXPECT_EQ(socket.Send("short"), 0);
    EXPECT_EQ(listener.Next(), "short");
}

TEST_F(PosixDatagramsTest, ClosingForgetsWhatWasUnderWay) {
    socket.Open("localhost", listener.Port());
    socket.Close();
    EXPECT_FALSE(HasEvent());
    EXPECT_EQ(socket.Take(), DatagramEvent{});
    Open();
    socket.Close();
    EXPECT_FALSE(socket.IsReady());
    EXPECT_NE(socket.Send("x"), 0);
    EXPECT_FALSE(HasEvent());
}

}  // namespace
}  // namespace tallyhut
