// The exported file as another logger takes it.

#include "tests/peers/adif_reader.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "reports/adif.h"
#include "tests/reports/report_fixture.h"

namespace tallyhut {
namespace {

AdifExport Details() {
    return {.title = "Q7ZZQ's Tallyhut Log 4.7",
            .exportedAt = "11/7/2026 4:04:33 PM",
            .power = "100",
            .comment = "November Sweepstakes Contest",
            .phone = false};
}

TEST(AdifReader, RefusesLengthsThatAreNotThoseOfTheData) {
    EXPECT_NO_THROW(peers::ReadAdif("<call:4>W1XX <eor>"));
    for (const char* text :
         {"<call:3>W1XX <eor>", "<call:9>W1XX <eor>", "<call:x>W1XX <eor>", "<call:4>W1XX", "<call"}) {
        EXPECT_THROW(peers::ReadAdif(text), std::runtime_error) << text;
    }
}

TEST(AdifReader, ReadsEveryContactOfAnOddLog) {
    const ContactLog log = LogOf(OddContacts());
    const peers::AdifFile file = peers::ReadAdif(AdifText(Details(), log, 2026));
    EXPECT_EQ(file.head.at("PROGRAMID"), "Q7ZZQ's Tallyhut Log");
    ASSERT_EQ(file.records.size(), static_cast<std::size_t>(log.gContactCount()));
    for (std::int32_t n = 1; n <= log.gContactCount(); ++n) {
        const auto& record = file.records.at(static_cast<std::size_t>(n - 1));
        EXPECT_EQ(record.contains("CALL") ? record.at("CALL") : "", log.Row(n).Call) << n;
        EXPECT_EQ(record.at("MODE"), "CW") << n;
        EXPECT_EQ(record.at("CONT"), "NA") << n;
        EXPECT_EQ(record.at("TX_PWR"), "100") << n;
        EXPECT_EQ(record.at("COMMENT"), "November Sweepstakes Contest") << n;
    }
    EXPECT_EQ(file.records.at(0).at("QSO_DATE"), "20261107");
    EXPECT_EQ(file.records.at(0).at("BAND"), "40M");
    EXPECT_EQ(file.records.at(0).at("STATE"), "MD");
}

TEST(AdifReader, ReadsAFullLog) {
    const ContactLog log = LogOf(std::vector<Contact>(ContactLog::kMostContacts, Usual()));
    EXPECT_EQ(peers::ReadAdif(AdifText(Details(), log, 2026)).records.size(), 11'000U);
}

}  // namespace
}  // namespace tallyhut
