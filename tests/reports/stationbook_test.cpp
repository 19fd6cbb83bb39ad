#include "reports/stationbook.h"

#include <gtest/gtest.h>

#include "tests/reports/report_fixture.h"

namespace tallyhut {
namespace {

TEST(Stationbook, RecordHasSixteenFields) {
    EXPECT_EQ(StationbookText(LogOf({Usual()}), false),
              "\"W1XX\",\"2026/11/07\",\"40\",\"CW\",,\"21:04:33\",,,,\"USA\",\"MD\",,,,,\"ARRL November Sweepstakes "
              "Contest - Section - MDC\"\r\n");
}

TEST(Stationbook, PhoneContestIsSideband) {
    EXPECT_TRUE(StationbookText(LogOf({Usual()}), true).starts_with("\"W1XX\",\"2026/11/07\",\"40\",\"SSB\",,"));
}

TEST(Stationbook, CountryGoesByTheFirstLetterAndStateByTheSection) {
    struct Row {
        std::string call, section, country, state;
    };
    const std::vector<Row> rows{
        {"VE3AA", "ON", "Canada", ""}, {"VP2MM", "CT", "Canada", ""}, {"KP4XX", "PR", "USA", ""},
        {"KH6XX", "PAC", "USA", "HI"}, {"W1AA", "CT", "USA", "CT"},   {"W1AA", "ON", "USA", "ON"},
        {"KP2AA", "VI", "USA", ""},    {"W1AA", "AK", "USA", "AK"},   {"ve3aa", "NL", "USA", "NL"},
    };
    for (const Row& row : rows) {
        Contact contact = Usual();
        contact.Call = row.call;
        contact.Sec = row.section;
        const std::string text = StationbookText(LogOf({contact}), false);
        const std::string expected = ",,,,\"" + row.country + "\",\"" + row.state + "\",,,,,\"ARRL";
        EXPECT_NE(text.find(expected), std::string::npos) << text;
    }
}

TEST(Stationbook, EmptyLogIsAnEmptyText) {
    EXPECT_EQ(StationbookText(LogOf({}), false), "");
}

}  // namespace
}  // namespace tallyhut
