#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/platform_error.h"
#include "platform/sim/clipboard.h"
#include "platform/sim/clock.h"
#include "platform/sim/dialogs.h"
#include "platform/sim/event_pump.h"
#include "toolkit/controls.h"
#include "toolkit/desk.h"
#include "toolkit/form.h"

namespace tallyhut {

/// A form with three fields, a button and a label.
struct EntryForm : Form {
    explicit EntryForm(Desk& owner, std::string formName = "Entry", const FormDesign& formDesign = {.dialog = false})
        : Form{owner, std::move(formName), "Entry", formDesign} {}

    TextBox one{*this, "one", {.tabIndex = 1}};
    TextBox two{*this, "two", {.tabIndex = 2}};
    TextBox three{*this, "three", {.tabIndex = 3}};
    Button go{*this, "go", "&Go", {.tabIndex = 4}};
    Label note{*this, "note", "a note", {}};
};

/// The simulated machine, an empty desk, and a record of the handlers that ran.
struct ToolkitTest : testing::Test {
    sim::Clock clock;
    sim::EventPump pump{clock};
    sim::Dialogs dialogs;
    sim::Clipboard clipboard;
    Desk desk{clock, pump, dialogs, clipboard};
    std::string events;

    void Note(const std::string& event) { events += (events.empty() ? "" : ", ") + event; }
    /// What ran since the last call, "one.LostFocus, two.GotFocus".
    std::string TakeEvents() { return std::exchange(events, {}); }

    void RecordFocus(Control& control) {
        control.GotFocus = [this, &control] { Note(control.FullName() + ".GotFocus"); };
        control.LostFocus = [this, &control] { Note(control.FullName() + ".LostFocus"); };
    }
    void RecordClick(Control& control) {
        control.Click = [this, &control] { Note(control.FullName() + ".Click"); };
    }
    void RecordChange(Control& control) {
        control.Change = [this, &control] { Note(control.FullName() + ".Change"); };
    }
    void RecordKeys(Control& control) {
        control.KeyDown = [this, &control](int& KeyCode, int Shift) {
            Note(control.FullName() + ".KeyDown " + std::to_string(KeyCode) + '/' + std::to_string(Shift));
        };
        control.KeyPress = [this, &control](int& KeyAscii) {
            Note(control.FullName() + ".KeyPress " + std::to_string(KeyAscii));
        };
    }
    void RecordMouse(Control& control) {
        RecordClick(control);
        control.DblClick = [this, &control] { Note(control.FullName() + ".DblClick"); };
        control.MouseDown = [this, &control](MouseButton button) {
            Note(control.FullName() + ".MouseDown " + std::to_string(button));
        };
        control.MouseUp = [this, &control](MouseButton button) {
            Note(control.FullName() + ".MouseUp " + std::to_string(button));
        };
    }
    void RecordForm(Form& form) {
        form.Form_Load = [this, &form] { Note(form.name + ".Load"); };
        form.Form_Activate = [this, &form] { Note(form.name + ".Activate"); };
        form.Form_Unload = [this, &form] { Note(form.name + ".Unload"); };
        form.Form_QueryUnload = [this, &form](bool& /*Cancel*/) { Note(form.name + ".QueryUnload"); };
    }
    void RecordFormKeys(Form& form) {
        form.Form_KeyDown = [this, &form](int& KeyCode, int Shift) {
            Note(form.name + ".KeyDown " + std::to_string(KeyCode) + '/' + std::to_string(Shift));
        };
        form.Form_KeyPress = [this, &form](int& KeyAscii) {
            Note(form.name + ".KeyPress " + std::to_string(KeyAscii));
        };
    }

    void PostNamed(std::string_view keyName) { desk.PostKey(KeyByName(keyName).value()); }
    void PostText(std::string_view text) {
        for (const char character : text) {
            desk.PostKey(KeyForCharacter(static_cast<unsigned char>(character)));
        }
    }
    void Press(std::string_view keyName) {
        PostNamed(keyName);
        desk.RunPending();
    }
    void Type(std::string_view text) {
        PostText(text);
        desk.RunPending();
    }
    void Click(Control& control, MouseButton button = kLeftButton, bool twice = false) {
        desk.PostClick(control, button, twice);
        desk.RunPending();
    }
    void ClickRow(Control& list, int row, MouseButton button = kLeftButton, bool twice = false) {
        desk.PostRowClick(list, row, button, twice);
        desk.RunPending();
    }
    /// Shows a form and lets what that sets off run, unrecorded.
    void Open(Form& form) {
        form.Show();
        desk.RunPending();
        events.clear();
    }
    void Pass(Tick milliseconds) {
        clock.Advance(milliseconds);
        desk.RunPending();
    }
};

/// The same with a form on the screen, its first field focused.
struct EntryFormTest : ToolkitTest {
    EntryForm form{desk};

    EntryFormTest() { Open(form); }
};

}  // namespace tallyhut
