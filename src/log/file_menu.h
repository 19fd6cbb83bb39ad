#pragma once

#include <functional>

#include "log/log_copies.h"
#include "log/log_guard.h"
#include "log/operating_time.h"
#include "log/preferences_file.h"

namespace tallyhut {

/// The entries of the menu that deal with a whole log: the new one, the archive, and the one that comes back. Whatever
/// replaces the log runs the reload.
struct FileMenu {
    Desk& desk;
    Contest& contest;
    LogGuard& guard;
    LogCopies& copies;
    OperatingTime& time;
    PreferencesFile& preferencesFile;

    /// A new log, or one that was restored, stands in place of the one before. Must not fail.
    std::function<void()> replaced = [] {};

    /// Asks, empties log and time records if the operator types YES, and reloads in every case. A log that cannot be
    /// kept first is told in a box and not emptied. Throws LogWriteError when the log cannot be emptied, PlatformError
    /// for the other files; memory and screen then show what the disk holds.
    void StartNewLog();

    void mnuNew_Click();
    void mnuArchive_Click();
    void mnuRestore_Click();

private:
    /// False where the log could not be kept, which has been told: nothing may be erased.
    bool KeepLog(std::string_view title);
    void BeginAnew();
    void Restore(const std::string& archive);
};

}  // namespace tallyhut
