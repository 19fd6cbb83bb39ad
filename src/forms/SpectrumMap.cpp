#include "forms/SpectrumMap.h"

#include <array>

namespace tallyhut {
namespace {

constexpr int kLastSpot = 49;
constexpr double kWidth = 9600;
constexpr double kHeight = 7200;
constexpr double kBandWidth = kWidth / SpectrumMap::kBands;
constexpr double kLineTop = 640;
constexpr double kLineBottom = 6700;
constexpr Place kSpotLine{120, 6900, kWidth - 240, 240};
constexpr double kLabelHeight = 200;
constexpr double kCaptionWidth = 480;
constexpr double kNameWidth = 640;
constexpr double kSpotWidth = 370;
constexpr Colour kCaption = 0xE0E0E0;

constexpr std::array<std::string_view, SpectrumMap::kBands> kBandNames{"160 m", "80 m", "40 m", "30 m", "20 m", "17 m",
                                                                       "15 m",  "12 m", "10 m", "6 m",  "2 m"};

double LineOf(int band) {
    return (band + 1) * kBandWidth - 50;
}

LabelDesign Design(const Place& place, bool visible) {
    return {.place = place, .foreColor = kCaption, .visible = visible};
}

}  // namespace

SpectrumMap::SpectrumMap(Desk& owner)
    : Form{owner, "SpectrumMap", " HF Spectrum Map", {.width = kWidth, .height = kHeight, .dialog = false}},
      lblHFSpots{0, kBands - 1,
                 [this](int i) {
                     return std::make_unique<Label>(
                         *this, "lblHFSpots", i, kBandNames.at(static_cast<std::size_t>(i)),
                         LabelDesign{.place = {LineOf(i) - kNameWidth, 160, kNameWidth, 300}});
                 }},
      lineHF{0, kBands - 1,
             [this](int i) {
                 return std::make_unique<Line>(*this, "lineHF", i, LineOf(i), kLineTop, LineOf(i), kLineBottom);
             }},
      lblFreqSpot{
          0, kBands * kCaptionsOfBand - 1,
          [this](int i) {
              const Place place{LineOf(i / kCaptionsOfBand) - kCaptionWidth, kLineTop, kCaptionWidth, kLabelHeight};
              return std::make_unique<Label>(*this, "lblFreqSpot", i, "", Design(place, true));
          }},
      LineSpot{0, kLastSpot, [this](int i) { return std::make_unique<Line>(*this, "LineSpot", i, 0, 0, 0, 0); }},
      lblDXSpot{0, kLastSpot,
                [this](int i) {
                    return std::make_unique<Label>(*this, "lblDXSpot", i, "",
                                                   Design({0, kLineTop, kSpotWidth, kLabelHeight}, false));
                }},
      lblSpot{*this, "lblSpot", "", {.place = kSpotLine, .takesFocus = true, .tabStop = true}} {
    for (int i = lblHFSpots.First(); i <= lblHFSpots.Last(); ++i) {
        lblHFSpots(i).SetBold(true);
    }
    for (int i = LineSpot.First(); i <= LineSpot.Last(); ++i) {
        LineSpot(i).SetVisible(false);
    }
}

}  // namespace tallyhut
