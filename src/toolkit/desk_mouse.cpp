#include "toolkit/desk.h"

namespace tallyhut {

bool Desk::CanBeClicked(const Control& control) const {
    return control.form.visible_ && !IsBlockedByModal(control.form) && control.IsShown() && control.state_.enabled;
}

bool Desk::TakeFocusByMouse(Control& control) {
    const int boxes = dialogs.Shown();
    const Watch watch{*this, &control};
    CloseMenu();
    Activate(control.form);
    while (RunFocusEvent()) {  // Form_Activate may move the focus; that is no move away from the control
    }
    if (watch.IsGone()) {
        return false;
    }
    if (control.CanTakeFocus() && control.kind != ControlKind::Label) {
        control.SetFocus();
        const int moves = focusMoves_;
        while (RunFocusEvent()) {
        }
        if (moves != focusMoves_) {
            return false;
        }
    }
    return !watch.IsGone() && boxes == dialogs.Shown() && CanBeClicked(control);
}

void Desk::ChooseByOperator(Control& control) {
    switch (control.kind) {
        case ControlKind::Option:
            control.SetChosen(true);
            break;
        case ControlKind::CheckBox:
            control.SetChosen(!control.state_.chosen);
            break;
        default:
            Call(control.Click);
    }
}

void Desk::DeliverClick(Control& control, MouseButton button, bool twice) {
    if (!CanBeClicked(control) || control.kind == ControlKind::List || control.kind == ControlKind::ListView) {
        return;  // empty ground of a list is nothing to click on
    }
    if (!TakeFocusByMouse(control)) {
        return;
    }
    const Watch watch{*this, &control};
    Call(control.MouseDown, button);
    if (!watch.IsGone()) {
        Call(control.MouseUp, button);
    }
    if (!watch.IsGone() && button == kLeftButton) {
        ChooseByOperator(control);
    }
    if (!watch.IsGone() && button == kLeftButton && twice) {
        Call(control.DblClick);
    }
}

void Desk::PressByKey(Control& control) {
    if (CanBeClicked(control) && TakeFocusByMouse(control)) {
        ChooseByOperator(control);
    }
}

void Desk::ClickRow(Control& listControl, int row, MouseButton button) {
    listControl.state_.row = row;
    listControl.Touch();
    Call(listControl.MouseDown, button);
    Call(listControl.MouseUp, button);
    if (button == kLeftButton) {
        Call(listControl.Click);
    }
}

void Desk::DeliverRowClick(Control& listControl, int row, MouseButton button, bool twice) {
    const std::size_t rows = listControl.kind == ControlKind::ListView
                                 ? static_cast<const ListView&>(listControl).RowCount()
                                 : listControl.state_.items.size();
    if (!CanBeClicked(listControl) || row < 0 || static_cast<std::size_t>(row) >= rows ||
        !TakeFocusByMouse(listControl)) {
        return;
    }
    ClickRow(listControl, row, button);
    if (twice && button == kLeftButton) {
        Call(listControl.DblClick);
    }
}

void Desk::ClickEntry(MenuEntry& entry) {
    CloseMenu();
    if (entry.form.visible_ && !IsBlockedByModal(entry.form) && entry.state_.visible && entry.state_.enabled) {
        Call(entry.Click);
    }
}

void Desk::SetOpenMenu(MenuEntry* entry) {
    openMenu_ = entry;
    highlighted_ = -1;
    if (outlets.menuOpened) {
        outlets.menuOpened(entry);
    }
}

void Desk::CloseMenu() {
    if (openMenu_ != nullptr) {
        SetOpenMenu(nullptr);
    }
}

}  // namespace tallyhut
