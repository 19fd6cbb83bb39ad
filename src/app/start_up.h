#pragma once

#include <functional>

#include "app/main_form_layout.h"
#include "log/log_part.h"

namespace tallyhut {

/// How the program comes up: the folders, then the steps of the main form's load in their order.
struct StartUp {
    Machine& machine;
    SupportPart& support;
    LogPart& log;
    MainFormLayout& layout;

    bool asksForSections = false;   ///< of a contest that begins
    bool sectionsAreGiven = false;  ///< to a folder that may have a log of others already

    // Steps that other parts of the program add.
    std::function<void()> readVoiceSettings = [] {};
    std::function<void()> readCwMessages = [] {};
    std::function<void()> openSpotSource = [] {};
    std::function<void()> openRigPort = [] {};

    /// Finds and makes the folders, and gives a fresh one what it needs. Throws PlatformError.
    void PrepareFolders();
    /// A failure ends it at its step, without a word: the later steps do not run.
    void Form1_Load();

private:
    void LoadSteps();
};

}  // namespace tallyhut
