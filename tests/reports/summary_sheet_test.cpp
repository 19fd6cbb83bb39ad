#include "reports/summary_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/reports/report_fixture.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

SectionTable WithSections(int worked) {
    SectionTable sections;
    sections.gSectionCount = 83;
    for (int i = 1; i <= worked; ++i) {
        sections.Count(i);
    }
    return sections;
}

Lines Sheet(const SummaryAnswers& answers, const Preferences& station, int sectionsWorked = 0,
            std::int32_t contacts = 0, const SummaryLiterals& literals = kFileLiterals) {
    return SummarySheet(answers, station, WithSections(sectionsWorked), contacts, literals);
}

bool Holds(const Lines& lines, const std::string& line) {
    return std::ranges::find(lines, line) != lines.end();
}

TEST(SummarySheet, SheetWithoutAnswers) {
    EXPECT_EQ(Sheet({}, CwStation()), (Lines{
                                          "ARRL NOVEMBER SWEEPSTAKES CW CONTEST",
                                          "",
                                          "Call Used: W9ZZZ    ARRL Section: IL    License Class: ",
                                          "",
                                          "Call of operator if different",
                                          "from call used:     License Class: ",
                                          "",
                                          "   Single Operator",
                                          " X Multioperator ",
                                          "",
                                          "Scoring: 0 QSO points X 0 sections = 0 claimed score",
                                          "",
                                          "Count 2 points for complete QSO. (Sections worked are listed below.)",
                                          "",
                                          "Claimed Score   QSO's   Sections   Power Output   Hrs of Op",
                                          " 0              0          0                      00:00:00",
                                          "",
                                          "Club participation? No",
                                          "",
                                          "Equipment Description:",
                                          "Rigs: ",
                                          "Antennas: ",
                                          "",
                                          "Please enclose log, photos, comments, ideas, etc. with your entry and",
                                          "mail promptly to: ARRL Contest Branch, 225 Main St, Newington, CT 06111",
                                          "",
                                          "Internet: SSCW@arrl.org",
                                          "Anonymous FTP: ftp.arrl.org",
                                          "WWW: www.arrl.org",
                                          "",
                                          "I have observed all competition rules as well as all regulations for",
                                          "Amateur Radio in my country.  My report is correct and true to the best",
                                          "of my knowledge.  I agree to be bound by the decisions of the",
                                          "ARRL Awards Committee.",
                                          "",
                                          "Date __________  Signature ___________________  Call ______________",
                                          "",
                                          "Sections worked:",
                                          "",
                                          "Sections not worked:",
                                          "CT EMA ME NH RI VT WMA NNY ENY NLI NNJ SNJ WNY DE EPA MDC WPA AL ",
                                          "GA KY NC NFL SC SFL TN VA PR VI AR LA MS NM NTX OK STX WTX EB ",
                                          "LAX ORG SB SCV SDG SF SJV SV PAC AZ EWA ID MT NV OR UT WWA WY AK ",
                                          "MI OH WV IL IN WI CO IA KS MN MO NE ND SD NL MAR QC ONN MB SK AB ",
                                          "BC NT WCF ONS ONE GTA ",
                                          "",
                                          "Name:               Call:W9ZZZ",
                                          "Address:       ",
                                          "               ",
                                          "Email Address: ",
                                      }));
}

TEST(SummarySheet, SheetWithAllAnswers) {
    const SummaryAnswers answers{.licenseClass = "Other",
                                 .operatorCall = "K1AA",
                                 .operatorClass = "Technician",
                                 .singleOperator = true,
                                 .operators = "ignored",
                                 .clubParticipation = true,
                                 .club = "Sultans",
                                 .rigs = "K3",
                                 .antennas = "Dipole",
                                 .power = "5 W",
                                 .name = "Ren\xE9",
                                 .addressLine1 = "1 Main St",
                                 .addressLine2 = "Newington",
                                 .eMail = "rene@example.net"};
    Preferences station = PhoneStation();
    station.gOpSeconds = 3'725;
    const Lines lines = Sheet(answers, station, 61, 136);
    const Lines expected{
        "ARRL NOVEMBER SWEEPSTAKES PHONE CONTEST",
        "Call Used: W9ZZZ    ARRL Section: IL    License Class: Other",
        "from call used: K1AA    License Class: Technician",
        " X Single Operator",
        "   Multioperator",
        "Scoring: 272 QSO points X 61 sections = 16592 claimed score",
        " 16592          136        61       5 W           01:02:05",
        "Club participation? Yes",
        "ARRL Affiliated Club: Sultans",
        "Rigs: K3",
        "Antennas: Dipole",
        "Internet: SSPhone@arrl.org",
        "Name:          Ren\xE9     Call:W9ZZZ",
        "Address:       1 Main St",
        "               Newington",
        "Email Address: rene@example.net",
    };
    for (const std::string& line : expected) {
        EXPECT_TRUE(Holds(lines, line)) << line;
    }
}

TEST(SummarySheet, MultioperatorNamesTheOperators) {
    SummaryAnswers answers;
    answers.operators = "K1AA K1BB";
    EXPECT_TRUE(Holds(Sheet(answers, CwStation()), " X Multioperator K1AA K1BB"));
}

// The name's literals differ as well, but both lead to the same column.
TEST(SummarySheet, PrintedSheetDiffersInOneBlankBeforeTheCall) {
    SummaryAnswers answers;
    answers.name = "Rene";
    Lines file = Sheet(answers, CwStation());
    const Lines printed = Sheet(answers, CwStation(), 0, 0, kPrintLiterals);
    const auto line = std::ranges::find(file, "Name:          Rene     Call:W9ZZZ");
    ASSERT_NE(line, file.end());
    *line = "Name:          Rene     Call: W9ZZZ";
    EXPECT_EQ(file, printed);
}

TEST(SummarySheet, AllSectionsWorkedLeaveNoList) {
    const Lines lines = Sheet({}, CwStation(), 83, 83);
    const auto heading = std::ranges::find(lines, "Sections not worked:");
    ASSERT_NE(heading, lines.end());
    EXPECT_EQ(*(heading + 1), "");
    EXPECT_EQ(*(heading + 2), "Name:               Call:W9ZZZ");
}

TEST(WrappedLines, BreaksBehindTheLastBlankThatFits) {
    const std::string word(31, 'x');
    EXPECT_EQ(WrappedLines(""), Lines{});
    EXPECT_EQ(WrappedLines("CT EMA "), (Lines{"CT EMA "}));
    EXPECT_EQ(WrappedLines(std::string(65, 'x')), (Lines{std::string(65, 'x')}));
    EXPECT_EQ(WrappedLines(word + ' ' + word + ' ' + word + ' '), (Lines{word + ' ' + word + ' ', word + ' '}));
    EXPECT_EQ(WrappedLines(std::string(64, 'x') + " yy"), (Lines{std::string(64, 'x') + ' ', "yy"}));
}

TEST(WrappedLines, WordBeyondALineIsCut) {
    EXPECT_EQ(WrappedLines(std::string(70, 'x')), (Lines{std::string(65, 'x'), "xxxxx"}));
}

}  // namespace
}  // namespace tallyhut
