#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// Writes a report over what the file held; a failure leaves it as far as it was written. Throws PlatformError, also
/// where the operator has chosen a file that the contest lives by: the log, its settings or its times.
void WriteReportFile(Files& files, const Directories& directories, const std::string& path, std::string_view text);

}  // namespace tallyhut
