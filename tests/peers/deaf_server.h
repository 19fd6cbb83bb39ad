#pragma once

#include <array>
#include <cstdint>

#include "tests/platform/loopback_server.h"

namespace tallyhut {

/// A server that is there and answers no attempt, as a host does that swallows packets: its queue is full.
class DeafServer {
public:
    DeafServer() {
        for (Descriptor& client : waiting_) {
            client = Descriptor{socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)};
            sockaddr_in address{};
            address.sin_family = AF_INET;
            address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
            address.sin_port = htons(static_cast<std::uint16_t>(server_.Port()));
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the sockets' own way
            connect(client.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address);
        }
    }
    int Port() const { return server_.Port(); }

private:
    LoopbackServer server_;
    std::array<Descriptor, 8> waiting_;
};

}  // namespace tallyhut
