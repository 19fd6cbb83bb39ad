#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>

#include "platform/sim/event_pump.h"
#include "platform/tcp_socket.h"

namespace tallyhut::sim {

/// The other end of a simulated socket: records what the program does and plays what a test arranges. It outlives the
/// program's socket.
struct TcpPeer {
    TcpPeer(EventPump& machinePump, int number) : pump{machinePump}, descriptor{number} {}

    EventPump& pump;
    const int descriptor;

    // What the program has done.
    std::string host;  ///< of the last attempt
    int port = 0;
    int attempts = 0;
    bool isConnecting = false;
    bool isConnected = false;

    /// All bytes sent since the last call.
    std::string TakeSent() { return std::exchange(sent, {}); }

    // What a test arranges.
    bool accepts = false;             ///< an attempt succeeds at once
    std::optional<int> refusal = {};  ///< an attempt fails at once with this number
    /// The attempt that is under way succeeds.
    void Accept();
    /// One arrival. What comes without a connection is lost.
    void Arrive(std::string_view bytes);
    void End();
    /// The attempt or the connection fails.
    void Fail(int number);

private:
    friend struct TcpSocket;

    void Tell(TcpEvent event);
    void Forget();

    std::string sent;
    std::deque<TcpEvent> events_;
};

/// The simulated network.
struct TcpSockets : tallyhut::TcpSockets {
    explicit TcpSockets(EventPump& pump) : pump_{pump} {}

    std::unique_ptr<tallyhut::TcpSocket> NewSocket() override;

    /// The other end of the socket that was made as the nth, counted from 0.
    TcpPeer& Peer(std::size_t nth) { return peers_.at(nth); }

private:
    EventPump& pump_;
    std::deque<TcpPeer> peers_;
};

struct TcpSocket : tallyhut::TcpSocket {
    explicit TcpSocket(TcpPeer& peer) : peer_{peer} {}
    TcpSocket(const TcpSocket&) = delete;
    TcpSocket& operator=(const TcpSocket&) = delete;
    TcpSocket(TcpSocket&&) = delete;
    TcpSocket& operator=(TcpSocket&&) = delete;
    ~TcpSocket() override { Release(); }

    void Connect(const std::string& host, int port) override;
    void Close() override { Release(); }
    bool IsConnected() const override { return isConnected_; }
    void Send(std::string_view bytes) override;
    TcpEvent Take() override;
    int EventDescriptor() const override { return peer_.descriptor; }

private:
    void Release();

    TcpPeer& peer_;
    bool isConnected_ = false;  ///< as the program knows by the events taken
};

}  // namespace tallyhut::sim
