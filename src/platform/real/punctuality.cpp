#include "platform/real/punctuality.h"

#include <sched.h>
#include <sys/prctl.h>

#include <utility>

namespace tallyhut {
namespace {

constexpr unsigned long kLeastSlack = 1;
/// Above all that is not real-time, below all else that is: sound and the system's own threads go first.
constexpr int kLowestPriority = 1;

bool SetPolicy(int policy, int priority) {
    const sched_param parameters{.sched_priority = priority};
    return sched_setscheduler(0, policy, &parameters) == 0;
}

}  // namespace

void Punctuality::Begin() {
    if (formerSlack_) {
        return;
    }
    formerSlack_ = static_cast<unsigned long>(prctl(PR_GET_TIMERSLACK));
    prctl(PR_SET_TIMERSLACK, kLeastSlack);
    const int policy = sched_getscheduler(0);
    const bool isTimeShared = policy == SCHED_OTHER || policy == SCHED_BATCH || policy == SCHED_IDLE;
    if (isTimeShared && SetPolicy(SCHED_FIFO, kLowestPriority)) {
        formerPolicy_ = policy;
    }
}

void Punctuality::End() {
    if (formerSlack_) {
        LeaveRealTime();  // first, for leaving it sets the slack too
        prctl(PR_SET_TIMERSLACK, *std::exchange(formerSlack_, std::nullopt));
    }
}

void Punctuality::LeaveRealTime() {
    if (formerPolicy_) {
        SetPolicy(*std::exchange(formerPolicy_, std::nullopt), 0);
    }
}

}  // namespace tallyhut
