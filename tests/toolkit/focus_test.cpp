#include <vector>

#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

struct FocusTest : EntryFormTest {
    FocusTest() {
        for (Control* control : std::vector<Control*>{&form.one, &form.two, &form.three, &form.go}) {
            RecordFocus(*control);
        }
    }
};

TEST_F(FocusTest, MovesAtOnceAndItsHandlersRunWhenEventsRun) {
    form.two.SetFocus();
    EXPECT_TRUE(form.two.HasFocus());
    EXPECT_FALSE(form.one.HasFocus());
    EXPECT_EQ(form.Focus(), &form.two);
    EXPECT_EQ(TakeEvents(), "");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "one.LostFocus, two.GotFocus");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(FocusTest, HandlersWaitForTheEndOfTheRunningHandler) {
    form.one.KeyPress = [&](int& /*KeyAscii*/) {
        form.two.SetFocus();
        Note("end of KeyPress");
    };
    Type("a");
    EXPECT_EQ(TakeEvents(), "end of KeyPress, one.LostFocus, two.GotFocus");
}

TEST_F(FocusTest, HandlersRunWhereTheRunningHandlerLetsEventsRun) {
    form.one.KeyPress = [&](int& /*KeyAscii*/) {
        form.two.SetFocus();
        desk.RunPending();
        Note("end of KeyPress");
    };
    Type("a");
    EXPECT_EQ(TakeEvents(), "one.LostFocus, two.GotFocus, end of KeyPress");
}

TEST_F(FocusTest, TimersAndIoRunWithoutThem) {
    form.two.SetFocus();
    desk.RunTimersAndIo();
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(FocusTest, NextKeyGoesToTheNewControlAndTheKeyThatMovedItToTheOld) {
    form.one.KeyPress = [&](int& /*KeyAscii*/) { form.two.SetFocus(); };
    Type("ab");
    EXPECT_EQ(form.one.Text(), "a");
    EXPECT_EQ(form.two.Text(), "b");
}

TEST_F(FocusTest, KeyIsUsedUpBeforeTheFieldIsLeft) {
    form.one.KeyPress = [&](int& KeyAscii) {
        form.two.SetText(std::string(1, static_cast<char>(KeyAscii)));
        KeyAscii = 0;
        form.two.SetFocus();
    };
    form.one.LostFocus = [&] {  // a duplicate: everything is emptied
        form.one.SetText("");
        form.two.SetText("");
    };
    Type("7");
    EXPECT_EQ(form.one.Text(), "");
    EXPECT_EQ(form.two.Text(), "");
}

TEST_F(FocusTest, ChainOfMovesInOneHandlerRunsAllItsPairs) {
    form.two.SetFocus();
    form.three.SetFocus();
    form.one.SetFocus();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(),
              "one.LostFocus, two.GotFocus, two.LostFocus, three.GotFocus, three.LostFocus, one.GotFocus");
}

TEST_F(FocusTest, HandlerThatMovesTheFocusAgainAddsAPair) {
    form.two.GotFocus = [&] {
        Note("two.GotFocus");
        form.three.SetFocus();
    };
    form.two.SetFocus();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "one.LostFocus, two.GotFocus, two.LostFocus, three.GotFocus");
    EXPECT_TRUE(form.three.HasFocus());
}

