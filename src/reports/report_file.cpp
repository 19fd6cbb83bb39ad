#include "reports/report_file.h"

#include "platform/platform_error.h"

namespace tallyhut {

void WriteReportFile(Files& files, const Directories& directories, const std::string& path, std::string_view text) {
    for (const char* name : {"Log.txt", "nspref.txt", "nsonoff.txt"}) {
        if (files.IsSameFile(path, WorkingFile(directories, name))) {
            throw PlatformError{path + ": This is the contest's own " + name + ". Choose another name."};
        }
    }
    files.Write(path, text);
}

}  // namespace tallyhut
