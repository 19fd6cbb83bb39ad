#include <vector>

#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

struct MouseTest : EntryFormTest {
    MouseTest() {
        for (Control* control : std::vector<Control*>{&form.one, &form.two, &form.go, &form.note}) {
            RecordFocus(*control);
            RecordMouse(*control);
        }
    }
};

TEST_F(MouseTest, PressTakesTheFocusThenTheFocusHandlersRunThenClick) {
    Click(form.go);
    EXPECT_EQ(TakeEvents(), "one.LostFocus, go.GotFocus, go.MouseDown 1, go.MouseUp 1, go.Click");
    Click(form.two);
    EXPECT_EQ(TakeEvents(), "go.LostFocus, two.GotFocus, two.MouseDown 1, two.MouseUp 1, two.Click");
}

TEST_F(MouseTest, ClickOnTheFocusedControlRunsNoFocusHandlers) {
    Click(form.one);
    EXPECT_EQ(TakeEvents(), "one.MouseDown 1, one.MouseUp 1, one.Click");
}

TEST_F(MouseTest, LabelsPicturesAndFramesLeaveTheFocus) {
    Raster raster{form, "raster", {}};
    FrameBox frame{form, "frame", "", {}};
    RecordMouse(raster);
    RecordMouse(frame);
    Click(form.note);
    Click(raster);
    Click(frame);
    EXPECT_EQ(TakeEvents(),
              "note.MouseDown 1, note.MouseUp 1, note.Click, raster.MouseDown 1, raster.MouseUp 1, raster.Click, "
              "frame.MouseDown 1, frame.MouseUp 1, frame.Click");
    EXPECT_TRUE(form.one.HasFocus());
}

TEST_F(MouseTest, DoubleClickIsDownUpClickDblClick) {
    Click(form.note, kLeftButton, true);
    EXPECT_EQ(TakeEvents(), "note.MouseDown 1, note.MouseUp 1, note.Click, note.DblClick");
}

TEST_F(MouseTest, OtherButtonsRunNoClick) {
    Click(form.note, kRightButton, true);
    Click(form.go, kMiddleButton);
    EXPECT_EQ(TakeEvents(),
              "note.MouseDown 2, note.MouseUp 2, one.LostFocus, go.GotFocus, go.MouseDown 4, go.MouseUp 4");
}

TEST_F(MouseTest, RightClickChoosesNothing) {
    CheckBox box{form, "box", "", {}};
    Option option{form, "option", "", {}};
    Click(box, kRightButton);
    Click(option, kRightButton);
    EXPECT_FALSE(box.Value());
    EXPECT_FALSE(option.Value());
}

