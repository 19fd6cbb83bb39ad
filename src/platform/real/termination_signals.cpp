#include "platform/real/termination_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <system_error>

#include "platform/platform_error.h"

namespace tallyhut {
namespace {

/// All that a signal handler may touch: the end of a pipe that it writes to.
std::atomic<int> told{-1};
static_assert(std::atomic<int>::is_always_lock_free);

void OnSignal(int /*number*/) {
    const int failure = errno;
    const char token = 1;
    [[maybe_unused]] const ssize_t written = write(told, &token, 1);  // a full pipe says enough
    errno = failure;
}

}  // namespace

TerminationSignals::TerminationSignals() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        throw PlatformError{std::generic_category().message(errno)};
    }
    arrived_ = Descriptor{ends[0]};
    told = ends[1];
    struct sigaction action {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kTerminations.size(); ++i) {
        sigaction(kTerminations[i], &action, &before_[i]);
    }
}

TerminationSignals::~TerminationSignals() {
    for (std::size_t i = 0; i < kTerminations.size(); ++i) {
        sigaction(kTerminations[i], &before_[i], nullptr);
    }
    close(told.exchange(-1));
}

void TerminationSignals::Clear() const {
    std::array<char, 16> tokens{};
    while (read(arrived_.Number(), tokens.data(), tokens.size()) > 0) {
    }
}

}  // namespace tallyhut
