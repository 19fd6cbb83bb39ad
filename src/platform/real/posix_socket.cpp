#include "platform/real/posix_socket.h"

#include <netinet/tcp.h>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <utility>

#include "platform/path_error.h"
#include "values/secret.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLargestChunk = 8'192;
constexpr std::size_t kMostWaiting = 65'536;
constexpr int kUnlisted = 10'000;

struct FailureRow {
    int errorNumber;
    int number;
};

constexpr std::array kFailures{
    FailureRow{ENOMEM, kTcpOutOfMemory},       FailureRow{EACCES, kTcpBroadcastAddress},
    FailureRow{EADDRINUSE, kTcpAddressInUse},  FailureRow{EADDRNOTAVAIL, kTcpAddressNotHere},
    FailureRow{ENETDOWN, kTcpNetworkDown},     FailureRow{ENETUNREACH, kTcpUnreachable},
    FailureRow{EHOSTUNREACH, kTcpUnreachable}, FailureRow{ECONNABORTED, kTcpAborted},
    FailureRow{ECONNRESET, kTcpReset},         FailureRow{EPIPE, kTcpReset},
    FailureRow{ENOBUFS, kTcpNoBuffers},        FailureRow{EMFILE, kTcpNoBuffers},
    FailureRow{ETIMEDOUT, kTcpTimedOut},       FailureRow{ECONNREFUSED, kTcpRefused},
    FailureRow{EAFNOSUPPORT, kTcpUnreachable},
};

