#include <array>

#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

struct FormTest : ToolkitTest {
    EntryForm form{desk};
    EntryForm other{desk, "Other"};

    FormTest() {
        RecordForm(form);
        RecordForm(other);
    }
};

TEST_F(FormTest, FirstUseLoadsOnce) {
    EXPECT_FALSE(form.IsLoaded());
    form.Load();
    form.Load();
    form.Show();
    desk.RunPending();
    EXPECT_TRUE(form.IsLoaded() && form.IsVisible() && form.IsActive());
    EXPECT_EQ(TakeEvents(), "Entry.Load, Entry.Activate");
}

TEST_F(FormTest, ShownFormsAreActivatedInTurn) {
    form.Show();
    other.Show();
    EXPECT_TRUE(other.IsActive());
    desk.RunPending();
    TakeEvents();
    form.Show();
    desk.RunPending();
    form.Show();  // active already
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "Entry.Activate");
    form.Hide();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "Other.Activate");
    EXPECT_TRUE(form.IsLoaded());
    other.Hide();
    EXPECT_EQ(desk.Active(), nullptr);
}

TEST_F(FormTest, HiddenFormKeepsItsValues) {
    Open(form);
    form.one.SetText("typed");
    form.Hide();
    form.Show();
    EXPECT_EQ(form.one.Text(), "typed");
}

TEST_F(FormTest, MinimisedFormIsNotActiveUntilItIsRestored) {
    Open(other);
    Open(form);
    form.Minimise();
    EXPECT_TRUE(form.IsMinimised() && form.IsVisible());
    EXPECT_TRUE(other.IsActive());
    form.Restore();
    EXPECT_FALSE(form.IsMinimised());
    EXPECT_TRUE(form.IsActive());
    form.Minimise();
    form.Show();
    EXPECT_FALSE(form.IsMinimised());
}

TEST_F(FormTest, FormThatIsNeverActiveIsShownAndTakesNoKeys) {
    EntryForm logo{desk, "Logo", {.neverActive = true}};
    Open(form);
    logo.Show();
    EXPECT_TRUE(logo.IsVisible());
    EXPECT_TRUE(form.IsActive());
    Type("a");
    EXPECT_EQ(form.one.Text(), "a");
    form.Hide();
    EXPECT_EQ(desk.Active(), nullptr);
}

