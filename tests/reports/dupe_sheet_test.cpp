#include "reports/dupe_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/reports/report_fixture.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

ContactLog LogOfCalls(const Lines& calls) {
    std::vector<Contact> contacts;
    for (const std::string& call : calls) {
        contacts.push_back(Usual());
        contacts.back().Call = call;
    }
    return LogOf(contacts);
}

TEST(DupeSheet, GroupsByTheFirstDigitOfTheCall) {
    EXPECT_EQ(CallsByArea(LogOfCalls({"KH6AB", "W9ZZ", "AA1A", "W1XX", "K6AA", "VE3/W1AW"})),
              (Lines{"AA1A", "W1XX", "VE3/W1AW", "K6AA", "KH6AB", "W9ZZ"}));
}

TEST(DupeSheet, CallsWithoutADigitComeFirst) {
    EXPECT_EQ(CallsByArea(LogOfCalls({"W0AA", "NOCALL", ""})), (Lines{"", "NOCALL", "W0AA"}));
}

TEST(DupeSheet, OrderIsThatOfTheBytes) {
    EXPECT_EQ(CallsByArea(LogOfCalls({"\xD6"
                                      "1A",
                                      "a1A", "Z1A", "A1A/2", "A1A"})),
              (Lines{"A1A", "A1A/2", "Z1A", "a1A",
                     "\xD6"
                     "1A"}));
}

TEST(DupeSheet, CallWorkedTwiceStandsTwice) {
    EXPECT_EQ(CallsByArea(LogOfCalls({"W1XX", "W1AA", "W1XX"})), (Lines{"W1AA", "W1XX", "W1XX"}));
}

TEST(DupeSheet, FileEndsWithTheTotals) {
    EXPECT_EQ(DupeFile({"W1AA", "W1XX"}, 2),
              (Lines{"W1AA", "W1XX", "", "Total Contacts 2   Total Sections 2  Total Score 8"}));
    EXPECT_EQ(DupeFile({}, 0), (Lines{"", "Total Contacts 0   Total Sections 0  Total Score 0"}));
}

const Lines kHead{
    "",
    "                                      ARRL Sweepstakes",
    "                                           Dupe Sheet",
    "",
    "   Call Used: W9ZZZ                                ARRL Section: IL",
    "   Sent: A W9ZZZ 72 IL                             CW CONTEST",
    "",
    "",
};

TEST(DupeSheet, PageHasAHeadAndCallsAtColumnFive) {
    Lines page = kHead;
    for (const char* line : {"    W1AA", "    W1XX", "", "   Total Contacts 2   Total Sections 1  Total Score 4"}) {
        page.emplace_back(line);
    }
    EXPECT_EQ(DupePages({"W1AA", "W1XX"}, 1, CwStation()), (std::vector<PrintedPage>{page}));
}

TEST(DupeSheet, PhoneContestSaysSo) {
    const auto pages = DupePages({"W1AA"}, 1, PhoneStation());
    EXPECT_EQ(pages.at(0).at(5), "   Sent: A W9ZZZ 72 IL                             PHONE CONTEST");
}

TEST(DupeSheet, PageIsFullWith48Calls) {
    const auto pages = DupePages(Lines(49, "W1AA"), 1, CwStation());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages.at(0).size(), 56U);
    EXPECT_EQ(pages.at(1).size(), 8U + 1 + 2);
    EXPECT_EQ(Lines(pages.at(1).begin(), pages.at(1).begin() + 8), kHead);
}

TEST(DupeSheet, TotalsBehindAFullPageStandOnAPageWithoutAHead) {
    const auto pages = DupePages(Lines(48, "W1AA"), 1, CwStation());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages.at(1), (PrintedPage{"", "   Total Contacts 48   Total Sections 1  Total Score 96"}));
}

TEST(DupeSheet, EmptyLogPrintsTheTotalsAlone) {
    EXPECT_EQ(DupePages({}, 0, CwStation()),
              (std::vector<PrintedPage>{{"", "   Total Contacts 0   Total Sections 0  Total Score 0"}}));
}

TEST(DupeSheet, NoPageIsLongerThanToldHoweverManyCalls) {
    for (std::size_t calls = 0; calls <= 110; ++calls) {
        std::size_t lines = 0;
        for (const PrintedPage& page : DupePages(Lines(calls, "W1AA"), 1, CwStation())) {
            EXPECT_LE(page.size(), 56U) << calls;
            lines += static_cast<std::size_t>(std::ranges::count(page, "    W1AA"));
        }
        EXPECT_EQ(lines, calls);
    }
}

}  // namespace
}  // namespace tallyhut
