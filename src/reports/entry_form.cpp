#include "reports/entry_form.h"

#include <algorithm>
#include <array>

#include "log/entry_flow.h"
#include "platform/platform_error.h"
#include "reports/printed_pages.h"
#include "reports/report_file.h"
#include "reports/report_text.h"
#include "reports/saved_file.h"
#include "support/call_file_stem.h"
#include "toolkit/key.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kSettings = "Settings";
constexpr int kSummaryHeadPoints = 16;

/// An option of a group, and what it stands for where it is chosen.
struct ChoiceRow {
    Option Form2::*option;
    std::string_view meaning;
};

/// A school club enters as a multi operator; its station category tells the school.
constexpr std::array kCategories{
    ChoiceRow{&Form2::Option11, "SINGLE-OP"},   ChoiceRow{&Form2::Option12, "SINGLE-OP-ASSISTED"},
    ChoiceRow{&Form2::Option13, "MULTI-OP"},    ChoiceRow{&Form2::Option14, "MULTI-TWO"},
    ChoiceRow{&Form2::Option15, "MULTI-MULTI"}, ChoiceRow{&Form2::Option16, "MULTI-OP"},
    ChoiceRow{&Form2::Option17, "CHECKLOG"},
};
constexpr std::array kPowers{
    ChoiceRow{&Form2::Option18, "HIGH"},
    ChoiceRow{&Form2::Option19, "LOW"},
    ChoiceRow{&Form2::Option20, "QRP"},
};
constexpr std::array kClasses{
    ChoiceRow{&Form2::Option1, "Novice"},
    ChoiceRow{&Form2::Option2, "Technician"},
    ChoiceRow{&Form2::Option3, "Other"},
};
constexpr std::array kOperatorClasses{
    ChoiceRow{&Form2::Option4, "Novice"},
    ChoiceRow{&Form2::Option8, "Technician"},
    ChoiceRow{&Form2::Option5, "Other"},
};

/// Empty where none of the group is chosen.
template <std::size_t Count>
std::string_view Chosen(const Form2& dialog, const std::array<ChoiceRow, Count>& group) {
    for (const ChoiceRow& row : group) {
        if ((dialog.*row.option).Value()) {
            return row.meaning;
        }
    }
    return "";
}

/// The answers that are kept from contest to contest, in both stores.
struct KeptAnswer {
    TextBox Form2::*box;
    const char* setting;
    std::string_view sharedKey;
};

/// In the order in which they are shared; the last one has the file written.
constexpr std::array kKeptAnswers{
    KeptAnswer{&Form2::Text5, "UserAddressName", "OWN_ADDRESS_NAME"},
    KeptAnswer{&Form2::Text6, "UserAddressLine1", "OWN_ADDRESS_Line1"},
    KeptAnswer{&Form2::Text7, "UserAddressLine2", "OWN_ADDRESS_Line2"},
    KeptAnswer{&Form2::Text8, "UserEMail", "OWN_EMAIL"},
    KeptAnswer{&Form2::Text10, "UserClubName", "OWN_CLUB_NAME"},
};

/// What of the station stands in an entry, in the order of the exchange.
struct StationValue {
    std::string Preferences::*value;
    std::string_view name;
};

constexpr std::array kStationValues{
    StationValue{&Preferences::gOwnCall, "call"},
    StationValue{&Preferences::gOwnPrec, "precedence"},
    StationValue{&Preferences::gOwnCheck, "check"},
    StationValue{&Preferences::gOwnSection, "section"},
};

/// Empty where the station form has been filled in.
std::string MissingText(const Preferences& station) {
    std::string missing;
    for (const StationValue& row : kStationValues) {
        if (Trim(station.*row.value).empty()) {
            missing += missing.empty() ? "The entry will lack your " : ", ";
            missing += row.name;
        }
    }
    return missing.empty() ? missing : missing + ". It is typed in Settings, Setup.";
}

/// The file and the button that the text names have other names now; operators know the text as it is.
const MessageBox kOldFormatBox{
    .title = kOldFormatTitle,
    .text =
        "In my last correspondence with the ARRL, they indicated that the traditional summary format will not be "
        "accepted after the 1999 contest.  In addition, they only want contest submissions as files (no computer "
        "generated printed logs). To write the new Cabrillo format (ASCIICab.txt) which incorporates the summary and "
        "log files, click Write Cabrillo Fmt.",
    .buttons = Buttons::OK,
    .icon = Icon::Information,
};

constexpr std::string_view kSubmission =
    "\r\n\r\nAttach this file to an e-mail addressed for contest submission.  If you wish to print this file, you can "
    "open it with Notepad or Wordpad to print.";

const MessageBox kThanksBox{
    .title = "  Thanks!",
    .text = "Thanks for using Tallyhut Log, and good luck in the contest!",
    .buttons = Buttons::OK,
    .icon = Icon::None,
};

}  // namespace

void EntryForm::Open() {
    dialog.ShowModal();
}

void EntryForm::Form2_Load() {
    for (const KeptAnswer& answer : kKeptAnswers) {
        (dialog.*answer.box).SetText(machine.settings.Get(kSettings, answer.setting));
    }
    dialog.Frame1.SetCaption(contest.preferences.gOwnCall + "'s License Class:");
    dialog.lblMissing.SetCaption(MissingText(contest.preferences));
    typed.Offer();
}

