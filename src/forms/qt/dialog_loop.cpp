#include "forms/qt/dialog_loop.h"

#include <QApplication>
#include <QDialog>

#include "forms/qt/ask_box.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

/// Set on the application, to which all dialogs belong.
constexpr const char* kEnding = "endingDialogs";

}  // namespace

void CancelDialogs() {
    qApp->setProperty(kEnding, true);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* dialog = qobject_cast<QDialog*>(window);
        if (dialog != nullptr && dialog->isVisible()) {
            dialog->reject();
        }
    }
}

QWidget* DialogParent(Desk& desk) {
    desk.pump.Collect();
    return QApplication::activeWindow();
}

bool RunDialog(QDialog& dialog, Desk& desk) {
    if (qApp->property(kEnding).toBool()) {
        return false;
    }
    bool finished = false;
    bool accepted = false;
    QObject::connect(&dialog, &QDialog::finished, &dialog, [&](int result) {
        finished = true;
        accepted = result == QDialog::Accepted;
    });
    dialog.setFont(DialogFont());
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
    desk.RunDialog([&finished] { return finished; });
    return accepted;
}

}  // namespace tallyhut
