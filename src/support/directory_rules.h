#pragma once

#include <functional>
#include <string>

#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "support/directories.h"
#include "support/shared_preferences.h"

namespace tallyhut {

// Where the program's files of the user live, and the making of those folders. Names of folders that are handed over
// as levels begin with a slash.

/// What the machine says of the user's folders; empty where it says nothing.
struct UserFolders {
    std::string UserProfile;  ///< USERPROFILE: the user's own folder where that convention holds
    std::string AppData;      ///< APPDATA, of the same convention
    std::string Documents;    ///< the desktop's documents folder, which need not exist
    std::string UserData;     ///< the desktop's folder for data of programs, which need not exist

    static UserFolders Of(const Environment& environment);
};

/// All that the rules ask of the machine: on the disk, or in a description of one.
struct FolderAccess {
    /// Throws PlatformError when the place cannot be looked at.
    std::function<bool(const std::string& path)> Exists;
    /// Makes the last level; throws PlatformError.
    std::function<void(const std::string& path)> Make;
    /// Tells the operator of a failure; the program goes on.
    std::function<void(const std::string& title, const std::string& text)> Report;

    static FolderAccess Of(Files& files, Dialogs& dialogs);
};

/// Makes the folder if it does not exist. Only the last level is made. A failure is told if showError is set; an empty
/// path is told in any case.
void MakeDirectory(const FolderAccess& folders, const std::string& path, bool showError);

/// Finds the base folder of the user, makes firstLevel in it and secondLevel in that, and returns the path of the
/// first. Failures are told, and the next step follows: the result is a path also where nothing could be made.
///
/// With USERPROFILE the base is "My Documents" in it, made if need be; else "Documents" in it, if that exists; else
/// APPDATA. Without USERPROFILE it is the desktop's documents folder if that exists, else the folder for user data.
std::string SetUpDirectory(const FolderAccess& folders, const UserFolders& user, const std::string& firstLevel,
                           const std::string& secondLevel);

/// The start of the program: sets DataDirectory and SharedDirectory, makes them and the folder of the backups, and
/// loads the shared preferences. Nothing is thrown; failures are told. WorkingDirectory stands already.
void SetUpDirectories(Files& files, const Environment& environment, Dialogs& dialogs, Directories& directories,
                      SharedPreferences& shared);

}  // namespace tallyhut
