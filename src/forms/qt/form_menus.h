#pragma once

#include <QAction>
#include <QMenuBar>
#include <map>

#include "forms/qt/operator_input.h"

namespace tallyhut {

struct Form;
struct MenuEntry;

/// The menus of a form in a menu bar. Opened by the mouse they are the desktop's own affair; opened by an access key
/// the desk is told when they close.
class FormMenus {
public:
    FormMenus(const Form& form, const OperatorInput& input, QWidget& window);

    /// Null for a form without menus.
    QMenuBar* Bar() const { return bar_; }
    void Sync(MenuEntry& entry);
    void SetTextSize(double pixels);
    /// Opens a top-level entry's menu by the access key; null closes what was opened so.
    void Open(const MenuEntry* entry);

private:
    /// The menu of the entry; null for one without entries of its own.
    QMenu* Add(MenuEntry& entry, QWidget& above);
    void TellClosed();

    const OperatorInput& input_;
    QMenuBar* bar_ = nullptr;
    std::map<const MenuEntry*, QAction*> actions_;
    const MenuEntry* openedByKey_ = nullptr;
};

}  // namespace tallyhut
