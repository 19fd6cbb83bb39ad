#include "forms/qt/operator_input.h"

#include <utility>

#include "forms/qt/qt_pump.h"
#include "toolkit/desk.h"

namespace tallyhut {

std::optional<MouseButton> ToButton(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return kLeftButton;
        case Qt::RightButton:
            return kRightButton;
        case Qt::MiddleButton:
            return kMiddleButton;
        default:
            return std::nullopt;
    }
}

void OperatorInput::Press(const Key& key) const {
    desk_.PostKey(key);
    pump_.NoteArrival();
}

void OperatorInput::Click(Control& control, MouseButton button) const {
    desk_.PostClick(control, button);
    pump_.NoteArrival();
}

void OperatorInput::ClickAgain(Control& control, MouseButton button, const QPointer<QObject>& widget) const {
    if (button != kLeftButton || !control.DblClick) {
        Click(control, button);
        return;
    }
    DoWhileThere(widget, [this, &control] {
        if (control.IsShown() && control.State().enabled && !desk_.IsBlockedByModal(control.form)) {
            desk_.Call(control.DblClick);
        }
    });
}

void OperatorInput::ClickRow(Control& list, int row, MouseButton button) const {
    desk_.PostRowClick(list, row, button);
    pump_.NoteArrival();
}

void OperatorInput::Choose(MenuEntry& entry) const {
    desk_.PostMenu(entry);
    pump_.NoteArrival();
}

void OperatorInput::Do(std::function<void()> action) const {
    desk_.PostAction(std::move(action));
    pump_.NoteArrival();
}

void OperatorInput::DoWhileThere(const QPointer<QObject>& widget, std::function<void()> action) const {
    Do([widget, action = std::move(action)] {
        if (!widget.isNull()) {
            action();
        }
    });
}

}  // namespace tallyhut
