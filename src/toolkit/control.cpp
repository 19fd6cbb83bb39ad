#include "toolkit/control.h"

#include "toolkit/controls.h"
#include "toolkit/desk.h"
#include "toolkit/form.h"
#include "values/secret.h"

namespace tallyhut {
namespace {

bool KindTakesFocus(const Control& control) {
    switch (control.kind) {
        case ControlKind::Label:
            return control.State().takesFocus;
        case ControlKind::TextBox:
        case ControlKind::Button:
        case ControlKind::Option:
        case ControlKind::CheckBox:
        case ControlKind::List:
        case ControlKind::ListView:
            return true;
        default:
            return false;
    }
}

int RowCountOf(const Control& control) {
    if (control.kind == ControlKind::ListView) {
        return static_cast<int>(static_cast<const ListView&>(control).RowCount());
    }
    return static_cast<int>(control.State().items.size());
}

}  // namespace

Control::Control(Form& owner, ControlKind controlKind, std::string controlName, int controlIndex)
    : form{owner}, kind{controlKind}, name{std::move(controlName)}, index{controlIndex} {
    form.controls_.push_back(this);
}

Control::~Control() {
    if (state_.secret) {
        OverwriteFrom(state_.text, 0);
    }
    std::erase(form.controls_, this);
    form.desk.Forget(*this);
}

std::string Control::FullName() const {
    return index < 0 ? name : name + '(' + std::to_string(index) + ')';
}

bool Control::IsShown() const {
    return state_.visible && (frame_ == nullptr || frame_->IsShown());
}

bool Control::CanTakeFocus() const {
    return KindTakesFocus(*this) && state_.enabled && IsShown();
}

bool Control::HasFocus() const {
    return form.focus_ == this;
}

void Control::SetFocus() {
    if (CanTakeFocus()) {
        form.desk.MoveFocus(*this);
    }
}

void Control::GiveFocusBack() {
    if (CanTakeFocus()) {
        form.desk.ReturnFocus(*this);
    }
}

void Control::SetVisible(bool visible) {
    if (state_.visible == visible) {
        return;
    }
    state_.visible = visible;
    Touch();
    form.FocusMayHaveGone(*this);
}

void Control::SetEnabled(bool enabled) {
    if (kind == ControlKind::Timer) {  // counts anew, whoever sets it
        static_cast<Timer&>(*this).SetTimerEnabled(enabled);
        return;
    }
    if (state_.enabled == enabled) {
        return;
    }
    state_.enabled = enabled;
    Touch();
    form.FocusMayHaveGone(*this);
}

void Control::SetToolTip(std::string_view text) {
    if (state_.toolTip != text) {
        state_.toolTip = text;
        Touch();
    }
}

void Control::SetForeColor(Colour colour) {
    if (state_.foreColor != colour) {
        state_.foreColor = colour;
        Touch();
    }
}

void Control::SetBackColor(Colour colour) {
    if (state_.backColor != colour) {
        state_.backColor = colour;
        Touch();
    }
}

void Control::SetFontSize(double points) {
    state_.fontSize = points;
    Touch();
}

void Control::SetBold(bool bold) {
    if (state_.bold != bold) {
        state_.bold = bold;
        Touch();
    }
}

void Control::SetUnderlined(bool underlined) {
    if (state_.underlined != underlined) {
        state_.underlined = underlined;
        Touch();
    }
}

void Control::SetItalic(bool italic) {
    if (state_.italic != italic) {
        state_.italic = italic;
        Touch();
    }
}

void Control::SetPointed(bool pointed) {
    if (state_.pointed != pointed) {
        state_.pointed = pointed;
        Touch();
    }
}

void Control::SetRefused(bool refused) {
    if (state_.refused != refused) {
        state_.refused = refused;
        Touch();
    }
}

void Control::SetTabIndex(int position) {
    state_.tabIndex = position;
    Touch();
}

void Control::SetPlace(const Place& place) {
    if (state_.place != place) {
        state_.place = place;
        Touch();
    }
}

void Control::Redesign(const Place& place) {
    if (design_) {
        design_->place = place;
    }
    SetPlace(place);
}

void Control::PutInto(Control& frame) {
    frame_ = &frame;
}

void Control::SetTextValue(std::string_view text) {
    if (kind == ControlKind::TextBox && state_.maxLength > 0) {
        text = text.substr(0, static_cast<std::size_t>(state_.maxLength));
    }
    if (state_.text == text) {
        return;
    }
    if (state_.secret) {
        OverwriteFrom(state_.text, 0);
    }
    state_.text = text;
    state_.refused = false;
    state_.selStart = 0;
    state_.selLength = 0;
    Touch();
    form.desk.Call(Change);
}

void Control::SetChosen(bool chosen) {
    if (state_.chosen == chosen) {
        return;
    }
    state_.chosen = chosen;
    Touch();
    if (kind == ControlKind::CheckBox) {
        form.desk.Call(Click);
        return;
    }
    if (kind != ControlKind::Option || !chosen) {
        return;
    }
    for (Control* other : form.controls_) {
        if (other != this && other->kind == ControlKind::Option && other->frame_ == frame_ && other->state_.chosen) {
            other->state_.chosen = false;
            other->Touch();
        }
    }
    form.desk.Call(Click);
}

void Control::SetRow(int row) {
    const int wanted = row >= 0 && row < RowCountOf(*this) ? row : -1;
    if (state_.row == wanted) {
        return;
    }
    state_.row = wanted;
    Touch();
    if (wanted >= 0) {
        form.desk.Call(Click);
    }
}

void Control::Touch() {
    if (form.desk.outlets.controlChanged) {
        form.desk.outlets.controlChanged(*this);
    }
}

}  // namespace tallyhut