TEST_F(FormTest, CloseBoxAsksAndUnloads) {
    Open(form);
    form.RequestClose();
    EXPECT_EQ(TakeEvents(), "Entry.QueryUnload, Entry.Unload");
    EXPECT_FALSE(form.IsLoaded() || form.IsVisible());
    form.RequestClose();
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(FormTest, RefusedCloseLeavesTheFormAsItIs) {
    Open(form);
    std::vector<DeskOutlets::FormEvent> told;
    desk.outlets.formChanged = [&](Form& /*which*/, DeskOutlets::FormEvent event) { told.push_back(event); };
    form.one.SetText("typed");
    form.Form_QueryUnload = [](bool& Cancel) { Cancel = true; };
    form.RequestClose();
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_TRUE(form.IsVisible() && form.IsActive());
    EXPECT_EQ(form.one.Text(), "typed");
    EXPECT_EQ(told, std::vector{DeskOutlets::FormEvent::Refused});
}

TEST_F(FormTest, CloseBoxMayHideTheFormInstead) {
    form.Show();
    std::vector<DeskOutlets::FormEvent> told;
    desk.outlets.formChanged = [&told](Form& /*form*/, DeskOutlets::FormEvent event) { told.push_back(event); };
    form.Form_QueryUnload = [this](bool& Cancel) {
        Cancel = true;
        form.Hide();
    };
    form.RequestClose();
    EXPECT_TRUE(form.IsLoaded());
    EXPECT_FALSE(form.IsVisible());
    EXPECT_EQ(std::ranges::count(told, DeskOutlets::FormEvent::Refused), 0);
}

TEST_F(FormTest, CloseIsRefusedNoLongerOnceTheHandlerAgrees) {
    Open(form);
    bool busy = true;
    form.Form_QueryUnload = [&](bool& Cancel) { Cancel = busy; };
    form.RequestClose();
    busy = false;
    form.RequestClose();
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormTest, UnloadGivesEveryControlItsDesignValueWithoutHandlers) {
    TextBox field{form, "field", {.maxLength = 5, .tabIndex = 7}};
    CheckBox box{form, "box", "box", {}};
    Option option{form, "option", "option", {}};
    List list{form, "list", {}};
    ListView view{form, "view", {{"Call", 100}}, {}};
    MenuEntry menu{form, "menu", "&Menu"};
    Timer timer{form, "timer", 500, false};
    Line line{form, "line", 1, 2, 3, 4};
    Raster raster{form, "raster", {}};
    Open(form);

    form.SetCaption("other caption");
    form.SetFormPlace({1, 2, 3, 4});
    field.SetText("abc");
    field.Select(1, 2);
    field.SetToolTip("tip");
    field.SetForeColor(1);
    field.SetBackColor(2);
    field.SetFontSize(20);
    field.SetTabIndex(1);
    field.SetPlace({1, 2, 3, 4});
    form.note.SetCaption("other");
    form.note.SetVisible(false);
    form.go.SetEnabled(false);
    box.SetValue(true);
    option.SetValue(true);
    list.Add("row");
    list.SelectRow(0);
    view.SetRows(3, [](std::size_t /*row*/, std::size_t /*column*/) { return "x"; });
    view.SelectRow(1);
    view.SetColumns({{"Call", 200}, {"Ck", 50}});
    menu.SetChecked(true);
    timer.SetInterval(20);
    timer.SetTimerEnabled(true);
    line.SetEnds(9, 9, 9, 9);
    raster.Draw([](RasterImage& image) { image = {4, 4, 0}; });
    for (Control* control : form.Controls()) {
        RecordChange(*control);
        RecordClick(*control);
        RecordFocus(*control);
    }
    desk.RunPending();
    TakeEvents();

    form.Unload();
    desk.RunPending();

    EXPECT_EQ(TakeEvents(), "Entry.Unload");
    EXPECT_EQ(form.Caption(), "Entry");
    EXPECT_EQ(form.FormPlace(), (Place{.width = form.design.width, .height = form.design.height}));
    EXPECT_EQ(field.Text(), "");
    EXPECT_EQ(field.SelStart(), 0);
    EXPECT_EQ(field.SelLength(), 0);
    EXPECT_EQ(field.State().toolTip, "");
    EXPECT_EQ(field.State().foreColor, kWindowText);
    EXPECT_EQ(field.State().backColor, kWindowGround);
    EXPECT_EQ(field.State().fontSize, 9);
    EXPECT_EQ(field.State().tabIndex, 7);
    EXPECT_EQ(field.State().place, Place{});
    EXPECT_EQ(field.State().maxLength, 5);
    EXPECT_EQ(form.note.Caption(), "a note");
    EXPECT_TRUE(form.note.State().visible);
    EXPECT_TRUE(form.go.State().enabled);
    EXPECT_FALSE(box.Value());
    EXPECT_FALSE(option.Value());
    EXPECT_TRUE(list.Items().empty());
    EXPECT_EQ(list.Row(), -1);
    EXPECT_EQ(view.RowCount(), 0U);
    EXPECT_EQ(view.Row(), -1);
    EXPECT_EQ(view.State().columns, (std::vector<ListColumn>{{"Call", 100}}));
    EXPECT_FALSE(menu.Checked());
    EXPECT_EQ(timer.Interval(), 500);
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(line.State().x1, 1);
    EXPECT_EQ(line.State().y2, 4);
    EXPECT_EQ(raster.Image().Width(), 0);
}

TEST_F(FormTest, HandlerOfUnloadStillSeesTheValues) {
    Open(form);
    form.one.SetText("typed");
    form.Form_Unload = [&] {
        Note(form.one.Text());
        EXPECT_TRUE(form.IsVisible());
    };
    form.Unload();
    EXPECT_EQ(TakeEvents(), "typed");
    form.Unload();  // no form to unload any more
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(FormTest, UnloadedFormBeginsAnew) {
    Open(form);
    form.one.SetText("typed");
    form.three.SetFocus();
    form.Unload();
    form.Show();
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "Entry.Unload, Entry.Load, Entry.Activate");
    EXPECT_EQ(form.one.Text(), "");
    EXPECT_TRUE(form.one.HasFocus());
}

TEST_F(FormTest, WhatIsSetBetweenUnloadAndLoadIsNoDesignValue) {
    Open(form);
    form.Unload();
    form.one.SetText("for the next time");
    Open(form);
    EXPECT_EQ(form.one.Text(), "for the next time");
    form.Unload();
    EXPECT_EQ(form.one.Text(), "");
}

TEST_F(FormTest, LoadHandlersValuesAreNoDesignValues) {
    form.Form_Load = [&] { form.one.SetText("from the file"); };
    Open(form);
    EXPECT_EQ(form.one.Text(), "from the file");
    form.Unload();
    EXPECT_EQ(form.one.Text(), "");
}

TEST_F(FormTest, RuntimeLabelsKeepTheirOwnValuesThroughUnload) {
    RuntimeLabels spots{form, "spot"};
    Open(form);
    spots.Make("first", {});
    form.Unload();
    Open(form);
    spots.RemoveAll();
    spots.Make("second", {});
    form.Unload();
    EXPECT_EQ(spots(0).Caption(), "second");
}

TEST_F(FormTest, RuntimeLabelsAreMadeFoundAndRemoved) {
    RuntimeLabels spots{form, "spot"};
    std::string told;
    desk.outlets.controlAdded = [&](Control& control) { told += "+" + control.FullName(); };
    desk.outlets.controlRemoved = [&](Control& control) { told += "-" + control.FullName(); };
    Label& spot = spots.Make("W1AW", {.foreColor = 0x0000FF});
    spots.Make("K1AB", {});
    EXPECT_EQ(spots.Count(), 2);
    EXPECT_EQ(&spots(0), &spot);
    EXPECT_EQ(spots(1).Caption(), "K1AB");
    EXPECT_EQ(spot.State().foreColor, 0x0000FF);
    EXPECT_EQ(form.Find("spot(1)"), &spots(1));
    spots.RemoveAll();
    EXPECT_EQ(spots.Count(), 0);
    EXPECT_EQ(form.Find("spot(0)"), nullptr);
    EXPECT_EQ(told, "+spot(0)+spot(1)-spot(0)-spot(1)");
    desk.outlets = {};
}

TEST_F(FormTest, ControlsAreFoundByTheirNames) {
    ControlArray<Label> labels{
        3, 5, [&](int i) { return std::make_unique<Label>(form, "Label10", i, std::to_string(i), LabelDesign{}); }};
    EXPECT_EQ(form.Find("one"), &form.one);
    EXPECT_EQ(form.Find("Label10(4)"), &labels(4));
    EXPECT_EQ(labels(5).Caption(), "5");
    EXPECT_EQ(labels.First(), 3);
    EXPECT_EQ(labels.Last(), 5);
    EXPECT_THROW(labels(6), std::out_of_range);
    EXPECT_THROW(labels(2), std::out_of_range);
    EXPECT_EQ(form.Find("Label10"), nullptr);
    EXPECT_EQ(form.Find("Label10(6)"), nullptr);
    EXPECT_EQ(form.Find(""), nullptr);
    EXPECT_EQ(desk.FindForm("Other"), &other);
    EXPECT_EQ(desk.FindForm("None"), nullptr);
}

TEST_F(FormTest, CaptionSetFromCodeRunsChangeIfItDiffers) {
    RecordChange(form.note);
    RecordChange(form.go);
    form.note.SetCaption("a note");
    form.go.SetCaption("&Go");
    EXPECT_EQ(TakeEvents(), "");
    form.note.SetCaption("b");
    form.go.SetCaption("b");
    EXPECT_EQ(TakeEvents(), "note.Change, go.Change");
}

TEST_F(FormTest, HiddenFrameHidesWhatLiesInIt) {
    FrameBox outer{form, "outer", "", {}};
    FrameBox inner{form, "inner", "", {}};
    inner.PutInto(outer);
    form.note.PutInto(inner);
    EXPECT_TRUE(form.note.IsShown());
    outer.SetVisible(false);
    EXPECT_FALSE(form.note.IsShown());
    EXPECT_TRUE(form.note.State().visible);
    outer.SetVisible(true);
    EXPECT_TRUE(form.note.IsShown());
    form.note.SetVisible(false);
    EXPECT_FALSE(form.note.IsShown());
}

// Modal forms.

TEST_F(FormTest, ModalFormReturnsWhenItIsHidden) {
    Open(form);
    pump.OnCollect(1, [&] {
        EXPECT_TRUE(other.IsModal() && other.IsActive());
        EXPECT_TRUE(desk.IsBlockedByModal(form));
        EXPECT_FALSE(desk.IsBlockedByModal(other));
        PostText("a");
    });
    pump.OnWait([&] { desk.PostAction([&] { other.Hide(); }); });
    other.ShowModal();
    EXPECT_EQ(other.one.Text(), "a");
    EXPECT_FALSE(other.IsModal() || other.IsVisible());
    EXPECT_TRUE(form.IsActive());
    EXPECT_FALSE(desk.IsBlockedByModal(form));
    EXPECT_FALSE(pump.HasScripts());
}

TEST_F(FormTest, ModalFormRunsItsHandlersWithinTheCall) {
    Open(form);
    RecordFocus(other.one);
    pump.OnWait([&] { other.Unload(); });
    other.ShowModal();
    EXPECT_EQ(TakeEvents(), "Other.Load, Other.Activate, one.GotFocus, Other.Unload");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "Entry.Activate");
}

