#include "toolkit/desk.h"

#include <algorithm>
#include <utility>

#include "toolkit/png.h"

namespace tallyhut {

using FormEvent = DeskOutlets::FormEvent;

namespace {

/// Lets a nested loop take input although a procedure below it holds input back.
class HoldsSetAside {
public:
    explicit HoldsSetAside(int& holds) : holds_{holds}, before_{std::exchange(holds, 0)} {}
    ~HoldsSetAside() { holds_ = before_; }
    HoldsSetAside(const HoldsSetAside&) = delete;
    HoldsSetAside& operator=(const HoldsSetAside&) = delete;
    HoldsSetAside(HoldsSetAside&&) = delete;
    HoldsSetAside& operator=(HoldsSetAside&&) = delete;

private:
    int& holds_;
    int before_;
};

/// Counts the dialogs that stand, also when the program ends in one.
class StandingDialog {
public:
    explicit StandingDialog(int& count) : count_{count} { ++count_; }
    ~StandingDialog() { --count_; }
    StandingDialog(const StandingDialog&) = delete;
    StandingDialog& operator=(const StandingDialog&) = delete;
    StandingDialog(StandingDialog&&) = delete;
    StandingDialog& operator=(StandingDialog&&) = delete;

private:
    int& count_;
};

}  // namespace

Desk::Desk(Clock& machineClock, EventPump& machinePump, Dialogs& machineDialogs, Clipboard& machineClipboard)
    : clock{machineClock}, pump{machinePump}, dialogs{machineDialogs}, clipboard{machineClipboard} {}

Desk::~Desk() = default;

Form* Desk::FindForm(std::string_view name) const {
    const auto found = std::ranges::find_if(forms_, [name](const Form* form) { return form->name == name; });
    return found == forms_.end() ? nullptr : *found;
}

void Desk::ArrangeForms(std::span<const std::string_view> names) {
    const auto placeOf = [names](const Form* form) { return std::ranges::find(names, form->name) - names.begin(); };
    std::ranges::stable_sort(forms_, {}, placeOf);
}

Form* Desk::Active() const {
    const auto takesKeys = [](const Form* form) {
        return form->visible_ && !form->minimised_ && !form->design.neverActive;
    };
    if (Form* modal = ForemostModal(); modal != nullptr) {
        return takesKeys(modal) ? modal : nullptr;
    }
    const auto found = std::find_if(front_.rbegin(), front_.rend(), takesKeys);
    return found == front_.rend() ? nullptr : *found;
}

Form* Desk::ForemostModal() const {
    const auto shown =
        std::find_if(modals_.rbegin(), modals_.rend(), [](const Form* modal) { return modal->visible_; });
    return shown == modals_.rend() ? nullptr : *shown;
}

bool Desk::IsBlockedByModal(const Form& form) const {
    const Form* modal = ForemostModal();
    return modal != nullptr && modal != &form;
}

void Desk::Activate(Form& form) {
    if (form.visible_ && !IsBlockedByModal(form)) {
        form.Restore();
        BringToFront(form);
    }
}

void Desk::BringToFront(Form& form) {
    std::erase(front_, &form);
    front_.push_back(&form);
    NoteActive();
}

void Desk::NoteActive() {
    Form* active = Active();
    if (active == lastActive_) {
        return;
    }
    lastActive_ = active;
    if (openMenu_ != nullptr && &openMenu_->form != active) {
        CloseMenu();
    }
    if (active == nullptr) {
        return;
    }
    focusEvents_.push_back({FocusStep::Activated, nullptr, active});
    if (outlets.formChanged) {
        outlets.formChanged(*active, FormEvent::Activated);
    }
}

void Desk::Announce(std::string_view words) const {
    if (outlets.announced) {
        outlets.announced(words);
    }
}

std::string Desk::PngOf(const Raster& picture) const {
    return outlets.png ? outlets.png(picture) : tallyhut::PngOf(picture.Image());
}

void Desk::MoveFocus(Control& to) {
    Activate(to.form);
    ShiftFocus(to);
}

void Desk::ShiftFocus(Control& to) {
    Form& form = to.form;
    Control* from = form.focus_;
    if (!form.visible_) {
        form.focus_ = &to;  // remembered for the next show
        return;
    }
    if (from == &to) {
        return;
    }
    form.focus_ = &to;
    ++focusMoves_;
    if (from != nullptr) {
        focusEvents_.push_back({FocusStep::Lost, from, &form});
        from->Touch();
    }
    focusEvents_.push_back({FocusStep::Got, &to, &form});
    to.Touch();
}

void Desk::ReturnFocus(Control& to) {
    Form& form = to.form;
    std::erase_if(focusEvents_, [&form](const FocusEvent& event) {
        return event.form == &form && event.step != FocusStep::Activated;
    });
    if (form.focus_ == &to) {
        return;
    }
    if (!form.visible_) {
        form.focus_ = &to;
        return;
    }
    if (form.focus_ != nullptr) {
        form.focus_->Touch();
    }
    form.focus_ = &to;
    ++focusMoves_;
    focusEvents_.push_back({FocusStep::Got, &to, &form});
    to.Touch();
}

void Desk::ForgetFocusEvents(const Form& form) {
    std::erase_if(focusEvents_, [&form](const FocusEvent& event) { return event.form == &form; });
}

void Desk::Forget(const Control& control) {
    if (outlets.controlRemoved) {
        outlets.controlRemoved(const_cast<Control&>(control));
    }
    std::erase_if(focusEvents_, [&control](const FocusEvent& event) { return event.control == &control; });
    std::erase_if(operatorEvents_, [&control](const OperatorEvent& event) { return event.target == &control; });
    ForgetWatched(&control);
    if (openMenu_ == &control) {
        openMenu_ = nullptr;
    }
    if (control.form.focus_ == &control) {
        control.form.focus_ = nullptr;
    }
}

void Desk::ForgetWatched(const void* watched) {
    std::ranges::replace(watched_, watched, nullptr);
}

bool Desk::IsWatched(const void* watched) const {
    return std::ranges::count(watched_, watched) > 0;
}

void Desk::PostKey(const Key& key) {
    if (key.code == kKeyShift || key.code == kKeyControl || key.code == kKeyMenu) {
        return;  // a modifier alone is no key yet
    }
    operatorEvents_.push_back({.key = key, .action = {}, .target = nullptr});
}

void Desk::PostClick(Control& control, MouseButton button, bool twice) {
    operatorEvents_.push_back({.key = {},
                               .action = [this, &control, button, twice] { DeliverClick(control, button, twice); },
                               .target = &control});
}

void Desk::PostRowClick(Control& listControl, int row, MouseButton button, bool twice) {
    operatorEvents_.push_back(
        {.key = {},
         .action = [this, &listControl, row, button, twice] { DeliverRowClick(listControl, row, button, twice); },
         .target = &listControl});
}

void Desk::PostAction(std::function<void()> action) {
    operatorEvents_.push_back({.key = {}, .action = std::move(action), .target = nullptr});
}

void Desk::SendKeys(const Key& key) {
    sentKeys_.push_back(key);
}

void Desk::PostMenu(MenuEntry& entry) {
    operatorEvents_.push_back({.key = {}, .action = [this, &entry] { ClickEntry(entry); }, .target = &entry});
}

void Desk::RunPending() {
    RunPendingUntil([] { return false; });
}

void Desk::RunPendingUntil(const std::function<bool()>& done) {
    if (frozen_) {
        return;
    }
    pump.Collect();
    const Tick now = clock.TickMs();
    std::uint64_t round = ++rounds_;
    bool isLast = false;
    while (!done()) {
        if (RunFocusEvent() || RunSource(round) || RunDueAlarm(now)) {
            continue;
        }
        if (!RunOperatorEvent()) {
            if (isLast || !SourceWaits()) {
                return;
            }
            isLast = true;  // a source that signals itself for ever keeps nobody here
        }
        round = ++rounds_;
    }
}

void Desk::RunFocusEvents() {
    while (!frozen_ && RunFocusEvent()) {
    }
}

void Desk::RunTimersAndIo() {
    if (!frozen_) {
        pump.Collect();
        RunRoundOfTimersAndIo();
    }
}

void Desk::RunBetweenSteps() {
    if (!frozen_) {
        pump.CollectBetweenSteps();
        RunRoundOfTimersAndIo();
    }
}

void Desk::RunRoundOfTimersAndIo() {
    const Tick now = clock.TickMs();
    const std::uint64_t round = ++rounds_;
    while (RunSource(round) || RunDueAlarm(now)) {
    }
}

void Desk::RunUntil(const std::function<bool()>& done) {
    const HoldsSetAside aside{inputHolds_};
    while (!done()) {
        RunPendingUntil(
            done);  // what is typed ahead of the end belongs to the form beneath, after the caller's own steps
        if (done()) {
            return;
        }
        Wait(NextDue());
    }
}

void Desk::RunDialog(const std::function<bool()>& done) {
    const StandingDialog standing{openDialogs_};
    while (!done()) {
        if (frozen_) {
            pump.Collect();
        } else {
            RunTimersAndIo();
        }
        if (done()) {
            return;
        }
        if (frozen_) {
            pump.WaitUntil(std::nullopt);
        } else {
            Wait(NextAlarmDue());
        }
    }
}

void Desk::Wait(std::optional<Tick> due) {
    if (SourceWaits()) {
        pump.Yield();
    } else {
        pump.WaitUntil(due);
    }
}

bool Desk::RunFocusEvent() {
    if (focusEvents_.empty()) {
        return false;
    }
    const FocusEvent event = focusEvents_.front();
    focusEvents_.pop_front();
    switch (event.step) {
        case FocusStep::Lost:
            Call(event.control->LostFocus);
            break;
        case FocusStep::Got:
            Call(event.control->GotFocus);
            break;
        case FocusStep::Activated:
            Call(event.form->Form_Activate);
            break;
    }
    return true;
}

/// A round that runs inside of this one has a higher number: whom it gave a turn has none left here.
bool Desk::RunSource(std::uint64_t round) {
    const auto ready = std::ranges::find_if(sources_, [this, round](const IoSource* source) {
        return source->signalled_ && source->ranIn_ < round && !IsWatched(source);
    });
    if (ready == sources_.end()) {
        return false;
    }
    IoSource& source = **ready;
    source.signalled_ = false;
    source.ranIn_ = round;
    const Watch watch{*this, &source};
    Call(source.handler_);
    if (!watch.IsGone() && source.watch_) {
        source.watch_->Rearm();  // not before: what the handler has not read yet is nothing new
    }
    return true;
}

bool Desk::SourceWaits() const {
    return std::ranges::any_of(sources_,
                               [this](const IoSource* source) { return source->signalled_ && !IsWatched(source); });
}

/// The one that is due first; of those due at once the one made first.
Alarm* Desk::EarliestAlarm() const {
    Alarm* earliest = nullptr;
    for (Alarm* alarm : alarms_) {
        const bool counts = alarm->IsStarted() && !IsWatched(alarm);
        if (counts && (earliest == nullptr || *alarm->due_ < *earliest->due_)) {
            earliest = alarm;
        }
    }
    return earliest;
}

std::optional<Tick> Desk::NextAlarmDue() const {
    const Alarm* alarm = EarliestAlarm();
    return alarm == nullptr ? std::nullopt : alarm->due_;
}

bool Desk::RunDueAlarm(Tick now) {
    Alarm* alarm = EarliestAlarm();
    if (alarm == nullptr || *alarm->due_ > now) {
        return false;
    }
    alarm->PassOn(std::max(clock.TickMs(), now));  // late or not, it runs once and counts on from here
    const Watch watch{*this, alarm};
    Call(alarm->handler_);
    return true;
}

std::optional<Tick> Desk::GateOf(const Key& key) const {
    const Form* form = Active();
    const Control* control = form == nullptr ? nullptr : form->focus_;
    const bool forMenu = openMenu_ != nullptr;
    if (forMenu || control == nullptr || !control->KeyGate || key.character == 0) {
        return std::nullopt;
    }
    const std::optional<Tick> until = control->KeyGate(key);
    return until && *until > clock.TickMs() ? until : std::nullopt;
}

std::optional<Tick> Desk::HeldUntil() const {
    if (inputHolds_ > 0 || !sentKeys_.empty() || operatorEvents_.empty() || !operatorEvents_.front().key) {
        return std::nullopt;
    }
    return GateOf(*operatorEvents_.front().key);
}

std::optional<Tick> Desk::NextDue() const {
    const std::optional<Tick> alarm = NextAlarmDue();
    const std::optional<Tick> held = HeldUntil();
    return alarm && held ? std::min(*alarm, *held) : (alarm ? alarm : held);
}

bool Desk::RunOperatorEvent() {
    if (inputHolds_ > 0) {
        return false;
    }
    if (!sentKeys_.empty()) {
        const Key key = sentKeys_.front();
        sentKeys_.pop_front();
        DeliverKey(key);
        return true;
    }
    auto next = operatorEvents_.begin();
    if (HeldUntil()) {  // only keys wait; what the mouse does acts at once
        next = std::ranges::find_if(operatorEvents_, [this](const OperatorEvent& event) {
            return !event.key || (isUrgent && isUrgent(*event.key));
        });
    }
    if (next == operatorEvents_.end()) {
        return false;
    }
    const OperatorEvent event = std::move(*next);
    operatorEvents_.erase(next);
    if (event.key) {
        DeliverKey(*event.key);
    } else {
        Call(event.action);
    }
    return true;
}

void Desk::Tell(const PlatformError& failure) {
    if (!onFailure || frozen_) {
        Fatal(failure);
        return;
    }
    try {
        onFailure(failure);
    } catch (const std::exception& ofTelling) {
        Fatal(ofTelling);
    }
}

void Desk::Fatal(const std::exception& failure) {
    if (!std::exchange(frozen_, true)) {
        Call(onFatal, failure);
    }
    pump.EndProgram(1);
}

}  // namespace tallyhut
