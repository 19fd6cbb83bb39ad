#include "views/licence_segments.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

#include "values/number.h"

namespace tallyhut {
namespace {

std::vector<BandPlanRow> Plan(std::string_view records) {
    return ReadBandPlan("\"today\"\r\n" + std::string{records}).rows;
}

TEST(LicenceSegments, ABandOfWhichTheClassHasASegmentIsShownInTheOrderOfThePlan) {
    const auto plan = Plan(
        "\"20\",\"O\",\"O\",14,14.35\r\n\"40\",\"O\",\"O\",7,7.3\r\n\"30\",\"O\",\"O\",10.1,10.15\r\n"
        "\"40\",\"G\",\"CW\",7.025,7.125\r\n\"20\",\"G\",\"PH\",14.225,14.35\r\n\"30\",\"E\",\"CW\",10.1,10.15\r\n");
    const std::vector<LicenceBand> bands = BandsOfClass(plan, "G");
    ASSERT_EQ(bands.size(), 2U);
    EXPECT_EQ(CaptionOf(bands[0]), "20  14.000 - 14.350");
    EXPECT_EQ(CaptionOf(bands[1]), "40  7.000 - 7.300");
    ASSERT_EQ(bands[1].segments.size(), 1U);
    EXPECT_EQ(bands[1].segments[0].word, "CW");
    EXPECT_NEAR(bands[1].segments[0].from, 0.025 / 0.3, 1e-5);
    EXPECT_NEAR(bands[1].segments[0].to, 0.125 / 0.3, 1e-5);
    EXPECT_EQ(bands[0].segments[0].word, "Phone");
}

TEST(LicenceSegments, ARecordThatOpensABandIsOfNoClassAndNoSegment) {
    const auto plan = Plan("\"20\",\"O\",\"O\",14,14.35\r\n\"40\",\"E\",\"O\",7,7.3\r\n");
    EXPECT_TRUE(BandsOfClass(plan, "O").empty());
    EXPECT_TRUE(BandsOfClass(plan, "E").empty());
}

TEST(LicenceSegments, ASegmentOfABandThatNoRecordOpensIsNotShown) {
    EXPECT_TRUE(BandsOfClass(Plan("\"20\",\"E\",\"CW\",14,14.15\r\n"), "E").empty());
}

TEST(LicenceSegments, AnotherModeIsCalledAsThePlanCallsIt) {
    const auto plan = Plan("\"60\",\"O\",\"O\",5.33,5.407\r\n\"60\",\"E\",\"USB\",5.3515,5.3665\r\n");
    EXPECT_EQ(BandsOfClass(plan, "E").at(0).segments.at(0).word, "USB");
}

TEST(LicenceSegments, LowAboveHighIsTheSameStretch) {
    const auto plan = Plan("\"20\",\"O\",\"O\",14.35,14\r\n\"20\",\"E\",\"CW\",14.15,14\r\n");
    const LicenceBand band = BandsOfClass(plan, "E").at(0);
    EXPECT_EQ(CaptionOf(band), "20  14.350 - 14.000");
    EXPECT_DOUBLE_EQ(band.segments.at(0).from, 0);
    EXPECT_NEAR(band.segments.at(0).to, 0.15 / 0.35, 1e-5);
}

TEST(LicenceSegments, ASegmentIsCutAtTheEndsOfItsBand) {
    const auto plan = Plan(
        "\"20\",\"O\",\"O\",14,14.35\r\n\"20\",\"E\",\"CW\",13,14.175\r\n\"20\",\"E\",\"PH\",14.175,99\r\n"
        "\"20\",\"E\",\"PH\",28,29\r\n\"20\",\"E\",\"PH\",14.2,14.2\r\n");
    const LicenceBand band = BandsOfClass(plan, "E").at(0);
    ASSERT_EQ(band.segments.size(), 2U) << "nothing is left of one that lies beyond, or has no width";
    EXPECT_DOUBLE_EQ(band.segments[0].from, 0);
    EXPECT_DOUBLE_EQ(band.segments[1].to, 1);
}

TEST(LicenceSegments, ABandWithoutWidthHasNoSegments) {
    const auto plan = Plan("\"20\",\"O\",\"O\",14,14\r\n\"20\",\"E\",\"CW\",14,14.15\r\n");
    const LicenceBand band = BandsOfClass(plan, "E").at(0);
    EXPECT_TRUE(band.segments.empty());
    EXPECT_FALSE(band.ShareAt(14));
}

TEST(LicenceSegments, AFrequencyLiesOnItsBandFromEndToEnd) {
    const LicenceBand band{.Band = "20", .Low = 14, .High = 14.25F};
    EXPECT_EQ(band.ShareAt(14), 0);
    EXPECT_EQ(band.ShareAt(14.125F), 0.5);
    EXPECT_EQ(band.ShareAt(14.25F), 1);
    EXPECT_FALSE(band.ShareAt(13.9999F));
    EXPECT_FALSE(band.ShareAt(14.2501F));
}

/// The plan that a fresh installation gets.
std::vector<BandPlanRow> ShippedPlan() {
    std::ifstream file{TALLYHUT_DATA "/BandPlan.txt"};
    std::stringstream text;
    text << file.rdbuf();
    return ReadBandPlan(text.str()).rows;
}

std::string Kilohertz(float megahertz) {
    constexpr float kKilohertz = 1'000;
    return PlainText(megahertz * kKilohertz);
}

/// What a class may use of a band: "C 3525-3600 P 3800-4000".
std::string SegmentsOf(const std::vector<BandPlanRow>& plan, std::string_view band, std::string_view letter) {
    std::string told;
    for (const BandPlanRow& row : plan) {
        if (row.Band == band && row.Class == letter) {
            told += (told.empty() ? "" : " ") +
                    std::string{row.Mode == "CW"   ? "C"
                                : row.Mode == "PH" ? "P"
                                                   : row.Mode} +
                    ' ' + Kilohertz(row.Low) + '-' + Kilohertz(row.High);
        }
    }
    return told;
}

/// 47 CFR 97.301 and 97.305, ITU Region 2: Novice, Technician, General, Advanced, Extra, in kilohertz.
TEST(LicenceSegments, TheShippedPlanIsTheLaw) {
    const std::map<std::string, std::array<const char*, 5>> law{
        {"160", {"", "", "P 1800-2000", "P 1800-2000", "P 1800-2000"}},
        {"80",
         {"C 3525-3600", "C 3525-3600", "C 3525-3600 P 3800-4000", "C 3525-3600 P 3700-4000",
          "C 3500-3600 P 3600-4000"}},
        {"40",
         {"C 7025-7125", "C 7025-7125", "C 7025-7125 P 7175-7300", "C 7025-7125 P 7125-7300",
          "C 7000-7125 P 7125-7300"}},
        {"30", {"", "", "C 10100-10150", "C 10100-10150", "C 10100-10150"}},
        {"20", {"", "", "C 14025-14150 P 14225-14350", "C 14025-14150 P 14175-14350", "C 14000-14150 P 14150-14350"}},
        {"17", {"", "", "C 18068-18110 P 18110-18168", "C 18068-18110 P 18110-18168", "C 18068-18110 P 18110-18168"}},
        {"15",
         {"C 21025-21200", "C 21025-21200", "C 21025-21200 P 21275-21450", "C 21025-21200 P 21225-21450",
          "C 21000-21200 P 21200-21450"}},
        {"12", {"", "", "C 24890-24930 P 24930-24990", "C 24890-24930 P 24930-24990", "C 24890-24930 P 24930-24990"}},
        {"10",
         {"C 28000-28300 P 28300-28500", "C 28000-28300 P 28300-28500", "C 28000-28300 P 28300-29700",
          "C 28000-28300 P 28300-29700", "C 28000-28300 P 28300-29700"}},
        {"6",
         {"", "C 50000-50100 P 50100-54000", "C 50000-50100 P 50100-54000", "C 50000-50100 P 50100-54000",
          "C 50000-50100 P 50100-54000"}},
        {"2",
         {"", "C 144000-144100 P 144100-148000", "C 144000-144100 P 144100-148000", "C 144000-144100 P 144100-148000",
          "C 144000-144100 P 144100-148000"}},
    };
    const auto plan = ShippedPlan();
    ASSERT_FALSE(plan.empty());
    EXPECT_LE(plan.size(), kMostPlanRows);
    for (const auto& [band, classes] : law) {
        const std::array<std::string_view, 5> letters{"N", "T", "G", "A", "E"};
        for (std::size_t i = 0; i < letters.size(); ++i) {
            EXPECT_EQ(SegmentsOf(plan, band, letters.at(i)), classes.at(i)) << band << ' ' << letters.at(i);
        }
        EXPECT_EQ(SegmentsOf(plan, band, "P"), SegmentsOf(plan, band, "T")) << band << ": the classes are one today";
    }
}

/// As since 13 February 2026: the segment, and four channels of 2.8 kHz around their centres.
TEST(LicenceSegments, SixtyMetresAreASegmentAndFourChannels) {
    const auto plan = ShippedPlan();
    const std::string segments = SegmentsOf(plan, "60", "E");
    EXPECT_EQ(SegmentsOf(plan, "60", "G"), segments);
    EXPECT_EQ(SegmentsOf(plan, "60", "A"), segments);
    EXPECT_EQ(SegmentsOf(plan, "60", "T") + SegmentsOf(plan, "60", "N"), "");
    std::vector<std::pair<float, float>> wanted{{5.3515F, 5.3665F}};
    for (const float centre : {5.332F, 5.348F, 5.373F, 5.405F}) {
        wanted.emplace_back(centre - 0.0014F, centre + 0.0014F);
    }
    for (const auto& [low, high] : wanted) {
        EXPECT_TRUE(std::ranges::any_of(plan, [low = low, high = high](const BandPlanRow& row) {
            return row.Class == "E" && row.Mode == "USB" && std::abs(row.Low - low) < 1e-5F &&
                   std::abs(row.High - high) < 1e-5F;
        })) << low;
    }
    EXPECT_EQ(std::ranges::count(segments, '-'), 5);
}

}  // namespace
}  // namespace tallyhut
