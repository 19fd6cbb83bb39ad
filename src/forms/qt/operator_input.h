#pragma once

#include <QPointer>
#include <Qt>
#include <functional>
#include <optional>

#include "toolkit/control.h"

namespace tallyhut {

struct Desk;
struct MenuEntry;
class QtPump;

/// The mouse button as the toolkit counts them; nothing for those that it does not know.
std::optional<MouseButton> ToButton(Qt::MouseButton button);

/// What the operator does, on its way from a widget to the desk. All of it is queued: nothing that a widget calls here
/// runs a handler before the widget's own event is over.
class OperatorInput {
public:
    OperatorInput(Desk& desk, QtPump& pump) : desk_{desk}, pump_{pump} {}

    void Press(const Key& key) const;
    void Click(Control& control, MouseButton button) const;
    /// The second press of two in quick succession: DblClick alone where there is a handler for it, else one more
    /// click.
    void ClickAgain(Control& control, MouseButton button, const QPointer<QObject>& widget) const;
    void ClickRow(Control& list, int row, MouseButton button) const;
    void Choose(MenuEntry& entry) const;
    void Do(std::function<void()> action) const;
    /// An action on a control that may be gone by the time it is due; its widget is gone then, too.
    void DoWhileThere(const QPointer<QObject>& widget, std::function<void()> action) const;

    Desk& TheDesk() const { return desk_; }

private:
    Desk& desk_;
    QtPump& pump_;
};

}  // namespace tallyhut
