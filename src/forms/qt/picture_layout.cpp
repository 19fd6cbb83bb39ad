#include "forms/qt/picture_layout.h"

#include <algorithm>
#include <utility>

#include "forms/qt/text_codec.h"

namespace tallyhut {
namespace {

constexpr QSize kSmallestWindow{300, 176};  // half of a small screen
/// The size of plain text, as a share of the window's height and width; a label twice as high has text twice as large.
constexpr double kTextOfHeight = 0.02;
constexpr double kTextOfWidth = 0.01125;
constexpr double kPlainLabel = 200;  ///< design units of its height

}  // namespace

PictureLayout::PictureLayout(Form& form, QWidget& window)
    : form_{form}, window_{window}, sheet_{new PictureGround{DarkSheet(), &window}} {
    window_.setMinimumSize(kSmallestWindow);
}

void PictureLayout::Add(ControlWidget& widget) {
    widgets_.push_back(&widget);
    moved_.push_back(&widget);
}

void PictureLayout::Remove(ControlWidget& widget) {
    std::erase(widgets_, &widget);
    std::erase(moved_, &widget);
}

void PictureLayout::Changed(ControlWidget& widget) {
    moved_.push_back(&widget);
}

void PictureLayout::Settle() {
    for (ControlWidget* widget : std::exchange(moved_, {})) {
        Put(*widget);
    }
}

void PictureLayout::Arrange() {
    sheet_->setGeometry(window_.rect());
    moved_ = widgets_;
    Settle();
}

void PictureLayout::Put(ControlWidget& widget) {
    const Control& control = widget.Logical();
    const Place frame{0, 0, form_.FormPlace().width, form_.FormPlace().height};
    const QRect box = BoxInPicture(control, frame, sheet_->rect());
    Look look;
    look.data = true;
    look.ground = DarkSheet();
    const double plain = std::min(sheet_->height() * kTextOfHeight, sheet_->width() * kTextOfWidth);
    const ControlState* design = control.Design();
    look.pixels = plain * (design == nullptr ? control.State() : *design).place.height / kPlainLabel;
    look.alignment = Qt::AlignVCenter | (control.index < 0 ? Qt::AlignLeft : Qt::AlignRight);
    if (control.State().takesFocus) {
        look.spokenName = ToQt(form_.Caption()).trimmed();
    }
    widget.SetLook(look);
    widget.Widget().setGeometry(box);
}

}  // namespace tallyhut
