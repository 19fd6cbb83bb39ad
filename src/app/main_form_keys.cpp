#include "app/main_form_keys.h"

#include <array>

#include "toolkit/key.h"

namespace tallyhut {
namespace {

enum class InContest { Any, Cw, Phone };

/// A key of the main form.
struct KeyRow {
    int code;
    int shift;
    InContest contest;
    void (*action)(MainFormKeys& keys);
    bool goesOn;  ///< whether the controls still see it
};

constexpr std::array kKeys{
    KeyRow{'G', kCtrl, InContest::Any, [](MainFormKeys& keys) { keys.rig.tuneForm.Show(); }, false},
    KeyRow{'R', kCtrl, InContest::Any, [](MainFormKeys& keys) { keys.rig.rigForm.Show(); }, true},
};

bool IsPhone(const Preferences& preferences) {
    return preferences.gContestMode == 1;
}

bool Counts(InContest contest, bool phone) {
    return contest == InContest::Any || (contest == InContest::Phone) == phone;
}

}  // namespace

/// The flag speaks of this key stroke alone: only a key whose press is to come may set it, or the next character would
/// be swallowed.
void MainFormKeys::Form_KeyDown(int& KeyCode, int Shift) {
    gCtrlKeyTaken = Shift == kCtrl && KeyCode >= 'A' && KeyCode <= 'Z';
    const bool phone = IsPhone(log.contest.preferences);
    for (const KeyRow& row : kKeys) {
        if (row.code == KeyCode && row.shift == Shift && Counts(row.contest, phone)) {
            row.action(*this);
            KeyCode = row.goesOn ? KeyCode : 0;
            return;
        }
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
    if (IsPhone(log.contest.preferences)) {
        KeyAscii = 0;  // it is for the player alone: no field may take it for the end of a duplicate's red line
    } else {
        log.entry.cmdClear_Click();
    }
}

}  // namespace tallyhut
