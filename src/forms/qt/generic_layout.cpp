#include "forms/qt/generic_layout.h"

#include <algorithm>
#include <cmath>

#include "forms/qt/picture_widgets.h"
#include "forms/qt/qt_screen.h"
#include "forms/qt/text_codec.h"

namespace tallyhut {
namespace {

constexpr double kPixelsPerPoint = 4.0 / 3.0;
constexpr double kSmallestText = 9;
constexpr double kMenuPoints = 9;
/// Forms that scale their own text do it at most by this much; see their load.
constexpr double kLargestTextRatio = 1.5;

bool IsWithin(double value, double from, double size) {
    return value >= from && value <= from + size;
}

}  // namespace

GenericLayout::GenericLayout(Form& form, QWidget& window, FormMenus& menus)
    : form_{form}, window_{window}, menus_{menus}, canvas_{new QWidget{&window}} {}

QWidget& GenericLayout::ParentOf(const Control& /*control*/) {
    return *canvas_;
}

void GenericLayout::Add(ControlWidget& widget) {
    const auto isFrame = [](const ControlWidget* other) { return other->Logical().kind == ControlKind::Frame; };
    const auto first = std::ranges::find_if_not(widgets_, isFrame);
    if (isFrame(&widget) && first != widgets_.end()) {
        widget.Widget().stackUnder(&(*first)->Widget());
    }
    widgets_.push_back(&widget);
}

void GenericLayout::Remove(ControlWidget& widget) {
    std::erase(widgets_, &widget);
}

void GenericLayout::Changed(ControlWidget& widget) {
    Put(widget, PresentScale());
}

void GenericLayout::Arrange() {
    int top = 0;
    if (QMenuBar* bar = menus_.Bar()) {
        menus_.SetTextSize(std::max(kMenuPoints * PresentScale().text, kSmallestText));
        top = bar->sizeHint().height();
        bar->setGeometry(0, 0, window_.width(), top);
    }
    canvas_->setGeometry(0, top, window_.width(), window_.height() - top);
    const Scale scale = PresentScale();
    for (ControlWidget* widget : widgets_) {
        Put(*widget, scale);
    }
}

/// The form's place tells how far its controls have been scaled already; the window's size what is left to do.
GenericLayout::Scale GenericLayout::PresentScale() const {
    const Place& place = form_.FormPlace();
    Scale scale;
    scale.x = canvas_->width() / std::max(place.width, 1.0);
    scale.y = canvas_->height() / std::max(place.height, 1.0);
    const double textRatio = std::clamp(place.width / form_.design.width, 1.0, kLargestTextRatio);
    const double designPixels = form_.design.width / kUnitsPerPixel;
    const double designLines = form_.design.height / kUnitsPerPixel;
    const double growth = std::min(canvas_->width() / designPixels, canvas_->height() / designLines);
    scale.text = kPixelsPerPoint * growth / textRatio;
    return scale;
}

void GenericLayout::Put(ControlWidget& widget, const Scale& scale) const {
    const Control& control = widget.Logical();
    const ControlState& state = control.State();
    Place place = state.place;
    int edge = 0;
    if (control.kind == ControlKind::Line) {
        place = {std::min(state.x1, state.x2), std::min(state.y1, state.y2), std::abs(state.x2 - state.x1),
                 std::abs(state.y2 - state.y1)};
        edge = LineWidget::kWidth;
    }
    const QRectF box{place.left * scale.x, place.top * scale.y, place.width * scale.x, place.height * scale.y};
    widget.Widget().setGeometry(box.toRect().adjusted(-edge / 2, -edge / 2, edge - edge / 2, edge - edge / 2));
    Look look;
    look.pixels = std::max(state.fontSize * scale.text, kSmallestText);
    look.wrapped = control.kind == ControlKind::Label;
    const bool oneLine = place.height < 2 * look.pixels * 1.2 / scale.y;
    look.alignment = Qt::AlignLeft | (oneLine ? Qt::AlignVCenter : Qt::AlignTop);
    look.spokenName = SpokenName(control);
    widget.SetLook(look);
}

/// A text box is called by the label to its left or above it.
QString GenericLayout::SpokenName(const Control& control) const {
    if (control.kind != ControlKind::TextBox) {
        return {};
    }
    const Place& box = control.State().place;
    const Control* nearest = nullptr;
    double shortest = std::max(box.width, 2400.0);
    for (const ControlWidget* widget : widgets_) {
        const Control& label = widget->Logical();
        if (label.kind != ControlKind::Label || label.State().text.empty()) {
            continue;
        }
        const Place& place = label.State().place;
        const bool beside = IsWithin(place.top + place.height / 2, box.top, box.height) && place.left < box.left;
        const bool above = IsWithin(place.left + place.width / 2, box.left, box.width) && place.top < box.top;
        const double distance = beside ? box.left - place.left - place.width : box.top - place.top - place.height;
        if ((beside || above) && distance < shortest) {
            shortest = distance;
            nearest = &label;
        }
    }
    return nearest == nullptr ? QString{} : ToQt(nearest->State().text).remove('&').trimmed();
}

}  // namespace tallyhut
