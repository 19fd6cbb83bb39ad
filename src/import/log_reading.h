#pragma once

#include <string>
#include <string_view>

#include "import/imported_log.h"
#include "platform/files.h"

namespace tallyhut {

/// Of the dialogs that ask for a log.
inline constexpr std::string_view kLogsFilter =
    "Logs (*.log *.cbr *.adi *.adif *.txt) | *.log;*.cbr;*.adi;*.adif;*.txt";

enum class OwnLogs { Taken, Refused };

/// The log in a file, whatever its manner is. Throws PlatformError where the file cannot be read, is longer than any
/// log, holds none, or holds one of this program where these are refused.
ImportedLog ReadLog(const Files& files, const std::string& path, OwnLogs ownLogs);

}  // namespace tallyhut
