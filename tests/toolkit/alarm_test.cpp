#include "toolkit/alarm.h"

#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

/// An alarm before the form's timers, two between them, one behind.
struct AlarmTest : ToolkitTest {
    Alarm first{desk, [this] { NoteAt("first"); }};
    EntryForm form{desk};
    Timer timer{form, "timer", 0, true};
    Alarm last{desk, [this] { NoteAt("last"); }};

    AlarmTest() {
        timer.Elapsed = [this] { NoteAt("timer"); };
        Open(form);
    }
    void NoteAt(const std::string& name) { Note(name + ' ' + std::to_string(clock.TickMs())); }
};

TEST_F(AlarmTest, RunsEachTimeItsIntervalHasPassed) {
    first.Start(100);
    Pass(99);
    EXPECT_EQ(TakeEvents(), "");
    Pass(1);
    Pass(0);
    Pass(100);
    EXPECT_EQ(TakeEvents(), "first 100, first 200");
    first.Stop();
    EXPECT_FALSE(first.IsStarted());
    Pass(1000);
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(AlarmTest, OneThatIsStartedOnceRunsOnce) {
    first.StartOnce(100);
    EXPECT_TRUE(first.IsStarted());
    Pass(100);
    EXPECT_FALSE(first.IsStarted());
    Pass(100);
    EXPECT_EQ(TakeEvents(), "first 100");
    EXPECT_FALSE(desk.NextDue());
}

TEST_F(AlarmTest, StartingAgainCountsAnew) {
    first.Start(100);
    Pass(60);
    first.StartOnce(100);
    Pass(99);
    EXPECT_EQ(TakeEvents(), "");
    Pass(1);
    Pass(100);
    EXPECT_EQ(TakeEvents(), "first 160");
}

TEST_F(AlarmTest, IntervalOfZeroOrLessStops) {
    for (const std::int32_t interval : {0, -5}) {
        first.Start(100);
        first.Start(interval);
        last.StartOnce(100);
        last.StartOnce(interval);
        Pass(1'000'000);
        EXPECT_EQ(TakeEvents(), "") << interval;
        EXPECT_FALSE(desk.NextDue()) << interval;
    }
}

TEST_F(AlarmTest, TiesGoByCreationWithTimersOfForms) {
    last.Start(100);
    timer.SetInterval(100);
    first.StartOnce(100);
    Pass(100);
    EXPECT_EQ(TakeEvents(), "first 100, timer 100, last 100");
}

TEST_F(AlarmTest, LateOneRunsOnceAndCountsOnFromThen) {
    first.Start(100);
    last.StartOnce(50);
    Pass(350);
    EXPECT_EQ(TakeEvents(), "last 350, first 350");
    Pass(99);
    EXPECT_EQ(TakeEvents(), "");
    Pass(1);
    EXPECT_EQ(TakeEvents(), "first 450");
}

TEST_F(AlarmTest, IsSeenByNextDueAndByEveryLoop) {
    first.Start(300);
    timer.SetInterval(400);
    EXPECT_EQ(desk.NextDue(), 300U);
    desk.RunUntil([&] { return !events.empty(); });
    EXPECT_EQ(TakeEvents(), "first 300");
    desk.RunDialog([&] { return events.find("first") != std::string::npos; });
    EXPECT_EQ(TakeEvents(), "timer 400, first 600");
}

TEST_F(AlarmTest, NeverReentersItself) {
    bool inside = false;
    Alarm alarm{desk, [&] {
                    EXPECT_FALSE(inside);
                    inside = true;
                    NoteAt("begin");
                    clock.Advance(250);
                    desk.RunPending();
                    desk.RunTimersAndIo();
                    inside = false;
                }};
    alarm.Start(100);
    Pass(100);
    EXPECT_EQ(TakeEvents(), "begin 100");
    desk.RunPending();  // it came due meanwhile
    EXPECT_EQ(TakeEvents(), "begin 350");
}

TEST_F(AlarmTest, HandlerMayStartAndStopItsAlarm) {
    Alarm alarm{desk, [&] {
                    NoteAt("run");
                    if (clock.TickMs() < 300) {
                        alarm.StartOnce(100);
                    } else {
                        alarm.Start(50);
                        alarm.Stop();
                    }
                }};
    alarm.StartOnce(100);
    for (int i = 0; i < 10; ++i) {
        Pass(100);
    }
    EXPECT_EQ(TakeEvents(), "run 100, run 200, run 300");
}

TEST_F(AlarmTest, AlarmMayEndInItsOwnHandler) {
    const std::string closure = "a text that is too long to be kept in place";
    for (const bool once : {false, true}) {
        std::unique_ptr<Alarm> alarm;
        alarm = std::make_unique<Alarm>(desk, [this, &alarm, closure] {
            alarm.reset();
            clock.Advance(1000);
            desk.RunPending();
            Note(closure);
        });
        once ? alarm->StartOnce(100) : alarm->Start(100);
        Pass(100);
        Pass(100);
        EXPECT_EQ(TakeEvents(), closure);
    }
}

TEST_F(AlarmTest, AlarmThatTookItsPlaceInItsHandlerRuns) {
    std::unique_ptr<Alarm> alarm;
    int made = 0;
    const std::function<void()> replace = [&] {
        NoteAt("run");
        if (++made < 3) {
            alarm.reset();
            alarm = std::make_unique<Alarm>(desk, replace);
            alarm->StartOnce(100);
            clock.Advance(100);
            desk.RunPending();  // another alarm, wherever it lies
        }
    };
    alarm = std::make_unique<Alarm>(desk, replace);
    alarm->StartOnce(100);
    Pass(100);
    EXPECT_EQ(TakeEvents(), "run 100, run 200, run 300");
}

TEST_F(AlarmTest, TimerOfAFormMayBeRemovedByItsOwnHandler) {
    auto brief = std::make_unique<Timer>(form, "brief", 100, true);
    brief->Elapsed = [&] {
        brief.reset();
        clock.Advance(1000);
        desk.RunPending();
        NoteAt("gone");
    };
    Pass(100);
    Pass(1000);
    EXPECT_EQ(TakeEvents(), "gone 1100");
}

TEST_F(AlarmTest, FailureInItsHandlerIsFatal) {
    desk.onFatal = [this](const std::exception& failure) { Note(failure.what()); };
    Alarm failing{desk, [] { throw PlatformError{"disk full"}; }};
    failing.StartOnce(10);
    EXPECT_THROW(Pass(10), ProgramEnd);
    EXPECT_EQ(TakeEvents(), "disk full");
}

}  // namespace
}  // namespace tallyhut
