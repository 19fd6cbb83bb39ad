#include "views/band_stats.h"

#include <tuple>

#include "values/number.h"

namespace tallyhut {
namespace {

static_assert(frmbndstats::kBands == std::tuple_size_v<BandCounts>);

constexpr double kWhole = 100;  ///< percent
constexpr Colour kBar = FromRgb(0x1E, 0x88, 0xE5);
constexpr int kPixels = 200;

/// As long as the share of the contacts is; of the band of every contact it fills the width.
Drawing Bar(std::int32_t count, std::int32_t all) {
    constexpr double kHeight = 10;
    const double length = all == 0 ? 0 : kWhole * count / all;
    Drawing drawing{.width = kWhole, .height = kHeight, .ground = kButtonFace};
    drawing.shapes.push_back(
        {.kind = Shape::Kind::Area, .paths = {{{0, 0}, {length, 0}, {length, kHeight}, {0, kHeight}}}, .colour = kBar});
    return drawing;
}

}  // namespace

std::int32_t ShareInPercent(std::int32_t count, std::int32_t all) {
    return all == 0 ? 0 : count * 100 / all;
}

void BandStats::frmbndstats_Load() {
    const BandCounts& counts = log.Counts().OfAll();
    const std::int32_t all = log.gContactCount();
    form.lblcon(frmbndstats::kTotal).SetCaption(PlainText(all));
    for (int k = 0; k < frmbndstats::kBands; ++k) {
        const std::int32_t count = counts.at(static_cast<std::size_t>(k));
        form.lblcon(k).SetCaption(PlainText(count));
        form.lblcon(k + frmbndstats::kBands).SetCaption(PlainText(ShareInPercent(count, all)));
        form.picShare(k).Show(Bar(count, all), kPixels);
    }
}

void BandStats::Command1_Click() {
    form.Unload();
}

void BandStats::Open() {
    if (form.IsLoaded()) {
        frmbndstats_Load();
    }
    form.Show();
}

}  // namespace tallyhut
