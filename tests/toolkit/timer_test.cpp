#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

struct TimerTest : EntryFormTest {
    Timer first{form, "first", 0, true};
    Timer second{form, "second", 0, true};

    TimerTest() {
        Record(first);
        Record(second);
    }
    void Record(Timer& timer) {
        timer.Elapsed = [this, &timer] { Note(timer.name + ' ' + std::to_string(clock.TickMs())); };
    }
};

TEST_F(TimerTest, FiresEachTimeItsIntervalHasPassed) {
    first.SetInterval(100);
    Pass(99);
    EXPECT_EQ(TakeEvents(), "");
    Pass(1);
    EXPECT_EQ(TakeEvents(), "first 100");
    Pass(0);
    EXPECT_EQ(TakeEvents(), "");
    Pass(100);
    EXPECT_EQ(TakeEvents(), "first 200");
}

TEST_F(TimerTest, IntervalOfZeroNeverFires) {
    Pass(1'000'000);
    first.SetInterval(0);
    first.SetTimerEnabled(true);
    second.SetInterval(-5);
    Pass(1'000'000);
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_FALSE(desk.NextDue());
}

TEST_F(TimerTest, DisabledNeverFires) {
    first.SetInterval(100);
    first.SetTimerEnabled(false);
    EXPECT_FALSE(first.Enabled());
    Pass(1000);
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(TimerTest, SettingTheIntervalOrEnabledStartsItAnew) {
    const struct {
        std::string_view what;
        std::function<void()> set;
    } rows[] = {
        {"the same interval", [&] { first.SetInterval(100); }},
        {"enabled again", [&] { first.SetTimerEnabled(true); }},
        {"disabled and enabled",
         [&] {
             first.SetTimerEnabled(false);
             first.SetTimerEnabled(true);
         }},
        {"as any control",
         [&] {
             Control& control = first;
             control.SetEnabled(false);
             control.SetEnabled(true);
         }},
    };
    for (const auto& row : rows) {
        first.SetInterval(100);
        Pass(60);
        row.set();
        Pass(99);
        EXPECT_EQ(TakeEvents(), "") << row.what;
        Pass(1);
        EXPECT_NE(TakeEvents(), "") << row.what;
    }
}

TEST_F(TimerTest, OneThatCameDueDuringAWaitFiresOnceAndCountsOnFromThen) {
    first.SetInterval(100);
    Pass(350);
    EXPECT_EQ(TakeEvents(), "first 350");
    Pass(99);
    EXPECT_EQ(TakeEvents(), "");
    Pass(1);
    EXPECT_EQ(TakeEvents(), "first 450");
}

TEST_F(TimerTest, TiesFireInTheOrderOfCreation) {
    second.SetInterval(100);
    first.SetInterval(100);
    Pass(100);
    EXPECT_EQ(TakeEvents(), "first 100, second 100");
}

TEST_F(TimerTest, LateOnesFireInTheOrderTheyCameDue) {
    first.SetInterval(200);
    second.SetInterval(100);
    Pass(500);
    EXPECT_EQ(TakeEvents(), "second 500, first 500");
}

TEST_F(TimerTest, NeverReentersItself) {
    first.SetInterval(100);
    first.Elapsed = [&] {
        Note("begin");
        clock.Advance(250);
        desk.RunPending();
        desk.RunTimersAndIo();
        Note("end");
    };
    second.SetInterval(300);
    Pass(100);
    EXPECT_EQ(TakeEvents(), "begin, second 350, end");
    desk.RunPending();  // it came due meanwhile
    EXPECT_EQ(TakeEvents(), "begin, end");
}

TEST_F(TimerTest, HandlerMayStopAndStartItself) {
    first.SetInterval(100);
    first.Elapsed = [&] {
        Note("fired");
        first.SetInterval(500);
    };
    Pass(100);
    Pass(499);
    EXPECT_EQ(TakeEvents(), "fired");
    first.Elapsed = [&] {
        Note("last");
        first.SetTimerEnabled(false);
    };
    Pass(1);
    Pass(5000);
    EXPECT_EQ(TakeEvents(), "last");
}

TEST_F(TimerTest, SlowHandlerDoesNotKeepEventsRunningForEver) {
    first.SetInterval(10);
    first.Elapsed = [&] {
        Note("fired");
        clock.Advance(50);
    };
    Pass(10);
    EXPECT_EQ(TakeEvents(), "fired");
}

TEST_F(TimerTest, RunsOnlyWhileItsFormIsLoaded) {
    EntryForm other{desk, "Other"};
    Timer timer{other, "timer", 100, true};
    Record(timer);
    Pass(1000);
    EXPECT_EQ(TakeEvents(), "");
    other.Load();  // counts from here
    Pass(99);
    EXPECT_EQ(TakeEvents(), "");
    Pass(1);
    EXPECT_EQ(TakeEvents(), "timer 1100");
    other.Unload();
    Pass(1000);
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(TimerTest, RunsOnWhileItsFormIsHiddenOrMinimised) {
    first.SetInterval(100);
    form.Minimise();
    Pass(100);
    form.Hide();
    Pass(100);
    EXPECT_EQ(TakeEvents(), "first 100, first 200");
}

TEST_F(TimerTest, NextDueIsThatOfTheEarliest) {
    first.SetInterval(300);
    second.SetInterval(200);
    EXPECT_EQ(desk.NextDue(), 200U);
    second.SetTimerEnabled(false);
    EXPECT_EQ(desk.NextDue(), 300U);
}

TEST_F(TimerTest, GoesOnInModalFormsAndDialogs) {
    first.SetInterval(100);
    EntryForm modal{desk, "Modal"};
    second.Elapsed = [&] { modal.Hide(); };
    second.SetInterval(250);
    modal.ShowModal();
    EXPECT_EQ(TakeEvents(), "first 100, first 200");
    bool answered = false;
    second.Elapsed = [&] { answered = true; };
    second.SetInterval(250);
    desk.RunDialog([&] { return answered; });
    EXPECT_EQ(TakeEvents(), "first 300, first 400, first 500");
}

}  // namespace
}  // namespace tallyhut
