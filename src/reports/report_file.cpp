#include "reports/report_file.h"

#include <filesystem>

#include "platform/platform_error.h"

namespace tallyhut {

void WriteReportFile(const LogFile& log, const std::string& path, std::string_view text) {
    const auto whole = [](const std::string& name) { return std::filesystem::path(name).lexically_normal(); };
    if (whole(path) == whole(log.Path())) {
        throw PlatformError{path + ": This is the log itself. Choose another name."};
    }
    log.files.Write(path, text);
}

}  // namespace tallyhut
