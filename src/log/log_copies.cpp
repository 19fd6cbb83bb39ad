#include "log/log_copies.h"

#include "platform/platform_error.h"
#include "support/call_file_stem.h"
#include "values/format.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kTimeRecords = "nsonoff.txt";
constexpr const char* kLogFilter = "Log Files (*.log) | *.log";
constexpr const char* kLogSuffix = ".log";
constexpr std::string_view kConfirmation = "YES";

const InputBox kNewLogBox{
    .title = "WARNING - Your existing log file will be ERASED!",
    .text =
        "Are you sure that you want to start a new log file?  This function will ERASE the existing log file!\r\n\r\n"
        "To verify that you want to start a new log file, please type: YES",
    .preset = "",
};

const MessageBox kArchiveBox{
    .title = "Archive Information",
    .text =
        "This function is used to create a permanent copy of your currently open log file.  To open your log file at a "
        "later date, click File > Restore from Archive or Backup.",
    .buttons = Buttons::OK,
    .icon = Icon::Information,
};

const MessageBox kRestoreBox{
    .title = "Opening Archived Data Information",
    .text =
        "This action will open an archived log or backup file and creates a working file called log.txt.  If you "
        "make any changes to your archived data that you would like to permanently save, before you click File > "
        "New to start a new contest, be sure to click File > Archive to save your changes.",
    .buttons = Buttons::OK,
    .icon = Icon::Information,
};

/// The title is spelled as operators know it.
const MessageBox kReplaceBox{
    .title = "Are your sure?",
    .text =
        "Are you sure that you want to open an archived log?  This action will clear and replace existing QSO "
        "data.",
    .buttons = Buttons::YesNo,
    .icon = Icon::Question,
};

MessageBox ErrorBox(std::string title, const PlatformError& failure) {
    return {.title = std::move(title), .text = failure.what(), .buttons = Buttons::OK, .icon = Icon::Exclamation};
}

std::string Chosen(const std::optional<std::string>& path) {
    if (!path) {
        throw PlatformError{"Cancel was selected."};
    }
    return *path;
}

}  // namespace

std::string LogCopies::BackupStem() const {
    return BackupFolder() + '/' + FormatDateTime(desk.clock.Now(), "yyyymmddhhnn");
}

std::string LogCopies::ArchiveName() const {
    return BackupFolder() + '/' + CallToFileStem(preferences.gOwnCall) +
           FormatDateTime(desk.clock.Now(), "yyyy-mm-dd") + kLogSuffix;
}

void LogCopies::MakeBackupFolder() {
    if (!files.FolderExists(BackupFolder())) {
        files.MakeFolder(BackupFolder());
    }
}

void LogCopies::Backup() {
    const bool unchanged = log.gSavedCount == static_cast<float>(log.gContactCount);
    if (unchanged || log.gContactCount < 1) {
        return;
    }
    try {
        MakeBackupFolder();
        files.Copy(file.Path(), BackupStem() + kLogSuffix);
    } catch (const PlatformError&) {  // the log itself is safe, and nothing may stand in the way of closing
    }
}

void LogCopies::StartNewLog() {
    if (UpperCase(desk.dialogs.Show(kNewLogBox)) == kConfirmation) {
        Backup();
        time.Reset();
        EmptyLog();
        log.gContactCount = 0;
        files.Replace(WorkingFile(directories, kTimeRecords), "");
        preferencesFile.SavePref();
    }
    reload.mnuopen2();
}

void LogCopies::EmptyLog() {
    try {
        files.Replace(file.Path(), "");
    } catch (const PlatformError& failure) {
        throw LogWriteError{std::string{failure.what()} +
                            "\n\nThe new log was not started; the log is as it was before."};
    }
}

void LogCopies::mnuNew_Click() {
    StartNewLog();
    rates.TimeStats();
}

void LogCopies::mnuArchive_Click() {
    try {
        desk.dialogs.Show(kArchiveBox);
        const FileRequest request{.title = "",
                                  .filter = kLogFilter,
                                  .folder = BackupFolder(),
                                  .name = ArchiveName(),
                                  .overwritePrompt = true};
        files.Copy(file.Path(), Chosen(desk.dialogs.SaveFile(request)));
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(ErrorBox("Error Archiving Log", failure));
    }
}

void LogCopies::mnuRestore_Click() {
    try {
        desk.dialogs.Show(kRestoreBox);
        if (log.gContactCount > 0 && desk.dialogs.Show(kReplaceBox) != Answer::Yes) {
            return;
        }
        const FileRequest request{.title = "", .filter = kLogFilter, .folder = BackupFolder(), .name = ""};
        const std::string archive = Chosen(desk.dialogs.OpenFile(request));
        KeepPresentLog();
        files.Copy(archive, file.Path());
        reload.mnuopen2();
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(ErrorBox("Error Restoring Log", failure));
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
    for (int number = 2; files.FileExists(name); ++number) {
        if (files.Read(name) == present) {
            return;
        }
        name = BackupStem() + '-' + std::to_string(number) + kLogSuffix;
    }
    files.Copy(file.Path(), name);
}

}  // namespace tallyhut
