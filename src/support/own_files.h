#pragma once

#include <string>

#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// Throws PlatformError where the operator has chosen, by whatever name or link, a file that the contest lives by: the
/// log, its settings, its times, its sections or the names of its contacts.
void RefuseOwnFile(const Files& files, const Directories& directories, const std::string& path);

}  // namespace tallyhut
