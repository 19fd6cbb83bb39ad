#include <vector>

#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

struct KeyDeliveryTest : EntryFormTest {
    KeyDeliveryTest() {
        RecordFormKeys(form);
        RecordKeys(form.one);
        RecordChange(form.one);
    }
};

TEST_F(KeyDeliveryTest, FormComesBeforeControlAndKeyDownBeforeKeyPressBeforeChange) {
    Type("a");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 65/0, one.KeyDown 65/0, Entry.KeyPress 97, one.KeyPress 97, one.Change");
    EXPECT_EQ(form.one.Text(), "a");
}

TEST_F(KeyDeliveryTest, ShiftStatesAreAddedUp) {
    desk.PostKey({.code = 120, .shift = kShift | kCtrl | kAlt, .character = 0});
    Press("Shift+F1");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 120/7, one.KeyDown 120/7, Entry.KeyDown 112/1, one.KeyDown 112/1");
}

TEST_F(KeyDeliveryTest, KeySetToZeroByKeyDownIsOver) {
    form.Form_KeyDown = [&](int& KeyCode, int /*Shift*/) { KeyCode = 0; };
    Type("a");
    EXPECT_EQ(TakeEvents(), "");
    form.Form_KeyDown = nullptr;
    form.one.KeyDown = [&](int& KeyCode, int /*Shift*/) { KeyCode = 0; };
    Type("a");
    Press("Tab");
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_EQ(form.one.Text(), "");
    EXPECT_TRUE(form.one.HasFocus());
}

TEST_F(KeyDeliveryTest, KeyChangedByKeyDownActsAsTheOther) {
    form.Form_KeyDown = [&](int& KeyCode, int /*Shift*/) { KeyCode = KeyCode == kKeyDown ? kKeyTab : KeyCode; };
    Press("Down");
    EXPECT_EQ(TakeEvents(), "one.KeyDown 9/0");
    EXPECT_TRUE(form.two.HasFocus());
}

TEST_F(KeyDeliveryTest, CharacterSetToZeroByKeyPressIsOver) {
    form.one.KeyPress = [&](int& KeyAscii) { KeyAscii = 0; };
    Type("a");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 65/0, one.KeyDown 65/0, Entry.KeyPress 97");
    RecordKeys(form.one);
    form.Form_KeyPress = [&](int& KeyAscii) { KeyAscii = 0; };
    Type("a");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 65/0, one.KeyDown 65/0");
    EXPECT_EQ(form.one.Text(), "");
}

TEST_F(KeyDeliveryTest, CharacterChangedByKeyPressIsTypedAsTheOther) {
    form.Form_KeyPress = [&](int& KeyAscii) { KeyAscii = KeyAscii == 'a' ? 'A' : KeyAscii; };
    Type("a");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 65/0, one.KeyDown 65/0, one.KeyPress 65, one.Change");
    EXPECT_EQ(form.one.Text(), "A");
}

TEST_F(KeyDeliveryTest, CharactersThatKeyPressMakesUpOutsideOfLatinOneAreDropped) {
    for (const int made : {256, 31, -1, 70000}) {
        form.one.KeyPress = [made](int& KeyAscii) { KeyAscii = made; };
        Type("a");
        EXPECT_EQ(form.one.Text(), "") << made;
    }
}

TEST_F(KeyDeliveryTest, AllStepsGoToTheControlThatHadTheFocusWhenTheKeyCame) {
    RecordKeys(form.two);
    form.Form_KeyDown = [&](int& /*KeyCode*/, int /*Shift*/) { form.two.SetFocus(); };
    Type("ab");
    EXPECT_EQ(TakeEvents(),
              "one.KeyDown 65/0, Entry.KeyPress 97, one.KeyPress 97, one.Change, "
              "two.KeyDown 66/0, Entry.KeyPress 98, two.KeyPress 98");
    EXPECT_EQ(form.one.Text(), "a");
    EXPECT_EQ(form.two.Text(), "b");
}

TEST_F(KeyDeliveryTest, AllStepsGoToTheFormThatWasActiveWhenTheKeyCame) {
    EntryForm other{desk, "Other"};
    RecordKeys(other.one);
    form.Form_KeyDown = [&](int& /*KeyCode*/, int /*Shift*/) { other.Show(); };
    Type("ab");
    EXPECT_EQ(form.one.Text(), "a");
    EXPECT_EQ(other.one.Text(), "b");
}

