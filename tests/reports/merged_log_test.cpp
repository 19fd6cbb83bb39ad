#include "reports/merged_log.h"

#include <gtest/gtest.h>

#include "tests/reports/report_fixture.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

constexpr std::int32_t kSectionCount = 83;

Contact At(const std::string& time, const std::string& section, const std::string& date = "2026/11/07") {
    Contact contact = Usual();
    contact.Time = time;
    contact.Sec = section;
    contact.Date = date;
    return contact;
}

MergedLog Merged(const std::vector<Contact>& contacts, const std::string& times) {
    std::string text;
    for (const Contact& contact : contacts) {
        text += WriteRecord(contact);
    }
    return MergeLog(text, times, kSectionCount);
}

Lines File(const std::vector<Contact>& contacts, const std::string& times) {
    return LogReportFile(Merged(contacts, times));
}

TEST(MergedLog, ContactsStandInTheirColumnsWithTheScoreSoFar) {
    EXPECT_EQ(File({At("21:04:33", "MDC"), At("21:05:00", "MDC"), At("21:06:00", "CT")}, ""),
              (Lines{
                  "40  2026/11/072104 137     88     A W1XX      72 MDC 1 New!   2",
                  "40  2026/11/072105 137     88     A W1XX      72 MDC          4",
                  "40  2026/11/072106 137     88     A W1XX      72 CT 2  New!   12",
              }));
}

TEST(MergedLog, UnknownSectionIsNoNewOne) {
    EXPECT_EQ(File({At("21:04:33", "XX")}, ""),
              (Lines{"40  2026/11/072104 137     88     A W1XX      72 XX           0"}));
}

TEST(MergedLog, TimesOnAndOffStandAmongTheContacts) {
    EXPECT_EQ(File({At("21:04:33", "MDC"), At("21:10:00", "MDC")},
                   "1,\"2026/11/07\",\"21:00:00\",\"00:00:00\"\r\n0,\"2026/11/07\",\"21:05:00\",\"00:05:00\"\r\n"
                   "1,\"2026/11/08\",\"01:00:00\",\r\n"),
              (Lines{
                  " Logged ON  at 2026/11/07  21:00:00",
                  "40  2026/11/072104 137     88     A W1XX      72 MDC 1 New!   2",
                  " Logged OFF at 2026/11/07  21:05:00  Cumulative contest duration = 00:05:00",
                  "40  2026/11/072110 137     88     A W1XX      72 MDC          4",
                  " Logged ON  at 2026/11/08  01:00:00",
              }));
}

TEST(MergedLog, TimeRecordOfTheSameMomentGoesFirst) {
    EXPECT_EQ(File({At("21:00:00", "MDC")}, "1,\"2026/11/07\",\"21:00:00\",\"\"\r\n").front(),
              " Logged ON  at 2026/11/07  21:00:00");
}

// The machine's short date and the log's are of two forms, and texts are what is compared.
TEST(MergedLog, DatesCompareAsTheyAreWritten) {
    EXPECT_EQ(File({At("21:00:00", "MDC")}, "0,\"11/8/2026\",\"23:00:00\",\"01:00:00\"\r\n").front(),
              " Logged OFF at 11/8/2026  23:00:00  Cumulative contest duration = 01:00:00");
}

TEST(MergedLog, EmptyFilesMakeAnEmptyReport) {
    EXPECT_EQ(File({}, ""), Lines{});
}

TEST(MergedLog, TimeRecordsWithoutContactsStandAlone) {
    EXPECT_EQ(File({}, "1,\"11/7/2026\",\"21:00:00\",\"\"\r\n"), (Lines{" Logged ON  at 11/7/2026  21:00:00"}));
}

TEST(MergedLog, CountsAnew) {
    const MergedLog merged = Merged({At("1", "MDC"), At("2", "CT"), At("3", "MDC")}, "");
    EXPECT_EQ(merged.contacts, 3);
    EXPECT_EQ(merged.sections.gSectionsWorked, 2);
    EXPECT_EQ(merged.sections.SectionQsos.at(16), 2);
    EXPECT_EQ(merged.sections.SectionQsos.at(1), 1);
}

