#include "platform/real/system_clock.h"

#include <gtest/gtest.h>
#include <sched.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "tests/platform/child_process.h"

namespace tallyhut {
namespace {

std::time_t SecondsOf(const DateTime& local) {
    std::tm fields{};
    fields.tm_year = local.year - 1900;
    fields.tm_mon = local.month - 1;
    fields.tm_mday = local.day;
    fields.tm_hour = local.hour;
    fields.tm_min = local.minute;
    fields.tm_sec = local.second;
    return timegm(&fields);
}

TEST(SystemClock, TickNeverGoesBack) {
    const SystemClock clock;
    Tick last = clock.TickMs();
    for (int times = 0; times < 1'000; ++times) {
        const Tick tick = clock.TickMs();
        ASSERT_GE(tick, last);
        last = tick;
    }
}

TEST(SystemClock, LocalTimeAndOffsetGiveTheMachinesUtc) {
    const SystemClock clock;
    const std::time_t before = std::time(nullptr);
    const std::time_t now = SecondsOf(clock.Now()) + std::time_t{60} * clock.MinutesToUtc();
    EXPECT_GE(now, before);
    EXPECT_LE(now, std::time(nullptr));
}

TEST(SystemClock, WestOfGreenwichIsPositive) {
    const std::vector<std::pair<const char*, std::string>> rows{
        {"UTC0", "0"}, {"EST5", "300"}, {"PST8", "480"}, {"NST3:30", "210"}, {"CET-1", "-60"},
    };
    for (const auto& [zone, minutes] : rows) {
        const char* const chosen = zone;
        EXPECT_EQ(InChild([&] {
                      setenv("TZ", chosen, 1);
                      return std::to_string(SystemClock().MinutesToUtc());
                  }),
                  minutes)
            << zone;
    }
}

TEST(SystemClock, ZoneThatIsChangedCountsFromTheNextCall) {
    EXPECT_EQ(InChild([] {
                  const SystemClock clock;
                  setenv("TZ", "EST5", 1);
                  const int before = clock.MinutesToUtc();
                  const std::time_t eastern = SecondsOf(clock.Now());
                  setenv("TZ", "PST8", 1);
                  const std::time_t pacific = SecondsOf(clock.Now());
                  const auto later = pacific + std::time_t{3} * 3600 - eastern;
                  const bool threeHoursBack = later >= 0 && later <= 1;
                  return std::to_string(before) + ' ' + std::to_string(clock.MinutesToUtc()) +
                         (threeHoursBack ? " three hours back" : "");
              }),
              "300 480 three hours back");
}

TEST(SystemClock, SleepEndsWhenTheTickHasCome) {
    SystemClock clock;
    const Tick start = clock.TickMs();
    clock.SleepUntil(start + 5);
    EXPECT_GE(clock.TickMs(), start + 5);
    clock.SleepUntil(start);  // past: no wait
}

TEST(SystemClock, TicksAreTheMicrosecondsInThousands) {
    const SystemClock clock;
    const Tick before = clock.TickMs();
    const Microtick moment = clock.TickUs();
    EXPECT_LE(before, moment / 1'000);
    EXPECT_LE(moment / 1'000, clock.TickMs());
}

TEST(SystemClock, WaitsNeverEndTooEarly) {
    for (const bool precise : {false, true}) {
        SystemClock clock;
        if (precise) {
            clock.BeginPrecise();
        }
        const Microtick start = clock.TickUs();
        clock.SpinUntil(start + 3'210);
        EXPECT_GE(clock.TickUs(), start + 3'210);
        clock.SpinUntil(start);  // past: no wait
        const Microtick next = clock.TickUs();
        clock.SleepUs(1'234);
        EXPECT_GE(clock.TickUs(), next + 1'234);
        clock.SleepUs(0);
        clock.SpinUntil(0);
    }
}

TEST(SystemClock, CountEndsAtTheFirstStepThatIsNotBelow) {
    SystemClock clock;
    EXPECT_EQ(clock.Count(0, 0), 0);
    EXPECT_EQ(clock.Count(0, 0.5), 1);
    EXPECT_EQ(clock.Count(0.25, 2), 2.25);
    EXPECT_EQ(clock.Count(5, 4), 5);
    EXPECT_EQ(clock.Count(0, 2'500'000), 2'500'000);
    EXPECT_EQ(clock.Count(1'000'000, 5'000'000), 5'000'000);
}

TEST(SystemClock, CountTakesTimeInProportion) {
    SystemClock clock;
    const Microtick start = clock.TickUs();
    clock.Count(0, 5'000'000);
    EXPECT_GT(clock.TickUs(), start + 500);  // no machine counts ten million in a millisecond
}

TEST(SystemClock, CountThatCannotEndIsGivenUpAtOnce) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
    SystemClock clock;
    EXPECT_EQ(clock.Count(1e16, kInfinity), 1e16);
    EXPECT_EQ(clock.Count(-kInfinity, 0), -kInfinity);
    EXPECT_EQ(clock.Count(kInfinity, kInfinity), kInfinity);
    EXPECT_EQ(clock.Count(0, -kInfinity), 0);
    EXPECT_EQ(clock.Count(0, kNothing), 0);
    EXPECT_TRUE(std::isnan(clock.Count(kNothing, 1)));
}

// To count at real-time priority would stop the processor for all others.
TEST(SystemClock, CountGivesRealTimeBack) {
    EXPECT_EQ(InChild([] {
                  SystemClock clock;
                  clock.BeginPrecise();
                  clock.Count(0, 1);
                  return std::to_string(sched_getscheduler(0));
              }),
              std::to_string(SCHED_OTHER));
}

}  // namespace
}  // namespace tallyhut
