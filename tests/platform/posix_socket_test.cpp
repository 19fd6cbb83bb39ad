#include "platform/real/posix_socket.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <cerrno>

#include "tests/platform/loopback_server.h"

namespace tallyhut {
namespace {

using Kind = TcpEvent::Kind;

struct PosixSocketTest : testing::Test {
    LoopbackServer server;
    PosixSocket socket;

    bool HasEvent(int patience = 0) const {
        pollfd decided{.fd = socket.EventDescriptor(), .events = POLLIN, .revents = 0};
        return poll(&decided, 1, patience) == 1;
    }
    /// The next event, waited for as a pump waits.
    TcpEvent Next() {
        while (HasEvent(10'000)) {
            if (const TcpEvent event = socket.Take(); event.kind != Kind::Nothing) {
                return event;
            }
        }
        return {};
    }
    void Connect() {
        socket.Connect("127.0.0.1", server.Port());
        ASSERT_EQ(Next().kind, Kind::Connected);
        server.Accept();
    }
    static TcpEvent Failure(int number) { return {.kind = Kind::Failed, .failure = number}; }
};

TEST_F(PosixSocketTest, ConnectsSaysAndHears) {
    Connect();
    EXPECT_TRUE(socket.IsConnected());
    socket.Send("Q2ABC\r\n");
    EXPECT_EQ(server.Read(7), "Q2ABC\r\n");
    server.Write("login: ");
    EXPECT_EQ(Next(), (TcpEvent{.kind = Kind::Chunk, .bytes = "login: "}));
    EXPECT_EQ(socket.Take(), TcpEvent{});
    EXPECT_FALSE(HasEvent());
}

TEST_F(PosixSocketTest, NothingOfWhatIsSentIsLeftBehind) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the bytes of the object, where short texts lie
    const std::string_view object{reinterpret_cast<const char*>(&socket), sizeof socket};
    Connect();
    socket.Send("hush\r\n");
    EXPECT_EQ(server.Read(6), "hush\r\n");
    EXPECT_EQ(object.find("ush"), std::string_view::npos);
}

TEST_F(PosixSocketTest, NameIsLookedUpAside) {
    socket.Connect("localhost", server.Port());
    EXPECT_FALSE(socket.IsConnected());
    EXPECT_EQ(Next().kind, Kind::Connected);
}

TEST_F(PosixSocketTest, RefusedAttemptIsTold) {
    server.StopListening();
    socket.Connect("127.0.0.1", server.Port());
    EXPECT_EQ(Next(), Failure(kTcpRefused));
    EXPECT_FALSE(socket.IsConnected());
    EXPECT_FALSE(HasEvent());
}

TEST_F(PosixSocketTest, NoHostAndNoPortAreToldAsFailures) {
    socket.Connect("", 23);
    EXPECT_EQ(Next(), Failure(kTcpHostNotFound));
    for (const int port : {0, -1, 65'536}) {
        socket.Connect("127.0.0.1", port);
        EXPECT_EQ(Next(), Failure(kTcpInvalidValue)) << port;
    }
    socket.Connect("256.256.256.256.invalid", 23);
    const TcpEvent event = Next();
    EXPECT_EQ(event.kind, Kind::Failed);
    EXPECT_GE(event.failure, kTcpHostNotFound);
    EXPECT_LE(event.failure, kTcpNoAddress);
}

TEST_F(PosixSocketTest, BroadcastAddressIsToldAsSuch) {
    socket.Connect("255.255.255.255", 23);
    const TcpEvent event = Next();
    EXPECT_EQ(event.kind, Kind::Failed);
    EXPECT_TRUE(event.failure == kTcpBroadcastAddress || event.failure == kTcpUnreachable) << event.failure;
}

TEST_F(PosixSocketTest, EndComesBehindWhatWasSentBefore) {
    Connect();
    server.Write("bye");
    server.HangUp();
    EXPECT_EQ(Next().bytes, "bye");
    EXPECT_EQ(Next().kind, Kind::Ended);
    EXPECT_FALSE(socket.IsConnected());
    EXPECT_FALSE(HasEvent());
}

TEST_F(PosixSocketTest, ResetIsToldOnce) {
    Connect();
    server.Reset();
    EXPECT_EQ(Next(), Failure(kTcpReset));
    EXPECT_EQ(socket.Take(), TcpEvent{});
    EXPECT_FALSE(HasEvent());
}

TEST_F(PosixSocketTest, SendingToAnEndedConnectionRaisesNoSignal) {
    Connect();
    server.HangUp();
    ASSERT_TRUE(HasEvent(10'000));
    for (int i = 0; i < 10; ++i) {
        socket.Send("x");
    }
    const TcpEvent event = Next();
    EXPECT_TRUE(event.kind == Kind::Ended || event == Failure(kTcpReset));
    socket.Send("y");
}

TEST_F(PosixSocketTest, ServerThatReadsNothingFailsBeforeMemoryGrows) {
    Connect();
    const std::string block(32'768, 'x');
    for (int i = 0; i < 2'000; ++i) {
        socket.Send(block);
    }
    EXPECT_EQ(Next(), Failure(kTcpNoBuffers));
}

TEST_F(PosixSocketTest, WhatTheLineDoesNotTakeAtOnceFollows) {
    Connect();
    std::size_t sent = 0;
    const std::string block(1'000, 'x');
    // More than the system's buffers of one moment, as the server reads.
    for (int i = 0; i < 5'000; ++i) {
        socket.Send(block);
        sent += block.size();
        ASSERT_EQ(server.Read(block.size()).size(), block.size());
    }
    EXPECT_EQ(sent, 5'000'000U);
    EXPECT_TRUE(socket.IsConnected());
}

TEST_F(PosixSocketTest, ClosingAndConnectingAnewForgetWhatWas) {
    Connect();
    server.Write("old");
    ASSERT_TRUE(HasEvent(10'000));
    socket.Close();
    EXPECT_FALSE(HasEvent());
    EXPECT_EQ(socket.Take(), TcpEvent{});
    socket.Connect("localhost", server.Port());
    socket.Close();  // with the look-up, or the attempt, under way
    EXPECT_FALSE(HasEvent());
    Connect();
    server.Write("new");
    EXPECT_EQ(Next().bytes, "new");
}

TEST_F(PosixSocketTest, ChunkIsBoundedHoweverMuchArrives) {
    Connect();
    const std::string flood(100'000, 'x');
    server.Write(flood);
    std::size_t taken = 0;
    while (taken < flood.size()) {
        const TcpEvent event = Next();
        ASSERT_EQ(event.kind, Kind::Chunk);
        ASSERT_LE(event.bytes.size(), 8'192U);
        taken += event.bytes.size();
    }
    EXPECT_EQ(taken, flood.size());
}

TEST(TcpFailureNumber, SystemsReasonsHaveTheirNumbers) {
    EXPECT_EQ(TcpFailureNumber(ETIMEDOUT, false), kTcpTimedOut);
    EXPECT_EQ(TcpFailureNumber(ETIMEDOUT, true), kTcpKeepAliveTimedOut);
    EXPECT_EQ(TcpFailureNumber(EHOSTUNREACH, false), kTcpUnreachable);
    EXPECT_EQ(TcpFailureNumber(EACCES, false), kTcpBroadcastAddress);
    EXPECT_EQ(TcpFailureNumber(EPIPE, true), kTcpReset);
    EXPECT_EQ(TcpFailureNumber(EPERM, false), 10'000 + EPERM);
}

}  // namespace
}  // namespace tallyhut
