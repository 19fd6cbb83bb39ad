#pragma once

#include <memory>

#include "toolkit/alarm.h"
#include "toolkit/control.h"
#include "toolkit/drawing.h"

namespace tallyhut {

struct TextBoxDesign {
    Place place = {};
    int maxLength = 0;
    int tabIndex = 0;
    bool tabStop = true;
    double fontSize = 9;
    std::string toolTip = {};
    std::string refusesPaste = {};
    bool multiLine = false;
    bool locked = false;
    bool visible = true;
    bool secret = false;  ///< of one line and with a maximum length
};

/// What a text box suggests is drawn in this.
inline constexpr Colour kSuggestion = 0x808080;

/// A text field. Caret and selection count characters from 0.
struct TextBox : Control {
    TextBox(Form& owner, std::string controlName, const TextBoxDesign& design);

    const std::string& Text() const { return state_.text; }
    bool IsSecret() const { return state_.secret; }
    /// Cuts to the maximum length and puts the caret at 0.
    void SetText(std::string_view text);
    /// The same with a text that the operator may leave as it is: what is typed or pasted takes its place, Backspace
    /// and Delete empty the field, and then it is a text like any other. An empty one is no suggestion.
    void Suggest(std::string_view text);
    bool IsSuggested() const { return state_.suggested; }
    int SelStart() const { return state_.selStart; }
    int SelLength() const { return state_.selLength; }
    /// Empty for a secret text, which leaves its box in no way.
    std::string SelectedText() const;
    void Select(int start, int length);
    void SetCaret(int position) { Select(position, 0); }

    /// The operator's actions; each runs Change if the text changed.
    void TypeCharacter(unsigned char character);
    void Backspace();
    void Delete();
    /// Replaces the selection by what the field takes of the text, cut to the maximum length, the caret behind it.
    void Paste(std::string_view text);
    /// Selects the whole text and pastes over it; what the field refuses leaves it empty. Moves no focus.
    void ReplaceByPaste(std::string_view text);
    /// Moves the caret (arrows, Home, End); extends the selection instead of dropping it where `extend` is set.
    void MoveCaret(int keyCode, bool extend);

private:
    void SelectSuggestion();
    void EndSuggestion();
    void Splice(int start, int length, std::string_view inserted);
    int Caret() const;
    std::string Accepted(std::string_view text) const;
};

struct LabelDesign {
    Place place = {};
    std::string toolTip = {};
    Colour foreColor = kWindowText;
    Colour backColor = kButtonFace;
    double fontSize = 9;
    bool visible = true;
    bool takesFocus = false;  ///< by the keyboard, never by the mouse
    bool tabStop = false;
};

struct Label : Control {
    Label(Form& owner, std::string controlName, std::string_view caption, const LabelDesign& design);
    Label(Form& owner, std::string controlName, int controlIndex, std::string_view caption, const LabelDesign& design);

    const std::string& Caption() const { return state_.text; }
    void SetCaption(std::string_view text) { SetTextValue(text); }
};

struct ButtonDesign {
    Place place = {};
    std::string toolTip = {};
    bool tabStop = true;
    int tabIndex = 0;
    bool visible = true;
};

struct Button : Control {
    Button(Form& owner, std::string controlName, std::string_view caption, const ButtonDesign& design);
    Button(Form& owner, std::string controlName, int controlIndex, std::string_view caption,
           const ButtonDesign& design);

    const std::string& Caption() const { return state_.text; }
    void SetCaption(std::string_view text) { SetTextValue(text); }
};

/// One of the choices in its frame (or on its form, outside of frames).
struct Option : Control {
    Option(Form& owner, std::string controlName, std::string_view caption, const ButtonDesign& design);
    Option(Form& owner, std::string controlName, int controlIndex, std::string_view caption,
           const ButtonDesign& design);

    const std::string& Caption() const { return state_.text; }
    bool Value() const { return state_.chosen; }
    void SetValue(bool chosen) { SetChosen(chosen); }
};

struct CheckBox : Control {
    CheckBox(Form& owner, std::string controlName, std::string_view caption, const ButtonDesign& design);

    const std::string& Caption() const { return state_.text; }
    bool Value() const { return state_.chosen; }
    void SetValue(bool ticked) { SetChosen(ticked); }
};

struct FrameBox : Control {
    FrameBox(Form& owner, std::string controlName, std::string_view caption, const Place& place);

    const std::string& Caption() const { return state_.text; }
    void SetCaption(std::string_view text) { SetTextValue(text); }
};

struct List : Control {
    List(Form& owner, std::string controlName, const ButtonDesign& design);

    const std::vector<std::string>& Items() const { return state_.items; }
    void SetItems(std::vector<std::string> items);
    void Add(std::string_view item);
    void Clear() { SetItems({}); }
    int Row() const { return state_.row; }
    void SelectRow(int row) { SetRow(row); }
};

/// A list of columns whose cells are asked for when they are drawn, so that the number of rows costs nothing.
struct ListView : Control {
    using CellText = std::function<std::string(std::size_t row, std::size_t column)>;