TEST_F(MouseTest, WhatIsHiddenDisabledOrBlockedIsNotClicked) {
    FrameBox frame{form, "frame", "", {}};
    form.two.PutInto(frame);
    frame.SetVisible(false);
    form.go.SetEnabled(false);
    form.note.SetVisible(false);
    Click(form.two);
    Click(form.go);
    Click(form.note);
    EXPECT_EQ(TakeEvents(), "");
    form.note.SetVisible(true);
    form.Hide();
    Click(form.note);
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(MouseTest, FormBeneathAModalOneIsNotClicked) {
    EntryForm modal{desk, "Modal"};
    RecordClick(modal.note);
    pump.OnCollect(1, [&] {
        desk.PostClick(form.go, kLeftButton);
        desk.PostClick(modal.note, kLeftButton);
        desk.PostAction([&] { modal.Hide(); });
    });
    modal.ShowModal();
    EXPECT_EQ(TakeEvents(), "note.Click");
}

TEST_F(MouseTest, ClickIsDroppedIfLostFocusShowedABox) {
    form.one.LostFocus = [&] { dialogs.Show(MessageBox{.title = "t", .text = "no number"}); };
    Click(form.go);
    EXPECT_EQ(TakeEvents(), "go.GotFocus");
    Click(form.go);  // with no field left any more
    EXPECT_EQ(TakeEvents(), "go.MouseDown 1, go.MouseUp 1, go.Click");
}

TEST_F(MouseTest, ClickIsDroppedIfLostFocusMovedTheFocus) {
    form.one.LostFocus = [&] { form.two.SetFocus(); };
    Click(form.go);
    EXPECT_EQ(TakeEvents(), "go.GotFocus, go.LostFocus, two.GotFocus");
    EXPECT_TRUE(form.two.HasFocus());
}

TEST_F(MouseTest, ClickIsDroppedIfLostFocusTookTheFocusBack) {
    form.one.LostFocus = [&] { form.one.GiveFocusBack(); };
    Click(form.go);
    EXPECT_EQ(TakeEvents(), "one.GotFocus");
    EXPECT_TRUE(form.one.HasFocus());
}

TEST_F(MouseTest, ClickIsDroppedIfLostFocusHidItsControl) {
    form.one.LostFocus = [&] { form.go.SetVisible(false); };
    Click(form.go);
    EXPECT_EQ(TakeEvents().find("go.Click"), std::string::npos);
}

TEST_F(MouseTest, ClickActivatesItsFormFirstAndRunsNoLostFocusOfTheOther) {
    EntryForm other{desk, "Other"};
    Open(other);
    RecordForm(form);
    RecordFocus(other.one);
    Click(form.go);
    EXPECT_EQ(TakeEvents(), "Entry.Activate, one.LostFocus, go.GotFocus, go.MouseDown 1, go.MouseUp 1, go.Click");
    EXPECT_TRUE(form.IsActive());
    other.Show();
    desk.RunPending();
    TakeEvents();
    Click(form.note);
    EXPECT_EQ(TakeEvents(), "Entry.Activate, note.MouseDown 1, note.MouseUp 1, note.Click");
}

TEST_F(MouseTest, ActivationThatMovesTheFocusDropsNoClick) {
    EntryForm other{desk, "Other"};
    Open(other);
    form.Form_Activate = [&] { form.two.SetFocus(); };
    Click(form.go);
    EXPECT_EQ(TakeEvents(),
              "one.LostFocus, two.GotFocus, two.LostFocus, go.GotFocus, go.MouseDown 1, go.MouseUp 1, go.Click");
}

TEST_F(MouseTest, CheckBoxTogglesAndOptionIsChosen) {
    CheckBox box{form, "box", "", {}};
    Option a{form, "a", "", {}};
    Option b{form, "b", "", {}};
    RecordClick(box);
    RecordClick(a);
    RecordClick(b);
    form.one.LostFocus = nullptr;
    for (Control* control : std::vector<Control*>{&box, &box, &a, &a, &b}) {
        Click(*control);
    }
    EXPECT_FALSE(box.Value());
    EXPECT_FALSE(a.Value());
    EXPECT_TRUE(b.Value());
    EXPECT_EQ(TakeEvents(), "box.Click, box.Click, a.Click, b.Click");  // the chosen option ran none
}

TEST_F(MouseTest, ClicksAndKeysComeInTheOrderOfTheOperator) {
    PostText("a");
    desk.PostClick(form.two, kLeftButton);
    PostText("b");
    desk.RunPending();
    EXPECT_EQ(form.one.Text(), "a");
    EXPECT_EQ(form.two.Text(), "b");
}

TEST_F(MouseTest, RemovedLabelIsNotClicked) {
    RuntimeLabels spots{form, "spot"};
    RecordClick(spots.Make("W1AW", {}));
    desk.PostClick(spots(0), kLeftButton);
    spots.RemoveAll();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(MouseTest, LabelMayBeRemovedByAnyOfItsOwnHandlers) {
    RuntimeLabels spots{form, "spot"};
    const std::string call = "a call that is too long to be kept in place";
    const auto remake = [&](const std::string& what) {
        return [&spots, this, what, call] {
            spots.RemoveAll();
            spots.Make("new", {});
            Note(what + ' ' + call);  // the closure is still there
        };
    };
    const struct {
        std::string_view what;
        std::function<void(Label&)> bind;
    } rows[] = {
        {"MouseDown",
         [&](Label& spot) { spot.MouseDown = [r = remake("MouseDown")](MouseButton /*button*/) { r(); }; }},
        {"MouseUp", [&](Label& spot) { spot.MouseUp = [r = remake("MouseUp")](MouseButton /*button*/) { r(); }; }},
        {"Click", [&](Label& spot) { spot.Click = remake("Click"); }},
        {"DblClick", [&](Label& spot) { spot.DblClick = remake("DblClick"); }},
    };
    for (const auto& row : rows) {
        spots.RemoveAll();
        Label& spot = spots.Make("old", {});
        RecordMouse(spot);
        row.bind(spot);
        Click(spot, kLeftButton, true);
        EXPECT_TRUE(TakeEvents().ends_with(std::string{row.what} + ' ' + call)) << row.what;
        EXPECT_EQ(spots.Count(), 1);
        EXPECT_EQ(spots(0).Caption(), "new");
    }
}

TEST_F(MouseTest, NothingOfALabelRunsAfterItsRemoval) {
    RuntimeLabels spots{form, "spot"};
    Label& spot = spots.Make("old", {});
    RecordMouse(spot);
    spot.MouseDown = [&](MouseButton /*button*/) { spots.RemoveAll(); };
    Click(spot, kLeftButton, true);
    EXPECT_EQ(TakeEvents(), "");
}

}  // namespace
}  // namespace tallyhut
