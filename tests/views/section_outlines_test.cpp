#include "views/section_outlines.h"

#include <gtest/gtest.h>

#include "values/value_error.h"

namespace tallyhut {
namespace {

/// Two sections side by side, the left one with an islet and once more, larger, in an inset.
constexpr std::string_view kMap =
    "# a map\n"
    "map 1000 500\r\n"
    "panel 0 0 0 1000 500 All\n"
    "panel 1 600 0 400 500 The left one\n"
    "region 1 CT Connecticut\n"
    "part 0 150 250 100 200 100 0 0 100 -100 0\n"
    "islet 0 20 20 10 0 0 10\n"
    "part 1 800 250 650 100 300 0 0 300 -300 0\n"
    "\n"
    "region 2 NWT The north west\n"
    "part 0 250 250 200 200 100 0 0 100 -100 0\n"
    "land 0 0 0 10 0 0 10\n";

TEST(SectionOutlines, ARingIsItsFirstPointAndTheWaysToTheNextOnes) {
    const SectionOutlines map = ReadSectionOutlines(kMap);
    EXPECT_EQ(map.width, 1000);
    EXPECT_EQ(map.height, 500);
    ASSERT_EQ(map.panels.size(), 2U);
    EXPECT_EQ(map.panels[1].title, "The left one");
    ASSERT_EQ(map.regions.size(), 2U);
    EXPECT_EQ(map.regions[0].codes.front(), "CT");
    EXPECT_EQ(map.regions[1].name, "The north west");
    ASSERT_EQ(map.regions[0].parts.size(), 3U);
    EXPECT_EQ(map.regions[0].parts[0].ring, (Path{{100, 200}, {200, 200}, {200, 300}, {100, 300}}));
    EXPECT_EQ(map.regions[0].parts[0].seed, (Point{150, 250}));
    EXPECT_FALSE(map.regions[0].parts[1].seed);
    EXPECT_EQ(map.regions[0].parts[2].panel, 1U);
    EXPECT_EQ(map.land.size(), 1U);
}

TEST(SectionOutlines, ADamagedLineIsRefused) {
    for (const std::string_view line :
         {"part 0 1 1 0 0 5 0 0 5", "region 1", "region x CT", "sea 1 2", "map 10", "map 10 ten", "panel 0 0 0 1",
          "region 1 CT\npart 0 1 1 0 0 5 0", "region 1 CT\npart 0 1 1 0 0 5 0 0", "region 1 CT\npart 9 1 1 0 0 5 0 0 5",
          "region 1 CT\npart 0 1 1 0 0 5 0 0 5.5", "region 1 CT\nislet -1 0 0 5 0 0 5"}) {
        EXPECT_THROW(ReadSectionOutlines("map 100 50\npanel 0 0 0 100 50 All\n" + std::string{line} + "\n"), ValueError)
            << line;
    }
}

TEST(SectionOutlines, SoIsAMapWithoutASizeOrAPanel) {
    EXPECT_THROW(ReadSectionOutlines(""), ValueError);
    EXPECT_THROW(ReadSectionOutlines("map 0 50\npanel 0 0 0 100 50 All\n"), ValueError);
    EXPECT_THROW(ReadSectionOutlines("map 100 50\n"), ValueError);
}

TEST(SectionOutlines, ARegionIsFoundWhereItLiesAndInItsInset) {
    const SectionOutlines map = ReadSectionOutlines(kMap);
    const auto codeAt = [&map](double x, double y) {
        const MapRegion* const region = map.RegionAt({x, y});
        return region == nullptr ? std::string{} : region->codes.front();
    };
    EXPECT_EQ(codeAt(150, 250), "CT");
    EXPECT_EQ(codeAt(250, 250), "NWT");
    EXPECT_EQ(codeAt(27, 22), "CT");
    EXPECT_EQ(codeAt(50, 50), "");
    EXPECT_EQ(codeAt(800, 250), "CT");
    EXPECT_EQ(codeAt(610, 20), "") << "in the inset, beside its land";
    EXPECT_EQ(codeAt(-5, 9000), "");
}

TEST(SectionOutlines, OutlinesAreClosedBlackOnWhite) {
    RasterImage image = OutlinesOn(ReadSectionOutlines(kMap), 200);
    EXPECT_EQ(image.Height(), 100);
    EXPECT_EQ(image.At(30, 50), FromRgb(255, 255, 255));
    EXPECT_EQ(image.At(20, 50), 0);
    image.FloodFill(30, 50, 77);
    EXPECT_EQ(image.At(25, 45), 77);
    EXPECT_EQ(image.At(50, 50), FromRgb(255, 255, 255)) << "the neighbour";
    EXPECT_EQ(image.At(1, 50), FromRgb(255, 255, 255)) << "the sea";
}

}  // namespace
}  // namespace tallyhut
