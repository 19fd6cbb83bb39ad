#include <gtest/gtest.h>

#include <string>

#include "platform/platform_error.h"
#include "platform/sim/event_pump.h"

namespace tallyhut {
namespace {

struct SimEventPump : testing::Test {
    sim::Clock clock;
    sim::EventPump pump{clock};
    std::string ran;
};

TEST_F(SimEventPump, ScriptRunsAtTheNthCollectFromNow) {
    pump.Collect();
    pump.OnCollect(1, [&] { ran += 'a'; });
    pump.OnCollect(3, [&] { ran += 'b'; });
    pump.Collect();
    EXPECT_EQ(ran, "a");
    pump.Collect();
    EXPECT_EQ(ran, "a");
    EXPECT_TRUE(pump.HasScripts());
    pump.Collect();
    EXPECT_EQ(ran, "ab");
    EXPECT_FALSE(pump.HasScripts());
    EXPECT_EQ(pump.Collects(), 4);
}

TEST_F(SimEventPump, ScriptsOfOneCollectRunInTheirOrder) {
    pump.OnCollect(1, [&] { ran += 'a'; });
    pump.OnCollect(1, [&] { ran += 'b'; });
    pump.OnCollect(1, [&] { ran += 'c'; });
    pump.Collect();
    EXPECT_EQ(ran, "abc");
}

TEST_F(SimEventPump, ScriptMayCollectAndScriptMore) {
    pump.OnCollect(1, [&] {
        pump.OnCollect(1, [&] { ran += 'b'; });
        ran += 'a';
        pump.Collect();
        ran += 'c';
    });
    pump.OnCollect(1, [&] { ran += 'd'; });
    pump.Collect();
    EXPECT_EQ(ran, "abcd");
}

TEST_F(SimEventPump, WaitJumpsToItsTick) {
    pump.WaitUntil(3'000);
    EXPECT_EQ(clock.TickMs(), 3'000U);
    pump.WaitUntil(1'000);
    EXPECT_EQ(clock.TickMs(), 3'000U);
}

TEST_F(SimEventPump, EachScriptEndsOneWait) {
    pump.OnWait([&] { ran += 'a'; });
    pump.OnWait([&] { clock.Advance(50); });
    pump.WaitUntil(3'000);
    EXPECT_EQ(ran, "a");
    EXPECT_EQ(clock.TickMs(), 0U);
    pump.WaitUntil(std::nullopt);
    EXPECT_EQ(clock.TickMs(), 50U);
    pump.WaitUntil(3'000);
    EXPECT_EQ(clock.TickMs(), 3'000U);
}

TEST_F(SimEventPump, ScriptOfAWaitMayWait) {
    pump.OnWait([&] {
        pump.WaitUntil(std::nullopt);
        ran += 'b';
    });
    pump.OnWait([&] { ran += 'a'; });
    pump.WaitUntil(std::nullopt);
    EXPECT_EQ(ran, "ab");
}

TEST_F(SimEventPump, WaitThatWouldNeverEndThrows) {
    EXPECT_THROW(pump.WaitUntil(std::nullopt), sim::NothingToWaitFor);
}

TEST_F(SimEventPump, CollectingDoesNotMoveTheClock) {
    pump.Collect();
    EXPECT_EQ(clock.TickMs(), 0U);
}

TEST_F(SimEventPump, ReadableDescriptorIsToldOnceUntilItIsRearmed) {
    const auto watch = pump.Watch(7, [&] { ran += '7'; });
    const auto other = pump.Watch(8, [&] { ran += '8'; });
    pump.Collect();
    EXPECT_EQ(ran, "");
    pump.OnCollect(1, [&] { pump.readable.insert(7); });
    pump.Collect();
    pump.Collect();
    EXPECT_EQ(ran, "7");
    watch->Rearm();
    pump.Collect();
    EXPECT_EQ(ran, "77");
    watch->Rearm();
    pump.readable.erase(7);
    pump.Collect();
    EXPECT_EQ(ran, "77");
}

TEST_F(SimEventPump, ReadableDescriptorEndsAWait) {
    auto watch = pump.Watch(7, [&] { ran += '7'; });
    pump.readable.insert(7);
    pump.WaitUntil(3'000);
    EXPECT_EQ(ran, "7");
    EXPECT_EQ(clock.TickMs(), 0U);
    pump.WaitUntil(3'000);
    EXPECT_EQ(clock.TickMs(), 3'000U);
    watch->Rearm();
    watch.reset();
    EXPECT_THROW(pump.WaitUntil(std::nullopt), sim::NothingToWaitFor);
}

TEST_F(SimEventPump, EndOfTheProgramUnwindsWithItsStatus) {
    try {
        pump.EndProgram(1);
    } catch (const ProgramEnd& end) {
        EXPECT_EQ(end.status, 1);
    }
    EXPECT_THROW(pump.EndProgram(0), ProgramEnd);
}

}  // namespace
}  // namespace tallyhut
