#pragma once

#include <string>

#include "contest/call_history.h"
#include "contest/known_calls.h"
#include "contest/super_check.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/settings_store.h"
#include "support/directories.h"

namespace tallyhut {

/// The list of calls that counts where none is chosen, in the folder of the contest.
inline constexpr const char* kSuperCheckFile = "MASTER.SCP";

/// The files of known calls that are in use on this machine: a call history, and a list of calls for super check
/// partial. A file is read when it is chosen and at each start, and not looked at in between.
struct KnownCallFiles {
    Files& files;
    const Directories& directories;
    SettingsStore& settings;
    Dialogs& dialogs;

    CallHistory history = {};
    SuperCheck superCheck = {};
    std::string historyPath = {};     ///< the chosen file; empty for none
    std::string superCheckPath = {};  ///< the chosen file; empty for kSuperCheckFile in the contest's folder
    bool fillsIn = false;             ///< check and section from the history
    bool showsCalls = false;          ///< that hold what is typed

    /// Reads what has been chosen. A file that cannot be taken is told with the reason and is not used; it stays
    /// chosen.
    void TakeStored();

    // The choices, each stored at once. An empty path chooses none. A file that cannot be taken throws PlatformError,
    // or ValueError for what is in it, and leaves all as it was; its use is switched on. A choice that cannot be stored
    // counts, and then throws PlatformError.
    void ChooseHistory(const std::string& path);
    void ChooseSuperCheck(const std::string& path);
    void SetFillsIn(bool fills);
    void SetShowsCalls(bool shows);

    /// The calls of both files.
    KnownCalls All() const;

private:
    CallHistory HistoryAt(const std::string& path) const;
    std::string SuperCheckFileFor(const std::string& chosen) const;
    SuperCheck SuperCheckFor(const std::string& chosen) const;
};

}  // namespace tallyhut
