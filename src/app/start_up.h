#pragma once

#include <functional>

#include "platform/machine.h"
#include "app/main_form_layout.h"
#include "log/band_selection.h"
#include "log/start_question.h"
#include "log/utc_offset_check.h"
#include "support/shared_preferences.h"

namespace tallyhut {

/// How the program comes up: the folders, then the steps of the main form's load in their order.
struct StartUp {
    Machine& machine;
    Form1& form1;
    Directories& directories;
    SharedPreferences& shared;
    Preferences& preferences;
    PreferencesFile& preferencesFile;
    ContactLog& log;
    SectionTable& sections;
    MessageLine& message;
    OperatingTime& time;
    BandSelection& band;
    EntryFlow& entry;
    UtcOffsetCheck& utcOffset;
    StartQuestion& question;
    MainFormLayout& layout;

    // Steps that other parts of the program add.
    std::function<void()> readVoiceSettings = [] {};
    std::function<void()> readCwMessages = [] {};
    std::function<void()> openRigPort = [] {};

    /// Finds and makes the folders, and gives a fresh one what it needs. Throws PlatformError.
    void PrepareFolders();
    /// A failure ends it at its step, without a word: the later steps do not run.
    void Form1_Load();

private:
    void LoadSteps();
};

}  // namespace tallyhut