TEST_F(FocusTest, SettingItWhereItIsRunsNothing) {
    form.one.SetFocus();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(FocusTest, HiddenAndDisabledControlsTakeNone) {
    FrameBox frame{form, "frame", "", {}};
    form.two.PutInto(frame);
    const struct {
        std::string_view what;
        std::function<void()> set, undo;
    } rows[] = {
        {"hidden", [&] { form.two.SetVisible(false); }, [&] { form.two.SetVisible(true); }},
        {"disabled", [&] { form.two.SetEnabled(false); }, [&] { form.two.SetEnabled(true); }},
        {"in a hidden frame", [&] { frame.SetVisible(false); }, [&] { frame.SetVisible(true); }},
    };
    for (const auto& row : rows) {
        row.set();
        EXPECT_FALSE(form.two.CanTakeFocus()) << row.what;
        form.two.SetFocus();
        desk.RunPending();
        EXPECT_TRUE(form.one.HasFocus()) << row.what;
        EXPECT_EQ(TakeEvents(), "") << row.what;
        row.undo();
        EXPECT_TRUE(form.two.CanTakeFocus()) << row.what;
    }
}

TEST_F(FocusTest, OnlyFieldsButtonsBoxesOptionsAndListsTakeIt) {
    Option option{form, "option", "", {}};
    CheckBox box{form, "box", "", {}};
    List list{form, "list", {}};
    ListView view{form, "view", {}, {}};
    for (Control* control : std::vector<Control*>{&form.two, &form.go, &option, &box, &list, &view}) {
        control->SetFocus();
        EXPECT_TRUE(control->HasFocus()) << control->name;
    }
    form.one.SetFocus();
    FrameBox frame{form, "frame", "", {}};
    MenuEntry menu{form, "menu", "&File"};
    Raster raster{form, "raster", {}};
    Line line{form, "line", 0, 0, 1, 1};
    Timer timer{form, "timer", 100, false};
    for (Control* control : std::vector<Control*>{&form.note, &frame, &menu, &raster, &line, &timer}) {
        control->SetFocus();
        EXPECT_TRUE(form.one.HasFocus()) << control->name;
    }
}

TEST_F(FocusTest, ControlThatIsHiddenOrDisabledPassesItToTheLowestTabStop) {
    FrameBox frame{form, "frame", "", {}};
    form.three.PutInto(frame);
    const std::function<void()> ways[] = {[&] { form.three.SetVisible(false); }, [&] { form.three.SetEnabled(false); },
                                          [&] { frame.SetVisible(false); }};
    for (const auto& way : ways) {
        form.three.SetVisible(true);
        form.three.SetEnabled(true);
        frame.SetVisible(true);
        form.three.SetFocus();
        desk.RunPending();
        TakeEvents();
        way();
        EXPECT_TRUE(form.one.HasFocus());
        desk.RunPending();
        EXPECT_EQ(TakeEvents(), "three.LostFocus, one.GotFocus");
    }
}

TEST_F(FocusTest, OtherControlThatIsHiddenLeavesItWhereItIs) {
    form.three.SetFocus();
    form.one.SetVisible(false);
    form.two.SetEnabled(false);
    EXPECT_TRUE(form.three.HasFocus());
}

TEST_F(FocusTest, NobodyHasItWhenNoTabStopIsLeft) {
    for (Control* control : std::vector<Control*>{&form.two, &form.three, &form.go, &form.one}) {
        control->SetEnabled(false);
    }
    EXPECT_EQ(form.Focus(), nullptr);
    Type("a");
    EXPECT_EQ(form.one.Text(), "");
}

TEST_F(FocusTest, HandOverOnAFormInTheBackgroundLeavesItThere) {
    EntryForm front{desk, "Front"};
    Open(front);
    form.one.SetVisible(false);
    EXPECT_TRUE(form.two.HasFocus());
    EXPECT_TRUE(front.IsActive());
    Type("a");
    EXPECT_EQ(front.one.Text(), "a");
    EXPECT_EQ(form.two.Text(), "");
}

TEST_F(FocusTest, SetFocusActivatesAShownForm) {
    EntryForm front{desk, "Front"};
    Open(front);
    RecordForm(form);
    RecordFocus(front.one);
    form.one.SetFocus();
    EXPECT_TRUE(form.IsActive());
    desk.RunPending();
    EXPECT_EQ(TakeEvents(),
              "Entry.Activate");  // the field had the focus of its form, and the other keeps that of its own
    form.two.SetFocus();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "one.LostFocus, two.GotFocus");
}

TEST_F(FocusTest, SetFocusRestoresAMinimisedForm) {
    form.Minimise();
    form.two.SetFocus();
    EXPECT_FALSE(form.IsMinimised());
    EXPECT_TRUE(form.IsActive());
}

TEST_F(FocusTest, SetFocusBeneathAModalFormDoesNotActivate) {
    EntryForm modal{desk, "Modal"};
    pump.OnCollect(1, [&] {
        form.two.SetFocus();
        EXPECT_TRUE(modal.IsActive());
        PostText("a");
    });
    pump.OnCollect(2, [&] { modal.Hide(); });
    pump.OnWait([] {});
    modal.ShowModal();
    EXPECT_EQ(modal.one.Text(), "a");
    EXPECT_EQ(form.two.Text(), "");
    EXPECT_TRUE(form.two.HasFocus());
}

TEST_F(FocusTest, SetFocusOnAHiddenFormIsRemembered) {
    EntryForm other{desk, "Other"};
    RecordFocus(other.one);
    RecordFocus(other.two);
    other.two.SetFocus();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_TRUE(form.IsActive());
    other.Show();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "two.GotFocus");
    other.Hide();
    other.one.SetFocus();
    desk.RunPending();
    other.Show();
    EXPECT_EQ(other.Focus(), &other.one);
    Type("a");
    EXPECT_EQ(other.one.Text(), "a");
}

TEST_F(FocusTest, GivenBackItRunsNothingOfTheFieldThatHadItForNoTime) {
    form.one.LostFocus = [&] {
        Note("one.LostFocus");
        form.one.GiveFocusBack();
    };
    form.two.SetFocus();
    desk.RunPending();
    EXPECT_TRUE(form.one.HasFocus());
    EXPECT_EQ(TakeEvents(), "one.LostFocus, one.GotFocus");
}

TEST_F(FocusTest, GivenBackItCancelsTheRestOfAChain) {
    form.one.LostFocus = [&] { form.one.GiveFocusBack(); };
    form.two.SetFocus();
    form.three.SetFocus();
    desk.RunPending();
    EXPECT_TRUE(form.one.HasFocus());
    EXPECT_EQ(TakeEvents(), "one.GotFocus");
}

