#include "values/band_plan.h"

#include <gtest/gtest.h>

#include "values/value_error.h"

namespace tallyhut {
namespace {

TEST(BandPlan, IsADateAndRecordsOfFiveFields) {
    BandPlan plan;
    ReadBandPlan("\"February 13, 2026\"\r\n\"80\",\"O\",\"O\",3.5,4\r\n\"80\",\"E\",\"CW\",3.5,3.6\r\n", plan);
    EXPECT_EQ(plan.effective, "February 13, 2026");
    const std::vector<BandPlanRow> rows{{"80", "O", "O", 3.5F, 4.0F}, {"80", "E", "CW", 3.5F, 3.6F}};
    EXPECT_EQ(plan.rows, rows);
}

TEST(BandPlan, FieldsAreTakenWhereverLinesEnd) {
    BandPlan plan;
    ReadBandPlan("now,80,E\nCW,3.5\n3.6\n", plan);
    EXPECT_EQ(plan.rows, (std::vector<BandPlanRow>{{"80", "E", "CW", 3.5F, 3.6F}}));
}

TEST(BandPlan, DamagedRecordThrowsAndLeavesTheOnesBeforeIt) {
    for (const std::string damaged : {"\"80\",\"E\",\"CW\",3.5\r\n", "\"80\",\"E\",\"CW\",low,3.6\r\n", "\"80\r\n"}) {
        BandPlan plan;
        EXPECT_THROW(ReadBandPlan("now\r\n\"40\",\"E\",\"PH\",7.125,7.3\r\n" + damaged, plan), ValueError) << damaged;
        EXPECT_EQ(plan.rows, (std::vector<BandPlanRow>{{"40", "E", "PH", 7.125F, 7.3F}})) << damaged;
    }
}

TEST(BandPlan, NeedsItsDate) {
    BandPlan plan;
    EXPECT_THROW(ReadBandPlan("", plan), ValueError);
}

}  // namespace
}  // namespace tallyhut