TEST_F(KeyDeliveryTest, KeysWithACharacterRunKeyPress) {
    const struct {
        std::string_view name;
        int code;
        int shift;
        int character;
    } rows[] = {{"Backspace", 8, 0, 8}, {"Enter", 13, 0, 13},       {"Esc", 27, 0, 27},
                {"Space", 32, 0, 32},   {"Ctrl+A", 65, 2, 1},       {"Ctrl+Z", 90, 2, 26},
                {"Z", 90, 1, 90},       {"Shift+Enter", 13, 1, 13}, {"Ctrl+Shift+W", 87, 3, 23}};
    for (const auto& row : rows) {
        Press(row.name);
        const std::string keyDown = std::to_string(row.code) + '/' + std::to_string(row.shift);
        const std::string keyPress = std::to_string(row.character);
        const std::string all = "Entry.KeyDown " + keyDown + ", one.KeyDown " + keyDown + ", Entry.KeyPress " +
                                keyPress + ", one.KeyPress " + keyPress;
        EXPECT_EQ(TakeEvents().substr(0, all.size()), all) << row.name;
    }
}

TEST_F(KeyDeliveryTest, KeysWithoutACharacterRunKeyDownAlone) {
    for (const std::string_view name : {"F1", "F10", "F12", "Home", "Left", "Delete", "PageUp", "Insert", "Alt+F10",
                                        "Alt+X", "Ctrl+Tab", "Ctrl+F4"}) {
        Press(name);
        const std::string ran = TakeEvents();
        EXPECT_EQ(ran.find("Entry.KeyDown"), 0U) << name;
        EXPECT_NE(ran.find("one.KeyDown"), std::string::npos) << name;
        EXPECT_EQ(ran.find("KeyPress"), std::string::npos) << name;
    }
}

TEST_F(KeyDeliveryTest, TabIsUsedUpBetweenKeyDownAndKeyPress) {
    Press("Tab");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 9/0, one.KeyDown 9/0");
    EXPECT_TRUE(form.two.HasFocus());
}

TEST_F(KeyDeliveryTest, TabThatKeyDownTakesMovesNothing) {
    form.one.KeyDown = [](int& KeyCode, int /*Shift*/) { KeyCode = 0; };
    Press("Tab");
    EXPECT_TRUE(form.one.HasFocus());
}

TEST_F(KeyDeliveryTest, ModifierPressedAloneRunsNoHandler) {
    for (const int code : {16, 17, 18}) {
        desk.PostKey({.code = code, .shift = 0, .character = 0});
    }
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(KeyDeliveryTest, CharacterWithoutAKeyRunsKeyPressAlone) {
    desk.PostKey({.code = 0, .shift = 0, .character = 0xE9});
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "Entry.KeyPress 233, one.KeyPress 233, one.Change");
    EXPECT_EQ(form.one.Text(), "\xE9");
}

TEST_F(KeyDeliveryTest, FormWithoutAFocusHasItsOwnHandlers) {
    Form empty{desk, "Empty", "", {.dialog = false}};
    Open(empty);
    RecordFormKeys(empty);
    Type("a");
    Press("Tab");
    EXPECT_EQ(TakeEvents(), "Empty.KeyDown 65/0, Empty.KeyPress 97, Empty.KeyDown 9/0, Empty.KeyPress 9");
}

