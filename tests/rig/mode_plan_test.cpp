#include "rig/mode_plan.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

const std::vector<BandPlanRow> kPlan{
    {"160", "E", "CW", 1.8F, 2.0F},    {"80", "E", "CW", 3.5F, 3.6F},    {"80", "E", "PH", 3.6F, 4.0F},
    {"60", "E", "PH", 5.33F, 5.41F},   {"40", "E", "CW", 7.0F, 7.125F},  {"40", "E", "PH", 7.125F, 7.3F},
    {"30", "E", "DIG", 10.1F, 10.15F}, {"20", "E", "CW", 14.0F, 14.15F}, {"20", "E", "PH", 14.15F, 14.35F},
    {"20", "E", "AM", 14.3F, 14.35F},
};

TEST(ModePlan, ModeIsThatOfTheFirstSegmentAroundTheFrequency) {
    const std::vector<std::pair<float, std::string_view>> cases{
        {3.55F, "CW"},   {3.7F, "LSB"},  {5.35F, "LSB"},  {7.03F, "CW"},   {7.2F, "LSB"},
        {10.12F, "DIG"}, {14.05F, "CW"}, {14.25F, "USB"}, {14.32F, "USB"},
    };
    for (const auto& [frequency, mode] : cases) {
        EXPECT_EQ(ModeForFrequency(kPlan, frequency), mode) << frequency;
    }
}

TEST(ModePlan, PhoneIsTheLowerSidebandBelowTenMegahertz) {
    EXPECT_EQ(ModeForFrequency({{"80", "E", "PH", 3.5F, 4.0F}}, 3.55F), "LSB");
    EXPECT_EQ(ModeForFrequency({{"20", "E", "PH", 14.0F, 14.35F}}, 14.25F), "USB");
}

TEST(ModePlan, EdgeBelongsToNoSegment) {
    for (const float edge : {3.5F, 3.6F, 4.0F, 7.125F, 14.0F, 14.15F, 14.35F}) {
        EXPECT_EQ(ModeForFrequency(kPlan, edge), "") << edge;
    }
}

TEST(ModePlan, OutsideEverySegmentIsNoMode) {
    for (const float frequency : {0.0F, -1.0F, 3.4F, 6.0F, 18.1F, 2000.0F}) {
        EXPECT_EQ(ModeForFrequency(kPlan, frequency), "") << frequency;
    }
    EXPECT_EQ(ModeForFrequency({}, 14.2F), "");
}

TEST(ModePlan, NoModeIsCommandedOn160Metres) {
    EXPECT_EQ(ModeForFrequency(kPlan, 1.85F), "");
}

TEST(ModePlan, HoldsTheWidestClassAlone) {
    const auto plan = ModePlanOf(
        "\"now\"\r\n\"80\",\"O\",\"O\",3.5,4\r\n\"80\",\"G\",\"CW\",3.525,3.6\r\n\"80\",\"E\",\"CW\",3.5,3.6\r\n"
        "\"80\",\"A\",\"PH\",3.7,4\r\n\"80\",\"E\",\"PH\",3.6,4\r\n");
    EXPECT_EQ(plan, (std::vector<BandPlanRow>{{"80", "E", "CW", 3.5F, 3.6F}, {"80", "E", "PH", 3.6F, 4.0F}}));
}

TEST(ModePlan, HoldsTwoHundredRows) {
    std::string text = "now\r\n";
    for (int i = 0; i < 250; ++i) {
        text += "\"20\",\"E\",\"CW\"," + std::to_string(i) + ",400\r\n\"20\",\"G\",\"CW\",1,2\r\n";
    }
    const auto plan = ModePlanOf(text);
    ASSERT_EQ(plan.size(), 200U);
    EXPECT_EQ(plan.back().Low, 199.0F);
}

TEST(ModePlan, DamagedRecordIsLeftOut) {
    EXPECT_EQ(
        ModePlanOf("now\r\n\"80\",\"E\",\"CW\",3.5,3.6\r\n\"80\",\"E\",\"PH\",?,4\r\n\"40\",\"E\",\"CW\",7,7.1\r\n"),
        (std::vector<BandPlanRow>{{"80", "E", "CW", 3.5F, 3.6F}, {"40", "E", "CW", 7.0F, 7.1F}}));
    EXPECT_TRUE(ModePlanOf("").empty());
}

}  // namespace
}  // namespace tallyhut
