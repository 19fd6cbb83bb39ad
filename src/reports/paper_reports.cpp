#include "reports/paper_reports.h"

#include "platform/platform_error.h"
#include "reports/column_writer.h"
#include "reports/dupe_sheet.h"
#include "reports/report_file.h"
#include "reports/report_text.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

/// The grid's colours after a report of the log: the program's own and not the operator's, until the next display.
constexpr Colour kReportNeeded = 128;
constexpr Colour kReportWorked = 0xFF0000;

/// The file that the text names has another name now; operators know the text as it is.
const MessageBox kOldFormatBox{
    .title = kOldFormatTitle,
    .text =
        "In my last correspondence with the ARRL, they indicated that the traditional log format will not be accepted "
        "after the 1999 contest.  In addition, they only want contest submissions as files (no computer generated "
        "printed logs). To write the new Cabrillo format (ASCIICab.txt) which incorporates the summary and log files, "
        "click Write Cabrillo Fmt from the Summary Sheet Form.",
    .buttons = Buttons::OK,
    .icon = Icon::Information,
};

}  // namespace

void PaperReports::Run(const std::function<void()>& report) {
    panel.desk.dialogs.Beep();
    panel.desk.dialogs.Show(kOldFormatBox);
    try {
        report();
    } catch (const PlatformError&) {  // a report that cannot be had is told by its absence
    } catch (const ValueError&) {
    } catch (const LogFullError&) {
    }
    panel.message.Write(" ");
}

std::vector<std::string> PaperReports::SortedCalls() {
    panel.message.Write("Sorting");
    std::vector<std::string> calls = CallsByArea(contest.log);
    panel.message.Write("Writing File");
    return calls;
}

void PaperReports::WriteDupeFile() {
    Run([this] {
        const std::vector<std::string> lines = DupeFile(SortedCalls(), contest.sections.gSectionsWorked);
        WriteReportFile(logFile.files, logFile.directories, WorkingFile(logFile.directories, "ASCIIDup.txt"),
                        FileText(lines));
    });
}

void PaperReports::PrintDupeSheet() {
    Run([this] {
        PrintPages(printer, "Dupe Sheet",
                   DupePages(SortedCalls(), contest.sections.gSectionsWorked, contest.preferences));
    });
}

MergedLog PaperReports::Merged() const {
    const std::string times = records.Read();
    return MergeLog(logFile.Read(), times, contest.sections.gSectionCount, contest.sections.chosen);
}

void PaperReports::WriteLogFile() {
    Run([this] {
        panel.message.Write("Writing ASCII Log File.");
        const MergedLog merged = Merged();
        WriteReportFile(logFile.files, logFile.directories, WorkingFile(logFile.directories, "ASCIILog.txt"),
                        FileText(LogReportFile(merged)));
        TakeOver(merged);
    });
}

void PaperReports::PrintLog() {
    Run([this] {
        if (PrintPages(printer, "Log", LogReportPages(Merged(), contest.preferences))) {
            TakeOver(Merged());  // anew: events ran while the operator saw to the printer
        }
    });
}

void PaperReports::TakeOver(const MergedLog& merged) {
    contest.log.Clear();
    for (const auto& entry : merged.entries) {
        if (const auto* reported = std::get_if<ReportedContact>(&entry)) {
            contest.log.Add(reported->contact);
        }
    }
    contest.sections = merged.sections;
    for (int i = 1; i <= contest.sections.gSectionCount; ++i) {
        const bool worked = contest.sections.SectionQsos.at(static_cast<std::size_t>(i)) > 0;
        if (worked) {
            display.grid.ShowWorked(i, kReportWorked);
        } else {
            display.grid.ShowNeeded(i, kReportNeeded);
        }
    }
    display.ShowTotals();
}

}  // namespace tallyhut
