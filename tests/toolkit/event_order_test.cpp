#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

struct EventOrderTest : EntryFormTest {
    Timer timer{form, "timer", 0, true};
    IoSource device{desk, [this] { Note("device"); }};

    EventOrderTest() {
        RecordFocus(form.two);
        timer.Elapsed = [this] { Note("timer"); };
        form.Form_KeyDown = [this](int& KeyCode, int /*Shift*/) {
            Note(std::string{"key "} + static_cast<char>(KeyCode));
        };
    }
    void MakeAllWait() {
        PostText("a");
        timer.SetInterval(10);
        clock.Advance(10);
        device.Signal();
        form.two.SetFocus();
    }
};

TEST_F(EventOrderTest, RunPendingDeliversEverythingThatWaits) {
    MakeAllWait();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "two.GotFocus, device, timer, key A");
    EXPECT_EQ(form.two.Text(), "a");
}

TEST_F(EventOrderTest, RunTimersAndIoLeavesFocusEventsAndKeysWaiting) {
    MakeAllWait();
    desk.RunTimersAndIo();
    EXPECT_EQ(TakeEvents(), "device, timer");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "two.GotFocus, key A");
}

TEST_F(EventOrderTest, BothTakeInWhatTheMachineHas) {
    pump.OnCollect(1, [&] { device.Signal(); });
    desk.RunPending();
    pump.OnCollect(1, [&] { device.Signal(); });
    desk.RunTimersAndIo();
    EXPECT_EQ(TakeEvents(), "device, device");
    pump.OnCollect(1, [&] { PostText("b"); });
    desk.RunTimersAndIo();
    EXPECT_EQ(TakeEvents(), "");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "key B");
}

TEST_F(EventOrderTest, FocusEventsOfAKeyRunBeforeTheNextKey) {
    form.one.KeyPress = [&](int& /*KeyAscii*/) { form.two.SetFocus(); };
    Type("ab");
    EXPECT_EQ(TakeEvents(), "key A, two.GotFocus, key B");
}

TEST_F(EventOrderTest, HandlerThatLetsEventsRunIsEnteredByTheNextKey) {
    form.one.KeyPress = [&](int& KeyAscii) {
        const std::string key(1, static_cast<char>(KeyAscii));
        Note("begin " + key);
        desk.RunPending();
        Note("end " + key);
    };
    Type("ab");
    EXPECT_EQ(TakeEvents(), "key A, begin a, key B, begin b, end b, end a");
    EXPECT_EQ(form.one.Text(), "ba");
}

TEST_F(EventOrderTest, RunUntilRunsEventsUntilTheClaimHolds) {
    pump.OnWait([&] { PostText("a"); });
    pump.OnWait([&] { PostText("b"); });
    desk.RunUntil([&] { return form.one.Text() == "ab"; });
    EXPECT_EQ(form.one.Text(), "ab");
    EXPECT_FALSE(pump.HasScripts());
}

TEST_F(EventOrderTest, RunUntilThatHoldsAlreadyRunsNothing) {
    PostText("a");
    desk.RunUntil([] { return true; });
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_EQ(pump.Collects(), 1);  // that of the first show
}

TEST_F(EventOrderTest, RunUntilEndsWithTheHandlerThatMadeTheClaimHold) {
    PostText("abc");
    desk.RunUntil([&] { return form.one.Text() == "ab"; });
    EXPECT_EQ(form.one.Text(), "ab");
    desk.RunPending();
    EXPECT_EQ(form.one.Text(), "abc");
}

TEST_F(EventOrderTest, RunUntilWaitsForTheNextTimer) {
    timer.SetInterval(700);
    bool fired = false;
    timer.Elapsed = [&] { fired = true; };
    desk.RunUntil([&] { return fired; });
    EXPECT_EQ(clock.TickMs(), 700U);
}

TEST_F(EventOrderTest, RunDialogLeavesKeysFocusAndClicksWaiting) {
    MakeAllWait();
    RecordClick(form.note);
    desk.PostClick(form.note, kLeftButton);
    bool answered = false;
    pump.OnWait([&] { answered = true; });
    desk.RunDialog([&] { return answered; });
    EXPECT_EQ(TakeEvents(), "device, timer");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "two.GotFocus, key A, note.Click");
}

TEST_F(EventOrderTest, RunDialogWaitsForTimersAndNotForHeldKeys) {
    timer.SetInterval(700);
    form.one.KeyGate = [](const Key& /*key*/) { return std::optional<Tick>{300}; };
    PostText("a");
    bool fired = false;
    timer.Elapsed = [&] { fired = true; };
    desk.RunDialog([&] { return fired; });
    EXPECT_EQ(clock.TickMs(), 700U);
}

TEST_F(EventOrderTest, DeviceNeverReentersItselfAndWhatItSignalsMeanwhileIsNotLost) {
    int runs = 0;
    IoSource port{desk, [&] {
                      Note("begin");
                      if (++runs == 1) {
                          port.Signal();
                          device.Signal();
                          desk.RunPending();
                      }
                      Note("end");
                  }};
    port.Signal();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "begin, device, end, begin, end");
}

TEST_F(EventOrderTest, SignalsAreOneUntilTheHandlerRuns) {
    device.Signal();
    device.Signal();
    desk.RunPending();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "device");
}

TEST_F(EventOrderTest, DeviceThatIsGoneRunsNothing) {
    {
        IoSource brief{desk, [&] { Note("brief"); }};
        brief.Signal();
    }
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(EventOrderTest, ActionsOfTheOperatorComeInOrderWithKeys) {
    PostText("a");
    desk.PostAction([&] { Note("action"); });
    PostText("b");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "key A, action, key B");
}

TEST_F(EventOrderTest, HandlerMayReplaceItselfWhileItRuns) {
    const std::string closure = "a text that is too long to be kept in place";
    form.note.Click = [this, closure] {
        form.note.Click = [this] { Note("second"); };
        Note(closure);
    };
    Click(form.note);
    Click(form.note);
    EXPECT_EQ(TakeEvents(), closure + ", second");
}

}  // namespace
}  // namespace tallyhut
