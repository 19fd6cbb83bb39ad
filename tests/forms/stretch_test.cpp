#include "forms/qt/stretch.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

TEST(Stretch, ScalesTheDesignWhereNothingNeedsMore) {
    const Stretch stretch{{{100, 200, 10}, {300, 400, 10}}, 500, 0.5};
    EXPECT_DOUBLE_EQ(stretch.At(100), 50);
    EXPECT_DOUBLE_EQ(stretch.At(400), 200);
    EXPECT_DOUBLE_EQ(stretch.Whole(), 250);
}

TEST(Stretch, MovesOnWhatLiesBehindAControlThatNeedsMore) {
    const Stretch stretch{{{100, 200, 80}, {300, 400, 10}}, 500, 0.5};
    EXPECT_DOUBLE_EQ(stretch.At(100), 50);
    EXPECT_DOUBLE_EQ(stretch.At(200), 130);
    EXPECT_DOUBLE_EQ(stretch.At(300), 180);
    EXPECT_DOUBLE_EQ(stretch.Whole(), 280);
}

TEST(Stretch, KeepsSharedEdgesShared) {
    const Stretch stretch{{{0, 200, 150}, {0, 100, 20}, {200, 300, 10}, {100, 300, 10}}, 300, 0.5};
    EXPECT_DOUBLE_EQ(stretch.At(200), 150);
    EXPECT_DOUBLE_EQ(stretch.At(300), 200);
    EXPECT_DOUBLE_EQ(stretch.At(100), 50);
}

TEST(Stretch, DrawsOutWhatLiesWithinAWideControl) {
    const Stretch stretch{{{0, 100, 200}}, 100, 1};
    EXPECT_DOUBLE_EQ(stretch.At(50), 100);
}

TEST(Stretch, GapsGiveWayBeforeTheWholeGrowsLonger) {
    const std::vector<Span> spans{{0, 100, 140}, {200, 300, 100}};
    EXPECT_NEAR(Stretch::Into(300, spans, 300).Whole(), 300, 1);
    EXPECT_GT(Stretch::Into(200, spans, 300).Whole(), 200);
}

TEST(Stretch, OfAFormWithoutControlsIsTheDesign) {
    EXPECT_DOUBLE_EQ(Stretch::Into(300, {}, 600).At(200), 100);
}

}  // namespace
}  // namespace tallyhut