TEST_F(KeyDeliveryTest, KeyWithNoFormToTakeItIsLost) {
    form.Hide();
    Type("a");
    form.Show();
    desk.RunPending();
    EXPECT_EQ(form.one.Text(), "");
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(KeyDeliveryTest, KeyWhoseHandlerUnloadsTheFormTypesNothing) {
    form.one.KeyPress = [&](int& /*KeyAscii*/) { form.Unload(); };
    Type("a");
    EXPECT_EQ(form.one.Text(), "");
    Open(form);
    form.one.KeyDown = [&](int& /*KeyCode*/, int /*Shift*/) { form.Unload(); };
    form.one.KeyPress = nullptr;
    Type("a");
    EXPECT_EQ(form.one.Text(), "");
}

TEST_F(KeyDeliveryTest, KeysWaitUntilEventsRunAndComeInOrder) {
    PostText("ab");
    EXPECT_EQ(form.one.Text(), "");
    PostText("c");
    desk.RunPending();
    EXPECT_EQ(form.one.Text(), "abc");
}

// Buttons, boxes and options.

TEST_F(KeyDeliveryTest, EnterAndSpaceClickAFocusedButton) {
    form.go.SetFocus();
    desk.RunPending();
    RecordMouse(form.go);
    form.go.KeyPress = [&](int& /*KeyAscii*/) { Note("KeyPress"); };
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 13/0, go.Click");
    Press("Space");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 32/0, go.Click");
    form.go.KeyDown = [](int& KeyCode, int /*Shift*/) { KeyCode = 0; };
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 13/0");
}

TEST_F(KeyDeliveryTest, SpaceClicksACheckBoxAndEnterDoesNot) {
    CheckBox box{form, "box", "", {}};
    RecordClick(box);
    box.SetFocus();
    Press("Space");
    EXPECT_TRUE(box.Value());
    Press("Enter");
    EXPECT_TRUE(box.Value());
    Press("Space");
    EXPECT_FALSE(box.Value());
    EXPECT_EQ(TakeEvents(),
              "Entry.KeyDown 32/0, box.Click, Entry.KeyDown 13/0, Entry.KeyPress 13, Entry.KeyDown 32/0, box.Click");
}

TEST_F(KeyDeliveryTest, ArrowsChooseWithinTheOptionGroup) {
    FrameBox frame{form, "frame", "", {}};
    Option a{form, "a", "", {}};
    Option b{form, "b", "", {}};
    Option c{form, "c", "", {}};
    Option alone{form, "alone", "", {}};
    for (Option* option : {&a, &b, &c}) {
        option->PutInto(frame);
        RecordClick(*option);
    }
    form.Form_KeyDown = nullptr;
    b.SetEnabled(false);
    a.SetFocus();
    Press("Down");
    EXPECT_TRUE(c.Value() && c.HasFocus());
    Press("Right");
    EXPECT_TRUE(a.Value() && a.HasFocus());
    EXPECT_FALSE(c.Value());
    Press("Up");
    EXPECT_TRUE(c.Value() && c.HasFocus());
    Press("Left");
    EXPECT_TRUE(a.Value() && a.HasFocus());
    EXPECT_FALSE(alone.Value());
    EXPECT_EQ(TakeEvents(), "c.Click, a.Click, c.Click, a.Click");
}

TEST_F(KeyDeliveryTest, ArrowInAGroupThatItsHandlerDisabledDoesNothing) {
    Option only{form, "only", "", {}};
    only.SetFocus();
    only.KeyDown = [&](int& /*KeyCode*/, int /*Shift*/) { only.SetEnabled(false); };
    Press("Down");
    EXPECT_FALSE(only.Value());
    EXPECT_TRUE(form.one.HasFocus());
}

TEST_F(KeyDeliveryTest, SpaceChoosesAnOptionOnce) {
    Option option{form, "option", "", {}};
    RecordClick(option);
    form.Form_KeyDown = nullptr;
    form.Form_KeyPress = nullptr;
    option.SetFocus();
    Press("Space");
    Press("Space");
    EXPECT_TRUE(option.Value());
    EXPECT_EQ(TakeEvents(), "option.Click");
}

// Dialogs.

struct DialogKeyTest : ToolkitTest {
    Form dialog{desk, "Dialog", "", {}};
    TextBox field{dialog, "field", {.tabIndex = 0}};
    Button close{dialog, "close", "Close", {.tabIndex = 1}};
    Button ok{dialog, "ok", "&OK", {.tabIndex = 2}};
    Button done{dialog, "done", "&Done", {.tabIndex = 3}};
    Button other{dialog, "other", "Other", {.tabIndex = 4}};

    DialogKeyTest() {
        Open(dialog);
        RecordForm(dialog);
        for (Control* control : std::vector<Control*>{&field, &close, &ok, &done, &other}) {
            RecordMouse(*control);
        }
    }
};

TEST_F(DialogKeyTest, EnterClicksDoneOrElseOkOrElseClose) {
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "done.Click");
    field.SetFocus();
    done.SetVisible(false);
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "ok.Click");
    field.SetFocus();
    ok.SetEnabled(false);
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "close.Click");
    field.SetFocus();
    close.SetVisible(false);
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(DialogKeyTest, EnterBelongsToAFocusedButtonFirst) {
    other.SetFocus();
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "other.Click");
}

