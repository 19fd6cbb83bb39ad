#pragma once

#include "log/entry_flow.h"

namespace tallyhut {

/// What the main form does with a key before its fields see it.
struct MainFormKeys {
    const Preferences& preferences;
    EntryFlow& entry;

    bool gCtrlKeyTaken = false;  ///< the press that goes with this key is swallowed

    void Form_KeyDown(int& KeyCode, int Shift);
    void Form_KeyPress(int& KeyAscii);
};

}  // namespace tallyhut
