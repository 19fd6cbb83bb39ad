#include "import/history_making.h"

#include <optional>

#include "platform/platform_error.h"
#include "reports/saved_file.h"
#include "support/own_files.h"
#include "values/format.h"

namespace tallyhut {
namespace {

constexpr const char* kTitle = "Make Call History";
constexpr const char* kFilter = "Call History (*.txt) | *.txt";
constexpr const char* kFileName = "GatheredHistory.txt";

MessageBox ToldBox(const std::string& text) {
    return {.title = kTitle, .text = text, .buttons = Buttons::OK, .icon = Icon::Exclamation};
}

std::string Counted(std::size_t count, const std::string& one) {
    return PlainText(count) + ' ' + one + (count == 1 ? "" : "s");
}

std::string Logs(std::size_t count) {
    return Counted(count, "log");
}

}  // namespace

void HistoryMaking::mnuMakeHistory_Click() {
    const Gathered gathered = Gather();
    if (gathered.logs == 0) {
        return;
    }
    if (gathered.history.Count() == 0) {
        desk.dialogs.Show(ToldBox("No call with its section or check was found, so nothing was written."));
        return;
    }
    try {
        Save(gathered);
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(NotWrittenBox(failure.what()));
    }
}

HistoryMaking::Gathered HistoryMaking::Gather() {
    Gathered gathered;
    const int presentYear = desk.clock.Now().year;
    for (;;) {
        const std::string title = gathered.logs == 0 ? "Choose the first log of the call history"
                                                     : "Choose another log; Cancel ends with " + Logs(gathered.logs);
        const std::optional<std::string> path = desk.dialogs.OpenFile(
            {.title = title, .filter = std::string{kLogsFilter}, .folder = directories.WorkingDirectory, .name = ""});
        if (!path) {
            return gathered;
        }
        try {
            const ImportedLog log = reading.Read(WholePath(directories, *path), OwnLogs::Taken);
            gathered.history.Add(log, contest.sections.List(), presentYear);
            gathered.notUnderstood += log.notes.count - log.incomplete.size();
            ++gathered.logs;
        } catch (const PlatformError& failure) {
            desk.dialogs.Show(ToldBox(failure.what()));
        }
    }
}

void HistoryMaking::Save(const Gathered& gathered) {
    const std::optional<std::string> path =
        ChosenPath(desk.dialogs, directories, SaveRequest(directories, kFilter, kFileName));
    if (!path) {
        return;
    }
    RefuseOwnFile(files, directories, *path);
    const std::string comment = "Calls of " + Logs(gathered.logs) + ", " +
                                FormatDateTime(desk.clock.Now(), "yyyy-mm-dd") + ", " + ProgramTitle(form);
    files.Replace(*path, gathered.history.Text(comment));
    desk.dialogs.Show(WrittenBox(*path, "\r\n\r\n" + Counted(gathered.history.Count(), "call") + " of " +
                                            Logs(gathered.logs) +
                                            ". Not understood: " + Counted(gathered.notUnderstood, "line") + '.'));
}

}  // namespace tallyhut
