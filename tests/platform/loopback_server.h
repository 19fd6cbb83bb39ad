#pragma once

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/real/descriptor.h"

namespace tallyhut {

/// A server of the system's own on a free port of this machine, for one client at a time. Its calls wait for the
/// client.
class LoopbackServer {
public:
    LoopbackServer() : listener_{socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)} {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the sockets' own way
        auto* any = reinterpret_cast<sockaddr*>(&address);
        socklen_t length = sizeof address;
        Check(bind(listener_.Number(), any, length) == 0);
        Check(listen(listener_.Number(), 1) == 0);
        Check(getsockname(listener_.Number(), any, &length) == 0);
        port_ = ntohs(address.sin_port);
    }

    int Port() const { return port_; }
    /// Of the listener, for one who waits for more than a client.
    int Number() const { return listener_.Number(); }
    void Accept() { client_ = Descriptor{accept4(listener_.Number(), nullptr, nullptr, SOCK_CLOEXEC)}; }
    void Write(std::string_view bytes) const {
        Check(send(client_.Number(), bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size()));
    }
    /// So many bytes, or fewer where the client ends.
    std::string Read(std::size_t count) const {
        std::string bytes(count, '\0');
        const ssize_t taken = recv(client_.Number(), bytes.data(), count, MSG_WAITALL);
        bytes.resize(taken < 0 ? 0 : static_cast<std::size_t>(taken));
        return bytes;
    }
    void HangUp() { client_ = Descriptor{}; }
    void Reset() {
        const linger atOnce{.l_onoff = 1, .l_linger = 0};
        setsockopt(client_.Number(), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        HangUp();
    }
    /// Nobody listens any more; attempts on the port are refused.
    void StopListening() { listener_ = Descriptor{}; }

private:
    static void Check(bool done) {
        if (!done) {
            throw std::system_error{errno, std::generic_category(), "the server of the test"};
        }
    }

    Descriptor listener_;
    Descriptor client_;
    int port_ = 0;
};

}  // namespace tallyhut
