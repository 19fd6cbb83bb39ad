#include "reports/check_log.h"

#include <algorithm>

#include "platform/platform_error.h"
#include "support/call_file_stem.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kEntryHead = 65'536;  ///< bytes; contacts stand behind it

}  // namespace

void CheckLog::mnuCheckLog_Click() {
    known = knownCalls();
    dialog.ShowModal();
    dialog.Unload();
    known = KnownCalls{{}};
}

void CheckLog::frmCheckLog_Load() {
    ShowFindings(0);
}

void CheckLog::ShowFindings(int row) {
    findings = TakeFindings();
    const int count = static_cast<int>(findings.size());
    dialog.lblFindings.SetCaption(PlainText(count) + " findings");
    dialog.lstFindings.SetRows(findings.size(),
                               [this](std::size_t at, std::size_t column) { return CellText(at, column); });
    dialog.lstFindings.SelectRow(std::min(row, count - 1));
    lstFindings_Click();
}

std::vector<Finding> CheckLog::TakeFindings() const {
    std::optional<std::string> entry;
    std::optional<Finding> unreadable;
    try {
        entry = EntryFile();
    } catch (const PlatformError& failure) {
        unreadable = {0, "Entry", failure.what()};
    }
    std::vector<Finding> taken = FindingsIn({.log = contest.log,
                                             .station = contest.preferences,
                                             .sections = contest.sections,
                                             .known = known,
                                             .entry = entry,
                                             .presentYear = desk.clock.Now().year});
    if (unreadable) {
        taken.push_back(*unreadable);
    }
    return taken;
}

/// The file that the entry form offers to write, where it stands in the folder of the contest.
std::optional<std::string> CheckLog::EntryFile() const {
    const std::string path = WorkingFile(directories, CallToFileStem(Trim(contest.preferences.gOwnCall)) + ".log");
    return files.FileExists(path) ? std::optional{files.OpenToRead(path)->Part(0, kEntryHead)} : std::nullopt;
}

std::string CheckLog::CellText(std::size_t row, std::size_t column) const {
    const Finding& finding = findings.at(row);
    const bool isOfContact = finding.row != 0;
    switch (column) {
        case 0:
            return isOfContact ? PlainText(finding.row) : "";
        case 1:
            return isOfContact ? contest.log.Row(finding.row).Call : "";
        case 2:
            return finding.field;
        default:
            return finding.text;
    }
}

std::int32_t CheckLog::SelectedContact() const {
    const int row = dialog.lstFindings.Row();
    return row < 0 ? 0 : findings.at(static_cast<std::size_t>(row)).row;
}

void CheckLog::lstFindings_Click() {
    dialog.cmdEdit.SetEnabled(SelectedContact() != 0);
}

void CheckLog::lstFindings_KeyDown(int& KeyCode, int Shift) {
    if (Shift == 0 && KeyCode == kKeyEnter) {
        KeyCode = 0;
        cmdEdit_Click();
    }
}

void CheckLog::cmdEdit_Click() {
    if (SelectedContact() == 0) {
        return;
    }
    const int row = dialog.lstFindings.Row();
    editing.Edit(SelectedContact());
    ShowFindings(row);
    dialog.lstFindings.SetFocus();
}

}  // namespace tallyhut
