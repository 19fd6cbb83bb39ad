#include "reports/report_file.h"

#include "support/own_files.h"

namespace tallyhut {

void WriteReportFile(Files& files, const Directories& directories, const std::string& path, std::string_view text) {
    RefuseOwnFile(files, directories, path);
    files.Write(path, text);
}

}  // namespace tallyhut
