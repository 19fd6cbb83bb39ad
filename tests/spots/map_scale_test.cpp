#include "spots/map_scale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace tallyhut {
namespace {

constexpr BandSpan kTwenty{14.0F, 14.35F};
constexpr DateTime kPosted{2026, 11, 7, 21, 0, 0};

SpotTable TableWith(const std::vector<float>& frequencies) {
    SpotTable table;
    for (const float frequency : frequencies) {
        table.Shift();
        table.Newest().SpotFreq = frequency;
    }
    return table;
}

ScaleCaptions Zoomed(const std::vector<float>& frequencies, const BandSpan& band = kTwenty) {
    return CaptionsOf(ZoomedToSpots(TableWith(frequencies), band));
}

const ScaleCaptions kWholeTwenty{"14.000", "14.088", "14.175", "14.263", "14.350"};

TEST(MapScale, ScaleOfAnEmptyBandIsTheBand) {
    EXPECT_EQ(Zoomed({}), kWholeTwenty);
    EXPECT_EQ(Zoomed({}, {1.8F, 2}), (ScaleCaptions{"1.800", "1.850", "1.900", "1.950", "2.000"}));
    EXPECT_EQ(Zoomed({}, {28, 29.7F}), (ScaleCaptions{"28.000", "28.425", "28.850", "29.275", "29.700"}));
}

TEST(MapScale, OneSpotLeavesTheBandWhole) {
    EXPECT_EQ(Zoomed({14.025F}), kWholeTwenty);
    EXPECT_EQ(Zoomed({14.025F, 14.025F}), kWholeTwenty) << "two on the same frequency likewise";
}

TEST(MapScale, ScaleRunsAKilohertzBeyondTheSpots) {
    const ScaleCaptions captions = Zoomed({14.025F, 14.030F});
    EXPECT_EQ(captions.front(), "14.024");
    EXPECT_EQ(captions.back(), "14.031");
}

TEST(MapScale, SpotsAtTheEdgesAndOfOtherBandsDoNotCount) {
    EXPECT_EQ(Zoomed({14.0F, 14.35F, 7.030F, 0, 14.025F}), kWholeTwenty);
}

TEST(MapScale, OldestRowIsNotLookedAt) {
    SpotTable table = TableWith({14.025F});
    table.Row(0).SpotFreq = 14.030F;
    EXPECT_EQ(CaptionsOf(ZoomedToSpots(table, kTwenty)), kWholeTwenty);
}

TEST(MapScale, TextOfNoBandHasAnEmptyScale) {
    EXPECT_EQ(Zoomed({14.025F, 14.030F}, {}).front(), ".000");
}

TEST(MapScale, PlaceOfASpotIsItsShareOfTheRoundedScale) {
    const BandSpan scale = ScaleOf("14.024", "14.032");
    EXPECT_NEAR(ShareOf(14.024F, scale), 0, 1e-6);
    EXPECT_NEAR(ShareOf(14.026F, scale), 0.25, 1e-3);
    EXPECT_NEAR(ShareOf(14.032F, scale), 1, 1e-6);
}

TEST(MapScale, SpotsAgeThroughThreeColoursAndGoAfterAnHour) {
    struct Case {
        std::int64_t seconds;
        Colour colour;
    };
    for (const auto& [seconds, colour] : {Case{0, 0x80FFFF}, Case{599, 0x80FFFF}, Case{600, 0xFFFFFF},
                                          Case{1799, 0xFFFFFF}, Case{1800, 0xC0C0C0}, Case{3599, 0xC0C0C0}}) {
        const AgeRow* age = AgeOf(kPosted, AddSeconds(kPosted, seconds));
        ASSERT_NE(age, nullptr) << seconds;
        EXPECT_EQ(age->colour, colour) << seconds;
    }
    EXPECT_EQ(AgeOf(kPosted, AddSeconds(kPosted, 3600)), nullptr);
}

TEST(MapScale, SpotBeforeTheClockWasSetBackIsNew) {
    ASSERT_NE(AgeOf(kPosted, AddSeconds(kPosted, -7200)), nullptr);
    EXPECT_EQ(AgeOf(kPosted, AddSeconds(kPosted, -7200))->colour, 0x80FFFF);
}

TEST(MapScale, HintIsCallFrequencyAndTime) {
    const Spot spot{.SpotCall = "K1ABC", .SpotFreq = 14.0253F};
    EXPECT_EQ(HintOf(spot, kPosted), "K1ABC  14.025  21:00:00");
}

TEST(MapScale, LabelsThatAreAloneStayWhereTheyAre) {
    const std::vector<double> wanted{0, 100, 250, 1000};
    EXPECT_EQ(SpreadOut(wanted, 100, 0, 1000), wanted);
}

TEST(MapScale, CrowdedLabelsStandAroundTheirMiddle) {
    EXPECT_EQ(SpreadOut({100, 500, 500, 900}, 100, 0, 1000), (std::vector<double>{100, 450, 550, 900}));
    EXPECT_EQ(SpreadOut({500, 500, 500}, 100, 0, 1000), (std::vector<double>{400, 500, 600}));
}

TEST(MapScale, CrowdsAtAnEndStayWithinIt) {
    EXPECT_EQ(SpreadOut({0, 10}, 100, 0, 1000), (std::vector<double>{0, 100}));
    EXPECT_EQ(SpreadOut({990, 1000}, 100, 0, 1000), (std::vector<double>{900, 1000}));
}

TEST(MapScale, MoreLabelsThanFitStandEvenly) {
    EXPECT_EQ(SpreadOut({500, 500, 500}, 900, 0, 1000), (std::vector<double>{0, 500, 1000}));
    EXPECT_TRUE(SpreadOut({}, 100, 0, 1000).empty());
}

TEST(MapScale, NoCrowdOfAnyKindOverlapsOrLeavesTheLine) {
    std::mt19937 random{50};
    std::uniform_real_distribution<double> along{0, 4000};
    for (int round = 0; round < 500; ++round) {
        std::vector<double> wanted(static_cast<std::size_t>(round % 20) + 1);
        std::ranges::generate(wanted, [&] { return along(random); });
        std::ranges::sort(wanted);
        const std::vector<double> centres = SpreadOut(wanted, 200, 0, 4000);
        ASSERT_EQ(centres.size(), wanted.size());
        EXPECT_GE(centres.front(), 0);
        EXPECT_LE(centres.back(), 4000 + 1e-6);
        for (std::size_t i = 1; i < centres.size(); ++i) {
            EXPECT_GE(centres[i] - centres[i - 1], 200 - 1e-6);
        }
    }
}

}  // namespace
}  // namespace tallyhut
