#include "app/main_form_keys.h"

#include "toolkit/key.h"

namespace tallyhut {

/// The flag speaks of this key stroke alone: only a key whose press is to come may set it, or the next character would
/// be swallowed.
void MainFormKeys::Form_KeyDown(int& KeyCode, int Shift) {
    gCtrlKeyTaken = Shift == kCtrl && KeyCode >= 'A' && KeyCode <= 'Z';
    if (!gCtrlKeyTaken) {
        return;
    }
    if (const auto opened = onCtrlKey.find(KeyCode); opened != onCtrlKey.end()) {
        opened->second();
    }
    if (KeyCode == 'G') {
        KeyCode = 0;
    }
}

void MainFormKeys::Form_KeyPress(int& KeyAscii) {
    if (gCtrlKeyTaken) {
        gCtrlKeyTaken = false;
        KeyAscii = 0;
        return;
    }
    if (KeyAscii != kKeyEsc) {
        return;
    }
    constexpr int kPhoneContest = 1;
    if (preferences.gContestMode == kPhoneContest) {
        KeyAscii = 0;  // it is for the player alone: no field may take it for the end of a duplicate's red line
    } else {
        entry.cmdClear_Click();
    }
}

}  // namespace tallyhut
