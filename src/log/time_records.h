#pragma once

#include <cstdint>
#include <string>

#include "platform/files.h"
#include "support/directories.h"
#include "values/date_time.h"
#include "values/format.h"

namespace tallyhut {

/// nsonoff.txt in the working directory: a line for each start and stop of the operating time.
struct TimeRecords {
    Files& files;
    const Directories& directories;
    std::string shortDate{kShortDate};  ///< the machine's picture of a date

    std::string Path() const { return WorkingFile(directories, "nsonoff.txt"); }
    /// Throws PlatformError.
    std::string Read() const { return files.Read(Path()); }
    /// Adds a line: 1 for a start and 0 for a stop, the moment, and the operating time so far where it is told. Throws
    /// PlatformError.
    void Append(std::uint8_t on, const DateTime& at, const std::string* total);
    /// Empties the file. Throws PlatformError.
    void Clear();
};

}  // namespace tallyhut
