#include "reports/cabrillo.h"

#include <gtest/gtest.h>

#include "tests/reports/report_fixture.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

CabrilloEntry SingleOperator() {
    return {.createdBy = "Q7ZZQ's Tallyhut Log 4.7",
            .categoryOperator = "SINGLE-OP",
            .power = "LOW",
            .assisted = false,
            .schoolClub = false,
            .operators = "",
            .club = "",
            .name = "",
            .addressLine1 = "",
            .addressLine2 = "",
            .eMail = "",
            .soapbox = ""};
}

Lines Written(const CabrilloEntry& entry, const Preferences& station, const std::vector<Contact>& contacts,
              int sectionsWorked = 0) {
    ColumnWriter lines;
    WriteCabrillo(entry, station, LogOf(contacts), sectionsWorked, 2026, lines);
    return lines.Lines();
}

/// The first line of a contact, and the line behind it where there is one.
Lines ContactLines(const Contact& contact, const Preferences& station = CwStation()) {
    const Lines all = Written(SingleOperator(), station, {contact}, 1);
    return {all.begin() + 19, all.end() - 1};
}

std::string ContactLine(const Contact& contact, const Preferences& station = CwStation()) {
    const Lines lines = ContactLines(contact, station);
    EXPECT_EQ(lines.size(), 1U);
    return lines.front();
}

TEST(Cabrillo, EmptyLogIsTheWholeHeadAndTheEnd) {
    EXPECT_EQ(Written(SingleOperator(), CwStation(), {}), (Lines{
                                                              "START-OF-LOG: 3.0",
                                                              "CREATED-BY: Q7ZZQ's Tallyhut Log 4.7",
                                                              "ARRL-SECTION: IL",
                                                              "CONTEST: ARRL-SS-CW",
                                                              "CALLSIGN: W9ZZZ",
                                                              "CATEGORY-OPERATOR: SINGLE-OP",
                                                              "CATEGORY-TRANSMITTER: ONE",
                                                              "CATEGORY-BAND: ALL",
                                                              "CATEGORY-POWER: LOW",
                                                              "CATEGORY-ASSISTED: NON-ASSISTED",
                                                              "CATEGORY-MODE: CW",
                                                              "CATEGORY-STATION: FIXED",
                                                              "CLAIMED-SCORE: 0",
                                                              "OPERATORS: W9ZZZ",
                                                              "CLUB: ",
                                                              "NAME: ",
                                                              "ADDRESS: ",
                                                              "ADDRESS: ",
                                                              "SOAPBOX: ",
                                                              "END-OF-LOG:",
                                                          }));
}

TEST(Cabrillo, HeadOfAPhoneSchoolClubTellsAllItKnows) {
    const CabrilloEntry entry{.createdBy = "Q7ZZQ's Tallyhut Log 4.7",
                              .categoryOperator = "MULTI-OP",
                              .power = "HIGH",
                              .assisted = true,
                              .schoolClub = true,
                              .operators = "W9ZZZ K1AA",
                              .club = "Sultans of Shwing",
                              .name = "Ren\xE9",
                              .addressLine1 = "1 Main St",
                              .addressLine2 = "Newington",
                              .eMail = "rene@example.net",
                              .soapbox = "Fun!"};
    EXPECT_EQ(Written(entry, PhoneStation(), {Usual(), Usual()}, 1),
              (Lines{
                  "START-OF-LOG: 3.0",
                  "CREATED-BY: Q7ZZQ's Tallyhut Log 4.7",
                  "ARRL-SECTION: IL",
                  "CONTEST: ARRL-SS-SSB",
                  "CALLSIGN: W9ZZZ",
                  "CATEGORY-OPERATOR: MULTI-OP",
                  "CATEGORY-TRANSMITTER: ONE",
                  "CATEGORY-BAND: ALL",
                  "CATEGORY-POWER: HIGH",
                  "CATEGORY-ASSISTED: ASSISTED",
                  "CATEGORY-MODE: PH",
                  "CATEGORY-STATION: SCHOOL",
                  "CLAIMED-SCORE: 4",
                  "OPERATORS: W9ZZZ K1AA",
                  "CLUB: Sultans of Shwing",
                  "NAME: Ren\xE9",
                  "ADDRESS: 1 Main St",
                  "ADDRESS: Newington",
                  "ADDRESS: (e-mail) rene@example.net",
                  "SOAPBOX: Fun!",
                  "QSO:  7000 PH 2026-11-07 2104 W9ZZZ       137 A 72 IL  W1XX         88 A 72 MDC",
                  "QSO:  7000 PH 2026-11-07 2104 W9ZZZ       137 A 72 IL  W1XX         88 A 72 MDC",
                  "END-OF-LOG:",
              }));
}

