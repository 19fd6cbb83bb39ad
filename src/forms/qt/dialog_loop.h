#pragma once

class QDialog;
class QWidget;

namespace tallyhut {

struct Desk;

/// The window that a dialog belongs over, with all on it that the handler has shown so far; null where there is none.
QWidget* DialogParent(Desk& desk);

/// Shows the dialog until it is closed; meanwhile it has all keys and clicks, and the desk's timers and devices go on.
/// True when it was accepted.
bool RunDialog(QDialog& dialog, Desk& desk);

/// The program is to end: every dialog that is open is cancelled, and so is any that would come up from now on.
void CancelDialogs();

}  // namespace tallyhut
