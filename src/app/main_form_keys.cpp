#include "app/main_form_keys.h"

#include "toolkit/key.h"

namespace tallyhut {

/// The flag speaks of this key stroke alone: a Ctrl key that types nothing must not swallow the next character.
void MainFormKeys::Form_KeyDown(int& /*KeyCode*/, int Shift) {
    gCtrlKeyTaken = Shift == kCtrl;
}

void MainFormKeys::Form_KeyPress(int& KeyAscii) {
    if (gCtrlKeyTaken) {
        gCtrlKeyTaken = false;
        KeyAscii = 0;
        return;
    }
    constexpr int kPhoneContest = 1;
    if (KeyAscii == kKeyEsc && preferences.gContestMode != kPhoneContest) {  // in a Phone contest Esc is for the player
        entry.cmdClear_Click();
    }
}

}  // namespace tallyhut