TEST_F(FormTest, ModalLoopEndsWhenTheHandlersBegunInItHaveReturned) {
    Open(form);
    other.one.KeyPress = [&](int& /*KeyAscii*/) {
        other.Hide();
        desk.RunPending();
        Note("end of KeyPress");
    };
    pump.OnCollect(1, [&] { PostText("a"); });
    other.ShowModal();
    Note("returned");
    EXPECT_EQ(TakeEvents(), "Other.Load, Other.Activate, Entry.Activate, end of KeyPress, returned");
}

TEST_F(FormTest, KeysTypedAheadOfTheEndOfAModalFormWaitForItsCaller) {
    Open(form);
    form.one.KeyPress = [&](int& KeyAscii) {
        if (KeyAscii != '!') {
            return;
        }
        KeyAscii = 0;
        other.ShowModal();
        form.one.SetText("caller's step ");
        form.one.SetCaret(99);
    };
    other.one.KeyPress = [&](int& /*KeyAscii*/) { other.Hide(); };
    Type("!xyz");
    EXPECT_EQ(form.one.Text(), "caller's step yz");
}

TEST_F(FormTest, ModalFormsNest) {
    EntryForm third{desk, "Third"};
    Open(form);
    other.one.KeyPress = [&](int& KeyAscii) {
        if (KeyAscii == '3') {
            third.ShowModal();
            EXPECT_TRUE(other.IsActive());
        }
        if (KeyAscii == 'q') {
            other.Hide();
        }
    };
    third.one.KeyPress = [&](int& /*KeyAscii*/) {
        EXPECT_TRUE(desk.IsBlockedByModal(other));
        third.Hide();
    };
    pump.OnCollect(1, [&] { PostText("3xaq"); });
    other.ShowModal();
    EXPECT_EQ(other.one.Text(), "3aq");
    EXPECT_EQ(third.one.Text(), "x");
    EXPECT_TRUE(form.IsActive());
}