TEST_F(FocusTest, GivenBackItRefusesTheNextLeaveLikeTheFirst) {
    form.one.LostFocus = [&] {
        Note("one.LostFocus");
        form.one.GiveFocusBack();
    };
    Press("Tab");
    Press("Tab");
    EXPECT_EQ(TakeEvents(), "one.LostFocus, one.GotFocus, one.LostFocus, one.GotFocus");
}

TEST_F(FocusTest, HiddenControlIsGivenNothingBack) {
    form.two.SetFocus();
    form.one.SetVisible(false);
    form.one.GiveFocusBack();
    desk.RunPending();
    EXPECT_TRUE(form.two.HasFocus());
    EXPECT_EQ(TakeEvents(), "one.LostFocus, two.GotFocus");
}

TEST_F(FocusTest, LeavingAFormRunsNoLostFocus) {
    EntryForm other{desk, "Other"};
    const struct {
        std::string_view what;
        std::function<void()> leave;
    } rows[] = {
        {"hiding", [&] { form.Hide(); }},
        {"unloading", [&] { form.Unload(); }},
        {"closing", [&] { form.RequestClose(); }},
        {"opening another", [&] { other.Show(); }},
    };
    for (const auto& row : rows) {
        Open(form);
        row.leave();
        desk.RunPending();
        EXPECT_EQ(TakeEvents(), "") << row.what;
    }
}

TEST_F(FocusTest, FirstShowFocusesTheLowestTabStopAndRunsItsGotFocus) {
    EntryForm other{desk, "Other"};
    RecordForm(other);
    RecordFocus(other.one);
    RecordFocus(other.two);
    other.two.SetTabIndex(0);
    other.Show();
    EXPECT_TRUE(other.two.HasFocus());
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "Other.Load, Other.Activate, two.GotFocus");
}

TEST_F(FocusTest, LaterShowsRestoreIt) {
    form.three.SetFocus();
    desk.RunPending();
    TakeEvents();
    form.Hide();
    form.Show();
    desk.RunPending();
    EXPECT_TRUE(form.three.HasFocus());
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(FocusTest, UnloadForgetsIt) {
    form.three.SetFocus();
    form.Unload();
    EXPECT_EQ(form.Focus(), nullptr);
    form.Show();
    EXPECT_TRUE(form.one.HasFocus());
}

/// Names of the tab stops, in order.
std::string Stops(const Form& form) {
    std::string names;
    for (const Control* control : form.TabStops()) {
        names += (names.empty() ? "" : " ") + control->FullName();
    }
    return names;
}

TEST_F(FocusTest, TabOrderIsThatOfTheTabIndexAndThenOfCreation) {
    EXPECT_EQ(Stops(form), "one two three go");
    form.three.SetTabIndex(0);
    form.go.SetTabIndex(1);
    EXPECT_EQ(Stops(form), "three one go two");
}

TEST_F(FocusTest, TabStopsAreShownAndEnabledAndToldToBe) {
    TextBox passed{form, "passed", {.tabIndex = 0, .tabStop = false}};
    form.one.SetVisible(false);
    form.three.SetEnabled(false);
    EXPECT_EQ(Stops(form), "two go");
}

TEST_F(FocusTest, OptionsOfOneGroupAreOneTabStop) {
    FrameBox left{form, "left", "", {}};
    FrameBox right{form, "right", "", {}};
    Option a{form, "a", "", {.tabIndex = 10}};
    Option b{form, "b", "", {.tabIndex = 11}};
    Option c{form, "c", "", {.tabIndex = 12}};
    Option d{form, "d", "", {.tabIndex = 13}};
    a.PutInto(left);
    b.PutInto(left);
    c.PutInto(right);
    d.PutInto(right);
    EXPECT_EQ(Stops(form), "one two three go a c");
    b.SetValue(true);
    EXPECT_EQ(Stops(form), "one two three go b c");
    d.SetValue(true);
    EXPECT_EQ(Stops(form), "one two three go b d");
    d.SetEnabled(false);
    EXPECT_EQ(Stops(form), "one two three go b c");
}

TEST_F(FocusTest, TabGoesRoundForwardsAndBackwards) {
    std::string visited;
    for (int i = 0; i < 5; ++i) {
        Press("Tab");
        visited += form.Focus()->name + ' ';
    }
    for (int i = 0; i < 5; ++i) {
        Press("Shift+Tab");
        visited += form.Focus()->name + ' ';
    }
    EXPECT_EQ(visited, "two three go one two one go three two one ");
}

TEST_F(FocusTest, TabRunsTheFocusHandlers) {
    Press("Tab");
    EXPECT_EQ(TakeEvents(), "one.LostFocus, two.GotFocus");
}

}  // namespace
}  // namespace tallyhut
