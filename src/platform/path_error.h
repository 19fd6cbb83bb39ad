#pragma once

#include <string>

#include "platform/files.h"
#include "platform/platform_error.h"

namespace tallyhut {

inline constexpr const char* kCopyOntoItself = "Source and target are the same file";
inline constexpr const char* kNotRegular = "Not a regular file";

/// The system's own reason for an errno value.
std::string ReasonOf(int errorNumber);

/// The failure of a file that is not the expected one.
FileChangedError Changed(const std::string& path);
/// The failure of what stands there and may not outlast a loss of power.
UnconfirmedError Unconfirmed(const std::string& path, const std::string& reason);
/// A failure at a path, as "PATH: reason".
PlatformError PathError(const std::string& path, const std::string& reason);
PlatformError PathError(const std::string& path, int errorNumber);

}  // namespace tallyhut