TEST(MergedLog, DamagedRecordsAreRefused) {
    EXPECT_THROW(MergeLog("\"137\",\"88\"\r\n", "", kSectionCount), ValueError);
    EXPECT_THROW(MergeLog("", "on,\"11/7/2026\",\"21:00:00\",\"\"\r\n", kSectionCount), ValueError);
    EXPECT_THROW(MergeLog("", "1,\"11/7/2026\"\r\n", kSectionCount), ValueError);
}

TEST(MergedLog, MoreContactsThanTheTablesHoldAreRefused) {
    std::string text;
    for (int n = 0; n <= ContactLog::kMostContacts; ++n) {
        text += WriteRecord(Usual());
    }
    EXPECT_THROW(MergeLog(text, "", kSectionCount), LogFullError);
}

const Lines kHead{
    "",
    "                                   ARRL Sweepstakes",
    "",
    "    Call Used: W9ZZZ                                 ARRL Section: IL",
    "    Sent: A W9ZZZ 72 IL                              CW CONTEST",
    "",
    "",
    "  Bnd    Date       Time    NrS      NrR       P  Stn Wrkd         Ck      Section             Points",
    "",
};

TEST(MergedLog, PageHasAHeadAndItsOwnColumns) {
    Lines page = kHead;
    for (const char* line : {
             "",
             "  Logged ON  at 2026/11/07  21:00:00",
             "",
             "  40    2026/11/07  2104   137       88        A  W1XX             72      MDC 1 New!          2",
         }) {
        page.emplace_back(line);
    }
    EXPECT_EQ(LogReportPages(Merged({At("21:04:33", "MDC")}, "1,\"2026/11/07\",\"21:00:00\",\"\"\r\n"), CwStation()),
              (std::vector<PrintedPage>{page}));
}

TEST(MergedLog, TimeOffOnAPageHasTheDuration) {
    const auto pages = LogReportPages(Merged({}, "0,\"2026/11/07\",\"21:00:00\",\"00:30:00\"\r\n"), PhoneStation());
    EXPECT_EQ(pages.at(0).at(10), "  Logged OFF at 2026/11/07  21:00:00  Cumulative contest duration = 00:30:00");
    EXPECT_EQ(pages.at(0).at(4), "    Sent: A W9ZZZ 72 IL                              PHONE CONTEST");
}

TEST(MergedLog, PageEndsAt56Lines) {
    const auto pages = LogReportPages(Merged(std::vector<Contact>(48, Usual()), ""), CwStation());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages.at(0).size(), 56U);
    EXPECT_EQ(pages.at(1).size(), kHead.size() + 1);
    EXPECT_EQ(LogReportPages(Merged(std::vector<Contact>(47, Usual()), ""), CwStation()).size(), 1U);
}

TEST(MergedLog, TimeRecordWithoutRoomStandsWholeOnTheNextPage) {
    for (std::size_t contacts = 40; contacts <= 50; ++contacts) {
        const auto pages = LogReportPages(
            Merged(std::vector<Contact>(contacts, Usual()), "0,\"2026/11/08\",\"21:00:00\",\"00:30:00\"\r\n"),
            CwStation());
        for (const PrintedPage& page : pages) {
            EXPECT_LE(page.size(), 56U) << contacts;
        }
        const PrintedPage& last = pages.back();
        ASSERT_GE(last.size(), 3U) << contacts;
        EXPECT_EQ(last.at(last.size() - 3), "") << contacts;
        EXPECT_TRUE(last.at(last.size() - 2).starts_with("  Logged OFF at ")) << contacts;
        EXPECT_EQ(last.back(), "") << contacts;
    }
}

}  // namespace
}  // namespace tallyhut
