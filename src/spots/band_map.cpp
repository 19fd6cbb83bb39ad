#include "spots/band_map.h"

#include <algorithm>

#include "toolkit/key.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr double kBesideLine = 0.004;    ///< of a label's width
constexpr double kContactsWidth = 2700;  ///< of the list of contacts beside the spots, design units

/// A field takes no line ends and no quotes: they would come into the log.
std::string FieldText(std::string_view call) {
    std::string text{call};
    std::erase_if(text, [](char character) { return (character >= 0 && character < ' ') || character == '"'; });
    return text;
}

}  // namespace

void WorkSpot(Panel& panel, const std::string& call) {
    panel.form.txtCall.SetFocus();
    panel.form.txtCall.SetText(FieldText(call));
    panel.desk.SendKeys(KeyForCharacter(kKeyTab));
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
    const ScaleCaptions captions = CaptionsOf(ZoomedToSpots(table, band == nullptr ? BandSpan{} : band->map));
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

/// In the order of their frequencies; of those on the same one the newest first.
std::vector<BandMap::Shown> BandMap::SpotsOfTheScale() const {
    const Form1& form = panel.form;
    const BandSpan scale = ScaleOf(form.lblFreqSpot(0).Caption(), form.lblFreqSpot(kScaleCaptions - 1).Caption());
    const ControlState& line = form.LineDX.State();
    const DateTime now = panel.desk.clock.Now();
    std::vector<Shown> shown;
    for (int i = SpotTable::kNewest; i >= 0; --i) {
        const Spot& spot = table.Row(i);
        const AgeRow* age = scale.Holds(spot.SpotFreq) ? AgeOf(spot.SpotTime, now) : nullptr;
        if (age != nullptr) {
            shown.push_back({i, line.y1 + ShareOf(spot.SpotFreq, scale) * (line.y2 - line.y1), age});
        }
    }
    std::ranges::stable_sort(shown, {}, &Shown::mark);
    return shown;
}

/// More labels than fit below each other stand in columns side by side.
void BandMap::PlaceLabels(const std::vector<Shown>& shown) {
    if (shown.empty()) {
        return;
    }
    const ControlState& line = panel.form.LineDX.State();
    const double height = panel.form.lblDXSpot(0).State().place.height;
    const auto fitting = static_cast<std::size_t>(std::max((line.y2 - line.y1) / height, 1.0)) + 1;
    const std::size_t columns = (shown.size() + fitting - 1) / fitting;
    for (std::size_t column = 0; column < columns; ++column) {
        std::vector<double> marks;
        for (std::size_t i = column; i < shown.size(); i += columns) {
            marks.push_back(shown[i].mark);
        }
        const std::vector<double> centres = SpreadOut(marks, height, line.y1, line.y2);
        for (std::size_t i = 0; i < centres.size(); ++i) {
            ShowLabel(shown[column + i * columns], column, centres[i]);
        }
    }
}

void BandMap::ShowLabel(const Shown& shown, std::size_t column, double centre) {
    const Spot& spot = table.Row(shown.row);
    Label& label = panel.form.lblDXSpot(shown.row);
    Line& leader = panel.form.LineSpot(shown.row);
    const double lineEnd = panel.form.LineDX.State().x2;
    Place place = label.State().place;
    place.left = lineEnd - place.width * (1 + kBesideLine + static_cast<double>(column));
    place.top = centre - place.height / 2;
    label.SetToolTip(HintOf(spot, AddHours(spot.SpotTime, contest.preferences.gUtcOffset)));
    label.SetCaption(spot.SpotPrefix);
    label.SetForeColor(shown.age->colour);
    label.SetBold(shown.age->bold);
    label.SetPlace(place);
    label.SetVisible(true);
    leader.SetEnds(place.left + place.width, centre, lineEnd, shown.mark);
    leader.SetVisible(column > 0 || centre != shown.mark);
}

void BandMap::ShowList() {
    panel.form.txtDX.SetRows(posts.listed.size(),
                             [this](std::size_t row, std::size_t column) { return posts.listed.at(row).at(column); });
}

void BandMap::lblDXSpot_MouseDown(int Index, MouseButton Button) {
    Spot& spot = table.Row(Index);
    if (Button == kRightButton) {
        float frequency = spot.SpotFreq;
        const std::string call = spot.SpotCall;
        rig.ChangeFrequency(frequency);
        WorkSpot(panel, call);
    } else {
        spot.SpotFreq = 0;
        DisplayBandMapLabels();
    }
}

void BandMap::lblDXSpot_MouseMove(int Index) {
    panel.form.lblDupe.SetCaption(panel.form.lblDXSpot(Index).State().toolTip);
}

void BandMap::txtDX_Click() {
    const int selected = panel.form.txtDX.Row();
    if (selected < 0 || static_cast<std::size_t>(selected) >= posts.listed.size()) {
        return;
    }
    const SpotListRow spot = posts.listed[static_cast<std::size_t>(selected)];
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
