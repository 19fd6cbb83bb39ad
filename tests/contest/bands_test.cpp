#include "contest/bands.h"

#include <gtest/gtest.h>

#include <vector>

#include "contest/bands.h"

namespace tallyhut {
namespace {

TEST(BandLimits, ReadingLiesOnItsContestBand) {
    const std::vector<std::pair<float, std::string_view>> cases{
        {1.7999F, ""},  {1.8F, "160"},  {2.0F, "160"},  {2.0001F, ""},  {3.5F, "80"},   {4.0F, "80"},   {4.0001F, ""},
        {7.0F, "40"},   {7.3F, "40"},   {7.3001F, ""},  {14.0F, "20"},  {14.35F, "20"}, {14.3501F, ""}, {14.4F, ""},
        {21.0F, "15"},  {21.45F, "15"}, {28.0F, "10"},  {29.7F, "10"},  {29.7001F, ""}, {5.35F, ""},    {10.12F, ""},
        {18.1F, ""},    {24.9F, ""},    {50.1F, ""},    {0.0F, ""},     {-14.2F, ""},   {3.4999F, ""},  {6.9999F, ""},
        {13.9999F, ""}, {20.9999F, ""}, {27.9999F, ""}, {21.4501F, ""},
    };
    for (const auto& [frequency, band] : cases) {
        EXPECT_EQ(ContestBand(frequency), band) << frequency;
    }
}

TEST(BandLimits, EdgesOfTheBandMapLieInTheirBand) {
    for (const BandSpan& edges : kBandEdges) {
        EXPECT_LT(edges.low, edges.high) << edges.band;
        const float middle = (edges.low + edges.high) / 2;
        EXPECT_TRUE(ContestBand(middle).empty() || ContestBand(middle) == edges.band) << edges.band;
    }
    EXPECT_EQ(kBandEdges.at(3).high, 14.35F);
    EXPECT_EQ(kBandEdges.back().band, "440");
}

TEST(ModeSegments, ModeIsThatOfTheSegment) {
    const std::vector<std::pair<float, std::string_view>> cases{
        {3.55F, "CW"},  {3.8F, "PH"},   {7.05F, "CW"}, {7.2F, "PH"},    {10.12F, "CW"}, {14.05F, "CW"},  {14.2F, "PH"},
        {18.08F, "CW"}, {18.15F, "PH"}, {21.1F, "CW"}, {21.3F, "PH"},   {24.9F, "CW"},  {24.95F, "PH"},  {28.1F, "CW"},
        {28.5F, "PH"},  {50.05F, "CW"}, {52.0F, "PH"}, {144.05F, "CW"}, {146.0F, "PH"}, {10.149F, "CW"},
    };
    for (const auto& [frequency, mode] : cases) {
        EXPECT_EQ(SegmentMode(frequency), mode) << frequency;
    }
}

TEST(ModeSegments, LimitBelongsToNone) {
    for (const ModeSegment& segment : kModeSegments) {
        EXPECT_EQ(SegmentMode(segment.above), "") << segment.above;
        EXPECT_EQ(SegmentMode(segment.below), "") << segment.below;
    }
}

TEST(ModeSegments, NothingIsDerivedOn160MetresAndBetweenTheBands) {
    for (const float frequency : {1.85F, 5.35F, 10.2F, 0.0F, 450.0F}) {
        EXPECT_EQ(SegmentMode(frequency), "") << frequency;
    }
}

}  // namespace
}  // namespace tallyhut
