#include "app/main_form_keys.h"

#include <array>

#include "keying/message_keys.h"
#include "toolkit/key.h"

namespace tallyhut {
namespace {

/// Where a key counts.
enum class Where {
    Anywhere,
    Keyed,     ///< in a CW contest whose messages are keyed
    Keyboard,  ///< where what is typed is sent
    Spoken,    ///< in a phone contest
};

constexpr int kWithoutCtrl = -1;  ///< any Shift state but with Ctrl

/// Keys of the main form with codes from `first` to `last`.
struct KeyRow {
    int first;
    int last;
    int shift;
    Where where;
    void (*action)(MainFormKeys& keys, int& KeyCode);
    bool goesOn;  ///< whether the controls still see it
};

constexpr KeyRow CtrlKey(char letter, void (*action)(MainFormKeys& keys, int& KeyCode), bool goesOn) {
    return {letter, letter, kCtrl, Where::Anywhere, action, goesOn};
}
constexpr KeyRow KeyerKeys(int first, int last, void (*action)(MainFormKeys& keys, int& KeyCode), bool goesOn) {
    return {first, last, kWithoutCtrl, Where::Keyed, action, goesOn};
}

constexpr KeyRow MessageKeys(int first, int last, bool goesOn) {
    return {first,
            last,
            kWithoutCtrl,
            Where::Spoken,
            [](MainFormKeys& keys, int& KeyCode) { keys.voice.messages.FKeyPhone(KeyCode); },
            goesOn};
}

/// A button with the focus would take these two for itself.
constexpr KeyRow TypedKey(int code) {
    return {code,
            code,
            0,
            Where::Keyboard,
            [](MainFormKeys& keys, int& KeyCode) {
                int character = KeyCode;
                keys.Form_KeyPress(character);
            },
            false};
}

void ShowMessages(MainFormKeys& keys, int& /*KeyCode*/) {
    keys.keying.form.Show();
}

constexpr std::array kKeys{
    MessageKeys(kKeyF1, kKeyF10 - 1, true),
    MessageKeys(kKeyF10, kKeyF10, false),
    TypedKey(kKeySpace),
    TypedKey(kKeyEnter),
    CtrlKey(
        'B', [](MainFormKeys& keys, int&) { keys.spots.spectrumForm.Show(); }, true),
    CtrlKey('C', ShowMessages, true),
    CtrlKey(
        'D', [](MainFormKeys& keys, int&) { keys.spots.form.Show(); }, true),
    CtrlKey(
        'F', [](MainFormKeys& keys, int&) { keys.views.planForm.Show(); }, true),
    CtrlKey(
        'G', [](MainFormKeys& keys, int&) { keys.rig.tuneForm.Show(); }, false),
    CtrlKey(
        'P', [](MainFormKeys& keys, int&) { keys.voice.form.Show(); }, true),
    CtrlKey(
        'R', [](MainFormKeys& keys, int&) { keys.rig.rigForm.Show(); }, true),
    CtrlKey('S', ShowMessages, true),
    CtrlKey(
        'W', [](MainFormKeys& keys, int&) { keys.keying.strings.Show(); }, true),
    CtrlKey(
        'Z',
        [](MainFormKeys& keys, int&) {
            keys.spots.form.Show();
            keys.spots.setup.Command3_Click();
        },
        true),
    KeyerKeys(
        kKeyUp, kKeyUp,
        [](MainFormKeys& keys, int&) {
            keys.keying.messages.UpDown1_UpClick();
            keys.keying.messages.ShowSpeed();
        },
        false),
    KeyerKeys(
        kKeyDown, kKeyDown,
        [](MainFormKeys& keys, int&) {
            keys.keying.messages.UpDown1_DownClick();
            keys.keying.messages.ShowSpeed();
        },
        false),
    KeyerKeys(
        kKeyF12, kKeyF12, [](MainFormKeys& keys, int&) { keys.keying.messages.ToggleKeyboard(); }, true),
    KeyerKeys(
        kKeyF1, kKeyF12 - 1,
        [](MainFormKeys& keys, int& KeyCode) {
            KeyCode = KeyCode == kKeyF10 ? kCwKeyF10 : KeyCode;
            keys.keying.messages.FKeyCW(KeyCode);
        },
        true),
};

bool IsPhone(const Preferences& preferences) {
    return preferences.gContestMode == 1;
}

bool Fits(const KeyRow& row, int code, int shift) {
    const bool shiftFits = row.shift == kWithoutCtrl ? (shift & kCtrl) == 0 : shift == row.shift;
    return shiftFits && code >= row.first && code <= row.last;
}

bool Counts(Where where, const CwMessages& messages) {
    switch (where) {
        case Where::Keyed:
            return messages.TakesKeys();
        case Where::Keyboard:
            return messages.TakesTyping();
        case Where::Spoken:
            return IsPhone(messages.preferences);
        case Where::Anywhere:
            break;
    }
    return true;
}

}  // namespace

/// The flag speaks of this key stroke alone: only a key whose press is to come may set it, or the next character would
/// be swallowed.
void MainFormKeys::Form_KeyDown(int& KeyCode, int Shift) {
    gCtrlKeyTaken = Shift == kCtrl && KeyCode >= 'A' && KeyCode <= 'Z';
    EndRepeats();
    for (const KeyRow& row : kKeys) {
        if (Fits(row, KeyCode, Shift) && Counts(row.where, keying.messages)) {
            row.action(*this, KeyCode);
            KeyCode = row.goesOn ? KeyCode : 0;
            return;
        }
    }
}

void MainFormKeys::EndRepeats() {
    keying.messages.EndRepeat();
    voice.messages.EndRepeat();
}

void MainFormKeys::Form_KeyPress(int& KeyAscii) {
    if (gCtrlKeyTaken) {
        gCtrlKeyTaken = false;
        KeyAscii = 0;
        return;
    }
    if (KeyAscii != kKeyEsc) {
        keying.messages.SendTyped(KeyAscii);
        return;
    }
    KeyAscii = 0;                                         // no field may take it for the end of a duplicate's red line
    const bool stopsVoice = voice.messages.StopsAtEsc();  // a test plays in a CW contest, too
    const bool stopsKeyer = keying.messages.StopsAtEsc();
    if (!stopsVoice && !stopsKeyer) {
        log.entry.cmdClear_Click();
    }
}

}  // namespace tallyhut