TEST_F(DialogKeyTest, EscCloses) {
    Press("Esc");
    EXPECT_EQ(TakeEvents(), "Dialog.QueryUnload, Dialog.Unload");
    EXPECT_FALSE(dialog.IsLoaded());
}

TEST_F(DialogKeyTest, EscThatAHandlerClosedTheFormByAsksNoMore) {
    field.KeyPress = [&](int& /*KeyAscii*/) { dialog.Unload(); };
    Press("Esc");
    EXPECT_EQ(TakeEvents(), "Dialog.Unload");
}

TEST_F(DialogKeyTest, HandlersThatTakeTheKeyComeFirst) {
    field.KeyPress = [](int& KeyAscii) { KeyAscii = 0; };
    Press("Enter");
    Press("Esc");
    EXPECT_EQ(TakeEvents(), "");
    field.KeyPress = nullptr;
    dialog.Form_KeyDown = [](int& KeyCode, int /*Shift*/) { KeyCode = 0; };
    Press("Enter");
    Press("Esc");
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_TRUE(dialog.IsVisible());
}

TEST_F(DialogKeyTest, FormThatIsNoDialogLeavesEnterAndEsc) {
    Form plain{desk, "Plain", "", {.dialog = false}};
    TextBox text{plain, "text", {}};
    Button plainDone{plain, "plainDone", "Done", {.tabIndex = 1}};
    RecordClick(plainDone);
    Open(plain);
    Press("Enter");
    Press("Esc");
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_TRUE(plain.IsVisible());
}

TEST_F(DialogKeyTest, EnterInAFieldOfManyLinesBeginsALine) {
    TextBox lines{dialog, "lines", {.tabIndex = 9, .multiLine = true}};
    lines.SetFocus();
    Press("Enter");
    EXPECT_EQ(lines.Text(), "\r\n");
    EXPECT_EQ(TakeEvents(), "");
}

// Access keys.

struct AccessKeyTest : EntryFormTest {
    AccessKeyTest() {
        RecordFormKeys(form);
        for (Control* control : std::vector<Control*>{&form.one, &form.two, &form.go}) {
            RecordFocus(*control);
            RecordMouse(*control);
        }
    }
};

TEST_F(AccessKeyTest, AltWithTheLetterFocusesAndClicks) {
    Press("Alt+G");
    EXPECT_EQ(TakeEvents(), "one.LostFocus, go.GotFocus, go.Click");
    EXPECT_TRUE(form.go.HasFocus());
}

TEST_F(AccessKeyTest, ClickIsDroppedIfLostFocusShowedABox) {
    form.one.LostFocus = [&] { dialogs.Show(MessageBox{.title = "t", .text = "x"}); };
    Press("Alt+G");
    EXPECT_EQ(TakeEvents(), "go.GotFocus");
}

TEST_F(AccessKeyTest, BoxesAndOptionsAreChosen) {
    CheckBox box{form, "box", "&Box", {}};
    Option option{form, "option", "&Option &9", {}};
    Press("Alt+B");
    EXPECT_TRUE(box.Value() && box.HasFocus());
    Press("Alt+O");
    EXPECT_TRUE(option.Value() && option.HasFocus());
}

TEST_F(AccessKeyTest, DigitsCount) {
    Button nine{form, "nine", "&9 MHz", {}};
    RecordClick(nine);
    Press("Alt+9");
    EXPECT_EQ(TakeEvents(), "one.LostFocus, nine.Click");
}

TEST_F(AccessKeyTest, LabelHandsItToTheControlBehindIt) {
    Label label{form, "label", "&Name", {}};
    TextBox hidden{form, "hidden", {.visible = false}};
    TextBox named{form, "named", {}};
    Press("Alt+N");
    EXPECT_TRUE(named.HasFocus());
}

TEST_F(AccessKeyTest, WhatCannotBeClickedIsNotFound) {
    const std::function<void()> ways[] = {[&] { form.go.SetVisible(false); }, [&] { form.go.SetEnabled(false); }};
    for (const auto& way : ways) {
        form.go.SetVisible(true);
        form.go.SetEnabled(true);
        way();
        Press("Alt+G");
        EXPECT_EQ(TakeEvents(), "Entry.KeyDown 71/4");
    }
}

