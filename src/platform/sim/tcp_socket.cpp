#include "platform/sim/tcp_socket.h"

namespace tallyhut::sim {
namespace {

constexpr int kFirstDescriptor = 1'000;

}  // namespace

void TcpPeer::Accept() {
    if (isConnecting) {
        isConnecting = false;
        isConnected = true;
        Tell({.kind = TcpEvent::Kind::Connected});
    }
}

void TcpPeer::Arrive(std::string_view bytes) {
    if (isConnected && !bytes.empty()) {
        Tell({.kind = TcpEvent::Kind::Chunk, .bytes = std::string{bytes}});
    }
}

void TcpPeer::End() {
    if (std::exchange(isConnected, false)) {
        Tell({.kind = TcpEvent::Kind::Ended});
    }
}

void TcpPeer::Fail(int number) {
    const bool wasThere = isConnecting || isConnected;
    isConnecting = false;
    isConnected = false;
    if (wasThere) {
        Tell({.kind = TcpEvent::Kind::Failed, .failure = number});
    }
}

void TcpPeer::Tell(TcpEvent event) {
    events_.push_back(std::move(event));
    pump.readable.insert(descriptor);
}

void TcpPeer::Forget() {
    isConnecting = false;
    isConnected = false;
    events_.clear();
    pump.readable.erase(descriptor);
}

std::unique_ptr<tallyhut::TcpSocket> TcpSockets::NewSocket() {
    TcpPeer& peer = peers_.emplace_back(pump_, kFirstDescriptor + static_cast<int>(peers_.size()));
    return std::make_unique<TcpSocket>(peer);
}

void TcpSocket::Connect(const std::string& host, int port) {
    Release();
    peer_.host = host;
    peer_.port = port;
    ++peer_.attempts;
    peer_.isConnecting = true;
    if (peer_.refusal) {
        peer_.Fail(*peer_.refusal);
    } else if (peer_.accepts) {
        peer_.Accept();
    }
}

void TcpSocket::Send(std::string_view bytes) {
    if (isConnected_) {
        peer_.sent += bytes;
    }
}

TcpEvent TcpSocket::Take() {
    if (peer_.events_.empty()) {
        return {};
    }
    TcpEvent event = std::move(peer_.events_.front());
    peer_.events_.pop_front();
    if (peer_.events_.empty()) {
        peer_.pump.readable.erase(peer_.descriptor);
    }
    isConnected_ = event.kind == TcpEvent::Kind::Connected || event.kind == TcpEvent::Kind::Chunk;
    return event;
}

void TcpSocket::Release() {
    isConnected_ = false;
    peer_.Forget();
}

}  // namespace tallyhut::sim
