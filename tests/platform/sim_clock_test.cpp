#include <gtest/gtest.h>

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

}  // namespace
}  // namespace tallyhut
