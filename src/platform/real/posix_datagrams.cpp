#include "platform/real/posix_datagrams.h"

#include <linux/filter.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "platform/path_error.h"
#include "platform/platform_error.h"
#include "platform/real/posix_socket.h"

namespace tallyhut {
namespace {

/// What the other end sends is dropped by the system: shutting down reading alone would still take it in.
int TakeNothingIn(int socket) {
    sock_filter dropAll{BPF_RET | BPF_K, 0, 0, 0};
    const sock_fprog program{1, &dropAll};
    return setsockopt(socket, SOL_SOCKET, SO_ATTACH_FILTER, &program, sizeof program);
}

int AllowBroadcast(int socket) {
    const int on = 1;
    return setsockopt(socket, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
}

socklen_t LengthOf(const SocketAddress& address) {
    return address.any.sa_family == AF_INET6 ? sizeof address.v6 : sizeof address.v4;
}

}  // namespace

PosixDatagramSocket::PosixDatagramSocket() : events_{epoll_create1(EPOLL_CLOEXEC)} {
    if (!events_.IsOpen()) {
        throw PlatformError{ReasonOf(errno)};
    }
}

void PosixDatagramSocket::Open(const std::string& host, int port) {
    Close();
    try {
        lookUp_.emplace(host, port);
    } catch (const PlatformError&) {  // no descriptor is to be had
        failure_ = kTcpNoBuffers;
        return;
    }
    epoll_event answer{};
    answer.events = EPOLLIN;
    epoll_ctl(events_.Number(), EPOLL_CTL_ADD, lookUp_->Number(), &answer);
}

void PosixDatagramSocket::Close() {
    if (lookUp_) {
        // The thread may hold the descriptor open, and the set would keep it.
        epoll_ctl(events_.Number(), EPOLL_CTL_DEL, lookUp_->Number(), nullptr);
        lookUp_.reset();
    }
    socket_ = Descriptor{};
    failure_ = 0;
}

int PosixDatagramSocket::Send(std::string_view bytes) {
    if (!IsReady()) {
        return kTcpAddressNotHere;
    }
    const auto handOver = [&] { return send(socket_.Number(), bytes.data(), bytes.size(), MSG_NOSIGNAL) >= 0; };
    if (handOver()) {
        return 0;
    }
    // The system may have told of an earlier datagram, and not have looked at this one.
    const int earlier = errno;
    if (handOver()) {
        failure_ = TcpFailureNumber(earlier, false);
        return 0;
    }
    return TcpFailureNumber(errno, false);
}

DatagramEvent PosixDatagramSocket::Take() {
    if (failure_ != 0) {
        return Failed(std::exchange(failure_, 0));
    }
    if (lookUp_) {
        return lookUp_->IsDone() ? TakeAddresses() : DatagramEvent{};
    }
    const int reason = IsReady() ? TakeError() : 0;
    return reason == 0 ? DatagramEvent{} : Failed(TcpFailureNumber(reason, false));
}

DatagramEvent PosixDatagramSocket::TakeAddresses() {
    int failure = lookUp_->Failure();
    std::vector<SocketAddress> addresses = failure == 0 ? lookUp_->Addresses() : std::vector<SocketAddress>{};
    epoll_ctl(events_.Number(), EPOLL_CTL_DEL, lookUp_->Number(), nullptr);
    lookUp_.reset();
    std::stable_partition(addresses.begin(), addresses.end(),
                          [](const SocketAddress& each) { return each.any.sa_family == AF_INET; });
    for (const SocketAddress& address : addresses) {
        const int reason = OpenSocket(address);
        if (reason == 0) {
            return {.kind = DatagramEvent::Kind::Ready};
        }
        failure = TcpFailureNumber(reason, false);
    }
    return Failed(failure);
}

/// Returns 0 or the errno value.
int PosixDatagramSocket::OpenSocket(const SocketAddress& address) {
    Descriptor made{socket(address.any.sa_family, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)};
    if (!made.IsOpen() || TakeNothingIn(made.Number()) != 0 || AllowBroadcast(made.Number()) != 0 ||
        connect(made.Number(), &address.any, LengthOf(address)) != 0) {
        return errno;
    }
    epoll_event errorsAlone{};
    epoll_ctl(events_.Number(), EPOLL_CTL_ADD, made.Number(), &errorsAlone);
    socket_ = std::move(made);
    return 0;
}

/// What the network has told of an earlier datagram: an errno value, which is told once; else 0.
int PosixDatagramSocket::TakeError() const {
    int reason = 0;
    socklen_t length = sizeof reason;
    getsockopt(socket_.Number(), SOL_SOCKET, SO_ERROR, &reason, &length);
    return reason;
}

DatagramEvent PosixDatagramSocket::Failed(int number) {
    return {.kind = DatagramEvent::Kind::Failed, .failure = number};
}

std::string PosixDatagrams::HostName() const {
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

}  // namespace tallyhut
