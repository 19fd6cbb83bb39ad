#pragma once

#include <string>

#include "platform/platform_error.h"

namespace tallyhut {

inline constexpr const char* kCopyOntoItself = "Source and target are the same file";

/// A failure at a path, as "PATH: reason".
PlatformError PathError(const std::string& path, const std::string& reason);
/// With the system's own reason for an errno value.
PlatformError PathError(const std::string& path, int errorNumber);

}  // namespace tallyhut
