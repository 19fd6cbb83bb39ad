#include "toolkit/controls.h"

#include <algorithm>
#include <cassert>
#include <numeric>
#include <tuple>

#include "toolkit/desk.h"
#include "toolkit/form.h"

namespace tallyhut {

Label::Label(Form& owner, std::string controlName, std::string_view caption, const LabelDesign& design)
    : Label{owner, std::move(controlName), -1, caption, design} {}

Label::Label(Form& owner, std::string controlName, int controlIndex, std::string_view caption,
             const LabelDesign& design)
    : Control{owner, ControlKind::Label, std::move(controlName), controlIndex} {
    state_.text = caption;
    state_.place = design.place;
    state_.toolTip = design.toolTip;
    state_.foreColor = design.foreColor;
    state_.backColor = design.backColor;
    state_.fontSize = design.fontSize;
    state_.visible = design.visible;
    state_.takesFocus = design.takesFocus;
    state_.tabStop = design.takesFocus && design.tabStop;
}

namespace {

void TakeDesign(ControlState& state, std::string_view caption, const ButtonDesign& design) {
    state.text = caption;
    state.place = design.place;
    state.toolTip = design.toolTip;
    state.tabStop = design.tabStop;
    state.tabIndex = design.tabIndex;
    state.visible = design.visible;
}

}  // namespace

Button::Button(Form& owner, std::string controlName, std::string_view caption, const ButtonDesign& design)
    : Button{owner, std::move(controlName), -1, caption, design} {}

Button::Button(Form& owner, std::string controlName, int controlIndex, std::string_view caption,
               const ButtonDesign& design)
    : Control{owner, ControlKind::Button, std::move(controlName), controlIndex} {
    TakeDesign(state_, caption, design);
    state_.foreColor = kButtonText;
}

Option::Option(Form& owner, std::string controlName, std::string_view caption, const ButtonDesign& design)
    : Option{owner, std::move(controlName), -1, caption, design} {}

Option::Option(Form& owner, std::string controlName, int controlIndex, std::string_view caption,
               const ButtonDesign& design)
    : Control{owner, ControlKind::Option, std::move(controlName), controlIndex} {
    TakeDesign(state_, caption, design);
}

CheckBox::CheckBox(Form& owner, std::string controlName, std::string_view caption, const ButtonDesign& design)
    : Control{owner, ControlKind::CheckBox, std::move(controlName)} {
    TakeDesign(state_, caption, design);
}

FrameBox::FrameBox(Form& owner, std::string controlName, std::string_view caption, const Place& place)
    : Control{owner, ControlKind::Frame, std::move(controlName)} {
    state_.text = caption;
    state_.place = place;
}

List::List(Form& owner, std::string controlName, const ButtonDesign& design)
    : Control{owner, ControlKind::List, std::move(controlName)} {
    TakeDesign(state_, "", design);
    state_.backColor = kWindowGround;
}

void List::SetItems(std::vector<std::string> items) {
    state_.items = std::move(items);
    state_.row = -1;
    Touch();
}

void List::Add(std::string_view item) {
    state_.items.emplace_back(item);
    Touch();
}

ListView::ListView(Form& owner, std::string controlName, std::vector<ListColumn> columns, const ButtonDesign& design)
    : Control{owner, ControlKind::ListView, std::move(controlName)} {
    TakeDesign(state_, "", design);
    state_.columns = std::move(columns);
    state_.backColor = kWindowGround;
}

void ListView::SetColumns(std::vector<ListColumn> columns) {
    state_.columns = std::move(columns);
    Touch();
}

void ListView::SetRows(std::size_t count, CellText cells) {
    rowCount_ = count;
    cells_ = std::move(cells);
    order_.clear();
    state_.row = -1;
    Touch();
}

std::string ListView::Cell(std::size_t row, std::size_t column) const {
    assert(row < rowCount_ && column < state_.columns.size());
    return cells_(order_.empty() ? row : order_[row], column);
}

void ListView::SortOnce(std::size_t column) {
    std::vector<std::string> keys(rowCount_);
    for (std::size_t row = 0; row < rowCount_; ++row) {
        keys[row] = cells_(row, column);
    }
    std::vector<std::size_t> order(rowCount_);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&keys](std::size_t row) -> const std::string& { return keys[row]; });
    if (state_.row >= 0) {  // the same row stays selected, wherever it goes
        const auto selected = static_cast<std::size_t>(state_.row);
        const std::size_t given = order_.empty() ? selected : order_[selected];
        state_.row = static_cast<int>(std::ranges::find(order, given) - order.begin());
    }
    order_ = std::move(order);
    Touch();
}