/// An Enter that closed the form or began the file would come too early for somebody who fills in field after field.
void EntryForm::Form2_KeyPress(int& KeyAscii) {
    const Control* here = dialog.Focus();
    if (KeyAscii != kKeyEnter || here == nullptr || here->kind != ControlKind::TextBox) {
        return;
    }
    KeyAscii = 0;
    const std::vector<Control*> stops = dialog.TabStops();
    const auto next = std::find_if(std::ranges::find(stops, here) + 1, stops.end(),
                                   [](const Control* stop) { return stop->kind == ControlKind::TextBox; });
    if (next != stops.end()) {
        (*next)->SetFocus();
    }
}

void EntryForm::Text2_KeyPress(int& KeyAscii) {
    Capital(KeyAscii);
}

CabrilloEntry EntryForm::Entry() const {
    return {.createdBy = ProgramTitle(form1),
            .categoryOperator = Chosen(dialog, kCategories),
            .power = Chosen(dialog, kPowers),
            .assisted = dialog.OptCatYes.Value(),
            .schoolClub = dialog.Option16.Value(),
            .operators = dialog.Text2.Text(),
            .club = dialog.Text10.Text(),
            .name = dialog.Text5.Text(),
            .addressLine1 = dialog.Text6.Text(),
            .addressLine2 = dialog.Text7.Text(),
            .eMail = dialog.Text8.Text(),
            .soapbox = dialog.Text11.Text(),
            .asCabrillo3Lists = dialog.chkCabrillo3.Value()};
}

void EntryForm::Command4_Click() {
    const FileRequest request = SaveRequest(directories, "LOG Files (*.log) | *.log",
                                            CallToFileStem(Trim(contest.preferences.gOwnCall)) + ".log");
    try {
        const std::optional<std::string> path = ChosenPath(desk.dialogs, directories, request);
        if (!path) {
            return;
        }
        WriteCabrilloFile(*path);
        desk.dialogs.Show(WrittenBox(*path, kSubmission));
        desk.dialogs.Show(kThanksBox);
        dialog.Command3.SetFocus();
        KeepAnswers();
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(NotWrittenBox(failure.what()));
    } catch (const ValueError& failure) {
        desk.dialogs.Show(NotWrittenBox(failure.what()));
    }
}

/// The lines before a failure are in the file.
void EntryForm::WriteCabrilloFile(const std::string& path) {
    ColumnWriter lines;
    try {
        WriteCabrillo(Entry(), contest.preferences, contest.log, contest.sections.gSectionsWorked,
                      desk.clock.Now().year, lines);
    } catch (const ValueError&) {
        WriteReportFile(machine.files, directories, path, FileText(lines.Lines()));
        throw;
    }
    WriteReportFile(machine.files, directories, path, FileText(lines.Lines()));
}

void EntryForm::KeepAnswers() {
    for (const KeptAnswer& answer : kKeptAnswers) {
        machine.settings.Set(kSettings, answer.setting, Trim((dialog.*answer.box).Text()));
    }
    for (const KeptAnswer& answer : kKeptAnswers) {
        const bool saveNow = &answer == &kKeptAnswers.back();
        shared.SetSharedPreference(answer.sharedKey, Trim((dialog.*answer.box).Text()), saveNow);
    }
}

void EntryForm::WarnOfOldFormat() {
    desk.dialogs.Beep();
    desk.dialogs.Show(kOldFormatBox);
}

SummaryAnswers EntryForm::Answers() const {
    return {.licenseClass = Chosen(dialog, kClasses),
            .operatorCall = dialog.Text1.Text(),
            .operatorClass = Chosen(dialog, kOperatorClasses),
            .singleOperator = dialog.Option6.Value(),
            .operators = dialog.Text2.Text(),
            .clubParticipation = dialog.Option9.Value(),
            .club = dialog.Text10.Text(),
            .rigs = dialog.Text3.Text(),
            .antennas = dialog.Text4.Text(),
            .power = dialog.Text9.Text(),
            .name = dialog.Text5.Text(),
            .addressLine1 = dialog.Text6.Text(),
            .addressLine2 = dialog.Text7.Text(),
            .eMail = dialog.Text8.Text()};
}

void EntryForm::Command1_Click() {
    WarnOfOldFormat();
    const auto lines =
        SummarySheet(Answers(), contest.preferences, contest.sections, contest.log.gContactCount(), kFileLiterals);
    WriteReportFile(machine.files, directories, WorkingFile(directories, "ASCIISum.txt"), FileText(lines));
    Command3_Click();
}

void EntryForm::Command2_Click() {
    WarnOfOldFormat();
    const auto lines =
        SummarySheet(Answers(), contest.preferences, contest.sections, contest.log.gContactCount(), kPrintLiterals);
    PrintPages(machine.printer, dialog.Caption(), {lines}, kSummaryHeadPoints);
}

void EntryForm::Command3_Click() {
    dialog.Unload();
}

}  // namespace tallyhut
