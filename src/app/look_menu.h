#pragma once

#include <functional>

#include "forms/Form1.h"
#include "forms/window_look.h"
#include "platform/settings_store.h"

namespace tallyhut {

/// The choice of how the windows look, which belongs to the machine and not to a contest. It is stored at once.
struct LookMenu {
    Form1& form;
    SettingsStore& settings;

    /// Gives the windows their look; filled by a host that has some.
    std::function<void(WindowLook)> show = {};

    void Bind();
    /// What is stored, or else the desktop's. Marks its menu entry.
    void ShowStored();

private:
    void Show(WindowLook look);
    void Choose(WindowLook look);
};

}  // namespace tallyhut
