#pragma once

#include <string>

#include "contest/contest.h"
#include "log/log_file.h"
#include "platform/clock.h"

namespace tallyhut {

/// Whole copies of the log, beside each other in the program's own folder: those in BACKUP, which operators know, and
/// beneath them, in KEPT, every log that was about to be lost without a copy. A copy is a plain file.
struct LogCopies {
    const Clock& clock;
    const Contest& contest;
    const LogFile& file;

    std::string BackupFolder() const { return file.directories.DataDirectory + "/BACKUP"; }
    std::string KeptFolder() const { return file.directories.DataDirectory + "/KEPT"; }
    /// What an archive of the present log is called if the operator does not say otherwise, with its path.
    std::string ArchiveName() const;

    /// Copies the log to BACKUP if this run has changed the number of contacts. A failure is silent.
    void Backup();
    /// Copies a log that is about to be emptied or replaced to KEPT, unless it holds nothing or a file in BACKUP has
    /// exactly its bytes. Throws PlatformError.
    void KeepLog();
    /// Writes the contacts in memory to KEPT. Throws PlatformError. Returns the file's path.
    std::string KeepTables();

private:
    std::string KeptName() const;
    std::string BackupName() const;
    bool IsInBackup(const std::string& content, const std::string& but) const;
    void Keep(const std::string& path);
    void MakeIfMissing(const std::string& folder);
};

}  // namespace tallyhut
