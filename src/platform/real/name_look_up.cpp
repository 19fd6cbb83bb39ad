#include "platform/real/name_look_up.h"

#include <netdb.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <system_error>
#include <thread>

#include "platform/path_error.h"
#include "platform/real/descriptor.h"
#include "platform/tcp_socket.h"

namespace tallyhut {

struct NameLookUp::Answer {
    Descriptor told{eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
    std::atomic<bool> isDone = false;
    std::vector<SocketAddress> addresses = {};  // written before isDone is set
    int failure = 0;                            // likewise

    void Tell() {
        isDone = true;
        const std::uint64_t one = 1;
        [[maybe_unused]] const ssize_t written = write(told.Number(), &one, sizeof one);
    }
};

namespace {

struct FailureRow {
    int reason;  ///< of getaddrinfo
    int number;
};

constexpr std::array kFailures{
    FailureRow{EAI_NONAME, kTcpHostNotFound},  FailureRow{EAI_AGAIN, kTcpHostNotFoundNow},
    FailureRow{EAI_FAIL, kTcpNameFailure},     FailureRow{EAI_NODATA, kTcpNoAddress},
    FailureRow{EAI_ADDRFAMILY, kTcpNoAddress}, FailureRow{EAI_MEMORY, kTcpOutOfMemory},
};

int FailureNumber(int reason) {
    for (const FailureRow& row : kFailures) {
        if (row.reason == reason) {
            return row.number;
        }
    }
    return kTcpNameFailure;
}

/// Returns 0 or getaddrinfo's reason.
int Find(const std::string& host, int port, int flags, std::vector<SocketAddress>& addresses) {
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    wanted.ai_flags = flags | AI_NUMERICSERV;
    addrinfo* found = nullptr;
    const int reason = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &wanted, &found);
    for (const addrinfo* each = found; each != nullptr; each = each->ai_next) {
        if (each->ai_addrlen <= sizeof(SocketAddress)) {
            SocketAddress address{};
            std::memcpy(&address, each->ai_addr, each->ai_addrlen);
            addresses.push_back(address);
        }
    }
    if (found != nullptr) {
        freeaddrinfo(found);
    }
    return reason == 0 && addresses.empty() ? EAI_NODATA : reason;
}

}  // namespace

NameLookUp::NameLookUp(const std::string& host, int port) : answer_{std::make_shared<Answer>()} {
    constexpr int kLastTcpPort = 65'535;
    if (!answer_->told.IsOpen()) {
        throw PlatformError{ReasonOf(errno)};
    }
    if (port < 1 || port > kLastTcpPort) {
        answer_->failure = kTcpInvalidValue;
    } else if (host.empty() || host.find('\0') != std::string::npos) {  // for the system an empty name is this machine
        answer_->failure = kTcpHostNotFound;
    } else if (Find(host, port, AI_NUMERICHOST, answer_->addresses) != 0) {
        try {
            std::thread{[answer = answer_, host, port] {
                const int reason = Find(host, port, 0, answer->addresses);
                answer->failure = reason == 0 ? 0 : FailureNumber(reason);
                answer->Tell();
            }}.detach();
            return;
        } catch (const std::system_error&) {  // no thread is to be had
            answer_->failure = kTcpNoBuffers;
        }
    }
    answer_->Tell();
}

int NameLookUp::Number() const {
    return answer_->told.Number();
}

bool NameLookUp::IsDone() const {
    return answer_->isDone;
}

const std::vector<SocketAddress>& NameLookUp::Addresses() const {
    return answer_->addresses;
}

int NameLookUp::Failure() const {
    return answer_->failure;
}

}  // namespace tallyhut
