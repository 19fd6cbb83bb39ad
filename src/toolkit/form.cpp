#include "toolkit/form.h"

#include <algorithm>
#include <utility>

#include "toolkit/controls.h"
#include "toolkit/desk.h"
#include "values/secret.h"

namespace tallyhut {

using FormEvent = DeskOutlets::FormEvent;

namespace {

void Tell(Form& form, FormEvent event) {
    if (form.desk.outlets.formChanged) {
        form.desk.outlets.formChanged(form, event);
    }
}

}  // namespace

Form::Form(Desk& owner, std::string formName, std::string caption, const FormDesign& formDesign)
    : desk{owner},
      name{std::move(formName)},
      design{formDesign},
      caption_{std::move(caption)},
      designCaption_{caption_},
      place_{.width = formDesign.width, .height = formDesign.height} {
    desk.forms_.push_back(this);
}

Form::~Form() {
    desk.ForgetFocusEvents(*this);
    std::erase(desk.forms_, this);
    std::erase(desk.front_, this);
    std::erase(desk.modals_, this);
    if (desk.lastActive_ == this) {
        desk.lastActive_ = nullptr;
    }
}

void Form::SetCaption(std::string_view caption) {
    caption_ = caption;
    Tell(*this, FormEvent::Changed);
}

void Form::SetFormPlace(const Place& place) {
    if (place_ == place) {
        return;
    }
    place_ = place;
    Tell(*this, FormEvent::Changed);
    if (loaded_) {
        desk.Call(Form_Resize);
    }
}

bool Form::IsActive() const {
    return desk.Active() == this;
}

void Form::Load() {
    if (loaded_) {
        return;
    }
    KeepDesign();
    loaded_ = true;
    RestartTimers();
    desk.Call(Form_Load);
}

void Form::Show() {
    Load();
    if (!visible_) {
        visible_ = true;
        Tell(*this, FormEvent::Shown);
    }
    if (minimised_) {
        Restore();
    }
    desk.BringToFront(*this);
    if (!shownBefore_) {
        shownBefore_ = true;
        FocusLowestTabStop();
    }
}

void Form::ShowModal() {
    Load();
    modal_ = true;
    visible_ = true;
    desk.modals_.push_back(this);
    Tell(*this, FormEvent::ShownModal);
    Restore();
    desk.BringToFront(*this);
    if (!shownBefore_) {
        shownBefore_ = true;
        FocusLowestTabStop();
    }
    desk.RunUntil([this] { return !visible_; });
    std::erase(desk.modals_, this);
    modal_ = false;
    desk.NoteActive();
}

void Form::Hide() {
    if (!visible_) {
        return;
    }
    visible_ = false;
    minimised_ = false;
    desk.ForgetFocusEvents(*this);
    std::erase(desk.front_, this);
    Tell(*this, FormEvent::Hidden);
    desk.NoteActive();
}

void Form::Unload() {
    if (!loaded_) {
        return;
    }
    desk.Call(Form_Unload);
    Hide();
    loaded_ = false;
    shownBefore_ = false;
    focus_ = nullptr;
    RestoreDesign();
    RestartTimers();
}

void Form::RequestClose() {
    if (!loaded_) {
        return;
    }
    bool cancel = false;
    desk.Call(Form_QueryUnload, cancel);
    if (!cancel) {
        Unload();
    } else if (visible_) {
        Tell(*this, FormEvent::Refused);
    }
}

void Form::Minimise() {
    if (visible_ && !minimised_) {
        minimised_ = true;
        Tell(*this, FormEvent::Minimised);
        desk.NoteActive();
    }
}

void Form::Restore() {
    if (minimised_) {
        minimised_ = false;
        Tell(*this, FormEvent::Restored);
        desk.NoteActive();
    }
}

Control* Form::Find(std::string_view fullName) const {
    const auto found =
        std::ranges::find_if(controls_, [fullName](const Control* control) { return control->FullName() == fullName; });
    return found == controls_.end() ? nullptr : *found;
}

std::vector<Control*> Form::TabStops() const {
    std::vector<Control*> stops;
    for (Control* control : controls_) {
        if (control->CanTakeFocus() && control->state_.tabStop) {
            stops.push_back(control);
        }
    }
    std::ranges::stable_sort(stops, {}, [](const Control* control) { return control->state_.tabIndex; });
    std::vector<Control*> visited;
    for (Control* stop : stops) {
        if (stop->kind != ControlKind::Option) {
            visited.push_back(stop);
            continue;
        }
        const auto sameGroup = [stop](const Control* other) {
            return other->kind == ControlKind::Option && other->frame_ == stop->frame_;
        };
        const bool someChosen =
            std::ranges::any_of(stops, [&](const Control* other) { return sameGroup(other) && other->state_.chosen; });
        const bool first = *std::ranges::find_if(stops, sameGroup) == stop;
        if (someChosen ? stop->state_.chosen : first) {
            visited.push_back(stop);
        }
    }
    return visited;
}

/// They count while the form is loaded.
void Form::RestartTimers() {
    for (Control* control : controls_) {
        if (control->kind == ControlKind::Timer) {
            static_cast<Timer*>(control)->Restart();
        }
    }
}

/// Once: what is set between an unload and the next load is a value, not the design.
void Form::KeepDesign() {
    if (std::exchange(designKept_, true)) {
        return;
    }
    for (Control* control : controls_) {
        control->design_ = control->state_;
    }
}

/// Labels made at run time have no design value and stay as they are.
void Form::RestoreDesign() {
    place_ = {.width = design.width, .height = design.height};
    SetCaption(designCaption_);
    for (Control* control : controls_) {
        if (!control->design_) {
            continue;
        }
        if (control->state_.secret) {
            OverwriteFrom(control->state_.text, 0);
        }
        control->state_ = *control->design_;
        if (control->kind == ControlKind::ListView) {
            static_cast<ListView*>(control)->SetRows(0, {});
        } else if (control->kind == ControlKind::Raster) {
            static_cast<Raster*>(control)->Draw([](RasterImage& image) { image = {}; });
        } else {
            control->Touch();
        }
    }
}

void Form::FocusLowestTabStop() {
    if (focus_ != nullptr && focus_->CanTakeFocus()) {  // remembered from before the form was shown
        desk.focusEvents_.push_back({Desk::FocusStep::Got, focus_, this});
        return;
    }
    const std::vector<Control*> stops = TabStops();
    if (!stops.empty()) {
        focus_ = stops.front();
        desk.focusEvents_.push_back({Desk::FocusStep::Got, focus_, this});
        focus_->Touch();
    }
}

void Form::FocusMayHaveGone(const Control& control) {
    if (focus_ == nullptr || focus_->CanTakeFocus()) {
        return;
    }
    const bool lost = focus_ == &control || (control.kind == ControlKind::Frame && !focus_->IsShown());
    if (!lost) {
        return;
    }
    const std::vector<Control*> stops = TabStops();
    if (stops.empty()) {
        focus_ = nullptr;
    } else {
        desk.ShiftFocus(*stops.front());  // a form in the background stays there
    }
}

}  // namespace tallyhut
