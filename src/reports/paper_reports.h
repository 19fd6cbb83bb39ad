#pragma once

#include <functional>

#include "log/contest_display.h"
#include "log/log_file.h"
#include "log/panel.h"
#include "log/time_records.h"
#include "platform/printer.h"
#include "reports/merged_log.h"

namespace tallyhut {

/// The log and the dupe sheet as they went to the sponsor on paper, as files in the working directory and printed. The
/// reports of the log read the files and count anew on the way; whatever fails ends a report silently, and everything
/// is then as it was before.
struct PaperReports {
    Panel& panel;
    Contest& contest;
    const LogFile& logFile;
    const TimeRecords& records;
    ContestDisplay& display;
    Printer& printer;

    void WriteDupeFile();
    void PrintDupeSheet();
    void WriteLogFile();
    void PrintLog();

private:
    /// Warns, runs the report, and blanks the message line.
    void Run(const std::function<void()>& report);
    std::vector<std::string> SortedCalls();
    MergedLog Merged() const;
    void TakeOver(const MergedLog& merged);
};

}  // namespace tallyhut