TEST(Cabrillo, NoCategoryChosenLeavesItsLineOut) {
    CabrilloEntry entry = SingleOperator();
    entry.categoryOperator = "";
    entry.power = "";
    const Lines lines = Written(entry, CwStation(), {});
    EXPECT_EQ(lines.at(5), "CATEGORY-TRANSMITTER: ONE");
    EXPECT_EQ(lines.at(7), "CATEGORY-POWER: ");
}

/// The lines of the head that begin with the tag.
std::string HeadLine(const CabrilloEntry& entry, const Preferences& station, std::string_view tag) {
    std::string found;
    for (const std::string& line : Written(entry, station, {})) {
        if (line.starts_with(tag)) {
            found += found.empty() ? line : '|' + line;
        }
    }
    return found;
}

TEST(Cabrillo, TheHeadOfVersion3HasItsOperatorCategories) {
    struct Row {
        std::string_view chosen, operators, transmitter, assisted;
    };
    const std::vector<Row> rows{
        {"SINGLE-OP", "SINGLE-OP", "ONE", "NON-ASSISTED"},
        {"SINGLE-OP-ASSISTED", "SINGLE-OP", "ONE", "ASSISTED"},
        {"MULTI-OP", "MULTI-OP", "ONE", "NON-ASSISTED"},
        {"MULTI-TWO", "MULTI-OP", "TWO", "NON-ASSISTED"},
        {"MULTI-MULTI", "MULTI-OP", "UNLIMITED", "NON-ASSISTED"},
        {"CHECKLOG", "CHECKLOG", "ONE", "NON-ASSISTED"},
    };
    CabrilloEntry entry = SingleOperator();
    entry.asCabrillo3Lists = true;
    for (const Row& row : rows) {
        entry.categoryOperator = row.chosen;
        EXPECT_EQ(HeadLine(entry, CwStation(), "CATEGORY-OPERATOR"),
                  "CATEGORY-OPERATOR: " + std::string{row.operators});
        EXPECT_EQ(HeadLine(entry, CwStation(), "CATEGORY-TRANSMITTER"),
                  "CATEGORY-TRANSMITTER: " + std::string{row.transmitter})
            << row.chosen;
        EXPECT_EQ(HeadLine(entry, CwStation(), "CATEGORY-ASSISTED"), "CATEGORY-ASSISTED: " + std::string{row.assisted})
            << row.chosen;
    }
    entry.categoryOperator = "MULTI-TWO";
    entry.assisted = true;
    EXPECT_EQ(HeadLine(entry, CwStation(), "CATEGORY-ASSISTED"), "CATEGORY-ASSISTED: ASSISTED");
}

TEST(Cabrillo, TheHeadOfVersion3TellsModeLocationAndEmailByItsOwnTags) {
    CabrilloEntry entry = SingleOperator();
    entry.eMail = "pat@example.net";
    entry.asCabrillo3Lists = true;
    EXPECT_EQ(HeadLine(entry, PhoneStation(), "CATEGORY-MODE"), "CATEGORY-MODE: SSB");
    EXPECT_EQ(HeadLine(entry, CwStation(), "CATEGORY-MODE"), "CATEGORY-MODE: CW");
    EXPECT_EQ(HeadLine(entry, CwStation(), "LOCATION"), "LOCATION: IL");
    EXPECT_EQ(HeadLine(entry, CwStation(), "ARRL-SECTION"), "");
    EXPECT_EQ(HeadLine(entry, CwStation(), "EMAIL"), "EMAIL: pat@example.net");
    EXPECT_EQ(HeadLine(entry, CwStation(), "ADDRESS: (e-mail)"), "");
    entry.eMail = "";
    EXPECT_EQ(HeadLine(entry, CwStation(), "EMAIL"), "");
}

TEST(Cabrillo, ThePhoneContactsOfVersion3StayPH) {
    CabrilloEntry entry = SingleOperator();
    entry.asCabrillo3Lists = true;
    EXPECT_EQ(HeadLine(entry, PhoneStation(), "QSO:"), "");
    const Lines all = Written(entry, PhoneStation(), {Usual()}, 1);
    EXPECT_TRUE(all.at(all.size() - 2).starts_with("QSO:  7000 PH "));
}

