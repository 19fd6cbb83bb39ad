#include "spots/band_map.h"

#include <algorithm>

#include "spots/spot_labels.h"
#include "spots/terminal_text.h"
#include "toolkit/key.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr int kMostColumns = SpotTable::kRows;
constexpr double kContactsWidth = 2700;  ///< of the list of contacts beside the spots, design units

/// A field takes no control characters and no quotes: they would come into the log.
std::string FieldText(std::string_view call) {
    std::string text{call};
    std::erase_if(text, [](char character) { return IsControl(character) || character == '"'; });
    return text;
}

}  // namespace

void WorkSpot(Panel& panel, const std::string& call) {
    panel.form.txtCall.SetFocus();
    panel.form.txtCall.SetText(FieldText(call));
    panel.desk.SendKeys(KeyForCharacter(kKeyTab));
}

bool Worked(Spot& spot, MouseButton button, Panel& panel, RigCommands& rig) {
    if (button != kRightButton) {
        spot.SpotFreq = 0;
        return false;
    }
    float frequency = spot.SpotFreq;
    const std::string call = spot.SpotCall;
    rig.ChangeFrequency(frequency);
    WorkSpot(panel, call);
    return true;
}

void BandMap::PacketResize(SpotDisplay display) {
    Form1& form = panel.form;
    const bool map = display == SpotDisplay::Map;
    form.txtDX.SetVisible(display == SpotDisplay::List);
    form.lblDX.SetVisible(map);
    form.LineDX.SetVisible(map);
    for (int i = form.lblFreqSpot.First(); i <= form.lblFreqSpot.Last(); ++i) {
        form.lblFreqSpot(i).SetVisible(map);
    }
    for (int i = form.lblDXSpot.First(); i <= form.lblDXSpot.Last(); ++i) {
        form.lblDXSpot(i).SetVisible(false);
        form.LineSpot(i).SetVisible(false);
    }
    if (const ControlState* design = form.ListView1.Design()) {
        const double width = display == SpotDisplay::None ? design->place.width : kContactsWidth;
        Place place = form.ListView1.State().place;
        place.width = width * form.FormPlace().width / form.design.width;
        form.ListView1.SetPlace(place);
    }
    DisplayBandMapLabels();
}

void BandMap::UpdateBandMapScale() {
    const Band* band = FindBand(contest.preferences.gBand);
    const ScaleCaptions captions = CaptionsOf(ZoomedToSpots(table, band == nullptr ? BandSpan{} : band->map, filter));
    for (int i = 0; i < kScaleCaptions; ++i) {
        panel.form.lblFreqSpot(i).SetCaption(captions.at(static_cast<std::size_t>(i)));
    }
}

void BandMap::DisplayBandMapLabels() {
    if (!panel.form.lblDX.State().visible) {
        return;
    }
    try {
        Draw();
    } catch (const ValueError&) {
        // A moment or an offset that is none: one stale row must not stop the form.
    }
}

void BandMap::Draw() {
    UpdateBandMapScale();
    const std::vector<Shown> shown = SpotsOfTheScale();
    for (int i = 0; i <= SpotTable::kNewest; ++i) {
        if (std::ranges::find(shown, i, &Shown::row) == shown.end()) {
            panel.form.lblDXSpot(i).SetVisible(false);
            panel.form.LineSpot(i).SetVisible(false);
        }
    }
    PlaceLabels(shown);
}

std::vector<int> BandMap::RowsShown() const {
    std::vector<int> rows;
    if (panel.form.lblDX.State().visible) {
        std::ranges::transform(SpotsOfTheScale(), std::back_inserter(rows), &Shown::row);
    }
    return rows;
}

/// In the order of their frequencies; of those on the same one the newest first.
std::vector<BandMap::Shown> BandMap::SpotsOfTheScale() const {
    const Form1& form = panel.form;
    const BandSpan scale = ScaleOf(form.lblFreqSpot(0).Caption(), form.lblFreqSpot(kScaleCaptions - 1).Caption());
    const ControlState& line = form.LineDX.State();
    const DateTime now = panel.desk.clock.Now();
    std::vector<Shown> shown;
    for (int i = SpotTable::kNewest; i >= 0; --i) {
        const Spot& spot = table.Row(i);
        const bool isShown = scale.Holds(spot.SpotFreq) && filter.Shows(spot.SpotText, spot.spotter);
        const AgeRow* age = isShown ? AgeOf(spot.SpotTime, now) : nullptr;
        if (age != nullptr) {
            shown.push_back({i, line.y1 + ShareOf(spot.SpotFreq, scale) * (line.y2 - line.y1), age});
        }
    }
    std::ranges::stable_sort(shown, {}, &Shown::mark);
    return shown;
}

/// More labels than fit below each other stand in columns side by side.
void BandMap::PlaceLabels(const std::vector<Shown>& shown) {
    Form1& form = panel.form;
    const ControlState& line = form.LineDX.State();
    std::vector<double> marks;
    std::ranges::transform(shown, std::back_inserter(marks), &Shown::mark);
    const std::vector<LabelPlace> places =
        PlacesAlong(marks, form.lblDXSpot(0).State().place.height, line.y1, line.y2, kMostColumns);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const auto& [row, mark, age] = shown[i];
        const Spot& spot = table.Row(row);
        DrawSpot(form.lblDXSpot(row), form.LineSpot(row), spot, *age,
                 HintOf(spot, AddHours(spot.SpotTime, contest.preferences.gUtcOffset)), line.x2, mark, places[i]);
    }
}

void BandMap::ShowList() {
    listedRows.clear();
    for (std::size_t row = 0; row < posts.listed.size(); ++row) {
        if (filter.Shows(posts.listed[row].text, posts.listed[row].spotter)) {
            listedRows.push_back(row);
        }
    }
    panel.form.txtDX.SetRows(listedRows.size(), [this](std::size_t row, std::size_t column) {
        return posts.listed.at(listedRows.at(row)).row.at(column);
    });
}

void BandMap::lblDXSpot_MouseDown(int Index, MouseButton Button) {
    if (!Worked(table.Row(Index), Button, panel, rig)) {
        DisplayBandMapLabels();
    }
}

void BandMap::lblDXSpot_MouseMove(int Index) {
    panel.form.lblDupe.SetCaption(panel.form.lblDXSpot(Index).State().toolTip);
}

void BandMap::txtDX_Click() {
    const int selected = panel.form.txtDX.Row();
    if (selected < 0 || static_cast<std::size_t>(selected) >= listedRows.size()) {
        return;
    }
    const SpotListRow spot = posts.listed.at(listedRows[static_cast<std::size_t>(selected)]).row;
    const std::optional<double> megahertz = ParseNumber(spot[1]);
    if (!megahertz) {
        return;
    }
    if (contest.preferences.gRigName != kNoRig) {
        auto frequency = static_cast<float>(*megahertz);
        rig.ChangeFrequency(frequency);
    }
    WorkSpot(panel, spot[0]);
}

}  // namespace tallyhut
