#pragma once

#include <string>
#include <string_view>

#include "import/imported_log.h"
#include "log/panel.h"
#include "platform/files.h"

namespace tallyhut {

/// Of the dialogs that ask for a log.
inline constexpr std::string_view kLogsFilter =
    "Logs (*.log *.cbr *.adi *.adif *.txt) | *.log;*.cbr;*.adi;*.adif;*.txt";

enum class OwnLogs { Taken, Refused };

/// Reads logs from files, whatever their manner is. While a long one is read, the message line says so.
struct LogReading {
    Panel& panel;
    const Files& files;

    /// Throws PlatformError where the file cannot be read, is longer than any log, holds none, or holds one of this
    /// program where these are refused.
    ImportedLog Read(const std::string& path, OwnLogs ownLogs) const;
};

}  // namespace tallyhut