/// A cluster may be silent for an hour; a dead one is known two minutes later, whether something was sent to it or not.
void KeepAlive(int socket) {
    struct Setting {
        int level;
        int name;
        int value;
    };
    constexpr std::array kSettings{Setting{SOL_SOCKET, SO_KEEPALIVE, 1}, Setting{IPPROTO_TCP, TCP_KEEPIDLE, 60},
                                   Setting{IPPROTO_TCP, TCP_KEEPINTVL, 15}, Setting{IPPROTO_TCP, TCP_KEEPCNT, 4},
                                   Setting{IPPROTO_TCP, TCP_USER_TIMEOUT, 120'000}};
    for (const Setting& setting : kSettings) {
        setsockopt(socket, setting.level, setting.name, &setting.value, sizeof setting.value);
    }
}

socklen_t LengthOf(const SocketAddress& address) {
    return address.any.sa_family == AF_INET6 ? sizeof address.v6 : sizeof address.v4;
}

}  // namespace

int TcpFailureNumber(int errorNumber, bool wasConnected) {
    if (errorNumber == ETIMEDOUT && wasConnected) {
        return kTcpKeepAliveTimedOut;
    }
    for (const FailureRow& row : kFailures) {
        if (row.errorNumber == errorNumber) {
            return row.number;
        }
    }
    return kUnlisted + errorNumber;
}

PosixSocket::PosixSocket() : events_{epoll_create1(EPOLL_CLOEXEC)} {
    if (!events_.IsOpen()) {
        throw PlatformError{ReasonOf(errno)};
    }
}

PosixSocket::~PosixSocket() {
    OverwriteFrom(waiting_, 0);
}

void PosixSocket::Connect(const std::string& host, int port) {
    Close();
    host_ = host;
    port_ = port;
    if (brokenOff_ && brokenOff_->host == host && brokenOff_->port == port) {
        lookUp_ = std::move(brokenOff_->lookUp);
        brokenOff_.reset();
    } else {
        lookUp_.emplace(host, port);
    }
    nextAddress_ = 0;
    epoll_event answer{};
    answer.events = EPOLLIN;
    epoll_ctl(events_.Number(), EPOLL_CTL_ADD, lookUp_->Number(), &answer);
}

void PosixSocket::Close() {
    if (lookUp_) {
        // The thread may hold the descriptor open, and the set would keep it.
        epoll_ctl(events_.Number(), EPOLL_CTL_DEL, lookUp_->Number(), nullptr);
        if (!lookUp_->IsDone()) {
            brokenOff_ = BrokenOff{.host = host_, .port = port_, .lookUp = std::move(*lookUp_)};
        }
        lookUp_.reset();
    }
    socket_ = Descriptor{};
    isConnected_ = false;
    OverwriteFrom(waiting_, 0);
    sendFailure_ = 0;
}

TcpEvent PosixSocket::Take() {
    if (isConnected_) {
        return TakeBytes();
    }
    if (socket_.IsOpen()) {
        return TakeConnection();
    }
    return lookUp_ && lookUp_->IsDone() ? TakeAddresses() : TcpEvent{};
}

TcpEvent PosixSocket::TakeAddresses() {
    epoll_ctl(events_.Number(), EPOLL_CTL_DEL, lookUp_->Number(), nullptr);
    return TryNextAddress(lookUp_->Failure());
}

TcpEvent PosixSocket::TryNextAddress(int failure) {
    while (lookUp_->Failure() == 0 && nextAddress_ < lookUp_->Addresses().size()) {
        const SocketAddress& address = lookUp_->Addresses()[nextAddress_++];
        socket_ = Descriptor{socket(address.any.sa_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)};
        if (socket_.IsOpen()) {
            KeepAlive(socket_.Number());
            if (connect(socket_.Number(), &address.any, LengthOf(address)) == 0 || errno == EINPROGRESS) {
                epoll_event nothingYet{};
                epoll_ctl(events_.Number(), EPOLL_CTL_ADD, socket_.Number(), &nothingYet);
                WaitFor(false, true);
                return TakeConnection();
            }
        }
        failure = TcpFailureNumber(errno, false);
        socket_ = Descriptor{};
    }
    return Fail(failure);
}

TcpEvent PosixSocket::TakeConnection() {
    pollfd decided{.fd = socket_.Number(), .events = POLLOUT, .revents = 0};
    if (poll(&decided, 1, 0) <= 0) {
        return {};
    }
    int reason = 0;
    socklen_t length = sizeof reason;
    getsockopt(socket_.Number(), SOL_SOCKET, SO_ERROR, &reason, &length);
    if (reason != 0) {
        socket_ = Descriptor{};
        return TryNextAddress(TcpFailureNumber(reason, false));
    }
    lookUp_.reset();
    isConnected_ = true;
    WaitFor(true, false);
    return {.kind = TcpEvent::Kind::Connected};
}

TcpEvent PosixSocket::TakeBytes() {
    SendWaiting();
    std::array<char, kLargestChunk> block{};
    ssize_t count = 0;
    do {
        count = recv(socket_.Number(), block.data(), block.size(), 0);
    } while (count < 0 && errno == EINTR);
    const int reason = errno;
    if (count > 0) {
        return {.kind = TcpEvent::Kind::Chunk, .bytes{block.data(), static_cast<std::size_t>(count)}};
    }
    if (count < 0 && reason != EAGAIN) {
        return Fail(TcpFailureNumber(reason, true));
    }
    if (sendFailure_ != 0) {
        return Fail(TcpFailureNumber(sendFailure_, true));
    }
    if (count == 0) {
        Close();
        return {.kind = TcpEvent::Kind::Ended};
    }
    return {};
}

TcpEvent PosixSocket::Fail(int number) {
    Close();
    return {.kind = TcpEvent::Kind::Failed, .failure = number};
}

void PosixSocket::Send(std::string_view bytes) {
    if (!isConnected_ || sendFailure_ != 0) {
        return;
    }
    SendWaiting();
    if (waiting_.size() + bytes.size() > kMostWaiting) {
        sendFailure_ = ENOBUFS;
        OverwriteFrom(waiting_, 0);
        shutdown(socket_.Number(), SHUT_RDWR);  // so that the failure is seen as an event
        return;
    }
    AppendSecret(waiting_, bytes);
    SendWaiting();
}

void PosixSocket::SendWaiting() {
    while (!waiting_.empty()) {
        const ssize_t count = send(socket_.Number(), waiting_.data(), waiting_.size(), MSG_NOSIGNAL);
        if (count >= 0) {
            waiting_.erase(0, static_cast<std::size_t>(count));
            OverwriteFrom(waiting_, waiting_.size());
        } else if (errno == EAGAIN) {
            break;
        } else if (errno != EINTR) {
            // The other end has ended the connection: reading tells what it has sent before, and how it ended.
            if (errno != EPIPE) {
                sendFailure_ = errno;
            }
            OverwriteFrom(waiting_, 0);
        }
    }
    WaitFor(true, !waiting_.empty());
}

void PosixSocket::WaitFor(bool readable, bool writable) const {
    epoll_event wanted{};
    wanted.events = (readable ? EPOLLIN : 0U) | (writable ? EPOLLOUT : 0U);
    epoll_ctl(events_.Number(), EPOLL_CTL_MOD, socket_.Number(), &wanted);
}

}  // namespace tallyhut
