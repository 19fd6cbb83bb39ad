#include "support/fresh_installation.h"

#include <array>

namespace tallyhut {

namespace {
constexpr const char* kLogFile = "Log.txt";
constexpr const char* kPreferencesFile = "nspref.txt";
constexpr std::array kDataFiles{"wave2.txt", "BandPlan.txt", "readns.txt"};
}  // namespace

bool IsFreshInstallation(const Files& files, const Directories& directories) {
    return !files.FileExists(WorkingFile(directories, kPreferencesFile));
}

void MakeFreshInstallation(Files& files, const Directories& directories, const std::string& dataFolder,
                           std::string_view firstPreferences) {
    const std::string log = WorkingFile(directories, kLogFile);
    if (!files.FileExists(log)) {
        files.Replace(log, "");
    }
    const std::string sources = dataFolder + '/';
    for (const std::string name : kDataFiles) {
        const std::string path = WorkingFile(directories, name);
        if (!files.FileExists(path)) {
            files.Copy(sources + name, path);
        }
    }
    files.Replace(WorkingFile(directories, kPreferencesFile), firstPreferences);
}

}  // namespace tallyhut
