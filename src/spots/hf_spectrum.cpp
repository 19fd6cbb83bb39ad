#include "spots/hf_spectrum.h"

#include <algorithm>
#include <array>

#include "contest/worked_before.h"
#include "spots/band_map.h"
#include "spots/spot_labels.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

/// In MHz.
constexpr std::array<BandSpan, SpectrumMap::kBands> kBandEdges{{
    {1.8F, 2.0F},
    {3.5F, 4.0F},
    {7.0F, 7.3F},
    {10.1F, 10.15F},
    {14.0F, 14.35F},
    {18.068F, 18.168F},
    {21.0F, 21.45F},
    {24.89F, 24.99F},
    {28.0F, 29.7F},
    {50.0F, 54.0F},
    {144.0F, 148.0F},
}};
static_assert(SpectrumMap::kCaptionsOfBand == kScaleCaptions);

constexpr int kMostColumns = 2;  ///< of labels, in the room of a band
constexpr double kBesideLine = 0.004;
constexpr double kMinutesAnHour = 60;

const BandSpan& EdgesOf(int band) {
    return kBandEdges.at(static_cast<std::size_t>(band));
}

}  // namespace

void HfSpectrum::BandMapLabelDisplay() {
    try {
        Draw();
    } catch (const ValueError&) {
        // A moment or an offset that is none: one stale row must not stop the form.
    }
}

void HfSpectrum::Draw() {
    UpdateSpectrumScale();
    std::array<std::vector<Mark>, SpectrumMap::kBands> marks;
    for (int band = 0; band < SpectrumMap::kBands; ++band) {
        marks.at(static_cast<std::size_t>(band)) = MarksOf(band);
    }
    std::array<bool, SpotTable::kRows> isShown{};
    for (const std::vector<Mark>& ofBand : marks) {
        for (const Mark& mark : ofBand) {
            isShown.at(static_cast<std::size_t>(mark.row)) = true;
        }
    }
    for (int i = form.lblDXSpot.First(); i <= form.lblDXSpot.Last(); ++i) {
        if (!isShown.at(static_cast<std::size_t>(i))) {
            form.lblDXSpot(i).SetVisible(false);
            form.LineSpot(i).SetVisible(false);
        }
    }
    for (int band = 0; band < SpectrumMap::kBands; ++band) {
        DrawBand(band, marks.at(static_cast<std::size_t>(band)));
    }
}

void HfSpectrum::UpdateSpectrumScale() {
    for (int band = 0; band < SpectrumMap::kBands; ++band) {
        const ScaleCaptions captions = CaptionsOf(ZoomedToSpots(table, EdgesOf(band), filter));
        const ControlState& line = form.lineHF(band).State();
        for (int j = 0; j < kScaleCaptions; ++j) {
            Label& label = form.lblFreqSpot(kScaleCaptions * band + j);
            Place place = label.State().place;
            place.left = line.x2 - place.width * (1 + kBesideLine);
            place.top = line.y1 + (line.y2 - line.y1) * j / (kScaleCaptions - 1) - place.height / 2;
            label.SetCaption(captions.at(static_cast<std::size_t>(j)));
            label.SetPlace(place);
        }
    }
}

/// As its captions say it, rounded as they are.
BandSpan HfSpectrum::ScaleOfBand(int band) const {
    const int first = kScaleCaptions * band;
    return ScaleOf(form.lblFreqSpot(first).Caption(), form.lblFreqSpot(first + kScaleCaptions - 1).Caption());
}

/// In the order of their frequencies.
std::vector<HfSpectrum::Mark> HfSpectrum::MarksOf(int band) const {
    const BandSpan scale = ScaleOfBand(band);
    const ControlState& line = form.lineHF(band).State();
    const DateTime now = panel.desk.clock.Now();
    std::vector<Mark> marks;
    for (int i = SpotTable::kNewest; i >= 0; --i) {
        const Spot& spot = table.Row(i);
        if (EdgesOf(band).Holds(spot.SpotFreq) && filter.Shows(spot.SpotText, spot.spotter) &&
            AgeOf(spot.SpotTime, now) != nullptr) {
            // The oldest row does not widen the scale, and may lie beyond it.
            const double share = std::clamp(ShareOf(spot.SpotFreq, scale), 0.0, 1.0);
            marks.push_back({line.y1 + share * (line.y2 - line.y1), i});
        }
    }
    std::ranges::stable_sort(marks, {}, &Mark::at);
    return marks;
}

std::vector<std::vector<int>> HfSpectrum::RowsShown() const {
    std::vector<std::vector<int>> bands(SpectrumMap::kBands);
    for (int band = 0; band < SpectrumMap::kBands; ++band) {
        std::ranges::transform(MarksOf(band), std::back_inserter(bands[static_cast<std::size_t>(band)]), &Mark::row);
    }
    return bands;
}

void HfSpectrum::DrawBand(int band, const std::vector<Mark>& marks) {
    const ControlState& line = form.lineHF(band).State();
    constexpr int kQuarters = kScaleCaptions - 1;
    const double quarter = (line.y2 - line.y1) / kQuarters;
    for (int j = 0; j < kQuarters; ++j) {
        const double from = line.y1 + j * quarter;
        std::vector<Mark> within;
        std::ranges::copy_if(marks, std::back_inserter(within), [&](const Mark& mark) {
            return (j == 0 || mark.at >= from) && (j == kQuarters - 1 || mark.at < from + quarter);
        });
        DrawQuarter(within, band, from, from + quarter);
    }
}

void HfSpectrum::DrawQuarter(const std::vector<Mark>& marks, int band, double from, double to) {
    const double height = form.lblDXSpot(0).State().place.height;
    const double clear = (height + form.lblFreqSpot(0).State().place.height) / 2;
    std::vector<double> wanted;
    std::ranges::transform(marks, std::back_inserter(wanted), &Mark::at);
    const std::vector<LabelPlace> places = PlacesAlong(wanted, height, from + clear, to - clear, kMostColumns);
    const DateTime now = panel.desk.clock.Now();
    for (std::size_t n = 0; n < marks.size(); ++n) {
        const auto [at, row] = marks[n];
        const Spot& spot = table.Row(row);
        const DateTime utc = AddMinutes(spot.SpotTime, contest.preferences.gUtcOffset * kMinutesAnHour);
        Label& label = form.lblDXSpot(row);
        label.SetUnderlined(!WorkedBefore(contest.log, spot.SpotCall));
        DrawSpot(label, form.LineSpot(row), spot, *AgeOf(spot.SpotTime, now), HintOf(spot, utc),
                 form.lineHF(band).State().x2, at, places[n]);
    }
}

void HfSpectrum::lblDXSpot_MouseDown(int Index, MouseButton Button) {
    if (!Worked(table.Row(Index), Button, panel, rig)) {
        BandMapLabelDisplay();
    }
}

void HfSpectrum::lblDXSpot_MouseMove(int Index) {
    form.lblSpot.SetCaption(form.lblDXSpot(Index).State().toolTip);
}

}  // namespace tallyhut
