#include "log/file_menu.h"

#include "platform/platform_error.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kLogFilter = "Log Files (*.log) | *.log";
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

void FileMenu::StartNewLog() {
    if (UpperCase(desk.dialogs.Show(kNewLogBox)) == kConfirmation) {
        copies.Backup();
        time.Reset();
        EmptyLog();
        contest.log.gContactCount = 0;
        time.records.Clear();
        preferencesFile.SavePref();
    }
    reload.mnuopen2();
}

void FileMenu::EmptyLog() {
    try {
        file.files.Replace(file.Path(), "");
    } catch (const PlatformError& failure) {
        throw LogWriteError{std::string{failure.what()} +
                            "\n\nThe new log was not started; the log is as it was before."};
    }
}

void FileMenu::mnuNew_Click() {
    StartNewLog();
    reload.display.rates.TimeStats();
}

void FileMenu::mnuArchive_Click() {
    try {
        desk.dialogs.Show(kArchiveBox);
        const FileRequest request{.title = "",
                                  .filter = kLogFilter,
                                  .folder = copies.BackupFolder(),
                                  .name = copies.ArchiveName(),
                                  .overwritePrompt = true};
        file.files.Copy(file.Path(), Chosen(desk.dialogs.SaveFile(request)));
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(ErrorBox("Error Archiving Log", failure));
    }
}

void FileMenu::mnuRestore_Click() {
    try {
        desk.dialogs.Show(kRestoreBox);
        if (contest.log.gContactCount > 0 && desk.dialogs.Show(kReplaceBox) != Answer::Yes) {
            return;
        }
        const FileRequest request{.title = "", .filter = kLogFilter, .folder = copies.BackupFolder(), .name = ""};
        const std::string archive = Chosen(desk.dialogs.OpenFile(request));
        copies.KeepPresentLog();
        file.files.Copy(archive, file.Path());
        reload.mnuopen2();
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(ErrorBox("Error Restoring Log", failure));
    }
}

}  // namespace tallyhut
