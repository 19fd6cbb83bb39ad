#pragma once

#include <string>
#include <string_view>

#include "log/log_file.h"

namespace tallyhut {

/// Writes a report over what the file held; a failure leaves it as far as it was written. Throws PlatformError, also
/// where the operator has chosen the log itself, which is left as it is.
void WriteReportFile(const LogFile& log, const std::string& path, std::string_view text);

}  // namespace tallyhut
