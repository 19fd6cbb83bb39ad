#pragma once

#include <functional>

#include "contest/preferences.h"
#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// nspref.txt in the working directory.
struct PreferencesFile {
    Files& files;
    const Directories& directories;
    Preferences& preferences;

    bool unread = false;  ///< what stands there could not be taken over
    /// Tells where a file that could not be read has been kept.
    std::function<void(const std::string& path)> onKept = [](const std::string& /*path*/) {};

    /// Throws PlatformError or ValueError.
    void Load();
    /// Writes all values, replacing the file; one that could not be read is kept first under a free name. Throws
    /// PlatformError.
    void SavePref();

private:
    void KeepUnread();
};

}  // namespace tallyhut
