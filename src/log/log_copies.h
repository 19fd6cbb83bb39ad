#pragma once

#include <string>

#include "contest/contest.h"
#include "log/log_file.h"
#include "platform/clock.h"

namespace tallyhut {

/// Whole copies of the log in the folder BACKUP of the program's own folder. A copy is a plain file.
struct LogCopies {
    const Clock& clock;
    const Contest& contest;
    const LogFile& file;

    std::string BackupFolder() const { return file.directories.DataDirectory + "/BACKUP"; }
    /// What an archive of the present log is called if the operator does not say otherwise, with its path.
    std::string ArchiveName() const;

    /// Copies the log if this run has changed the number of contacts. A failure is silent.
    void Backup();
    /// Copies a log that is about to be replaced, unless a copy of this minute holds the same. Throws PlatformError.
    void KeepPresentLog();

private:
    void MakeBackupFolder();
    std::string BackupStem() const;
};

}  // namespace tallyhut
