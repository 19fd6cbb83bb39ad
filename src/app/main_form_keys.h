#pragma once

#include <functional>
#include <map>

#include "log/entry_flow.h"

namespace tallyhut {

/// What the main form does with a key before its fields see it.
struct MainFormKeys {
    const Preferences& preferences;
    EntryFlow& entry;

    /// What a key opens that is pressed with Ctrl, by its letter.
    std::map<int, std::function<void()>> onCtrlKey = {};

    bool gCtrlKeyTaken = false;  ///< the press that goes with this key is swallowed

    void Form_KeyDown(int& KeyCode, int Shift);
    void Form_KeyPress(int& KeyAscii);
};

}  // namespace tallyhut
