#pragma once

#include <functional>

#include "forms/Form1.h"
#include "log/preferences_file.h"
#include "platform/screen.h"

namespace tallyhut {

/// The form size at which the form covers its whole part of the screen.
inline constexpr float kUnscaled = 100;

/// The size of the main form on the screen, and the operator's two options for it.
struct MainFormLayout {
    Form1& form1;
    const Screen& screen;
    Preferences& preferences;
    PreferencesFile& preferencesFile;

    /// Lays out the room for spots, once everything else has its place.
    std::function<void()> PacketResize = [] {};

    /// Places the form and its controls; a failure is told in a box and leaves them as they are.
    void LayOutMainForm();
    /// The new size is taken by the next start.
    void mnuFormSize_Click();
    void mnuTaskbar_Click();
    /// The check mark follows the option.
    void ShowTaskbarOption();
};

}  // namespace tallyhut
