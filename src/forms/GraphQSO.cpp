#include "forms/GraphQSO.h"

namespace tallyhut {
namespace {

constexpr double kTextHeight = 240;
constexpr double kBelowAxis = 140;
constexpr double kGap = 20;
constexpr double kBelow = 6600;

/// A place in the picture as one on the form.
Place InPicture(const Place& place) {
    return {place.left + GraphQSO::kPicture.left, place.top + GraphQSO::kPicture.top, place.width, place.height};
}

LabelDesign OfTime(int index, double row) {
    constexpr double kStep = GraphQSO::kPlot.width / GraphQSO::kTimes;
    const double middle = GraphQSO::kPlot.left + index * kStep;
    const double top = GraphQSO::kPlot.top + GraphQSO::kPlot.height + kBelowAxis + row * kTextHeight;
    return {.place = InPicture({middle - kStep / 2 + kGap, top, kStep - 2 * kGap, kTextHeight})};
}

LabelDesign OfRate(int index) {
    const double bottom = GraphQSO::kPlot.top + GraphQSO::kPlot.height;
    const double middle = bottom - index * GraphQSO::kPlot.height / GraphQSO::kRates;
    return {.place = InPicture({0, middle - kTextHeight / 2, GraphQSO::kPlot.left - 80, kTextHeight})};
}

LabelDesign OfBand(int index) {
    const Place sample = GraphQSO::SampleOf(index);
    return {.place = InPicture({sample.left + sample.width + 60, sample.top - kTextHeight / 2, 540, kTextHeight}),
            .toolTip = "Point here to see this band apart",
            .foreColor = kGraphBands.at(static_cast<std::size_t>(index)).colour};
}

}  // namespace

GraphQSO::GraphQSO(Desk& owner)
    : Form{owner,
           "GraphQSO",
           " Activity Graph - QSOs per Hour Rate   (# QSOs over 10 minutes X 6)",
           {.width = 9600, .height = 7200}},
      picGraph{*this, "picGraph", {.place = kPicture, .toolTip = "Contacts an hour", .backColor = kWindowGround}},
      lblY{0, kRates, [this](int i) { return std::make_unique<Label>(*this, "lblY", i, "", OfRate(i)); }},
      lblTime{0, kTimes, [this](int i) { return std::make_unique<Label>(*this, "lblTime", i, "", OfTime(i, 0)); }},
      lblDate{0, kTimes, [this](int i) { return std::make_unique<Label>(*this, "lblDate", i, "", OfTime(i, 1)); }},
      Label1{*this,
             "Label1",
             "Band ",
             {.place = InPicture({kPlot.left, SampleOf(0).top - kTextHeight / 2, 600, kTextHeight})}},
      lblBnd{0, static_cast<int>(kGraphBands.size()) - 1,
             [this](int i) {
                 return std::make_unique<Label>(*this, "lblBnd", i, kGraphBands.at(static_cast<std::size_t>(i)).caption,
                                                OfBand(i));
             }},
      LineHover{*this, "LineHover", 0, 0, 0, 0},
      lblHover{*this, "lblHover", "", {.place = {120, kBelow, 4800, 300}}},
      Command1{*this, "Command1", "Black Background", {.place = {5040, kBelow, 1800, 375}, .tabIndex = 1}},
      cmdSave{*this, "cmdSave", "&Save Picture", {.place = {6960, kBelow, 1380, 375}, .tabIndex = 2}},
      cmdDone{*this, "cmdDone", "Done", {.place = {8460, kBelow, 1020, 375}, .tabIndex = 3}} {
    LineHover.SetVisible(false);
}

}  // namespace tallyhut
