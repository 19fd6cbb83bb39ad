#include "views/activity_graph.h"

#include <algorithm>
#include <cmath>

#include "toolkit/desk.h"
#include "values/format.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::int32_t kLeastContacts = 7;
constexpr double kShareOfHeight = 0.995;
constexpr Colour kBlack = FromRgb(0, 0, 0);
constexpr Colour kWhite = FromRgb(255, 255, 255);
constexpr const char* kToBlack = "Black Background";
constexpr const char* kToWhite = "White Background";
constexpr double kTick = 60;  ///< design units
constexpr double kAxisWidth = 6;
constexpr double kLineWidth = 18;
constexpr double kBoldWidth = 60;  ///< of the band that the pointer is on
constexpr double kThinWidth = 6;   ///< of all others meanwhile
constexpr int kPixels = 1560;

const MessageBox kTooFewBox{
    .title = "Not Enough Contacts to Graph.",
    .text =
        "The graph will not display with less than 7 contacts.  The graph becomes more meaningful as several hours "
        "of contest logging are accumulated.",
    .buttons = Buttons::OK,
    .icon = Icon::Exclamation};

constexpr const Place& kPlot = GraphQSO::kPlot;

std::string RateText(double rate) {
    return FormatNumber(rate, "###0.0");
}

std::string_view BandOf(Colour colour) {
    const auto* const band = std::ranges::find(kGraphBands, colour, &GraphBand::colour);
    return band == kGraphBands.end() ? "" : band->caption;
}

}  // namespace

void ActivityGraph::GraphQSO_Load() {
    pointedAt = -1;
    DrawRateGraph();
}

void ActivityGraph::GraphQSO_Unload() {
    curve = {};
}

void ActivityGraph::Open() {
    if (form.IsLoaded()) {
        DrawRateGraph();
    }
    form.Show();
}

void ActivityGraph::DrawRateGraph() {
    isDrawn = false;
    form.lblHover.SetCaption("");
    form.LineHover.SetVisible(false);
    if (log.gContactCount() < kLeastContacts) {
        Draw();
        form.desk.dialogs.Show(kTooFewBox);
        return;
    }
    curve = {};
    try {
        MakeCurve();
        isDrawn = true;
    } catch (const ValueError& failure) {
        form.lblHover.SetCaption(failure.what());  // no graph of a log with such a record
    }
    Draw();
}

void ActivityGraph::MakeCurve() {
    const int presentYear = form.desk.clock.Now().year;
    curve = CurveOver(log, presentYear);
    LabelTimes();
    TakeRates(curve, log, presentYear);
    FillGaps(curve);
    Average(curve);
    FindBounds(curve);
    LabelRates();
}

void ActivityGraph::LabelTimes() {
    for (int i = 0; i <= GraphQSO::kTimes; ++i) {
        const DateTime moment = curve.MomentAt(static_cast<double>(i) / GraphQSO::kTimes);
        form.lblTime(i).SetCaption(FormatDateTime(moment, "hh:mm"));
        form.lblDate(i).SetCaption(FormatDateTime(moment, "mm/dd"));
    }
}

void ActivityGraph::LabelRates() {
    const double least = curve.RateMin;
    const double most = curve.RateMax;
    for (int i = 0; i <= GraphQSO::kRates; ++i) {
        form.lblY(i).SetCaption(RateText(least + i * (most - least) / GraphQSO::kRates));
    }
}

/// At first the background is the desktop's.
Colour ActivityGraph::TextColour() const {
    switch (form.picGraph.State().backColor) {
        case kBlack:
            return kWhite;
        case kWhite:
            return kBlack;
        default:
            return kWindowText;
    }
}

void ActivityGraph::Draw() {
    Drawing drawing{.width = GraphQSO::kPicture.width,
                    .height = GraphQSO::kPicture.height,
                    .ground = form.picGraph.State().backColor};
    AddLegend(drawing);
    AddAxes(drawing);
    if (isDrawn) {
        AddCurve(drawing);
    }
    form.picGraph.Show(std::move(drawing), kPixels);
}

/// On a white ground its captions are black: the samples keep the colours of the bands.
void ActivityGraph::AddLegend(Drawing& drawing) const {
    for (std::size_t i = 0; i < kGraphBands.size(); ++i) {
        const Place sample = GraphQSO::SampleOf(static_cast<int>(i));
        drawing.shapes.push_back({.paths = {{{sample.left, sample.top}, {sample.left + sample.width, sample.top}}},
                                  .colour = kGraphBands.at(i).colour,
                                  .width = WidthOf(kGraphBands.at(i).colour)});
    }
}

