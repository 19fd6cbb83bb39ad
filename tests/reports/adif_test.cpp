#include "reports/adif.h"

#include <gtest/gtest.h>

#include "contest/section_table.h"
#include "tests/reports/report_fixture.h"

namespace tallyhut {
namespace {

const std::string kHead =
    "ADIF Export from Q7ZZQ's Tallyhut Log 4.7\r\n"
    "Written by Alden Voss\r\n"
    "www.tallyhut.example    q7zzq@tallyhut.example\r\n"
    "<PROGRAMID:20>Q7ZZQ's Tallyhut Log\r\n"
    "Log exported on: 11/7/2026 4:04:33 PM\r\n"
    "\r\n"
    "<EOH>\r\n";

AdifExport Defaults() {
    return {.title = "Q7ZZQ's Tallyhut Log 4.7",
            .exportedAt = "11/7/2026 4:04:33 PM",
            .power = "100",
            .comment = "November Sweepstakes Contest",
            .phone = false};
}

std::string RecordOf(const Contact& contact, const AdifExport& details = Defaults()) {
    const std::string text = AdifText(details, LogOf({contact}), 2026);
    EXPECT_TRUE(text.starts_with(kHead));
    return text.substr(kHead.size());
}

bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(Adif, EmptyLogIsTheHeadAlone) {
    EXPECT_EQ(AdifText(Defaults(), LogOf({}), 2026), kHead);
}

TEST(Adif, RecordHasItsFieldsOnTwoLines) {
    EXPECT_EQ(RecordOf(Usual()),
              "<Call:4>W1XX <Qso_Date:8:d>20261107 <Band:3>40M <Mode:2>CW\r\n"
              "<Tx_Pwr:3>100 <Freq:5>7.025 <Time_On:4>2104 <DXCC:3>291 <State:2>MD <Cont:2>NA "
              "<Comment:28>November Sweepstakes Contest\r\n"
              "<eor>\r\n"
              "\r\n");
}

TEST(Adif, WithoutACommentTheEndStandsOnTheLineOfTheContinent) {
    AdifExport details = Defaults();
    details.power = "";
    details.comment = "";
    EXPECT_EQ(RecordOf(Usual(), details),
              "<Call:4>W1XX <Qso_Date:8:d>20261107 <Band:3>40M <Mode:2>CW\r\n"
              "<Freq:5>7.025 <Time_On:4>2104 <DXCC:3>291 <State:2>MD <Cont:2>NA <eor>\r\n"
              "\r\n");
}

TEST(Adif, EmptyFieldsAreLeftOut) {
    const AdifExport details{.title = "", .exportedAt = "", .power = "", .comment = "", .phone = true};
    const std::string text = AdifText(details, LogOf({Contact{}}), 2026);
    EXPECT_TRUE(text.ends_with("<EOH>\r\n<Mode:3>SSB\r\n<Time_On:4>0000 <DXCC:3>291 <Cont:2>NA <eor>\r\n\r\n"));
}

TEST(Adif, TimesOfEveryLengthBecomeFourCharacters) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"", "0000"},       {"5", "0005"},     {"12:5", "0125"},   {"21:04:33", "2104"},
        {"21:04", "2104"},  {"1:2:3", "012:"}, {" 7:08 ", "0708"}, {"2104", "2104"},
        {"210433", "2104"}, {":", "0000"},     {"21:", "0021"},    {"  ", "0000"},
    };
    for (const auto& [time, digits] : rows) {
        EXPECT_EQ(AdifTime(time), digits) << time;
    }
}

TEST(Adif, TimeThatSortsBelowTheDigitsIsLeftOut) {
    Contact contact = Usual();
    contact.Time = "-123";
    EXPECT_FALSE(Holds(RecordOf(contact), "Time_On"));
    contact.Time = "5";
    EXPECT_TRUE(Holds(RecordOf(contact), "<Time_On:4>0005 "));
}

