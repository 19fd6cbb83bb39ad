#pragma once

#include "forms/Form6.h"
#include "log/log_guard.h"
#include "log/preferences_file.h"

namespace tallyhut {

/// The operator chooses the colours of worked and of needed sections.
struct SectionColours {
    Form6& dialog;
    Desk& desk;
    Preferences& preferences;
    PreferencesFile& preferencesFile;
    LogGuard& guard;

    /// The grid takes the colours when the dialog is closed, by the reload.
    void mnuColors_Click();

    void Form6_Load();
    /// The colour of needed sections.
    void Command1_Click();
    /// The colour of worked sections.
    void Command3_Click();
    void Command6_Click();

private:
    void Choose(Colour& colour, Label& example);
};

}  // namespace tallyhut
