#include "contest/bands.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

TEST(Bands, EdgesOfTheBandMapLieInTheirBand) {
    for (const Band& band : kBandTable) {
        if (!band.map.IsEmpty()) {
            EXPECT_LT(band.map.low, band.map.high) << band.name;
            const float middle = (band.map.low + band.map.high) / 2;
            EXPECT_TRUE(ContestBand(middle).empty() || ContestBand(middle) == band.name) << band.name;
        }
    }
    EXPECT_EQ(FindBand("20")->map.high, 14.35F);
    EXPECT_EQ(FindBand("440")->map.low, 420);
}

TEST(Bands, ContestsBandsFollowEachOtherAndWrap) {
    const std::vector<std::pair<std::string_view, std::string_view>> cases{
        {"160", "80"}, {"80", "40"}, {"40", "20"}, {"20", "15"}, {"15", "10"}, {"10", "160"},
        {"60", ""},    {"6", ""},    {"", ""},     {"4", ""},    {" 40", ""}};
    for (const auto& [band, next] : cases) {
        EXPECT_EQ(NextContestBand(band), next) << band;
    }
}

TEST(Bands, OnlyTheContestsBandsHaveAnEntryInTheMenuAndAnEdgeInTheEntryFile) {
    std::string menu;
    std::string edges;
    for (const Band& band : kBandTable) {
        EXPECT_EQ(band.menuText.empty(), band.readings.IsEmpty()) << band.name;
        EXPECT_EQ(band.kilohertz.empty(), band.readings.IsEmpty()) << band.name;
        menu.append(band.menuText);
        edges.append(band.kilohertz);
    }
    EXPECT_EQ(menu, "160  80  40  20  15  10");
    EXPECT_EQ(edges, " 1800 3500 7000140002100028000");
    EXPECT_EQ(FindBand("5"), nullptr);
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
    for (const Band& band : kBandTable) {
        for (const ModeSegment& segment : band.modes) {
            EXPECT_EQ(SegmentMode(segment.span.low), "") << segment.span.low;
            EXPECT_EQ(SegmentMode(segment.span.high), "") << segment.span.high;
        }
    }
}

TEST(ModeSegments, NothingIsDerivedOn160MetresAndBetweenTheBands) {
    for (const float frequency : {1.85F, 5.35F, 10.2F, 0.0F, 450.0F}) {
        EXPECT_EQ(SegmentMode(frequency), "") << frequency;
    }
}

}  // namespace
}  // namespace tallyhut
