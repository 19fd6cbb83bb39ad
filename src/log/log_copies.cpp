#include "log/log_copies.h"

#include "platform/platform_error.h"
#include "support/call_file_stem.h"
#include "values/format.h"

namespace tallyhut {
namespace {

constexpr const char* kLogSuffix = ".log";

}  // namespace

std::string LogCopies::BackupStem() const {
    return BackupFolder() + '/' + FormatDateTime(clock.Now(), "yyyymmddhhnn");
}

std::string LogCopies::ArchiveName() const {
    return BackupFolder() + '/' + CallToFileStem(contest.preferences.gOwnCall) +
           FormatDateTime(clock.Now(), "yyyy-mm-dd") + kLogSuffix;
}

void LogCopies::MakeBackupFolder() {
    if (!file.files.FolderExists(BackupFolder())) {
        file.files.MakeFolder(BackupFolder());
    }
}

void LogCopies::Backup() {
    const bool unchanged = contest.log.gSavedCount == static_cast<float>(contest.log.gContactCount);
    if (unchanged || contest.log.gContactCount < 1) {
        return;
    }
    try {
        MakeBackupFolder();
        file.files.Copy(file.Path(), BackupStem() + kLogSuffix);
    } catch (const PlatformError&) {  // the log itself is safe, and nothing may stand in the way of closing
    }
}

/// Under the name of a backup. A copy of the same minute is not overwritten by it: it may be the very one that is being
/// restored, or the only copy of a log that a restore before this one has replaced.
void LogCopies::KeepPresentLog() {
    if (!file.Exists()) {
        return;
    }
    const std::string present = file.Read();
    if (FieldReader{present}.AtEnd()) {
        return;
    }
    MakeBackupFolder();
    std::string name = BackupStem() + kLogSuffix;
    for (int number = 2; file.files.FileExists(name); ++number) {
        if (file.files.Read(name) == present) {
            return;
        }
        name = BackupStem() + '-' + std::to_string(number) + kLogSuffix;
    }
    file.files.Copy(file.Path(), name);
}

}  // namespace tallyhut
