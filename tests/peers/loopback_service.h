#pragma once

#include <poll.h>
#include <sys/time.h>

#include <array>
#include <atomic>
#include <functional>
#include <string>
#include <string_view>
#include <thread>

#include "platform/real/descriptor.h"
#include "tests/platform/loopback_server.h"

namespace tallyhut {

/// One client of a service, in the service's thread.
class ServedClient {
public:
    ServedClient(int descriptor, const std::atomic<bool>& over) : descriptor_{descriptor}, over_{over} {}

    /// False when the client, or the service, is over.
    bool IsThere() const { return !over_ && !isGone_; }
    /// What has come; empty if nothing does in 20 ms.
    std::string Receive() {
        pollfd ready{.fd = descriptor_, .events = POLLIN, .revents = 0};
        if (poll(&ready, 1, 20) <= 0) {
            return {};
        }
        std::array<char, 4'096> block{};
        const ssize_t taken = recv(descriptor_, block.data(), block.size(), 0);
        isGone_ = taken <= 0;
        return {block.data(), taken > 0 ? static_cast<std::size_t>(taken) : 0};
    }
    /// All of it, as far as the client takes it in 20 ms a piece.
    void Send(std::string_view bytes) {
        while (!bytes.empty() && IsThere()) {
            pollfd ready{.fd = descriptor_, .events = POLLOUT, .revents = 0};
            if (poll(&ready, 1, 20) <= 0) {
                continue;
            }
            const ssize_t taken = send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
            isGone_ = taken < 0 && errno != EAGAIN;
            bytes.remove_prefix(taken > 0 ? static_cast<std::size_t>(taken) : 0);
        }
    }

private:
    int descriptor_;
    const std::atomic<bool>& over_;
    bool isGone_ = false;
};

/// A server in a thread of its own on a free port of this machine. It talks to one client after the other, and hangs up
/// when the talk is over.
class LoopbackService {
public:
    using Talk = std::function<void(ServedClient&)>;

    explicit LoopbackService(Talk talk) : talk_{std::move(talk)}, thread_{[this] { Serve(); }} {}
    ~LoopbackService() {
        over_ = true;
        thread_.join();
    }
    LoopbackService(const LoopbackService&) = delete;
    LoopbackService& operator=(const LoopbackService&) = delete;
    LoopbackService(LoopbackService&&) = delete;
    LoopbackService& operator=(LoopbackService&&) = delete;

    int Port() const { return listener_.Port(); }
    int Connections() const { return connections_; }

private:
    void Serve() {
        while (!over_) {
            pollfd ready{.fd = listener_.Number(), .events = POLLIN, .revents = 0};
            if (poll(&ready, 1, 20) > 0) {
                const Descriptor client{accept4(listener_.Number(), nullptr, nullptr, SOCK_CLOEXEC)};
                ++connections_;
                ServedClient served{client.Number(), over_};
                talk_(served);
            }
        }
    }

    LoopbackServer listener_;
    Talk talk_;
    std::atomic<bool> over_ = false;
    std::atomic<int> connections_ = 0;
    std::thread thread_;
};

}  // namespace tallyhut
