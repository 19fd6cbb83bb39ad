#include <functional>
#include <stdexcept>

#include "platform/platform_error.h"
#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

[[noreturn]] void Fail() {
    throw std::runtime_error{"disk full"};
}

struct FatalTest : EntryFormTest {
    Timer timer{form, "timer", 0, true};
    IoSource device{desk, Fail};

    FatalTest() {
        desk.onFatal = [this](const std::exception& failure) { Note(std::string{"fatal: "} + failure.what()); };
    }
    /// The status that the program ends with; -1 if it goes on.
    static int StatusOf(const std::function<void()>& run) {
        try {
            run();
        } catch (const ProgramEnd& end) {
            return end.status;
        }
        return -1;
    }
};

TEST_F(FatalTest, WhatLeavesAHandlerIsToldAndEndsTheProgramWithOne) {
    form.one.KeyPress = [](int& /*KeyAscii*/) { Fail(); };
    PostText("a");
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 1);
    EXPECT_EQ(TakeEvents(), "fatal: disk full");
}

/// A handler that fails, and what sets it off.
struct Way {
    std::string_view name;
    void (*begin)(FatalTest& test);
};

constexpr Way kWays[] = {
    {"FormKeyDown",
     [](FatalTest& test) {
         test.form.Form_KeyDown = [](int& /*KeyCode*/, int /*Shift*/) { Fail(); };
         test.PostText("a");
     }},
    {"KeyDown",
     [](FatalTest& test) {
         test.form.one.KeyDown = [](int& /*KeyCode*/, int /*Shift*/) { Fail(); };
         test.PostText("a");
     }},
    {"FormKeyPress",
     [](FatalTest& test) {
         test.form.Form_KeyPress = [](int& /*KeyAscii*/) { Fail(); };
         test.PostText("a");
     }},
    {"ChangeByAKey",
     [](FatalTest& test) {
         test.form.one.Change = Fail;
         test.PostText("a");
     }},
    {"ChangeByCode",
     [](FatalTest& test) {
         test.form.one.Change = Fail;
         test.form.one.SetText("a");
     }},
    {"LostFocus",
     [](FatalTest& test) {
         test.form.one.LostFocus = Fail;
         test.form.two.SetFocus();
     }},
    {"GotFocus",
     [](FatalTest& test) {
         test.form.two.GotFocus = Fail;
         test.form.two.SetFocus();
     }},
    {"Click",
     [](FatalTest& test) {
         test.form.go.Click = Fail;
         test.desk.PostClick(test.form.go, kLeftButton);
     }},
    {"DblClick",
     [](FatalTest& test) {
         test.form.go.DblClick = Fail;
         test.desk.PostClick(test.form.go, kLeftButton, true);
     }},
    {"MouseDown",
     [](FatalTest& test) {
         test.form.go.MouseDown = [](MouseButton /*button*/) { Fail(); };
         test.desk.PostClick(test.form.go, kLeftButton);
     }},
    {"MouseUp",
     [](FatalTest& test) {
         test.form.go.MouseUp = [](MouseButton /*button*/) { Fail(); };
         test.desk.PostClick(test.form.go, kLeftButton);
     }},
    {"Action", [](FatalTest& test) { test.desk.PostAction(Fail); }},
    {"Timer",
     [](FatalTest& test) {
         test.timer.Elapsed = Fail;
         test.timer.SetInterval(10);
         test.clock.Advance(10);
     }},
    {"Device", [](FatalTest& test) { test.device.Signal(); }},
    {"Load",
     [](FatalTest& test) {
         test.form.Unload();
         test.form.Form_Load = Fail;
         test.form.Show();
     }},
    {"Activate",
     [](FatalTest& test) {
         test.form.Hide();
         test.form.Form_Activate = Fail;
         test.form.Show();
     }},
    {"QueryUnload",
     [](FatalTest& test) {
         test.form.Form_QueryUnload = [](bool& /*Cancel*/) { Fail(); };
         test.form.RequestClose();
     }},
    {"Unload",
     [](FatalTest& test) {
         test.form.Form_Unload = Fail;
         test.form.Unload();
     }},
};

struct FatalWayTest : FatalTest, testing::WithParamInterface<Way> {};

TEST_P(FatalWayTest, EveryHandlerIsATop) {
    const int status = StatusOf([&] {
        GetParam().begin(*this);
        desk.RunPending();
    });
    EXPECT_EQ(status, 1);
    EXPECT_EQ(TakeEvents(), "fatal: disk full");
}

INSTANTIATE_TEST_SUITE_P(Handlers, FatalWayTest, testing::ValuesIn(kWays),
                         [](const auto& way) { return std::string{way.param.name}; });

TEST_F(FatalTest, FailureNeverCrossesRunPendingIntoAProcedureThatLetEventsRun) {
    bool caught = false;
    form.one.KeyPress = [&](int& KeyAscii) {
        if (KeyAscii == 'b') {
            Fail();
        }
        try {
            desk.RunPending();
        } catch (const std::exception&) {
            caught = true;
        }
        Note("went on");
    };
    PostText("ab");
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 1);
    EXPECT_FALSE(caught);
    EXPECT_EQ(TakeEvents(), "fatal: disk full");
}

