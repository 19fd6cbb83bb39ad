#include "log/log_copies.h"

#include <algorithm>

#include "platform/platform_error.h"
#include "platform/temporary_name.h"
#include "support/call_file_stem.h"
#include "support/free_name.h"
#include "values/format.h"

namespace tallyhut {
namespace {

constexpr const char* kLogSuffix = ".log";

}  // namespace

std::string LogCopies::BackupName() const {
    return BackupFolder() + '/' + FormatDateTime(clock.Now(), "yyyymmddhhnn") + kLogSuffix;
}

std::string LogCopies::ArchiveName() const {
    return BackupFolder() + '/' + CallToFileStem(contest.preferences.gOwnCall) +
           FormatDateTime(clock.Now(), "yyyy-mm-dd") + kLogSuffix;
}

void LogCopies::MakeIfMissing(const std::string& folder) {
    if (!file.files.FolderExists(folder)) {
        file.files.MakeFolder(folder);
    }
}

/// A copy of the same minute is overwritten; one with more contacts than the log has now is kept first.
void LogCopies::Backup() {
    const bool unchanged = contest.log.gSavedCount == static_cast<float>(contest.log.gContactCount());
    if (unchanged || contest.log.gContactCount() < 1) {
        return;
    }
    try {
        MakeIfMissing(BackupFolder());
        const std::string name = BackupName();
        if (file.files.FileExists(name) && RecordCount(file.files.Read(name)) > RecordCount(file.Read())) {
            Keep(name);
        }
        file.files.Copy(file.Path(), name);
    } catch (const PlatformError&) {  // the log itself is safe, and nothing may stand in the way of closing
    }
}

void LogCopies::KeepLog() {
    if (file.Exists()) {
        Keep(file.Path());
    }
}

void LogCopies::Keep(const std::string& path) {
    const std::string content = file.files.Read(path);
    if (FieldReader{content}.AtEnd() || IsInBackup(content, path)) {
        return;
    }
    MakeIfMissing(KeptFolder());
    file.files.Copy(path, KeptName());
}

std::string LogCopies::KeepTables() {
    MakeIfMissing(KeptFolder());
    std::string path = KeptName();
    file.files.Replace(path, LogText(contest.log));
    return path;
}

std::string LogCopies::KeptName() const {
    const DateTime now = clock.Now();
    const std::string stem = KeptFolder() + '/' + FormatDateTime(now, "yyyymmddhhnn") + FormatDateTime(now, "ss");
    return FreeName(file.files, stem, kLogSuffix);
}

bool LogCopies::IsInBackup(const std::string& content, const std::string& but) const try {
    return std::ranges::any_of(file.files.FilesIn(BackupFolder()), [this, &content, &but](const std::string& copy) {
        if (copy == but || IsTemporaryName(copy.substr(copy.rfind('/') + 1))) {
            return false;
        }
        const std::optional<FileMark> mark = file.files.Mark(copy);
        return mark && mark->length == content.size() && file.files.Read(copy) == content;
    });
} catch (const PlatformError&) {  // what cannot be looked at is no copy to rely on
    return false;
}

}  // namespace tallyhut
