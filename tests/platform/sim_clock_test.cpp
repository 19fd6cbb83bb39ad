#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/sim/clock.h"

namespace tallyhut {
namespace {

TEST(SimClock, StartsOnTheContestsFirstSaturdayAtTickZero) {
    const sim::Clock clock;
    EXPECT_EQ(clock.IsoNow(), "2026-11-07T21:00:00.000");
    EXPECT_EQ(clock.TickMs(), 0U);
    EXPECT_EQ(clock.MinutesToUtc(), 0);
}

TEST(SimClock, StartAndOffsetAreChosen) {
    const sim::Clock clock({2027, 2, 3, 4, 5, 6}, 300);
    EXPECT_EQ(clock.IsoNow(), "2027-02-03T04:05:06.000");
    EXPECT_EQ(clock.MinutesToUtc(), 300);
}

TEST(SimClock, StandsStillUntilItIsAdvanced) {
    sim::Clock clock;
    EXPECT_EQ(clock.TickMs(), clock.TickMs());
    clock.Advance(273'033);
    EXPECT_EQ(clock.TickMs(), 273'033U);
    EXPECT_EQ(clock.IsoNow(), "2026-11-07T21:04:33.033");
}

TEST(SimClock, DateAndTimeAreWholeSecondsOfTheTick) {
    sim::Clock clock;
    clock.Advance(999);
    EXPECT_EQ(clock.Now(), (DateTime{2026, 11, 7, 21, 0, 0}));
    clock.Advance(1);
    EXPECT_EQ(clock.Now(), (DateTime{2026, 11, 7, 21, 0, 1}));
}

TEST(SimClock, RunsOverMidnightAndTheEndOfAMonth) {
    sim::Clock clock({2028, 2, 28, 23, 59, 59});
    clock.Advance(1'000);
    EXPECT_EQ(clock.Now(), (DateTime{2028, 2, 29, 0, 0, 0}));
    clock.Advance(Tick{24} * 3'600'000);
    EXPECT_EQ(clock.Now(), (DateTime{2028, 3, 1, 0, 0, 0}));
}

TEST(SimClock, AdvancingToAPastTickDoesNothing) {
    sim::Clock clock;
    clock.AdvanceTo(2'000);
    clock.AdvanceTo(500);
    EXPECT_EQ(clock.TickMs(), 2'000U);
}

TEST(SimClock, SleepJumpsToItsEnd) {
    sim::Clock clock;
    clock.SleepUntil(99);
    EXPECT_EQ(clock.TickMs(), 99U);
    clock.SleepUntil(50);
    EXPECT_EQ(clock.TickMs(), 99U);
}

TEST(SimClock, MomentsHaveMicroseconds) {
    sim::Clock clock;
    clock.SpinUntil(92'307);
    EXPECT_EQ(clock.TickUs(), 92'307U);
    EXPECT_EQ(clock.TickMs(), 92U);
    EXPECT_EQ(clock.IsoNow(), "2026-11-07T21:00:00.092");
    clock.SpinUntil(92'000);
    EXPECT_EQ(clock.TickUs(), 92'307U);
    clock.SleepUs(7'693);
    EXPECT_EQ(clock.TickUs(), 100'000U);
    clock.SleepUs(0);
    EXPECT_EQ(clock.TickUs(), 100'000U);
}

TEST(SimClock, FractionsOfManyUnitsAreKept) {
    sim::Clock clock;
    for (int unit = 0; unit < 13'000; ++unit) {
        clock.SpinUntil(clock.TickUs() + 92'308);
    }
    EXPECT_EQ(clock.TickMs(), 1'200'004U);
}

TEST(SimClock, MillionRoundsOfCountingLast60Milliseconds) {
    sim::Clock clock;
    EXPECT_EQ(clock.Count(0, 1'000'000), 1'000'000);
    EXPECT_EQ(clock.TickUs(), 60'000U);
    EXPECT_EQ(clock.Count(4'000'000, 5'000'000), 5'000'000);
    EXPECT_EQ(clock.TickUs(), 120'000U);
    for (int times = 0; times < 1'000'000; ++times) {
        clock.Count(0, 1);
    }
    EXPECT_EQ(clock.TickUs(), 180'000U);
}

TEST(SimClock, PreciseTimesAreCounted) {
    sim::Clock clock;
    clock.EndPrecise();
    clock.BeginPrecise();
    clock.BeginPrecise();
    EXPECT_TRUE(clock.isPrecise);
    clock.EndPrecise();
    clock.EndPrecise();
    EXPECT_FALSE(clock.isPrecise);
    EXPECT_EQ(clock.preciseBegun, 1);
    EXPECT_EQ(clock.preciseEnded, 1);
}

TEST(SimClock, SettingTheDateAndTimeLeavesTheTick) {
    sim::Clock clock;
    clock.Advance(1'700);
    clock.SetNow({2026, 11, 7, 20, 0, 0});
    EXPECT_EQ(clock.TickMs(), 1'700U);
    EXPECT_EQ(clock.IsoNow(), "2026-11-07T20:00:00.000");
    clock.Advance(1'500);
    EXPECT_EQ(clock.TickMs(), 3'200U);
    EXPECT_EQ(clock.IsoNow(), "2026-11-07T20:00:01.500");
}

/// Counts that end otherwise than after their rounds. The machine's clock has the same rows in its test.
TEST(SimClock, CountThatCannotEndIsGivenUp) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
    struct Case {
        double from;
        double below;
        double end;
    };
    const Case atOnce[] = {
        {0, 0, 0},
        {5, 4, 5},
        {0, -1, 0},
        {0, -kInfinity, 0},
        {0, kNothing, 0},
        {1e16, kInfinity, 1e16},
        {-kInfinity, 0, -kInfinity},
        {kInfinity, kInfinity, kInfinity},
    };
    sim::Clock clock;
    for (const auto& [from, below, end] : atOnce) {
        EXPECT_EQ(clock.Count(from, below), end) << from << " " << below;
        EXPECT_EQ(clock.TickUs(), 0U);
    }
    EXPECT_TRUE(std::isnan(clock.Count(kNothing, 1)));
    EXPECT_EQ(clock.Count(0, 0.5), 1);
    EXPECT_EQ(clock.Count(0.25, 2), 2.25);
    for (const double below : {1e9, 1e18, kInfinity}) {
        const Microtick start = clock.TickUs();
        EXPECT_LT(clock.Count(0, below), below);
        EXPECT_NEAR(static_cast<double>(clock.TickUs() - start), kLongestCountUs, 1);
    }
}

}  // namespace
}  // namespace tallyhut
