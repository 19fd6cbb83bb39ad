#include "reports/log_exports.h"

#include "platform/platform_error.h"
#include "reports/adif.h"
#include "reports/adif_exchange.h"
#include "reports/list_text.h"
#include "reports/report_file.h"
#include "reports/saved_file.h"
#include "reports/stationbook.h"

namespace tallyhut {
namespace {

const InputBox kPowerBox{
    .title = "Please enter your transmitter output power.",
    .text =
        "Please enter the power value that you would like to record.  This is an optional value that will be included "
        "in each QSO record and displayed in Station Book's power output column.",
    .preset = "100",
};

const InputBox kCommentBox{
    .title = "Please enter a comment.",
    .text =
        "Please enter a comment that you would like to appear on each QSO record.  This is an optional description "
        "that will be displayed in Station Book's Comments column.",
    .preset = "November Sweepstakes Contest",
};

MessageBox ExportedBox(const std::string& folder) {
    return {.title = "Export Successful!",
            .text = "LogExp.txt has been written to this program's working directory " + folder +
                    ".  Import these contacts into the Station Book log program by clicking File, Import, and "
                    "navigating to this directory from the Stationbook program.",
            .buttons = Buttons::OK,
            .icon = Icon::Information};
}

}  // namespace

void LogExports::expADIF_Click() {
    ExportAdif([this](const std::string& power, const std::string& comment) {
        const DateTime now = desk.clock.Now();
        const AdifExport details{.title = ProgramTitle(form),
                                 .exportedAt = FormatDateTime(now, "ddddd h:nn:ss AMPM", shortDate),
                                 .power = power,
                                 .comment = comment,
                                 .phone = contest.preferences.gContestMode != 0,
                                 .sections = contest.sections.Chosen()};
        return AdifText(details, contest.log, now.year);
    });
}

void LogExports::expADIFX_Click() {
    ExportAdif([this](const std::string& power, const std::string& comment) {
        const DateTime now = desk.clock.Now();
        const AdifExchange details{
            .title = ProgramTitle(form),
            .writtenAt = FormatDateTime(UtcOf(now, contest.preferences), "yyyymmdd hhnnss"),
            .power = power,
            .comment = comment,
        };
        return AdifExchangeText(details, contest.preferences, contest.log, contest.sections.List(), now.year);
    });
}

void LogExports::ExportAdif(
    const std::function<std::string(const std::string& power, const std::string& comment)>& textOf) {
    const std::string power = desk.dialogs.Show(kPowerBox);
    const std::string comment = desk.dialogs.Show(kCommentBox);
    const FileRequest request = SaveRequest(directories, "ADIF Files (*.adi) | *.adi", "Tallyhut.adi");
    try {
        const std::optional<std::string> path = ChosenPath(desk.dialogs, directories, request);
        if (!path) {
            return;
        }
        WriteReportFile(files, directories, *path, textOf(power, comment));
        desk.dialogs.Show(WrittenBox(*path));
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(NotWrittenBox(failure.what()));
    }
}

void LogExports::mnuExport_Click() {
    const bool phone = contest.preferences.gContestMode == 1;
    WriteReportFile(files, directories, WorkingFile(directories, "LogExp.txt"),
                    StationbookText(contest.log, phone, contest.sections.Chosen()));
    desk.dialogs.Beep();
    desk.dialogs.Show(ExportedBox(directories.WorkingDirectory));
}

void LogExports::mnuCopyListtoClipboard_Click() {
    desk.clipboard.SetText(ListAsText(form.ListView1));
}

}  // namespace tallyhut
