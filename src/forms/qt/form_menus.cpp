#include "forms/qt/form_menus.h"

#include <QMenu>
#include <utility>
#include <vector>

#include "forms/qt/control_widget.h"
#include "forms/qt/text_codec.h"
#include "toolkit/desk.h"

namespace tallyhut {

FormMenus::FormMenus(const Form& form, const OperatorInput& input, QWidget& window) : input_{input} {
    if (form.Menus().empty()) {
        return;
    }
    bar_ = new QMenuBar{&window};
    bar_->setNativeMenuBar(false);  // a bar outside of the window would take keys that are the program's
    std::vector<std::pair<MenuEntry*, QWidget*>> toAdd;  // each with what it goes into
    for (MenuEntry* entry : form.Menus()) {
        toAdd.emplace_back(entry, bar_);
    }
    for (std::size_t i = 0; i < toAdd.size(); ++i) {
        const auto [entry, above] = toAdd[i];
        QMenu* menu = Add(*entry, *above);
        for (MenuEntry* below : entry->Entries()) {
            toAdd.emplace_back(below, menu);
        }
    }
}

QMenu* FormMenus::Add(MenuEntry& entry, QWidget& above) {
    auto* action = new QAction{&above};
    action->setObjectName(QString::fromStdString(entry.FullName()));
    above.addAction(action);
    actions_[&entry] = action;
    QMenu* menu = nullptr;
    if (!entry.Entries().empty()) {
        menu = new QMenu{&above};
        menu->setObjectName(action->objectName());
        action->setMenu(menu);
        QObject::connect(menu, &QMenu::aboutToHide, menu, [this, &entry] {
            if (openedByKey_ == &entry) {
                openedByKey_ = nullptr;
                TellClosed();
            }
        });
    }
    QObject::connect(action, &QAction::triggered, action, [this, &entry] {
        Sync(entry);  // the check mark is the control's to set
        if (entry.Entries().empty()) {
            input_.Choose(entry);
        }
    });
    Sync(entry);
    return menu;
}

void FormMenus::Sync(MenuEntry& entry) {
    const auto found = actions_.find(&entry);
    if (found == actions_.end()) {
        return;
    }
    QAction& action = *found->second;
    const ControlState& state = entry.State();
    const QString keys = ToQt(entry.Shortcut());
    const QString caption = ToQt(state.text);
    action.setText((entry.yieldsLetter ? QString{caption}.remove('&') : caption) +
                   (keys.isEmpty() ? QString{} : '\t' + keys));  // told, not taken: the form sees to it
    action.setVisible(state.visible);
    action.setEnabled(state.enabled);
    action.setCheckable(state.chosen);
    action.setChecked(state.chosen);
}

void FormMenus::SetTextSize(double pixels) {
    if (bar_ == nullptr) {
        return;
    }
    Look look;
    look.pixels = pixels;
    bar_->setFont(FontOf(look));
    for (const auto& [entry, action] : actions_) {
        if (action->menu() != nullptr) {
            action->menu()->setFont(FontOf(look));
        }
    }
}

void FormMenus::Open(const MenuEntry* entry) {
    if (entry == nullptr) {
        if (const MenuEntry* opened = std::exchange(openedByKey_, nullptr)) {
            actions_.at(opened)->menu()->close();
        }
        return;
    }
    if (entry->Above() != nullptr) {
        return;  // keys typed ahead go on within the menu that is open
    }
    const auto found = actions_.find(entry);
    if (found == actions_.end() || found->second->menu() == nullptr || !bar_->isVisible()) {
        TellClosed();
        return;
    }
    bar_->setActiveAction(found->second);
    openedByKey_ = entry;
}

void FormMenus::TellClosed() {
    input_.Do([this] { input_.TheDesk().CloseMenu(); });
}

}  // namespace tallyhut