TEST_F(AccessKeyTest, TextOfAFieldIsNoCaption) {
    form.two.SetText("&X");
    Press("Alt+X");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 88/4");
    EXPECT_TRUE(form.one.HasFocus());
}

TEST_F(AccessKeyTest, LetterWithoutAltTypes) {
    Type("g");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 71/0, Entry.KeyPress 103");
    EXPECT_EQ(form.one.Text(), "g");
}

TEST_F(AccessKeyTest, OtherFormsAreNotSearched) {
    EntryForm other{desk, "Other"};
    Open(other);
    RecordClick(other.go);
    Press("Alt+G");
    EXPECT_EQ(TakeEvents(), "go.Click");
    EXPECT_TRUE(other.IsActive());
}

// Keys from the program.

TEST_F(KeyDeliveryTest, SentKeyGoesToTheActiveFormWhenTheHandlerHasReturned) {
    form.one.KeyPress = [&](int& KeyAscii) {
        if (KeyAscii == ' ') {
            KeyAscii = 0;
            desk.SendKeys(KeyByName("Tab").value());
            EXPECT_TRUE(form.one.HasFocus());
        }
    };
    Type(" ");
    EXPECT_TRUE(form.two.HasFocus());
}

TEST_F(KeyDeliveryTest, SentKeysComeInOrderAndBeforeWhatIsTypedAhead) {
    form.Form_KeyPress = [&](int& KeyAscii) {
        if (KeyAscii == '!') {
            KeyAscii = 0;
            desk.SendKeys(KeyForCharacter('x'));
            desk.SendKeys(KeyForCharacter('y'));
        }
    };
    Type("a!b");
    EXPECT_EQ(form.one.Text(), "axyb");
}

TEST_F(KeyDeliveryTest, SentKeyFindsTheFormThatIsActiveByThen) {
    EntryForm other{desk, "Other"};
    desk.SendKeys(KeyForCharacter('x'));
    other.Show();
    desk.RunPending();
    EXPECT_EQ(other.one.Text(), "x");
}

TEST_F(KeyDeliveryTest, SentKeyRunsAllHandlers) {
    desk.SendKeys(KeyForCharacter('a'));
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 65/0, one.KeyDown 65/0, Entry.KeyPress 97, one.KeyPress 97, one.Change");
}

// Keys that are held.

struct HeldKeyTest : EntryFormTest {
    Timer timer{form, "timer", 1000, true};

    HeldKeyTest() {
        timer.SetInterval(1000);
        timer.Elapsed = [this] { Note("timer"); };
        RecordFormKeys(form);
        RecordClick(form.note);
        form.one.KeyGate = [](const Key& /*key*/) { return std::optional<Tick>{3000}; };
    }
};

TEST_F(HeldKeyTest, GateHoldsTheKeyWholeAndDeliversItInOrderWhenItIsOver) {
    Type("ab");
    PostNamed("Tab");
    Type("c");
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_EQ(desk.HeldUntil(), 3000U);
    Pass(2999);
    EXPECT_EQ(form.one.Text(), "");
    Pass(1);
    EXPECT_EQ(form.one.Text(), "ab");
    EXPECT_EQ(form.two.Text(), "c");
    EXPECT_FALSE(desk.HeldUntil());
}

TEST_F(HeldKeyTest, KeysBehindAHeldOneWaitToo) {
    PostText("a");
    PostNamed("F1");
    Pass(1000);
    EXPECT_EQ(TakeEvents(), "timer");
    Pass(2000);
    EXPECT_EQ(TakeEvents(), "timer, Entry.KeyDown 65/0, Entry.KeyPress 97, Entry.KeyDown 112/0");
}

TEST_F(HeldKeyTest, KeyWithoutACharacterIsNotHeld) {
    Press("F1");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 112/0");
}

TEST_F(HeldKeyTest, TimersDevicesAndClicksGoOn) {
    IoSource source{desk, [&] { Note("device"); }};
    PostText("a");
    desk.PostClick(form.note, kLeftButton);
    source.Signal();
    Pass(1000);
    EXPECT_EQ(TakeEvents(), "device, timer, note.Click");
    EXPECT_EQ(form.one.Text(), "");
}

TEST_F(HeldKeyTest, OnlyTheControlWithTheFocusIsAsked) {
    form.two.SetFocus();
    Type("a");
    EXPECT_EQ(form.two.Text(), "a");
}

