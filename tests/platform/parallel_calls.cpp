#include "tests/platform/parallel_calls.h"

#include <linux/ppdev.h>
#include <sys/ioctl.h>

#include <cerrno>
#include <optional>
#include <utility>

#include "tests/platform/pseudo_terminal.h"

namespace tallyhut {
namespace {

ParallelCalls* watching = nullptr;

void Note(const std::string& call) {
    watching->noted += (watching->noted.empty() ? "" : ", ") + call;
}

int Allow(unsigned long address, bool allow) {
    if (watching == nullptr || !watching->mayWriteDirectly) {
        return EPERM;
    }
    Note((allow ? "allow " : "forbid ") + std::to_string(address));
    return 0;
}

std::optional<int> Answer(unsigned long request, void* argument) {
    switch (request) {
        case PPCLAIM:
            Note("claim");
            return watching->claimFailure;
        case PPRELEASE:
            Note("release");
            return 0;
        case PPWCONTROL:
            Note("write " + std::to_string(*static_cast<unsigned char*>(argument)));
            return watching->writeFailure;
        default:
            return std::nullopt;
    }
}

}  // namespace

ParallelCalls::ParallelCalls() {
    watching = this;
    answerOfDevice = Answer;
}

ParallelCalls::~ParallelCalls() {
    answerOfDevice = nullptr;
    watching = nullptr;
}

std::string ParallelCalls::Take() {
    return std::exchange(noted, {});
}

}  // namespace tallyhut

/// Stands before the C library's own in this test program.
extern "C" int ioperm(unsigned long from, unsigned long /*count*/, int allow) noexcept {
    const int failure = tallyhut::Allow(from, allow != 0);
    errno = failure;
    return failure == 0 ? 0 : -1;
}
