#include "reports/summary_sheet.h"

#include "contest/score.h"
#include "log/operating_time.h"
#include "reports/column_writer.h"
#include "reports/report_text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLongestLine = 65;
constexpr int kValueColumn = 16;

void WriteStation(const SummaryAnswers& answers, const Preferences& station, ColumnWriter& lines) {
    lines.Text("ARRL NOVEMBER SWEEPSTAKES ").Line(ContestWords(station)).EndLine();
    lines.Text("Call Used: " + station.gOwnCall + "    ARRL Section: " + station.gOwnSection);
    lines.Text("    License Class: ").Line(answers.licenseClass).EndLine();
    lines.Line("Call of operator if different");
    lines.Text("from call used: " + answers.operatorCall + "    License Class: ");
    lines.Line(answers.operatorClass).EndLine();
}

void WriteOperators(const SummaryAnswers& answers, ColumnWriter& lines) {
    if (answers.singleOperator) {
        lines.Line(" X Single Operator").Line("   Multioperator");
    } else {
        lines.Line("   Single Operator").Line(" X Multioperator " + answers.operators);
    }
    lines.EndLine();
}

void WriteScore(const SummaryAnswers& answers, const Preferences& station, int worked, std::int32_t contacts,
                ColumnWriter& lines) {
    const std::int32_t score = ClaimedScore(contacts, worked);
    lines.Line("Scoring:" + PrintedNumber(contacts * 2) + "QSO points X" + PrintedNumber(worked) +
               "sections =" + PrintedNumber(score) + "claimed score");
    lines.EndLine();
    lines.Line("Count 2 points for complete QSO. (Sections worked are listed below.)").EndLine();
    lines.Line("Claimed Score   QSO's   Sections   Power Output   Hrs of Op");
    lines.Text(PrintedNumber(score)).At(kValueColumn, PrintedNumber(contacts)).At(27, PrintedNumber(worked));
    lines.At(37, answers.power).At(51, DurationText(static_cast<double>(station.gOpSeconds))).EndLine();
    lines.EndLine();
}

void WriteClubAndEquipment(const SummaryAnswers& answers, ColumnWriter& lines) {
    if (answers.clubParticipation) {
        lines.Line("Club participation? Yes").Line("ARRL Affiliated Club: " + answers.club);
    } else {
        lines.Line("Club participation? No");
    }
    lines.EndLine();
    lines.Line("Equipment Description:").Line("Rigs: " + answers.rigs).Line("Antennas: " + answers.antennas).EndLine();
}

void WriteSponsor(const Preferences& station, ColumnWriter& lines) {
    lines.Line("Please enclose log, photos, comments, ideas, etc. with your entry and");
    lines.Text("mail promptly to: ").Line(kSponsor.contestDepartment).EndLine();
    lines.Text("Internet: ").Line(station.gContestMode == 1 ? kSponsor.phoneEMail : kSponsor.cwEMail);
    lines.Text("Anonymous FTP: ").Line(kSponsor.ftpHost);
    lines.Text("WWW: ").Line(kSponsor.webHost).EndLine();
}

void WriteDeclaration(ColumnWriter& lines) {
    lines.Line("I have observed all competition rules as well as all regulations for");
    lines.Line("Amateur Radio in my country.  My report is correct and true to the best");
    lines.Line("of my knowledge.  I agree to be bound by the decisions of the");
    lines.Line("ARRL Awards Committee.").EndLine();
    lines.Line("Date __________  Signature ___________________  Call ______________").EndLine();
}

void WriteSections(std::string_view heading, const SectionTable& sections, bool worked, ColumnWriter& lines) {
    std::string codes;
    for (int i = 1; i <= sections.gSectionCount; ++i) {
        if ((sections.SectionQsos.at(static_cast<std::size_t>(i)) >= 1) == worked) {
            codes.append(sections.Code(i)).append(" ");
        }
    }
    lines.Line(heading);
    for (const std::string& line : WrappedLines(codes)) {
        lines.Line(line);
    }
    lines.EndLine();
}

void WriteAddress(const SummaryAnswers& answers, const Preferences& station, const SummaryLiterals& literals,
                  ColumnWriter& lines) {
    lines.Text(literals.name).At(kValueColumn, answers.name).Text(literals.call).Line(station.gOwnCall);
    lines.Text("Address: ").At(kValueColumn, answers.addressLine1).EndLine();
    lines.At(kValueColumn, answers.addressLine2).EndLine();
    lines.Line("Email Address: " + answers.eMail);
}

}  // namespace

std::vector<std::string> SummarySheet(const SummaryAnswers& answers, const Preferences& station,
                                      const SectionTable& sections, std::int32_t contacts,
                                      const SummaryLiterals& literals) {
    ColumnWriter lines;
    WriteStation(answers, station, lines);
    WriteOperators(answers, lines);
    WriteScore(answers, station, sections.gSectionsWorked, contacts, lines);
    WriteClubAndEquipment(answers, lines);
    WriteSponsor(station, lines);
    WriteDeclaration(lines);
    WriteSections("Sections worked:", sections, true, lines);
    WriteSections("Sections not worked:", sections, false, lines);
    WriteAddress(answers, station, literals, lines);
    return lines.Lines();
}

std::vector<std::string> WrappedLines(std::string text) {
    std::vector<std::string> lines;
    while (text.size() > kLongestLine) {
        const std::size_t blank = text.rfind(' ', kLongestLine - 1);
        const std::size_t length = blank == std::string::npos ? kLongestLine : blank + 1;
        lines.push_back(text.substr(0, length));
        text.erase(0, length);
    }
    if (!text.empty()) {
        lines.push_back(text);
    }
    return lines;
}

}  // namespace tallyhut