TEST_F(HeldKeyTest, GateSeesTheKeyAndMayLetItPass) {
    form.one.KeyGate = [&](const Key& key) { return key.character == 'x' ? std::optional<Tick>{3000} : std::nullopt; };
    Type("axb");
    EXPECT_EQ(form.one.Text(), "a");
    Pass(3000);
    EXPECT_EQ(form.one.Text(), "axb");
}

TEST_F(HeldKeyTest, GateOfATimeThatIsPastHoldsNothing) {
    clock.Advance(3000);
    Type("a");
    EXPECT_EQ(form.one.Text(), "a");
}

TEST_F(HeldKeyTest, EndOfTheHoldIsDueLikeATimer) {
    EXPECT_EQ(desk.NextDue(), 1000U);
    form.one.KeyGate = [](const Key& /*key*/) { return std::optional<Tick>{500}; };
    PostText("a");
    EXPECT_EQ(desk.NextDue(), 500U);
    timer.SetTimerEnabled(false);
    EXPECT_EQ(desk.NextDue(), 500U);
    desk.RunUntil([&] { return !form.one.Text().empty(); });
    EXPECT_EQ(clock.TickMs(), 500U);
    EXPECT_FALSE(desk.NextDue());
}

TEST_F(HeldKeyTest, InputHoldKeepsKeysClicksAndSentKeysAndLetsTimersRun) {
    form.one.KeyGate = nullptr;
    IoSource source{desk, [&] { Note("device"); }};
    {
        const Desk::InputHold hold{desk};
        PostText("a");
        desk.SendKeys(KeyForCharacter('s'));
        desk.PostClick(form.note, kLeftButton);
        source.Signal();
        form.two.SetFocus();
        RecordFocus(form.two);
        Pass(1000);
        EXPECT_EQ(TakeEvents(), "two.GotFocus, device, timer");
    }
    desk.RunPending();
    EXPECT_EQ(form.two.Text(), "sa");
    EXPECT_NE(TakeEvents().find("note.Click"), std::string::npos);
}

TEST_F(HeldKeyTest, InputHoldsNest) {
    form.one.KeyGate = nullptr;
    const auto outer = std::make_unique<Desk::InputHold>(desk);
    { const Desk::InputHold inner{desk}; }
    Type("a");
    EXPECT_EQ(form.one.Text(), "");
}

TEST_F(HeldKeyTest, ModalFormOpenedDuringAnInputHoldWorks) {
    form.one.KeyGate = nullptr;
    EntryForm modal{desk, "Modal"};
    modal.one.KeyPress = [&](int& KeyAscii) {
        if (KeyAscii == '!') {
            modal.Hide();
        }
    };
    {
        const Desk::InputHold hold{desk};
        PostText("a!b");
        modal.ShowModal();
        EXPECT_EQ(modal.one.Text(), "a!");
        desk.RunPending();
        EXPECT_EQ(form.one.Text(), "");  // held again
    }
    desk.RunPending();
    EXPECT_EQ(form.one.Text(), "b");
}

TEST_F(KeyDeliveryTest, CtrlASelectsAllInAFieldOfADialogThatDropsAllButDigits) {
    EntryForm dialog{desk, "Dialog", {.dialog = true}};
    for (EntryForm* each : {&form, &dialog}) {
        each->Show();
        each->one.SetText("14025");
        each->one.SetFocus();
        each->one.KeyPress = [](int& KeyAscii) { KeyAscii = KeyAscii >= '0' && KeyAscii <= '9' ? KeyAscii : 0; };
        Press("Ctrl+A");
    }
    EXPECT_EQ(dialog.one.SelectedText(), "14025");
    EXPECT_EQ(form.one.SelectedText(), "") << "the main form's keys are the program's";
}

TEST_F(KeyDeliveryTest, ARefusedFieldIsOneUntilItsTextIsAnother) {
    form.one.SetText("25:00");
    for (const auto& change :
         std::vector<std::function<void()>>{[this] { Type("1"); }, [this] { form.one.SetText("9:15"); }}) {
        form.one.SetFocus();
        form.one.SetRefused(true);
        form.one.SetText(form.one.Text());
        EXPECT_TRUE(form.one.State().refused);
        change();
        EXPECT_FALSE(form.one.State().refused);
    }
}

}  // namespace
}  // namespace tallyhut
