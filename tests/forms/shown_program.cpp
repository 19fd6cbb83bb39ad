#include "tests/forms/shown_program.h"

#include <QDir>
#include <array>
#include <fstream>
#include <sstream>

#include "contest/contact_record.h"
#include "contest/section_table.h"
#include "toolkit/key.h"
#include "values/format.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr std::array kCalls{"N5KO", "K9ZO",  "VE3EJ", "KH6ND", "W7RN",  "K1TTT", "N2NT",    "VE7CC",
                            "K4XS", "N6TR",  "W0AIH", "K3LR",  "VY2ZM", "N9RV",  "W8MJ",    "K5TR",
                            "N7DR", "KL7RA", "W4AN",  "VE5MX", "NP2X",  "K0RF",  "VE1OP/3", "AA1K"};
constexpr std::string_view kPrecedences = "ABQUMS";
constexpr int kWorkedOf83 = 61;

/// A file of those that a fresh installation gets.
std::string DataFile(const std::string& name) {
    std::ifstream file{TALLYHUT_DATA "/" + name};
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

}  // namespace

std::vector<Contact> LivelyContest(int contacts, const DateTime& now) {
    std::vector<Contact> log;
    for (int n = 1; n <= contacts; ++n) {
        const auto i = static_cast<std::size_t>(n);
        const DateTime at = AddSeconds(now, -std::int64_t{63} * (contacts - n) - 60);
        const std::string suffix = n <= static_cast<int>(kCalls.size()) ? "" : std::to_string(n / 24);
        log.push_back({.Ns = PlainText(n),
                       .Nr = PlainText((n * 37) % 412 + 1),
                       .P = std::string{kPrecedences.at(i % kPrecedences.size())},
                       .Call = std::string{kCalls.at(i % kCalls.size())} + (suffix.empty() ? "" : "X" + suffix),
                       .Ck = FormatNumber(60 + (n * 7) % 40, "00"),
                       .Sec = std::string{SectionTable{}.Code((n * 29) % kWorkedOf83 + 1)},
                       .Date = FormatDateTime(at, "yyyy/mm/dd"),
                       .Time = FormatDateTime(at, "hh:mm:ss"),
                       .Bnd = n < contacts - 12 ? "80" : "40",
                       .Frq = ""});
    }
    return log;
}

std::string& ScreenName() {
    static std::string name;
    return name;
}

ShownProgram::ShownProgram() : sim::Machine{{2026, 11, 8, 3, 12, 44}} {
    std::string log;
    for (const Contact& contact : LivelyContest(136, clock.Now())) {
        log += WriteRecord(contact);
    }
    files.Put("/contest/Log.txt", log);
    files.Put("/contest/BandPlan.txt", DataFile("BandPlan.txt"));
    files.Put("/data/section_map.txt", DataFile("section_map.txt"));
    program.ShowWithoutQuestions();
    program.layout.LayOutMainForm();
    program.reload.mnuopen2();
    program.band.ShowBand();
    program.form1.Show();
    Settle();
}

void ShownProgram::Settle() {
    for (int i = 0; i < 10; ++i) {
        program.desk.RunPending();
        pump.Collect();
    }
}

void ShownProgram::Type(std::string_view text) {
    for (const char character : text) {
        program.desk.PostKey(KeyForCharacter(static_cast<unsigned char>(character)));
    }
    Settle();
}

void ShownProgram::Press(std::string_view keyName) {
    program.desk.PostKey(KeyByName(keyName).value());
    Settle();
}

QWidget& ShownProgram::Show(Form& form) {
    form.Show();
    Settle();
    return WindowOf(form);
}

void ShownProgram::KeepScreenshot(const Form& form, const std::string& name) {
    QDir{}.mkpath(TALLYHUT_SCREENSHOTS);
    WindowOf(form).grab().save(QString::fromStdString(TALLYHUT_SCREENSHOTS "/" + ScreenName() + '-' + name + ".png"));
}

}  // namespace tallyhut
