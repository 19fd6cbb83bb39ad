#pragma once

#include "log/log_copies.h"
#include "log/log_reload.h"
#include "log/operating_time.h"
#include "log/preferences_file.h"

namespace tallyhut {

/// The entries of the menu that deal with a whole log: the new one, the archive, and the one that comes back. Whatever
/// replaces the log runs the reload.
struct FileMenu {
    Desk& desk;
    Contest& contest;
    LogFile& file;
    LogCopies& copies;
    OperatingTime& time;
    PreferencesFile& preferencesFile;
    LogReload& reload;

    /// Asks, empties log and time records if the operator types YES, and reloads in every case. Throws LogWriteError
    /// when the log cannot be emptied, PlatformError for the other files.
    void StartNewLog();

    void mnuNew_Click();
    void mnuArchive_Click();
    void mnuRestore_Click();

private:
    void EmptyLog();
};

}  // namespace tallyhut
