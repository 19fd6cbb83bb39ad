#include "log/file_menu.h"

#include "log/attempts.h"
#include "platform/platform_error.h"
#include "support/own_files.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kLogFilter = "Log Files (*.log) | *.log";
constexpr std::string_view kConfirmation = "YES";
constexpr const char* kRestoreErrorTitle = "Error Restoring Log";

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

bool FileMenu::KeepLog(std::string_view title) {
    try {
        guard.Adopt();
        copies.KeepLog();
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(
            {.title = std::string{title},
             .text = std::string{"The present log could not be copied first, so nothing was erased.\r\n\r\n"} +
                     failure.what(),
             .buttons = Buttons::OK,
             .icon = Icon::Exclamation});
        return false;
    }
    return true;
}

void FileMenu::StartNewLog() {
    if (UpperCase(desk.dialogs.Show(kNewLogBox)) == kConfirmation) {
        copies.Backup();
        if (KeepLog("The log was not erased.")) {
            BeginAnew();
        }
    }
    guard.Reopen();
}

/// The seconds of the old contest come back where its log stays. Where the log is empty, all the rest is attempted.
void FileMenu::BeginAnew() {
    const OperatingTime::Seconds before = time.Reset();
    Attempts attempts;
    try {
        if (!guard.Empty()) {
            time.PutBack(before);
            return;
        }
        contest.log.Clear();
    } catch (const LogWriteError&) {
        time.PutBack(before);
        throw;
    } catch (const PlatformError& failure) {
        if (contest.log.gContactCount() > 0) {
            time.PutBack(before);
            throw;
        }
        attempts.Note(failure);
    }
    replaced();
    attempts.Try([this] { time.records.Clear(); });
    attempts.Try([this] { preferencesFile.SavePref(); });
    if (attempts.AnyFailed()) {
        guard.reload.FollowDisk();
    }
    attempts.ThrowIfAnyFailed();
}

void FileMenu::mnuNew_Click() {
    StartNewLog();
    guard.reload.display.ShowTimes();
}

void FileMenu::mnuArchive_Click() {
    try {
        desk.dialogs.Show(kArchiveBox);
        const FileRequest request{.title = "",
                                  .filter = kLogFilter,
                                  .folder = copies.BackupFolder(),
                                  .name = copies.ArchiveName(),
                                  .overwritePrompt = true};
        const std::string archive = Chosen(desk.dialogs.SaveFile(request));
        RefuseOwnFile(guard.file.files, guard.file.directories, archive);
        guard.file.files.Copy(guard.file.Path(), archive);
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(ErrorBox("Error Archiving Log", failure));
    }
}

void FileMenu::mnuRestore_Click() {
    try {
        desk.dialogs.Show(kRestoreBox);
        if (contest.log.gContactCount() > 0 && desk.dialogs.Show(kReplaceBox) != Answer::Yes) {
            return;
        }
        const FileRequest request{.title = "", .filter = kLogFilter, .folder = copies.BackupFolder(), .name = ""};
        const std::string archive = Chosen(desk.dialogs.OpenFile(request));
        if (KeepLog(kRestoreErrorTitle)) {
            Restore(archive);
        }
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(ErrorBox(kRestoreErrorTitle, failure));
    }
}

/// The reload is the only check of what comes in. Where it fails, the log that was there before stands there again.
void FileMenu::Restore(const std::string& archive) {
    LogFile& file = guard.file;
    const std::string before = file.Exists() ? file.Read() : "";
    const auto putBack = [&file, &before] {
        try {
            file.files.Replace(file.Path(), before);
        } catch (const PlatformError&) {  // the copy that was kept of it stands
        }
    };
    guard.Restore(archive, putBack);
    replaced();
}

}  // namespace tallyhut
