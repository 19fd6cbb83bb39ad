#pragma once

#include "log/log_reload.h"
#include "log/operating_time.h"
#include "log/preferences_file.h"

namespace tallyhut {

/// Whole copies of the log in the folder BACKUP of the program's own folder, and the new log. A copy is a plain file;
/// whatever replaces the log runs the reload.
struct LogCopies {
    Desk& desk;
    Files& files;
    const Directories& directories;
    ContactLog& log;
    LogFile& file;
    const Preferences& preferences;
    PreferencesFile& preferencesFile;
    OperatingTime& time;
    RateLabels& rates;
    LogReload& reload;

    std::string BackupFolder() const { return directories.DataDirectory + "/BACKUP"; }

    /// Copies the log if this run has changed the number of contacts. A failure is silent.
    void Backup();
    /// Asks, empties log and time records if the operator types YES, and reloads in every case. Throws LogWriteError
    /// when the log cannot be emptied, PlatformError for the other files.
    void StartNewLog();

    void mnuNew_Click();
    void mnuArchive_Click();
    void mnuRestore_Click();

private:
    void EmptyLog();
    void MakeBackupFolder();
    std::string BackupStem() const;
    std::string ArchiveName() const;
    void KeepPresentLog();
};

}  // namespace tallyhut
