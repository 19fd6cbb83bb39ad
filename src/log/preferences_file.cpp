#include "log/preferences_file.h"

namespace tallyhut {

namespace {
constexpr const char* kFileName = "nspref.txt";
}

void PreferencesFile::Load() {
    ReadPreferences(files.Read(WorkingFile(directories, kFileName)), preferences);
}

void PreferencesFile::SavePref() {
    files.Replace(WorkingFile(directories, kFileName), WritePreferences(preferences));
}

}  // namespace tallyhut