TEST(Adif, DateThatDoesNotParseIsLeftOut) {
    for (const std::string date : {"", "no date", "2/30/2026"}) {
        Contact contact = Usual();
        contact.Date = date;
        EXPECT_TRUE(RecordOf(contact).starts_with("<Call:4>W1XX <Band:3>40M ")) << date;
    }
}

TEST(Adif, SectionsLieInEntitiesAndStates) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"PR", "<DXCC:3>202 <Cont"},        {"VI", "<DXCC:3>285 <Cont"},        {"PAC", "<DXCC:3>110 <State:2>HI "},
        {"AK", "<DXCC:1>6 <State:2>AK "},   {"ON", "<DXCC:1>1 <Cont"},          {"GTA", "<DXCC:1>1 <Cont"},
        {"NWT", "<DXCC:1>1 <Cont"},         {"NT", "<DXCC:3>291 <State:2>NT "}, {"EMA", "<DXCC:3>291 <State:2>MA "},
        {"OH", "<DXCC:3>291 <State:2>OH "}, {"SV", "<DXCC:3>291 <State:2>CA "}, {"WWA", "<DXCC:3>291 <State:2>WA "},
        {"", "<DXCC:3>291 <Cont"},
    };
    for (const auto& [section, fields] : rows) {
        Contact contact = Usual();
        contact.Sec = section;
        EXPECT_TRUE(Holds(RecordOf(contact), fields)) << section << '\n' << RecordOf(contact);
    }
}

TEST(SectionPlace, SectionsOfOneStateLieInIt) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> rows{
        {{"EMA", "WMA"}, "MA"},
        {{"NNY", "ENY", "WNY", "NLI"}, "NY"},
        {{"NNJ", "SNJ"}, "NJ"},
        {{"EPA", "WPA"}, "PA"},
        {{"NFL", "WCF", "SFL"}, "FL"},
        {{"MDC"}, "MD"},
        {{"NTX", "STX", "WTX"}, "TX"},
        {{"EB", "LAX", "ORG", "SB", "SCV", "SDG", "SJV", "SF", "SV"}, "CA"},
        {{"EWA", "WWA"}, "WA"},
        {{"OH"}, "OH"},
        {{"ID"}, "ID"},
    };
    for (const auto& [sections, state] : rows) {
        for (const std::string& section : sections) {
            EXPECT_EQ(PlaceOfSection(section).state, state) << section;
            EXPECT_EQ(PlaceOfSection(section).dxcc, kUnitedStates) << section;
        }
    }
}

TEST(SectionPlace, CanadaIsTheListThatLoggersHaveLongAgreedOn) {
    for (const char* section : {"MAR", "NL", "QC", "ON", "OS", "OE", "GTA", "MB", "SK", "AB", "BC", "NWT"}) {
        EXPECT_EQ(PlaceOfSection(section).dxcc, kCanada) << section;
    }
    for (const char* section : {"NT", "ONN", "ONS", "ONE", "PE"}) {
        EXPECT_EQ(PlaceOfSection(section).dxcc, kUnitedStates) << section;
    }
}

TEST(Adif, ModeIsTheContests) {
    AdifExport details = Defaults();
    details.phone = true;
    EXPECT_TRUE(Holds(RecordOf(Usual(), details), "<Mode:3>SSB\r\n"));
}

TEST(Adif, LengthsCountTheBytesOfEightBitText) {
    AdifExport details = Defaults();
    details.comment = "Andr\xE9";
    EXPECT_TRUE(Holds(RecordOf(Usual(), details), "<Comment:5>Andr\xE9\r\n"));
}

TEST(Adif, FrequencyOfBlanksIsAnEmptyField) {
    Contact contact = Usual();
    contact.Frq = "  ";
    EXPECT_TRUE(Holds(RecordOf(contact), "<Freq:0> "));
    contact.Frq = " 7.1 ";
    EXPECT_TRUE(Holds(RecordOf(contact), "<Freq:3>7.1 "));
}

}  // namespace
}  // namespace tallyhut
