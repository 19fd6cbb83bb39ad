#pragma once

#include <string>

#include "platform/files.h"

namespace tallyhut {

/// The first path at which nothing stands: the stem with the suffix, then with "-2" and so on before it. Throws
/// PlatformError.
std::string FreeName(const Files& files, const std::string& stem, const std::string& suffix);

}  // namespace tallyhut
