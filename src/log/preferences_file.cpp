#include "log/preferences_file.h"

#include "support/free_name.h"

namespace tallyhut {
namespace {

constexpr const char* kFileName = "nspref.txt";
constexpr const char* kDamagedStem = "nspref-damaged";

}  // namespace

void PreferencesFile::Load() {
    unread = true;
    ReadPreferences(files.Read(WorkingFile(directories, kFileName)), preferences);
    unread = false;
}

void PreferencesFile::SavePref() {
    if (unread) {
        KeepUnread();
    }
    files.Replace(WorkingFile(directories, kFileName), WritePreferences(preferences));
}

void PreferencesFile::KeepUnread() {
    const std::string path = WorkingFile(directories, kFileName);
    if (files.FileExists(path)) {
        const std::string kept = FreeName(files, WorkingFile(directories, kDamagedStem), ".txt");
        files.Copy(path, kept);
        onKept(kept);
    }
    unread = false;
}

}  // namespace tallyhut