MenuEntry::MenuEntry(Form& owner, std::string controlName, std::string_view caption)
    : Control{owner, ControlKind::Menu, std::move(controlName)} {
    state_.text = caption;
    form.menus_.push_back(this);
}

MenuEntry::MenuEntry(MenuEntry& above, std::string controlName, std::string_view caption, std::string shortcut)
    : Control{above.form, ControlKind::Menu, std::move(controlName)}, shortcut_{std::move(shortcut)}, above_{&above} {
    state_.text = caption;
    above.entries_.push_back(this);
}

void MenuEntry::SetChecked(bool checked) {
    if (state_.chosen != checked) {
        state_.chosen = checked;
        Touch();
    }
}

Timer::Timer(Form& owner, std::string controlName, std::int32_t intervalMs, bool enabledAtFirst)
    : Control{owner, ControlKind::Timer, std::move(controlName)}, alarm_{owner.desk, [this] {
                                                                             form.desk.Call(Elapsed);
                                                                         }} {
    state_.interval = intervalMs;
    state_.enabled = enabledAtFirst;
    Restart();
}

void Timer::SetInterval(std::int32_t ms) {
    state_.interval = ms;
    Restart();
}

void Timer::SetTimerEnabled(bool enabled) {
    state_.enabled = enabled;
    Restart();
}

void Timer::Restart() {
    alarm_.Start(form.IsLoaded() && Enabled() ? Interval() : 0);
}

Line::Line(Form& owner, std::string controlName, double x1, double y1, double x2, double y2)
    : Line{owner, std::move(controlName), -1, x1, y1, x2, y2} {}

Line::Line(Form& owner, std::string controlName, int controlIndex, double x1, double y1, double x2, double y2)
    : Control{owner, ControlKind::Line, std::move(controlName), controlIndex} {
    state_.x1 = x1;
    state_.y1 = y1;
    state_.x2 = x2;
    state_.y2 = y2;
}

void Line::SetEnds(double x1, double y1, double x2, double y2) {
    if (std::tie(state_.x1, state_.y1, state_.x2, state_.y2) != std::tie(x1, y1, x2, y2)) {
        std::tie(state_.x1, state_.y1, state_.x2, state_.y2) = std::tie(x1, y1, x2, y2);
        Touch();
    }
}

Raster::Raster(Form& owner, std::string controlName, const LabelDesign& design)
    : Raster{owner, std::move(controlName), -1, design} {}

Raster::Raster(Form& owner, std::string controlName, int controlIndex, const LabelDesign& design)
    : Control{owner, ControlKind::Raster, std::move(controlName), controlIndex} {
    state_.place = design.place;
    state_.toolTip = design.toolTip;
    state_.backColor = design.backColor;
    state_.visible = design.visible;
}

void Raster::Draw(const std::function<void(RasterImage&)>& drawing) {
    shapes_.reset();
    drawing(image_);
    Touch();
}

void Raster::Show(Drawing shapes, int pixelsWide) {
    RasterImage pixels = PixelsOf(shapes, pixelsWide);
    Show(std::move(shapes), std::move(pixels));
}

void Raster::Show(Drawing shapes, RasterImage pixels) {
    shapes_ = std::move(shapes);
    image_ = std::move(pixels);
    Touch();
}

Label& RuntimeLabels::Make(std::string_view caption, const LabelDesign& design) {
    labels_.push_back(std::make_unique<Label>(form_, name_, Count(), caption, design));
    Label& label = *labels_.back();
    if (form_.desk.outlets.controlAdded) {
        form_.desk.outlets.controlAdded(label);
    }
    return label;
}

void RuntimeLabels::RemoveAll() {
    labels_.clear();
}

}  // namespace tallyhut
