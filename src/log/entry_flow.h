#pragma once

#include "log/commit.h"
#include "log/preferences_file.h"

namespace tallyhut {

/// A small letter becomes the capital; every other code stays.
void Capital(int& KeyAscii);
/// Digits and Backspace pass; every other code becomes 0, which drops the key.
void number(int& KeyAscii);

/// Which field's key is on its way to which.
enum Carry { kNoCarry = 0, kNumToPre = 1, kPreToNext = 2, kCkToSec = 3, kCallToNext = 4 };

/// How keystrokes find their fields: each field takes what belongs to it and hands the rest to the field that it is
/// for, so that the operator types what is heard and nothing else. Enter in any field commits.
struct EntryFlow {
    Panel& panel;
    Contest& contest;
    PreferencesFile& preferencesFile;
    OperatingTime& time;
    Duplicates& duplicates;
    Commit& commit;
    Prompts& prompts;

    int gCarryKey = 0;
    int gCarryFrom = kNoCarry;
    bool numHasHadFocus = false;  ///< in this run

    void txtNum_KeyPress(int& KeyAscii);
    void txtPre_KeyPress(int& KeyAscii);
    void txtCall_KeyPress(int& KeyAscii);
    void txtCK_KeyPress(int& KeyAscii);
    void txtSec_KeyPress(int& KeyAscii);

    void txtNum_GotFocus();
    void txtPre_GotFocus();
    void txtCall_GotFocus();
    void txtCK_GotFocus();
    void txtSec_GotFocus();
    void txtCall_LostFocus();

    /// Until when the precedence holds a key back that it would hand to the call.
    std::optional<Tick> txtPre_HoldsKey(const Key& key) const;

    void cmdClear_Click();

    void numopt_Click() { ChooseTabMode(1); }
    void callopt_Click() { ChooseTabMode(2); }
    void mnuCallTwice_Click() { ChooseTabMode(3); }
    void SetTabPositions();
    void CheckTabModeEntry();

private:
    bool CommitsOnEnter(int& KeyAscii);
    void StartCarry(Carry from, int key);
    void EndCarry(TextBox& field, int key);
    bool DigitBeginsNextField(int key) const;
    void RemindOfTimeOn();
    void Prompt(std::string_view prompt, int leastLevel) const;
    void ChooseTabMode(int mode);
};

}  // namespace tallyhut
