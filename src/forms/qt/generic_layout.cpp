#include "forms/qt/generic_layout.h"

#include <QLabel>
#include <algorithm>
#include <cmath>

#include "forms/qt/picture_widgets.h"
#include "forms/qt/qt_screen.h"

namespace tallyhut {
namespace {

constexpr double kPixelsPerPoint = 4.0 / 3.0;
constexpr double kMenuPoints = 9;
/// Text becomes smaller by these steps, down to this share, before a form scrolls.
constexpr double kTextStep = 0.94;
constexpr double kLeastText = 0.6;
/// Forms that scale their own text do it at most by this much; see their load.
constexpr double kLargestTextRatio = 1.5;
/// Design units of a line of text, for each point of its size.
constexpr double kLinePerPoint = 26;

bool IsWithin(double value, double from, double size) {
    return value >= from && value <= from + size;
}

double Middle(const Place& place) {
    return place.top + place.height / 2;
}

/// The smallest place that holds both.
Place Around(const Place& one, const Place& other) {
    const double left = std::min(one.left, other.left);
    const double top = std::min(one.top, other.top);
    return {left, top, std::max(one.left + one.width, other.left + other.width) - left,
            std::max(one.top + one.height, other.top + other.height) - top};
}

/// On the line of the field, and not far from it on either side.
bool IsBeside(const Place& caption, const Place& field) {
    constexpr double kNear = 3;  // times the field's height
    const double gap = std::max(field.left - caption.left - caption.width, caption.left - field.left - field.width);
    return std::abs(Middle(field) - Middle(caption)) < field.height / 4 && gap < kNear * field.height;
}

bool IsField(const Control& control) {
    return control.kind == ControlKind::TextBox && !control.State().multiLine;
}

/// Text follows its form up to the largest ratio, and from there on more slowly: on a large screen it is read from no
/// farther away.
double TextGrowth(double growth) {
    constexpr double kBeyond = 0.6;
    return std::min(growth, kLargestTextRatio) + std::max(growth - kLargestTextRatio, 0.0) * kBeyond;
}

/// How far the form has scaled its own text.
double TextRatio(const Form& form) {
    return std::clamp(form.FormPlace().width / form.design.width, 1.0, kLargestTextRatio);
}

bool IsOneLine(const Control& control) {
    const ControlState& state = control.State();
    const Form& form = control.form;
    const double designHeight = state.place.height * form.design.height / form.FormPlace().height;
    constexpr double kLines = 1.8;
    return designHeight < kLines * kLinePerPoint * state.fontSize / TextRatio(form);
}

}  // namespace

GenericLayout::GenericLayout(Form& form, QWidget& window, FormMenus& menus)
    : form_{form}, window_{window}, menus_{menus}, canvas_{window} {}

QWidget& GenericLayout::ParentOf(const Control& /*control*/) {
    return canvas_.Sheet();
}

void GenericLayout::Add(ControlWidget& widget) {
    const auto isFrame = [](const ControlWidget* other) { return other->Logical().kind == ControlKind::Frame; };
    const auto first = std::ranges::find_if_not(widgets_, isFrame);
    if (isFrame(&widget) && first != widgets_.end()) {
        widget.Widget().stackUnder(&(*first)->Widget());
    }
    widgets_.push_back(&widget);
    stale_ = true;
}

void GenericLayout::Remove(ControlWidget& widget) {
    std::erase(widgets_, &widget);
    stale_ = true;
}

void GenericLayout::Changed(ControlWidget& widget) {
    const Control& control = widget.Logical();
    const auto known = std::ranges::find(arranged_, &control, &std::pair<const Control*, Place>::first);
    const QSize size = widget.Widget().size();
    const QSize need = widget.Needed(size.width());
    stale_ = stale_ || known == arranged_.end() || known->second != PlaceOf(control) || need.width() > size.width() ||
             need.height() > size.height();
    namesStale_ = namesStale_ || control.kind == ControlKind::Label || control.kind == ControlKind::Frame;
}

void GenericLayout::Settle() {
    if (stale_) {
        Arrange();
    } else if (namesStale_) {
        TellNames();
    }
}

void GenericLayout::Arrange() {
    stale_ = false;
    const double designPixels = form_.design.width / kUnitsPerPixel;
    const double designLines = form_.design.height / kUnitsPerPixel;
    const double growth = std::min(window_.width() / designPixels, window_.height() / designLines);
    const double menuText = std::max(kMenuPoints * kPixelsPerPoint * TextGrowth(growth), canvas_.SmallestText());
    const QSize room = canvas_.Spread(menus_, menuText);

    const double wanted = kPixelsPerPoint * TextGrowth(growth) / TextRatio(form_);
    const auto fits = [&room](const std::pair<Stretch, Stretch>& fit) {
        return fit.first.Whole() <= room.width() + 1 && fit.second.Whole() <= room.height() + 1;
    };
    pointPixels_ = wanted;
    std::pair<Stretch, Stretch> fit = Fit(pointPixels_, room);
    for (double share = kTextStep; !fits(fit) && share > kLeastText; share *= kTextStep) {
        pointPixels_ = wanted * share;
        fit = Fit(pointPixels_, room);
    }
    TellNames();
    const auto& [x, y] = fit;
    QWidget& sheet = canvas_.Sheet();
    sheet.resize(std::max(room.width(), static_cast<int>(x.Whole())),
                 std::max(room.height(), static_cast<int>(y.Whole())));
    // What the design leaves over stands around it.
    const double left = (sheet.width() - x.Whole()) / 2;
    const double above = (sheet.height() - y.Whole()) / 2;
    arranged_.clear();
    for (ControlWidget* widget : widgets_) {
        const Place design = PlaceOf(widget->Logical());
        arranged_.emplace_back(&widget->Logical(), design);
        const int edge = widget->Logical().kind == ControlKind::Line ? LineWidget::kWidth : 0;
        const QRect box{QPoint{qRound(left + x.At(design.left)), qRound(above + y.At(design.top))},
                        QPoint{qRound(left + x.At(design.left + design.width)) - 1,
                               qRound(above + y.At(design.top + design.height)) - 1}};
        widget->Widget().setGeometry(box.adjusted(-edge / 2, -edge / 2, edge - edge / 2, edge - edge / 2));
    }
}

std::pair<Stretch, Stretch> GenericLayout::Fit(double pointPixels, const QSize& room) {
    const Place& place = form_.FormPlace();
    std::vector<Span> columns;
    std::vector<Span> rows;
    for (ControlWidget* widget : widgets_) {
        const Control& control = widget->Logical();
        const Place design = PlaceOf(control);
        widget->SetLook(LookOf(control, pointPixels));
        const double widest = design.width / place.width * room.width() * kLargestTextRatio;
        const double need = control.kind == ControlKind::Line ? 0 : widget->Needed(0).width();
        columns.push_back({design.left, design.left + design.width, std::min(need, widest)});
        if (const auto inside = PlaceWithin(control)) {
            const QMargins edges = widget->Widget().contentsMargins();
            columns.push_back({design.left, inside->left, static_cast<double>(edges.left())});
            columns.push_back(
                {inside->left + inside->width, design.left + design.width, static_cast<double>(edges.right())});
        }
    }
    Stretch x = Stretch::Into(room.width(), columns, place.width);
    for (ControlWidget* widget : widgets_) {
        const Control& control = widget->Logical();
        const Place design = PlaceOf(control);
        const int width = static_cast<int>(x.At(design.left + design.width) - x.At(design.left));
        const double need = control.kind == ControlKind::Line ? 0 : widget->Needed(width).height();
        rows.push_back({design.top, design.top + design.height, need});
        if (const auto inside = PlaceWithin(control)) {
            const QMargins edges = widget->Widget().contentsMargins();
            rows.push_back({design.top, inside->top, static_cast<double>(edges.top())});
            rows.push_back(
                {inside->top + inside->height, design.top + design.height, static_cast<double>(edges.bottom())});
        }
    }
    Stretch y = Stretch::Into(room.height(), rows, place.height);
    return {std::move(x), std::move(y)};
}

std::optional<Place> GenericLayout::PlaceWithin(const Control& frame) const {
    std::optional<Place> whole;
    for (const ControlWidget* widget : widgets_) {
        if (widget->Logical().Frame() == &frame) {
            const Place place = PlaceOf(widget->Logical());
            whole = whole ? Around(*whole, place) : place;
        }
    }
    return whole;
}

Look GenericLayout::LookOf(const Control& control, double pointPixels) const {
    Look look;
    look.pixels = std::max(control.State().fontSize * pointPixels, canvas_.SmallestText());
    const bool oneLine = IsOneLine(control);
    look.wrapped = control.kind == ControlKind::Label && !oneLine;
    look.trimmed = control.kind == ControlKind::Label && oneLine;
    look.alignment = Qt::AlignLeft | (oneLine || control.kind != ControlKind::Label ? Qt::AlignVCenter : Qt::AlignTop);
    look.spokenName = SpokenName(control);
    return look;
}

Place GenericLayout::PlaceOf(const Control& control) const {
    const ControlState& state = control.State();
    if (control.kind == ControlKind::Line) {
        return {std::min(state.x1, state.x2), std::min(state.y1, state.y2), std::abs(state.x2 - state.x1),
                std::abs(state.y2 - state.y1)};
    }
    if (control.kind != ControlKind::Label || !IsOneLine(control)) {
        return state.place;
    }
    const auto onItsLine = std::ranges::find_if(widgets_, [&state](const ControlWidget* other) {
        return IsField(other->Logical()) && IsBeside(state.place, other->Logical().State().place);
    });
    if (onItsLine == widgets_.end()) {
        return state.place;
    }
    const Place& field = (*onItsLine)->Logical().State().place;
    return {state.place.left, Middle(field) - state.place.height / 2, state.place.width, state.place.height};
}

/// What is filled in or read is called by the label that stands by it; what is pressed, by its own caption, and before
/// that by what tells it from others of the same caption.
QString GenericLayout::SpokenName(const Control& control) const {
    const Control* caption = nullptr;
    if (IsCalledByCaption(control)) {
        const ControlWidget* label = CaptionOf(control);
        caption = label == nullptr ? control.Frame() : &label->Logical();
    } else if (IsPressed(control)) {
        caption = control.Frame() == nullptr ? RowCaptionOf(control) : control.Frame();
    }
    return caption == nullptr ? QString{} : CaptionText(caption->State().text);
}

ControlWidget* GenericLayout::CaptionOf(const Control& control) const {
    const Place& box = control.State().place;
    ControlWidget* nearest = nullptr;
    double shortest = std::max(box.width, 2400.0);
    for (ControlWidget* widget : widgets_) {
        const Control& label = widget->Logical();
        if (label.kind != ControlKind::Label || label.State().text.empty() || (IsValue(label) && IsValue(control))) {
            continue;
        }
        const Place& place = label.State().place;
        const bool beside = IsWithin(Middle(place), box.top, box.height) && place.left < box.left;
        const bool above = !IsValue(control) && place.top < box.top &&
                           (IsWithin(place.left + place.width / 2, box.left, box.width) || place.left == box.left);
        const double distance = beside ? box.left - place.left - place.width : box.top - place.top - place.height;
        if ((beside || above) && distance < shortest) {
            shortest = distance;
            nearest = widget;
        }
    }
    return nearest;
}

const Control* GenericLayout::RowCaptionOf(const Control& button) const {
    const auto isTwin = [&button](const ControlWidget* other) {
        const Control& twin = other->Logical();
        return &twin != &button && IsPressed(twin) && twin.State().text == button.State().text;
    };
    if (std::ranges::none_of(widgets_, isTwin)) {
        return nullptr;
    }
    const Place& place = button.State().place;
    const auto head = std::ranges::find_if(widgets_, [&place](const ControlWidget* other) {
        const Control& label = other->Logical();
        const Place& its = label.State().place;
        return label.kind == ControlKind::Label && IsWithin(Middle(its), place.top, place.height) &&
               its.left < place.left;
    });
    return head == widgets_.end() ? nullptr : &(*head)->Logical();
}

/// Also ties each label to what it names, for screen readers that follow the tie.
void GenericLayout::TellNames() {
    namesStale_ = false;
    for (ControlWidget* widget : widgets_) {
        const Control& control = widget->Logical();
        widget->SetLook(LookOf(control, pointPixels_));
        ControlWidget* caption = IsCalledByCaption(control) && !IsValue(control) ? CaptionOf(control) : nullptr;
        auto* label = caption == nullptr ? nullptr : static_cast<QLabel*>(&caption->Widget());
        if (label != nullptr && label->buddy() != &widget->Widget()) {
            label->setBuddy(&widget->Widget());
        }
    }
}

}  // namespace tallyhut
