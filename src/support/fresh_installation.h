#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// True when the program has not run in the working directory yet: there is no nspref.txt.
bool IsFreshInstallation(const Files& files, const Directories& directories);

/// Gives the working directory what it lacks for a start: an empty Log.txt, copies of the data files, and last
/// nspref.txt, so that an attempt that failed is made again at the next start. What is there stays.
///
/// @param dataFolder        where the data files lie, without a slash at the end
/// @param firstPreferences  the whole text of nspref.txt
/// Throws PlatformError, also for a data file that is lacking in both folders.
void MakeFreshInstallation(Files& files, const Directories& directories, const std::string& dataFolder,
                           std::string_view firstPreferences);

}  // namespace tallyhut
