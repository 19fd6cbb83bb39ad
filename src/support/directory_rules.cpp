#include "support/directory_rules.h"

#include <cstddef>

#include "platform/platform_error.h"

namespace tallyhut {

namespace {

constexpr const char* kFamilyFolder = "/Q7ZZQ Software";
constexpr const char* kProgramFolder = "/Tallyhut";
constexpr const char* kSharedFolder = "/Shared";
constexpr const char* kSharedFile = "/SharedUserPreferences.xml";
constexpr const char* kBackupFolder = "/BACKUP";
constexpr const char* kSetUpFailed = "User Access Directory Error";
constexpr const char* kMakeFailed = "Unable to create directory.";

/// The description of a failure without the path in front, for a text that begins with the path.
std::string ReasonAt(const std::string& path, const PlatformError& failure) {
    const std::string what = failure.what();
    const std::string prefix = path + ": ";
    return what.starts_with(prefix) ? what.substr(prefix.size()) : what;
}

/// A place that cannot be looked at is told, and counts as not there. The name is compared as it stands: where the file
/// system ignores case it does so itself, and where it does not, a folder of another spelling is another folder.
bool Exists(const FolderAccess& folders, const std::string& path) {
    try {
        return folders.Exists(path);
    } catch (const PlatformError& failure) {
        folders.Report(kSetUpFailed, failure.what());
        return false;
    }
}

std::string MakeLevels(const FolderAccess& folders, const std::string& base, const std::string& firstLevel,
                       const std::string& secondLevel) {
    MakeDirectory(folders, base + firstLevel, true);
    MakeDirectory(folders, base + firstLevel + secondLevel, true);
    return base + firstLevel;
}

/// A new account has no data folder yet, nor perhaps the folders that it stands in.
void MakeUserDataFolder(const FolderAccess& folders, const std::string& path) {
    if (path.empty() || Exists(folders, path)) {
        return;
    }
    for (std::size_t end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1)) {
        MakeDirectory(folders, path.substr(0, end), true);
    }
    MakeDirectory(folders, path, true);
}

std::string SetUpOnDesktop(const FolderAccess& folders, const UserFolders& user, const std::string& firstLevel,
                           const std::string& secondLevel) {
    if (!user.Documents.empty() && Exists(folders, user.Documents)) {
        return MakeLevels(folders, user.Documents, firstLevel, secondLevel);
    }
    MakeUserDataFolder(folders, user.UserData);
    return MakeLevels(folders, user.UserData, firstLevel, secondLevel);
}

}  // namespace

UserFolders UserFolders::Of(const Environment& environment) {
    return {.UserProfile = environment.Variable("USERPROFILE"),
            .AppData = environment.Variable("APPDATA"),
            .Documents = environment.DocumentsFolder(),
            .UserData = environment.UserDataFolder()};
}

FolderAccess FolderAccess::Of(Files& files, Dialogs& dialogs) {
    return {
        .Exists = [&files](const std::string& path) { return files.FolderExists(path); },
        .Make = [&files](const std::string& path) { files.MakeFolder(path); },
        .Report =
            [&dialogs](const std::string& title, const std::string& text) {
                dialogs.Show(MessageBox{.title = title, .text = text, .buttons = Buttons::OK, .icon = Icon::Critical});
            }};
}

void MakeDirectory(const FolderAccess& folders, const std::string& path, bool showError) {
    if (path.empty()) {
        folders.Report("Unable to Create Directory", "Invalid Path");
        return;
    }
    try {
        if (!folders.Exists(path)) {
            folders.Make(path);
        }
    } catch (const PlatformError& failure) {
        if (showError) {
            folders.Report(kMakeFailed, path + "  " + ReasonAt(path, failure));
        }
    }
}

std::string SetUpDirectory(const FolderAccess& folders, const UserFolders& user, const std::string& firstLevel,
                           const std::string& secondLevel) {
    if (user.UserProfile.empty()) {
        return SetUpOnDesktop(folders, user, firstLevel, secondLevel);
    }
    const std::string myDocuments = user.UserProfile + "/My Documents";
    if (!Exists(folders, myDocuments)) {
        MakeDirectory(folders, myDocuments, false);
    }
    if (Exists(folders, myDocuments)) {
        return MakeLevels(folders, myDocuments, firstLevel, secondLevel);
    }
    const std::string documents = user.UserProfile + "/Documents";
    if (Exists(folders, documents)) {
        return MakeLevels(folders, documents, firstLevel, secondLevel);
    }
    // Those under the profile remain, unused.
    MakeLevels(folders, user.UserProfile, firstLevel, secondLevel);
    return MakeLevels(folders, user.AppData, firstLevel, secondLevel);
}

void SetUpDirectories(Files& files, const Environment& environment, Dialogs& dialogs, Directories& directories,
                      SharedPreferences& shared) {
    const FolderAccess folders = FolderAccess::Of(files, dialogs);
    const UserFolders user = UserFolders::Of(environment);
    SetUpDirectory(folders, user, kFamilyFolder, kProgramFolder);
    const std::string base = SetUpDirectory(folders, user, kFamilyFolder, kSharedFolder);
    directories.SharedDirectory = base + kSharedFolder;
    directories.DataDirectory = base + kProgramFolder;
    try {
        shared.Load(directories.SharedDirectory + kSharedFile);
    } catch (const PlatformError& failure) {
        folders.Report(kSetUpFailed, failure.what());
    }
    MakeDirectory(folders, directories.DataDirectory + kBackupFolder, true);
}

}  // namespace tallyhut
