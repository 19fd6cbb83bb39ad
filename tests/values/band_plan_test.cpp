#include "values/band_plan.h"

#include <gtest/gtest.h>

#include "values/value_error.h"

namespace tallyhut {
namespace {

TEST(BandPlan, IsADateAndRecordsOfFiveFields) {
    const BandPlan plan =
        ReadBandPlan("\"February 13, 2026\"\r\n\"80\",\"O\",\"O\",3.5,4\r\n\"80\",\"E\",\"CW\",3.5,3.6\r\n");
    EXPECT_EQ(plan.effective, "February 13, 2026");
    const std::vector<BandPlanRow> rows{{"80", "O", "O", 3.5F, 4.0F}, {"80", "E", "CW", 3.5F, 3.6F}};
    EXPECT_EQ(plan.rows, rows);
}

TEST(BandPlan, FieldsAreTakenWhereverLinesEnd) {
    EXPECT_EQ(ReadBandPlan("now,80,E\nCW,3.5\n3.6\n").rows, (std::vector<BandPlanRow>{{"80", "E", "CW", 3.5F, 3.6F}}));
}

TEST(BandPlan, DamagedRecordIsPassedOverAndThoseBehindItCount) {
    const std::vector<BandPlanRow> whole{{"40", "E", "PH", 7.125F, 7.3F}, {"20", "E", "CW", 14.0F, 14.15F}};
    for (const std::string damaged : {
             "\"80\",\"E\",\"CW\",3.5",
             "\"80\"",
             "\"80\",\"E\",\"CW\",3.5,",
             "\"80\",\"E\",\"CW\",low,3.6",
             "\"80\",\"E\",\"CW\",3.5,\"\"",
             "\"80\",\"E\",\"CW\",3.5,1e99",
             "\"80",
             "\"80\",\"E\" x,\"CW\",3.5,3.6",
             "\"80\",\"E\",\"C\"W\",3.5,3.6",
             "a comment of somebody's",
             "",
             ",,,,",
         }) {
        EXPECT_EQ(
            ReadBandPlan("now\r\n\"40\",\"E\",\"PH\",7.125,7.3\r\n" + damaged + "\r\n\"20\",\"E\",\"CW\",14,14.15\r\n")
                .rows,
            whole)
            << damaged;
        EXPECT_EQ(ReadBandPlan("now\r\n" + damaged).rows.size(), 0U) << damaged;
    }
}

TEST(BandPlan, FieldsBehindARecordAreNoneOfTheNext) {
    EXPECT_EQ(ReadBandPlan("now\n80,E,CW,3.5,3.6,seen\n20,E,CW,14,14.15\n").rows,
              (std::vector<BandPlanRow>{{"80", "E", "CW", 3.5F, 3.6F}, {"20", "E", "CW", 14.0F, 14.15F}}));
}

TEST(BandPlan, NeedsItsDate) {
    EXPECT_THROW(ReadBandPlan(""), ValueError);
}

}  // namespace
}  // namespace tallyhut
