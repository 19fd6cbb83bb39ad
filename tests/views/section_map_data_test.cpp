// The map that the program is shipped with.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "contest/section_table.h"
#include "forms/SectionMap.h"
#include "views/section_outlines.h"

namespace tallyhut {
namespace {

constexpr int kPixels = 2000;  // as wide as the program fills it
constexpr Colour kWhite = FromRgb(255, 255, 255);

const SectionOutlines& ShippedMap() {
    static const SectionOutlines map = [] {
        std::ifstream file{TALLYHUT_DATA "/section_map.txt"};
        std::stringstream text;
        text << file.rdbuf();
        return ReadSectionOutlines(text.str());
    }();
    return map;
}

std::map<std::string, int> RegionsByCode(const SectionList& list) {
    std::map<std::string, int> regions;
    for (const MapRegion& region : ShippedMap().regions) {
        ++regions[region.CodeIn(list)];
    }
    return regions;
}

SectionList ListOfToday() {
    std::ifstream file{TALLYHUT_DATA "/sections/2023.txt"};
    std::stringstream text;
    text << file.rdbuf();
    return ReadSectionList(text.str());
}

TEST(SectionMapData, EachSectionHasARegionAndOneRegionIsNoSection) {
    std::map<std::string, int> regions = RegionsByCode(ToldSections());
    for (const ListedSection& section : ToldSections().sections) {
        EXPECT_GE(regions[section.code], 1) << section.code;
    }
    EXPECT_EQ(regions["NWT"], 1);
    EXPECT_EQ(regions.size(), ToldSections().sections.size() + 1);
    EXPECT_LE(ShippedMap().regions.size(), static_cast<std::size_t>(SectionMap::kLastCounty));
}

TEST(SectionMapData, SectionsOfTodayHaveTheRegionsOfFormerOnesAndNoneIsLeftOver) {
    const SectionList today = ListOfToday();
    std::map<std::string, int> regions = RegionsByCode(today);
    for (const ListedSection& section : today.sections) {
        EXPECT_GE(regions[section.code], 1) << section.code;
    }
    EXPECT_EQ(regions.size(), today.sections.size());
    EXPECT_EQ(regions["NS"], 1);
    EXPECT_EQ(regions["TER"], 5);
}

TEST(SectionMapData, SectionsThatLieApartHaveARegionForEachPart) {
    const std::map<std::string, int> regions = RegionsByCode(ToldSections());
    EXPECT_EQ(regions.at("MAR"), 3);
    for (const char* code : {"NT", "QC", "NL", "BC", "MI"}) {
        EXPECT_GE(regions.at(code), 2) << code;
    }
}

TEST(SectionMapData, EachSeedLiesInItsRegion) {
    for (const MapRegion& region : ShippedMap().regions) {
        int seeds = 0;
        for (const MapPart& part : region.parts) {
            if (part.seed) {
                ++seeds;
                const MapRegion* const found = ShippedMap().RegionAt(*part.seed);
                EXPECT_EQ(found, &region) << region.name << " at " << part.seed->x << ',' << part.seed->y;
            }
        }
        EXPECT_GE(seeds, 1) << region.name;
    }
}

/// Each in a colour of its own, one after the other: whatever runs out takes its neighbour's.
TEST(SectionMapData, EachRegionIsClosed) {
    RasterImage image = OutlinesOn(ShippedMap(), kPixels);
    const double scale = image.Width() / ShippedMap().width;
    const auto at = [&](const Point& seed) {
        return std::pair{static_cast<int>(seed.x * scale), static_cast<int>(seed.y * scale)};
    };
    Colour colour = 1'000;
    for (const MapRegion& region : ShippedMap().regions) {
        ++colour;
        for (const MapPart& part : region.parts) {
            if (part.seed) {
                const auto [x, y] = at(*part.seed);
                EXPECT_EQ(image.At(x, y), kWhite) << region.name << " at " << part.seed->x << ',' << part.seed->y;
                image.FloodFill(x, y, colour);
            }
        }
    }
    colour = 1'000;
    for (const MapRegion& region : ShippedMap().regions) {
        ++colour;
        for (const MapPart& part : region.parts) {
            if (part.seed) {
                const auto [x, y] = at(*part.seed);
                EXPECT_EQ(image.At(x, y), colour) << region.name;
            }
        }
    }
    for (const auto& [x, y] : {std::pair{0, 0}, {image.Width() - 1, 0}, {0, image.Height() - 1}}) {
        EXPECT_EQ(image.At(x, y), kWhite) << "the sea";
    }
}

TEST(SectionMapData, SmallSectionsAreDrawnLargerInAnInset) {
    constexpr double kLegible = 90;  // units: seven pixels where the map is a thousand wide
    const std::set<std::string> small{"CT",  "RI",  "DE", "NNJ", "SNJ", "NLI", "EMA", "WMA", "EB",
                                      "SCV", "ORG", "SF", "LAX", "AK",  "PAC", "PR",  "VI"};
    for (const MapRegion& region : ShippedMap().regions) {
        if (!small.contains(region.codes.front())) {
            continue;
        }
        double largest = 0;
        for (const MapPart& part : region.parts) {
            if (part.panel > 0) {
                const auto [left, right] = std::ranges::minmax(part.ring, {}, &Point::x);
                const auto [top, bottom] = std::ranges::minmax(part.ring, {}, &Point::y);
                largest = std::max(largest, std::min(right.x - left.x, bottom.y - top.y));
            }
        }
        EXPECT_GE(largest, kLegible) << region.codes.front();
    }
}

}  // namespace
}  // namespace tallyhut