TEST_F(FatalTest, FailureNeverCrossesAModalLoop) {
    EntryForm modal{desk, "Modal"};
    modal.one.KeyPress = [](int& /*KeyAscii*/) { Fail(); };
    bool caught = false;
    form.go.Click = [&] {
        try {
            modal.ShowModal();
        } catch (const std::exception&) {
            caught = true;
        }
    };
    pump.OnCollect(2, [&] { PostText("a"); });
    desk.PostClick(form.go, kLeftButton);
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 1);
    EXPECT_FALSE(caught);
}

TEST_F(FatalTest, NothingRunsWhileTheFailureIsTold) {
    timer.SetInterval(10);
    timer.Elapsed = [&] { Note("timer"); };
    IoSource port{desk, [&] { Note("port"); }};
    desk.onFatal = [&](const std::exception& /*failure*/) {
        clock.Advance(100);
        port.Signal();
        PostText("x");
        form.two.SetFocus();
        desk.RunPending();
        desk.RunTimersAndIo();
        bool answered = false;
        pump.OnWait([&] { clock.Advance(100); });
        pump.OnWait([&] { answered = true; });
        desk.RunDialog([&] { return answered; });
        Note("told");
    };
    RecordFocus(form.two);
    form.go.Click = [] { Fail(); };
    desk.PostClick(form.go, kLeftButton);
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 1);
    EXPECT_EQ(TakeEvents(), "told");
    EXPECT_EQ(form.one.Text(), "");
    EXPECT_FALSE(pump.HasScripts());
}

TEST_F(FatalTest, FailureOfTheTellingEndsTheProgramAllTheSame) {
    int told = 0;
    desk.onFatal = [&](const std::exception& /*failure*/) {
        ++told;
        Fail();
    };
    form.go.Click = [] { Fail(); };
    desk.PostClick(form.go, kLeftButton);
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 1);
    EXPECT_EQ(told, 1);
}

TEST_F(FatalTest, FailureThatNobodyTellsEndsTheProgram) {
    desk.onFatal = nullptr;
    form.go.Click = [] { Fail(); };
    desk.PostClick(form.go, kLeftButton);
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 1);
}

TEST_F(FatalTest, EndOfTheProgramPassesThroughHandlersUntold) {
    form.go.Click = [&] { pump.EndProgram(0); };
    desk.PostClick(form.go, kLeftButton);
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 0);
    EXPECT_EQ(TakeEvents(), "");
}

/// What the machine refuses is no end of the program.
struct FailureTest : FatalTest {
    FailureTest() {
        desk.onFailure = [this](const PlatformError& failure) { Note(std::string{"told: "} + failure.what()); };
    }
    [[noreturn]] static void Refuse() { throw PlatformError{"Out of paper"}; }
};

TEST_F(FailureTest, WhatTheMachineRefusesIsToldAndTheProgramGoesOn) {
    form.go.Click = Refuse;
    form.one.KeyPress = [&](int& /*KeyAscii*/) { Note("key"); };
    desk.PostClick(form.go, kLeftButton);
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), -1);
    EXPECT_EQ(TakeEvents(), "told: Out of paper");
    form.one.SetFocus();
    PostText("a");
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), -1);
    EXPECT_EQ(TakeEvents(), "key");
}

TEST_F(FailureTest, RefusalNeverCrossesRunPendingIntoAProcedureThatLetEventsRun) {
    form.one.KeyPress = [&](int& KeyAscii) {
        if (KeyAscii == 'b') {
            Refuse();
        }
        desk.RunPending();
        Note("went on");
    };
    PostText("ab");
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), -1);
    EXPECT_EQ(TakeEvents(), "told: Out of paper, went on");
}

TEST_F(FailureTest, AnythingElseIsFatalAsEver) {
    form.go.Click = [] { Fail(); };
    desk.PostClick(form.go, kLeftButton);
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 1);
    EXPECT_EQ(TakeEvents(), "fatal: disk full");
}

TEST_F(FailureTest, TellingThatFailsItselfIsFatal) {
    desk.onFailure = [](const PlatformError& /*failure*/) { Fail(); };
    form.go.Click = Refuse;
    desk.PostClick(form.go, kLeftButton);
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 1);
    EXPECT_EQ(TakeEvents(), "fatal: disk full");
}

TEST_F(FailureTest, RefusalWhileAFatalFailureIsToldEndsTheProgram) {
    desk.onFatal = [this](const std::exception& /*failure*/) {
        Note("fatal");
        Refuse();
    };
    form.go.Click = [] { Fail(); };
    desk.PostClick(form.go, kLeftButton);
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 1);
    EXPECT_EQ(TakeEvents(), "fatal");
}

TEST_F(FatalTest, RefusalThatNobodyTellsIsFatal) {
    form.go.Click = [] { throw PlatformError{"Out of paper"}; };
    desk.PostClick(form.go, kLeftButton);
    EXPECT_EQ(StatusOf([&] { desk.RunPending(); }), 1);
    EXPECT_EQ(TakeEvents(), "fatal: Out of paper");
}

TEST_F(FatalTest, FailureThatTheHandlerTakesIsNone) {
    form.go.Click = [&] {
        try {
            Fail();
        } catch (const std::runtime_error&) {
            Note("handled");
        }
    };
    Click(form.go);
    EXPECT_EQ(TakeEvents(), "handled");
}

}  // namespace
}  // namespace tallyhut
