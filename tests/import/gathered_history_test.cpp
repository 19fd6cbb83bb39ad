#include "import/gathered_history.h"

#include <gtest/gtest.h>

#include "contest/told_sections.h"
#include "import/adif_reader.h"

namespace tallyhut {
namespace {

ImportedContact Heard(const std::string& call, const std::string& check, const std::string& section,
                      const std::string& date, const std::string& time = "21:04:33") {
    return {{.Ns = "1",
             .Nr = "88",
             .P = "A",
             .Call = call,
             .Ck = check,
             .Sec = section,
             .Date = date,
             .Time = time,
             .Bnd = "40",
             .Frq = ""},
            1};
}

/// The rows of the history that the logs make.
std::string Rows(const std::vector<std::vector<ImportedContact>>& logs, const SectionList& sections = ToldSections()) {
    GatheredHistory history;
    for (const auto& contacts : logs) {
        history.Add({.station = {}, .contacts = contacts, .incomplete = {}, .notes = {}}, sections, 2026);
    }
    const std::string text = history.Text("a comment");
    const std::string head = "!!Order!!,Call,Sect,CK\r\n# a comment\r\n";
    EXPECT_EQ(text.substr(0, head.size()), head);
    return text.substr(head.size());
}

TEST(GatheredHistory, RowsStandInTheOrderOfTheCalls) {
    EXPECT_EQ(Rows({{Heard("W1XX", "72", "MDC", "2026/11/07"), Heard("K1AB", "63", "CT", "2026/11/07")}}),
              "K1AB,CT,63\r\nW1XX,MDC,72\r\n");
}

TEST(GatheredHistory, TheNewestContactCountsWhateverTheOrderOfTheLogs) {
    const auto older = Heard("W1XX", "72", "MDC", "2024/11/02");
    const auto newer = Heard("W1XX", "73", "VA", "2025/11/01");
    EXPECT_EQ(Rows({{older}, {newer}}), "W1XX,VA,73\r\n");
    EXPECT_EQ(Rows({{newer}, {older}}), "W1XX,VA,73\r\n");
    EXPECT_EQ(Rows({{newer, older}}), "W1XX,VA,73\r\n");
}

TEST(GatheredHistory, TheTimeDecidesWithinADayAndAMomentWithoutADateIsTheOldest) {
    const auto early = Heard("W1XX", "72", "MDC", "2025/11/01", "21:04");
    const auto late = Heard("W1XX", "73", "VA", "2025/11/01", "21:04:30");
    EXPECT_EQ(Rows({{late, early}}), "W1XX,VA,73\r\n");
    EXPECT_EQ(Rows({{early, Heard("W1XX", "74", "OH", "no date")}}), "W1XX,MDC,72\r\n");
    EXPECT_EQ(Rows({{late, Heard("W1XX", "74", "OH", "11/1/2025", "21:04:30")}}), "W1XX,OH,74\r\n");
}

TEST(GatheredHistory, WhatTheNewerContactLacksTheOlderOneTells) {
    EXPECT_EQ(Rows({{Heard("W1XX", "72", "MDC", "2024/11/02"), Heard("W1XX", "", "VA", "2025/11/01")}}),
              "W1XX,VA,72\r\n");
}

TEST(GatheredHistory, WhatIsNoCallCheckOrSectionIsLeftOut) {
    EXPECT_EQ(Rows({{Heard("W1,XX", "72", "MDC", "2024/11/02"), Heard("", "72", "MDC", "2024/11/02"),
                     Heard("K1AB", "7", "C,T", "2024/11/02"), Heard("k2ab", "7O", " ct ", "2024/11/02"),
                     Heard("K3AB", "63", "", "2024/11/02")}}),
              "K2AB,CT,\r\nK3AB,,63\r\n");
}

TEST(GatheredHistory, AnAliasBecomesItsCode) {
    const SectionList list = ReadSectionList(R"("MDC","Maryland-DC","3","","MD DC","",291,"","","")");
    EXPECT_EQ(Rows({{Heard("W1XX", "72", "MD", "2024/11/02")}}, list), "W1XX,MDC,72\r\n");
    EXPECT_EQ(Rows({{Heard("W1XX", "72", "MD", "2024/11/02")}}), "W1XX,MD,72\r\n");
}

TEST(GatheredHistory, RecordsThatAreTooLittleForALogTellWhatTheyHave) {
    GatheredHistory history;
    history.Add(ReadAdif("<call:4>W1XX <arrl_sect:3>MDC <qso_date:8>20251101 <eor>"), ToldSections(), 2026);
    EXPECT_EQ(history.Count(), 1U);
    EXPECT_NE(history.Text("").find("W1XX,MDC,\r\n"), std::string::npos);
}

}  // namespace
}  // namespace tallyhut