TEST_F(FormTest, FormShownBeneathAModalOneIsNotActive) {
    pump.OnCollect(1, [&] {
        form.Show();
        EXPECT_TRUE(form.IsVisible());
        EXPECT_TRUE(other.IsActive());
        desk.Activate(form);
        EXPECT_TRUE(other.IsActive());
        PostText("a");
        desk.PostAction([&] { other.Hide(); });
    });
    other.ShowModal();
    EXPECT_EQ(other.one.Text(), "a");
    EXPECT_TRUE(form.IsActive());
}

TEST_F(FormTest, MinimisedModalFormLeavesNoneActive) {
    Open(form);
    pump.OnCollect(1, [&] {
        other.Minimise();
        PostText("a");
    });
    pump.OnWait([&] {
        EXPECT_EQ(desk.Active(), nullptr);
        other.Hide();
    });
    other.ShowModal();
    EXPECT_EQ(form.one.Text(), "");
    EXPECT_EQ(other.one.Text(), "");
}

TEST_F(FormTest, CloseBoxEndsAModalForm) {
    pump.OnWait([&] { desk.PostAction([&] { other.RequestClose(); }); });
    other.ShowModal();
    EXPECT_FALSE(other.IsLoaded());
}

TEST_F(FormTest, TimerMayEndAModalForm) {
    Timer timer{other, "timer", 400, true};
    timer.Elapsed = [&] { other.Hide(); };
    other.ShowModal();
    EXPECT_EQ(clock.TickMs(), 400U);
}

TEST_F(FormTest, HostIsToldWhatBecomesOfAForm) {
    using FormEvent = DeskOutlets::FormEvent;
    std::vector<FormEvent> told;
    desk.outlets.formChanged = [&](Form& which, FormEvent event) {
        if (&which == &form) {
            told.push_back(event);
        }
    };
    form.Show();
    form.Minimise();
    form.Restore();
    form.SetCaption("new");
    form.SetFormPlace({1, 2, 3, 4});
    form.Hide();
    EXPECT_EQ(told, (std::vector{FormEvent::Shown, FormEvent::Activated, FormEvent::Minimised, FormEvent::Restored,
                                 FormEvent::Activated, FormEvent::Changed, FormEvent::Changed, FormEvent::Hidden}));
    EXPECT_EQ(form.FormPlace(), (Place{1, 2, 3, 4}));
}

using ArrangedForms = ToolkitTest;

std::string NamesOf(const std::vector<Form*>& forms) {
    std::string names;
    for (const Form* each : forms) {
        names += (names.empty() ? "" : " ") + each->name;
    }
    return names;
}

TEST_F(ArrangedForms, NamedOnesStandInTheOrderOfTheirNamesAndAllOthersBehindAsTheyWereMade) {
    const EntryForm first{desk, "first"};
    const EntryForm second{desk, "second"};
    const EntryForm third{desk, "third"};
    const EntryForm fourth{desk, "fourth"};
    constexpr std::array<std::string_view, 3> kNames{"fourth", "nothing", "second"};
    desk.ArrangeForms(kNames);
    EXPECT_EQ(NamesOf(desk.Forms()), "fourth second first third");
}

}  // namespace
}  // namespace tallyhut
