#include "spots/section_spots.h"

#include <numeric>

#include "spots/band_map.h"
#include "values/format.h"
#include "values/text.h"

namespace tallyhut {
namespace {

std::string TimeText(const Spot& spot) {
    return FormatDateTime(spot.SpotTime, "hh:nn");
}

}  // namespace

std::string SectionCounts(const Contest& contest, int section) {
    const BandCounts counts = contest.log.Counts().OfSection(contest.sections.Code(section));
    const std::int32_t total = std::accumulate(counts.begin(), counts.end(), 0);
    std::string text =
        "  " + std::string{contest.sections.Name(section)} + "   Total =" + NumberForm(total) + std::string{kLineEnd};
    for (std::size_t i = 0; i < kCountedBands.size(); ++i) {
        text += (i == 0 ? "  " : "   ") + std::string{kCountedBands.at(i)} + " =" + NumberForm(counts.at(i));
    }
    return text;
}

void SectionSpots::Label10_MouseDown(int Index) {
    const std::string section = panel.form.Label10(Index).Caption();
    panel.form.txtSec.SetText(section);
    const std::optional<int> row = table.NewestRowWith(section);
    if (!row) {
        return;
    }
    const Spot spot = table.Row(*row);
    if (contest.preferences.gRigName != kNoRig && spot.SpotFreq != 0) {  // or it was thrown off the map
        float frequency = spot.SpotFreq;
        rig.ChangeFrequency(frequency);
    }
    WorkSpot(panel, spot.SpotCall);
    panel.message.Write(spot.SpotCall + "  -  " + section + std::string{kLineEnd} + NumberForm(spot.SpotFreq) +
                        std::string{kLineEnd} + TimeText(spot));
}

void SectionSpots::Label10_MouseMove(int Index) {
    std::string text = SectionCounts(contest, Index);
    if (const std::optional<int> row = table.NewestRowWith(panel.form.Label10(Index).Caption())) {
        const Spot& spot = table.Row(*row);
        text += std::string{kLineEnd} + "  Recent Spot: " + spot.SpotCall + "  -  " + NumberForm(spot.SpotFreq) +
                "  -  " + TimeText(spot);
    }
    panel.form.lblDupe.SetCaption(text);
}

}  // namespace tallyhut