TEST(Cabrillo, ContactStandsInItsColumns) {
    const std::string line = ContactLine(Usual());
    EXPECT_EQ(line, "QSO:  7000 CW 2026-11-07 2104 W9ZZZ       137 A 72 IL  W1XX         88 A 72 MDC");
    EXPECT_EQ(line.substr(5, 5), " 7000");
    EXPECT_EQ(line.substr(30, 5), "W9ZZZ");
    EXPECT_EQ(line.substr(42, 3), "137");
    EXPECT_EQ(line.substr(55, 4), "W1XX");
    EXPECT_EQ(line.substr(68, 2), "88");
    EXPECT_EQ(line.substr(76), "MDC");
}

TEST(Cabrillo, FrequencyIsTheLowerEdgeOfTheBand) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"160", " 1800"}, {"80", " 3500"}, {"40", " 7000"}, {"20", "14000"}, {"15", "21000"}, {"10", "28000"},
    };
    for (const auto& [band, field] : rows) {
        Contact contact = Usual();
        contact.Bnd = band;
        EXPECT_EQ(ContactLine(contact).substr(0, 14), "QSO: " + field + " CW ") << band;
    }
}

TEST(Cabrillo, BandOutsideTheTableLeavesItsColumnsBlankAndTheRestInPlace) {
    for (const std::string band : {"6", "", " 40", "7"}) {
        Contact contact = Usual();
        contact.Bnd = band;
        EXPECT_EQ(ContactLine(contact),
                  "QSO:       CW 2026-11-07 2104 W9ZZZ       137 A 72 IL  W1XX         88 A 72 MDC")
            << band;
    }
}

TEST(Cabrillo, NumberSentEndsInColumn45) {
    Contact contact = Usual();
    contact.Ns = "1";
    EXPECT_EQ(ContactLine(contact).substr(35, 11), "         1 ");
    contact.Ns = "1234";
    EXPECT_EQ(ContactLine(contact).substr(35, 11), "      1234 ");
}

TEST(Cabrillo, SectionOfTwoCharactersEndsTheLineWithABlank) {
    Contact contact = Usual();
    contact.Sec = "MD";
    EXPECT_EQ(ContactLine(contact).substr(76), "MD ");
    contact.Sec = "EMA";
    EXPECT_EQ(ContactLine(contact).substr(76), "EMA");
    contact.Sec = "X";
    EXPECT_EQ(ContactLine(contact).substr(76), "X");
}

TEST(Cabrillo, TimesOfEveryLengthGiveWhatTheyHave) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"", ""},          {"5", "5"},      {"21", "21"},        {"21:", "21"},        {"21:0", "210"},
        {"21:04", "2104"}, {"12:5", "125"}, {"21:04:3", "2104"}, {"21:04:33", "2104"},
    };
    for (const auto& [time, field] : rows) {
        Contact contact = Usual();
        contact.Time = time;
        EXPECT_EQ(ContactLine(contact).substr(25, 5), field + std::string(5 - field.size(), ' ')) << time;
    }
}

TEST(Cabrillo, DateThatDoesNotParseStandsAsItIs) {
    Contact contact = Usual();
    contact.Date = "2026/13/7";
    EXPECT_EQ(ContactLine(contact).substr(14, 11), "2026/13/7  ");
    contact.Date = "11/7";
    EXPECT_EQ(ContactLine(contact).substr(14, 11), "2026-11-07 ");
}

TEST(Cabrillo, CallBeyondItsFieldBreaksTheLineInTwo) {
    Contact contact = Usual();
    contact.Call = "W1AW/3456789XY";
    EXPECT_EQ(ContactLines(contact), (Lines{"QSO:  7000 CW 2026-11-07 2104 W9ZZZ       137 A 72 IL  W1AW/3456789XY",
                                            std::string(68, ' ') + "88 A 72 MDC"}));
}

TEST(Cabrillo, CallUpToTheNumberReceivedStandsOnOneLine) {
    Contact contact = Usual();
    contact.Call = "W1AW/3456789X";
    EXPECT_EQ(ContactLine(contact).substr(55), "W1AW/3456789X88 A 72 MDC");
}

TEST(Cabrillo, CallWithASlashFillsItsFieldAsItStands) {
    Contact contact = Usual();
    contact.Call = "W1AW/3";
    EXPECT_EQ(ContactLine(contact).substr(55, 7), "W1AW/3 ");
}

TEST(Cabrillo, ModeIsTheContests) {
    EXPECT_EQ(ContactLine(Usual(), PhoneStation()).substr(11, 2), "PH");
}

}  // namespace
}  // namespace tallyhut
