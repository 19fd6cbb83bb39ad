#pragma once

#include "contest/preferences.h"
#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// nspref.txt in the working directory.
struct PreferencesFile {
    Files& files;
    const Directories& directories;
    Preferences& preferences;

    /// Throws PlatformError or ValueError.
    void Load();
    /// Writes all values, replacing the file. Throws PlatformError.
    void SavePref();
};

}  // namespace tallyhut
