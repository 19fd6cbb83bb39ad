#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/BlindFrm.h"
#include "log/preferences_file.h"
#include "platform/clock.h"
#include "platform/sound.h"
#include "support/prompt_file.h"

namespace tallyhut {

/// Where the recordings of prompts lie.
struct PromptStore {
    const Files& files;
    const Directories& directories;
    const std::string& dataFolder;

    /// Throws PlatformError.
    std::string Path(std::string_view prompt) const {
        return PromptFile(files, directories, dataFolder, std::string{prompt});
    }
};

/// What is spoken to an operator who does not see the screen, and the form that tells how much. A prompt that cannot be
/// played is no failure.
struct VoicePrompts {
    BlindFrm& form;
    WavePlayer& player;
    Clock& clock;
    PromptStore store;
    PreferencesFile& preferencesFile;
    Preferences& preferences;

    /// Runs again and again while AwaitEnd waits, in which no timer runs.
    std::function<void()> whileWaiting = [] {};

    bool loading = false;  ///< choosing an option says nothing then

    /// Plays a prompt in the place of the one that plays still, and returns at once.
    void BlindKeyPhone(std::string_view name);
    /// Returns when the prompt has ended, a second after its length at the latest; no event runs meanwhile.
    void AwaitEnd();

    void BlindFrm_Load();
    void BlindFrm_Unload();
    void Option1_Click();
    void Option2_Click();
    void Option3_Click();
    /// Done.
    void Command1_Click();
};

}  // namespace tallyhut
