#include "platform/real/punctuality.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/resource.h>

#include "tests/platform/child_process.h"

namespace tallyhut {
namespace {

constexpr unsigned long kSlack = 70'000;

std::string PolicyName() {
    switch (sched_getscheduler(0)) {
        case SCHED_OTHER:
            return "shared";
        case SCHED_BATCH:
            return "batch";
        case SCHED_FIFO:
            return "real-time";
        default:
            return "another";
    }
}

/// How this thread is scheduled and how exactly it is woken: "shared 50000".
std::string State() {
    return PolicyName() + ' ' + std::to_string(prctl(PR_GET_TIMERSLACK));
}

/// Whether the machine the test runs on grants real-time scheduling to whom it runs as.
bool IsGranted() {
    return InChild([]() -> std::string {
               const sched_param lowest{.sched_priority = 1};
               return sched_setscheduler(0, SCHED_FIFO, &lowest) == 0 ? "granted" : "refused";
           }) == "granted";
}

bool AllowPriority(rlim_t most) {
    const rlimit limit{.rlim_cur = most, .rlim_max = most};
    return setrlimit(RLIMIT_RTPRIO, &limit) == 0;
}

TEST(Punctuality, TimersAreExactAndGoBackToWhatTheyWere) {
    EXPECT_EQ(InUnprivilegedChild([] {
                  AllowPriority(0);
                  prctl(PR_SET_TIMERSLACK, kSlack);
                  Punctuality punctuality;
                  punctuality.Begin();
                  const std::string during = State();
                  punctuality.End();
                  return during + ", " + State();
              }),
              "shared 1, shared 70000");
}

TEST(Punctuality, SchedulingIsRealTimeWhereGrantedAndGoesBack) {
    if (!IsGranted()) {
        GTEST_SKIP() << "this machine grants no real-time scheduling";
    }
    EXPECT_EQ(InChild([] {
                  prctl(PR_SET_TIMERSLACK, kSlack);
                  Punctuality punctuality;
                  punctuality.Begin();
                  const std::string during = PolicyName();
                  punctuality.End();
                  return during + ", " + State();
              }),
              "real-time, shared 70000");
}

TEST(Punctuality, LimitOfTheUserIsEnoughForRealTime) {
    const std::string raised = InChild([]() -> std::string { return AllowPriority(1) ? "raised" : "refused"; });
    if (!IsGranted() || raised == "refused") {
        GTEST_SKIP() << "this machine grants no real-time scheduling, or no limit of it";
    }
    EXPECT_EQ(InChild([] {
                  AllowPriority(1);
                  return InUnprivilegedChild([] {
                      Punctuality punctuality;
                      punctuality.Begin();
                      const std::string during = PolicyName();
                      punctuality.End();
                      return during + ", " + PolicyName();
                  });
              }),
              "real-time, shared");
}

TEST(Punctuality, SecondBeginAndSecondEndDoNothing) {
    EXPECT_EQ(InChild([] {
                  prctl(PR_SET_TIMERSLACK, kSlack);
                  Punctuality punctuality;
                  punctuality.End();
                  const std::string before = State();
                  punctuality.Begin();
                  punctuality.Begin();
                  punctuality.End();
                  const std::string behind = State();
                  prctl(PR_SET_TIMERSLACK, kSlack + 1);
                  punctuality.End();
                  return before + ", " + behind + ", " + State();
              }),
              "shared 70000, shared 70000, shared 70001");
}

TEST(Punctuality, GoesBackWithItsOwner) {
    EXPECT_EQ(InChild([] {
                  prctl(PR_SET_TIMERSLACK, kSlack);
                  { Punctuality{}.Begin(); }
                  return State();
              }),
              "shared 70000");
}

TEST(Punctuality, SchedulingThatSomebodyChoseIsGivenBack) {
    EXPECT_EQ(InChild([] {
                  const sched_param none{.sched_priority = 0};
                  sched_setscheduler(0, SCHED_BATCH, &none);
                  { Punctuality{}.Begin(); }
                  return PolicyName();
              }),
              "batch");
}

TEST(Punctuality, RealTimeThatSomebodyChoseStays) {
    if (!IsGranted()) {
        GTEST_SKIP() << "this machine grants no real-time scheduling";
    }
    EXPECT_EQ(InChild([]() -> std::string {
                  const sched_param chosen{.sched_priority = 5};
                  sched_setscheduler(0, SCHED_FIFO, &chosen);
                  Punctuality punctuality;
                  punctuality.Begin();
                  punctuality.LeaveRealTime();
                  punctuality.End();
                  sched_param left{};
                  sched_getparam(0, &left);
                  return PolicyName() + ' ' + std::to_string(left.sched_priority);
              }),
              "real-time 5");
}

TEST(Punctuality, RealTimeAloneIsLeftBeforeTheEnd) {
    EXPECT_EQ(InChild([] {
                  prctl(PR_SET_TIMERSLACK, kSlack);
                  Punctuality punctuality;
                  punctuality.Begin();
                  punctuality.LeaveRealTime();
                  const std::string during = PolicyName() + (punctuality.IsRealTime() ? " still" : "");
                  punctuality.End();
                  return during + ", " + State();
              }),
              "shared, shared 70000");
}

}  // namespace
}  // namespace tallyhut
