#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "toolkit/key.h"
#include "values/colour.h"

namespace tallyhut {

struct Form;
struct Control;

enum class ControlKind { TextBox, Label, Button, Option, CheckBox, Frame, List, ListView, Menu, Timer, Line, Raster };

/// In design units: the screen the forms were designed on is 9600 wide and 7200 high.
struct Place {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Place&) const = default;
};

enum MouseButton { kLeftButton = 1, kRightButton = 2, kMiddleButton = 4 };

struct ListColumn {
    std::string caption;
    double width = 0;  ///< design units

    bool operator==(const ListColumn&) const = default;
};

/// All that a control can be changed in, whatever its kind. Unloading a form puts the design's values back.
struct ControlState {
    std::string text;  ///< text of a text box, caption of all others
    bool visible = true;
    bool enabled = true;
    std::string toolTip;
    Colour foreColor = kWindowText;
    Colour backColor = kButtonFace;
    double fontSize = 9;  ///< points
    bool bold = false;
    bool underlined = false;
    bool italic = false;
    bool pointed = false;     ///< the keyboard points at it, as a mouse would
    bool refused = false;     ///< what it holds was not taken, or says why
    bool takesFocus = false;  ///< of a label: by the keyboard, never by the mouse
    bool tabStop = false;
    int tabIndex = 0;
    Place place;

    bool chosen = false;  ///< option, check box, check mark of a menu entry

    int maxLength = 0;         ///< of a text box; 0 is no limit
    bool multiLine = false;    ///< of a text box
    bool locked = false;       ///< of a text box: shown, not edited
    bool secret = false;       ///< of a text box: nobody is shown its text, no script, no clipboard, no screen reader
    bool suggested = false;    ///< of a text box: its text is what the program suggests
    std::string refusesPaste;  ///< characters that paste drops, beside line ends
    int selStart = 0;          ///< caret or begin of the selection
    int selLength = 0;
    bool caretAtStart = false;  ///< the moving end of the selection is its begin

    std::vector<std::string> items;   ///< of a list
    std::vector<ListColumn> columns;  ///< of a list view
    int row = -1;                     ///< selected row of a list or a list view, -1 for none

    std::int32_t interval = 0;  ///< of a timer, ms

    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  ///< ends of a line
};

/// What all kinds of controls have in common. The kinds below only give names to what they use of it, so a host may
/// treat every control alike.
///
/// Setting a value runs the same handler as the operator's action would, if the value differs: a text or caption runs
/// Change; a chosen option, a check box and a list row run Click. Setting what is already there runs nothing.
struct Control {
    Control(Form& owner, ControlKind controlKind, std::string controlName, int controlIndex = -1);
    ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    Control(Control&&) = delete;
    Control& operator=(Control&&) = delete;

    Form& form;
    const ControlKind kind;
    const std::string name;  ///< without the index
    const int index;         ///< within a control array; -1 for a control of its own

    /// The name as it is told: "txtCall", "Label10(3)".
    std::string FullName() const;
    const ControlState& State() const { return state_; }
    /// As the control was before the form's first load; null for one that was made later.
    const ControlState* Design() const { return design_ ? &*design_ : nullptr; }

    /// The place from which the form is scaled.
    const Place& DesignPlace() const { return design_ ? design_->place : state_.place; }

    /// Neither hidden nor in a hidden frame.
    bool IsShown() const;
    bool CanTakeFocus() const;
    bool HasFocus() const;
    /// Moves the focus at once; LostFocus and GotFocus run when the running handler has returned or lets events run.
    /// Does nothing for a control that is hidden, disabled or of a kind that takes no focus.
    void SetFocus();
    /// For a LostFocus handler that refuses to be left: the control gets the focus again, and of the field that had it
    /// for no time neither GotFocus nor LostFocus runs.
    void GiveFocusBack();

    void SetVisible(bool visible);
    void SetEnabled(bool enabled);
    void SetToolTip(std::string_view text);
    void SetForeColor(Colour colour);
    void SetBackColor(Colour colour);
    void SetFontSize(double points);
    void SetBold(bool bold);
    void SetUnderlined(bool underlined);
    void SetItalic(bool italic);
    void SetPointed(bool pointed);
    /// Marks it until its text is another one.
    void SetRefused(bool refused);
    void SetTabIndex(int position);
    void SetPlace(const Place& place);
    /// Moves the control in the form's design; a form that is loaded is to be scaled anew then.
    void Redesign(const Place& place);
    /// The frame that the control lies in; hidden with it. Options in one frame are a group.
    void PutInto(Control& frame);
    const Control* Frame() const { return frame_; }

    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    std::function<void()> Change;
    std::function<void(int& KeyCode, int Shift)> KeyDown;
    std::function<void(int& KeyAscii)> KeyPress;
    std::function<void(MouseButton)> MouseDown;
    std::function<void(MouseButton)> MouseUp;
    std::function<void()> MouseMove;

    /// Holds a key with a character back until the tick that it returns; the key and every key behind it are delivered
    /// then, in order. Asked before any handler of the key.
    std::function<std::optional<Tick>(const Key&)> KeyGate;

protected:
    friend struct Form;
    friend struct Desk;

    void SetTextValue(std::string_view text);
    void SetChosen(bool chosen);
    void SetRow(int row);
    /// Tells the host that something of the control is to be shown anew.
    void Touch();

    ControlState state_;
    std::optional<ControlState> design_;  ///< as it was at the form's first load; none for what is made later
    Control* frame_ = nullptr;
};

}  // namespace tallyhut