void ActivityGraph::AddAxes(Drawing& drawing) const {
    const double right = kPlot.left + kPlot.width;
    const double bottom = kPlot.top + kPlot.height;
    Shape axes{.paths = {{{kPlot.left, kPlot.top}, {kPlot.left, bottom}, {right, bottom}}},
               .colour = TextColour(),
               .width = kAxisWidth};
    for (int i = 0; i <= GraphQSO::kTimes; ++i) {
        const double x = kPlot.left + kPlot.width * i / GraphQSO::kTimes;
        axes.paths.push_back({{x, bottom}, {x, bottom + kTick}});
    }
    for (int i = 0; i <= GraphQSO::kRates; ++i) {
        const double y = bottom - kPlot.height * i / GraphQSO::kRates;
        axes.paths.push_back({{kPlot.left - kTick, y}, {kPlot.left, y}});
    }
    drawing.shapes.push_back(std::move(axes));
}

Point ActivityGraph::PlaceOf(int position) const {
    const double range = static_cast<double>(curve.RateMax) - curve.RateMin;
    const double scale = range > 0 ? kPlot.height / range * kShareOfHeight : 0;
    const double above = curve.RateSmooth.at(static_cast<std::size_t>(position)) - curve.RateMin;
    return {kPlot.left + kPlot.width * position / RateCurve::kPositions, kPlot.top + kPlot.height - above * scale};
}

/// From point to point, as long as the colour is the same; a position without a rate ends the line.
void ActivityGraph::AddCurve(Drawing& drawing) const {
    Shape* line = nullptr;
    for (int i = 1; i <= RateCurve::kPositions; ++i) {
        if (curve.RateSmooth.at(static_cast<std::size_t>(i)) == 0) {
            line = nullptr;
            continue;
        }
        const Colour colour = curve.ColourAt(i);
        if (line == nullptr || line->colour != colour) {
            Path begun;
            if (line != nullptr) {
                begun.push_back(line->paths.front().back());
            }
            drawing.shapes.push_back({.paths = {std::move(begun)}, .colour = colour, .width = WidthOf(colour)});
            line = &drawing.shapes.back();
        }
        line->paths.front().push_back(PlaceOf(i));
    }
}

double ActivityGraph::WidthOf(Colour colour) const {
    if (pointedAt < 0) {
        return kLineWidth;
    }
    return colour == kGraphBands.at(static_cast<std::size_t>(pointedAt)).colour ? kBoldWidth : kThinWidth;
}

void ActivityGraph::Command1_Click() {
    const bool white = form.Command1.Caption() == kToWhite;
    form.Command1.SetCaption(white ? kToBlack : kToWhite);
    form.picGraph.SetBackColor(white ? kWhite : kBlack);
    const Colour text = white ? kBlack : kWhite;
    for (int i = 0; i <= GraphQSO::kTimes; ++i) {
        form.lblTime(i).SetForeColor(text);
        form.lblDate(i).SetForeColor(text);
    }
    for (int i = 0; i <= GraphQSO::kRates; ++i) {
        form.lblY(i).SetForeColor(text);
    }
    form.Label1.SetForeColor(text);
    for (int i = 0; i <= form.lblBnd.Last(); ++i) {
        form.lblBnd(i).SetForeColor(white ? kBlack : kGraphBands.at(static_cast<std::size_t>(i)).colour);
    }
    DrawRateGraph();
}

void ActivityGraph::cmdSave_Click() {
    form.LineHover.SetVisible(false);
    pictures.Save(form.picGraph, "Graph.png");
}

void ActivityGraph::picGraph_MouseMove() {
    if (pointedAt >= 0) {
        pointedAt = -1;
        Draw();
    }
    const Place& place = form.picGraph.State().place;
    const double across = place.width / GraphQSO::kPicture.width;
    const double down = place.height / GraphQSO::kPicture.height;
    const double share = (form.picGraph.pointer.x / across - kPlot.left) / kPlot.width;
    const bool within = isDrawn && share >= 0 && share <= 1;
    form.LineHover.SetVisible(within);
    if (!within) {
        form.lblHover.SetCaption(isDrawn ? "" : form.lblHover.Caption());  // why there is no curve stays told
        return;
    }
    const int position = std::max(static_cast<int>(std::lround(share * RateCurve::kPositions)), 1);
    const float rate = curve.RateSmooth.at(static_cast<std::size_t>(position));
    const std::string told =
        rate == 0 ? "no contacts"
                  : RateText(rate) + " QSOs per hour   " + std::string{BandOf(curve.ColourAt(position))} + " m";
    form.lblHover.SetCaption(FormatDateTime(curve.MomentAt(share), "mm/dd  hh:mm") + "   " + told);
    const double x = place.left + form.picGraph.pointer.x;
    form.LineHover.SetForeColor(TextColour());
    form.LineHover.SetEnds(x, place.top + kPlot.top * down, x, place.top + (kPlot.top + kPlot.height) * down);
}

void ActivityGraph::lblBnd_MouseMove(int index) {
    if (pointedAt != index) {
        pointedAt = index;
        Draw();
    }
}

}  // namespace tallyhut
