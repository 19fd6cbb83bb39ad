#pragma once

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/real/descriptor.h"

namespace tallyhut {

/// A receiver of datagrams on a port of this machine, as another program would be.
class DatagramListener {
public:
    explicit DatagramListener(in_addr_t host = INADDR_LOOPBACK) : host_{host} { ListenOn(0); }

    int Port() const { return port_; }
    /// Again, or on a free port for 0.
    void ListenOn(int port) {
        socket_ = Descriptor{socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)};
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(host_);
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        socklen_t length = sizeof address;
        Check(bind(socket_.Number(), Any(address), length) == 0);
        Check(getsockname(socket_.Number(), Any(address), &length) == 0);
        port_ = ntohs(address.sin_port);
    }
    /// Nobody listens any more; datagrams to the port are refused.
    void StopListening() { socket_ = Descriptor{}; }

    /// The next datagram; empty where none comes within so many milliseconds.
    std::string Next(int patience = 10'000) {
        pollfd arrived{.fd = socket_.Number(), .events = POLLIN, .revents = 0};
        if (poll(&arrived, 1, patience) != 1) {
            return "";
        }
        std::string bytes(65'536, '\0');
        socklen_t length = sizeof sender_;
        const ssize_t count = recvfrom(socket_.Number(), bytes.data(), bytes.size(), 0, Any(sender_), &length);
        bytes.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
        return bytes;
    }
    /// To whoever has sent the last one.
    void Answer(std::string_view bytes) {
        Check(sendto(socket_.Number(), bytes.data(), bytes.size(), 0, Any(sender_), sizeof sender_) ==
              static_cast<ssize_t>(bytes.size()));
    }
    /// How many bytes wait in the system for the one who has sent the last one; -1 where there is no such socket.
    long WaitingAtTheSender() const {
        std::array<char, 32> local{};
        std::snprintf(local.data(), local.size(), "%08X:%04X", sender_.sin_addr.s_addr, ntohs(sender_.sin_port));
        std::ifstream table{"/proc/net/udp"};
        for (std::string line; std::getline(table, line);) {
            if (line.find(std::string{": "} + local.data() + ' ') != std::string::npos) {
                // "sl: local remote state tx:rx": the queues are the fifth word
                const std::size_t colon = line.find(':', line.find(' ', line.find(local.data()) + 30));
                return std::stol(line.substr(colon + 1, 8), nullptr, 16);
            }
        }
        return -1;
    }

private:
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the sockets' own way
    static sockaddr* Any(sockaddr_in& address) { return reinterpret_cast<sockaddr*>(&address); }
    static void Check(bool done) {
        if (!done) {
            throw std::system_error{errno, std::generic_category(), "the listener of the test"};
        }
    }

    in_addr_t host_;
    Descriptor socket_;
    int port_ = 0;
    sockaddr_in sender_{};
};

}  // namespace tallyhut
