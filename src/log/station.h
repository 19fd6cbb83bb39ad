#pragma once

#include <functional>
#include <string_view>

#include "forms/Form1.h"
#include "forms/frmStationID.h"
#include "log/preferences_file.h"
#include "platform/settings_store.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// The operator's own side of the exchange, and the form that asks for it. Nothing of it is checked against the
/// sections or precedences of the contest.
struct Station {
    Form1& form1;
    frmStationID& dialog;
    Desk& desk;
    Preferences& preferences;
    PreferencesFile& preferencesFile;
    const SettingsStore& settings;

    /// Keeps a value for the other programs of the operator; writes the file where saveNow is set. May throw
    /// PlatformError.
    std::function<void(std::string_view key, std::string_view value, bool saveNow)> SetSharedPreference =
        [](std::string_view /*key*/, std::string_view /*value*/, bool /*saveNow*/) {};

    /// Asks for the station; returns when the form has been closed. What was typed is dropped where it was closed by
    /// its close box. Throws PlatformError when the settings cannot be saved.
    void mnuSetup_Click();
    /// The sent exchange on the main form.
    void ShowExchange();

    // The form.
    void frmStationID_Load();
    /// Of Text1, Text3, Text4 and Text5.
    void TextField_KeyPress(int& KeyAscii);
    void Text6_KeyPress(int& KeyAscii);
    void Text6_LostFocus();
    void Command1_Click();

private:
    bool DoneOnEnter(int& KeyAscii);
    void Share();
    void TakeOver();
};

}  // namespace tallyhut