    ListView(Form& owner, std::string controlName, std::vector<ListColumn> columns, const ButtonDesign& design);

    void SetColumns(std::vector<ListColumn> columns);
    /// Replaces all rows and selects none.
    void SetRows(std::size_t count, CellText cells);
    std::size_t RowCount() const { return rowCount_; }
    std::string Cell(std::size_t row, std::size_t column) const;
    /// Puts the present rows in ascending order of a column's text, once; the next SetRows stands as given. The
    /// selected row stays selected.
    void SortOnce(std::size_t column);
    int Row() const { return state_.row; }
    void SelectRow(int row) { SetRow(row); }

    std::function<void(int column)> ColumnClick;  ///< columns count from 1

private:
    friend struct Control;

    std::size_t rowCount_ = 0;
    CellText cells_;
    std::vector<std::size_t> order_;  ///< empty while the rows stand as given
};

struct MenuEntry : Control {
    /// A top-level entry of the form's menu bar.
    MenuEntry(Form& owner, std::string controlName, std::string_view caption);
    /// The shortcut ("Ctrl+W") is only told beside the caption: the key itself is the form's.
    MenuEntry(MenuEntry& above, std::string controlName, std::string_view caption, std::string shortcut = {});

    const std::string& Caption() const { return state_.text; }
    const std::string& Shortcut() const { return shortcut_; }
    bool Checked() const { return state_.chosen; }
    /// Runs no handler: a check mark is a picture of a state, not the state.
    void SetChecked(bool checked);
    MenuEntry* Above() const { return above_; }
    const std::vector<MenuEntry*>& Entries() const { return entries_; }

    bool yieldsLetter = false;  ///< the letter that its caption marks is that of another entry of the menu

private:
    std::string shortcut_;
    MenuEntry* above_ = nullptr;
    std::vector<MenuEntry*> entries_;
};

/// Runs Elapsed each time the interval has passed, while its form is loaded. Setting the interval or Enabled starts the
/// interval anew; 0 never fires.
struct Timer : Control {
    Timer(Form& owner, std::string controlName, std::int32_t intervalMs, bool enabledAtFirst);

    std::int32_t Interval() const { return state_.interval; }
    void SetInterval(std::int32_t ms);
    bool Enabled() const { return state_.enabled; }
    void SetTimerEnabled(bool enabled);

    std::function<void()> Elapsed;

private:
    friend struct Form;
    void Restart();

    Alarm alarm_;
};

struct Line : Control {
    Line(Form& owner, std::string controlName, double x1, double y1, double x2, double y2);
    Line(Form& owner, std::string controlName, int controlIndex, double x1, double y1, double x2, double y2);

    void SetEnds(double x1, double y1, double x2, double y2);
};

/// A picture: shapes, for hosts that draw them themselves, and their pixels; or pixels alone. Colours are 24-bit colour
/// values.
struct Raster : Control {
    Raster(Form& owner, std::string controlName, const LabelDesign& design);
    Raster(Form& owner, std::string controlName, int controlIndex, const LabelDesign& design);

    const RasterImage& Image() const { return image_; }
    /// Null where pixels are all that there is.
    const Drawing* Shapes() const { return shapes_ ? &*shapes_ : nullptr; }
    /// Draws into the picture and tells the host. Shapes that were shown are gone.
    void Draw(const std::function<void(RasterImage&)>& drawing);
    /// Shows shapes, with pixels of their own or those that are given.
    void Show(Drawing shapes, int pixelsWide);
    void Show(Drawing shapes, RasterImage pixels);

    /// Where the pointer has moved to, from the upper left corner, in the units of places; set before MouseMove runs.
    Point pointer;

private:
    RasterImage image_;
    std::optional<Drawing> shapes_;
};

/// Controls of one name, told apart by an index from `first` to `last`.
template <typename Kind>
struct ControlArray {
    template <typename Make>
    ControlArray(int first, int last, const Make& make) : first_{first} {
        for (int i = first; i <= last; ++i) {
            controls_.push_back(make(i));
        }
    }

    Kind& operator()(int index) { return *controls_.at(static_cast<std::size_t>(index - first_)); }
    const Kind& operator()(int index) const { return *controls_.at(static_cast<std::size_t>(index - first_)); }
    int First() const { return first_; }
    int Last() const { return first_ + static_cast<int>(controls_.size()) - 1; }

private:
    int first_;
    std::vector<std::unique_ptr<Kind>> controls_;
};

/// Labels of one name that are made and removed while the program runs.
struct RuntimeLabels {
    RuntimeLabels(Form& owner, std::string labelName) : form_{owner}, name_{std::move(labelName)} {}

    Label& Make(std::string_view caption, const LabelDesign& design);
    void RemoveAll();
    Label& operator()(int index) { return *labels_.at(static_cast<std::size_t>(index)); }
    int Count() const { return static_cast<int>(labels_.size()); }

private:
    Form& form_;
    std::string name_;
    std::vector<std::unique_ptr<Label>> labels_;
};

}  // namespace tallyhut
