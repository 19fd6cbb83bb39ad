#include "forms/frmbndstats.h"

#include <array>

namespace tallyhut {
namespace {

constexpr std::array<std::string_view, frmbndstats::kBands> kBandCaptions{"160",  "  80", "  40",
                                                                          "  20", "  15", "  10"};
constexpr double kLeft = 240;
constexpr double kCounts = 1200;
constexpr double kShares = 2280;
constexpr double kPercent = 3060;
constexpr double kBars = 3420;
constexpr double kFirstRow = 840;
constexpr double kRow = 420;
constexpr double kTextHeight = 300;
constexpr double kLargeText = 12;

LabelDesign Value(int index) {
    const int row = index == frmbndstats::kTotal ? frmbndstats::kBands : index % frmbndstats::kBands;
    const double left = index == frmbndstats::kTotal || index < frmbndstats::kBands ? kCounts : kShares;
    return {.place = {left, kFirstRow + row * kRow, left == kShares ? 720.0 : 900.0, kTextHeight},
            .fontSize = kLargeText};
}

}  // namespace

frmbndstats::frmbndstats(Desk& owner)
    : Form{owner, "frmbndstats", "   Band Statistics", {.width = 6600, .height = 4680}},
      Label1{*this, "Label1", "Total Contacts by Band", {.place = {kLeft, 120, 3600, kTextHeight}}},
      Label3{0, 1,
             [this](int i) {
                 const Place place = i == 0 ? Place{kCounts, 480, 1500, kTextHeight}
                                            : Place{kLeft, kFirstRow + kBands * kRow, 900, kTextHeight};
                 return std::make_unique<Label>(*this, "Label3", i, i == 0 ? "Contacts" : "Total",
                                                LabelDesign{.place = place});
             }},
      Label2{0, kBands - 1,
             [this](int i) {
                 const Place place{kLeft, kFirstRow + i * kRow, 900, kTextHeight};
                 return std::make_unique<Label>(*this, "Label2", i, kBandCaptions.at(static_cast<std::size_t>(i)),
                                                LabelDesign{.place = place});
             }},
      lblcon{0, kTotal, [this](int i) { return std::make_unique<Label>(*this, "lblcon", i, "", Value(i)); }},
      lblPercent{0, kBands - 1,
                 [this](int i) {
                     const Place place{kPercent, kFirstRow + i * kRow, 240, kTextHeight};
                     return std::make_unique<Label>(*this, "lblPercent", i, "%", LabelDesign{.place = place});
                 }},
      picShare{0, kBands - 1,
               [this](int i) {
                   const Place place{kBars, kFirstRow + i * kRow, 2940, kTextHeight};
                   return std::make_unique<Raster>(*this, "picShare", i,
                                                   LabelDesign{.place = place, .toolTip = "Share of the contacts"});
               }},
      Command1{*this, "Command1", "Close", {.place = {5160, 4140, 1200, 375}, .tabIndex = 1}} {}

}  // namespace tallyhut
