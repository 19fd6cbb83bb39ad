#pragma once

#include <string>

#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// The wave file of a prompt such as "Call": the operator's own in the working directory, else the one that comes with
/// the program, whether it is there or not.
///
/// @param dataFolder  where the program's data files lie, without a slash at the end
/// Throws PlatformError where the working directory cannot be looked at.
std::string PromptFile(const Files& files, const Directories& directories, const std::string& dataFolder,
                       const std::string& prompt);

}  // namespace tallyhut
