#include "log/section_grid.h"

#include <array>

namespace tallyhut {
namespace {

constexpr Colour kBeforeFirstReload = 0x000080;
constexpr Colour kSpotted = 49152;  ///< green
constexpr double kRowHeight = 220;
constexpr double kFirstRow = 3050;

const Label& HeadingLabel(const Form1& form, int heading) {
    const std::array<const Label*, 11> labels{&form.lblSecOne,  &form.lblSecTwo,  &form.lblSecThre,  &form.lblSecFour,
                                              &form.lblSecFive, &form.lblSecSix,  &form.lblSecSeven, &form.lblSecEight,
                                              &form.lblSecNine, &form.lblSecZero, &form.lblSecCA};
    return *labels.at(static_cast<std::size_t>(heading));
}

void ShowState(Label& section, Colour colour, bool needed, bool spotted = false) {
    section.SetForeColor(colour);
    section.SetBold(needed);
    section.SetUnderlined(spotted);
}

}  // namespace

void SectionGrid::PlaceLabels() {
    std::array<int, 11> rowsUnder{};
    int i = 0;
    for (const SectionRow& section : kSections) {
        const int row = rowsUnder.at(static_cast<std::size_t>(section.heading))++;
        const Place& column = HeadingLabel(form, section.heading).State().place;
        form.Label10(++i).SetPlace(
            {.left = column.left, .top = kFirstRow + row * kRowHeight, .width = column.width, .height = kRowHeight});
    }
}

void SectionGrid::Fill() {
    for (int i = 1; i <= contest.sections.gSectionCount; ++i) {
        Label& label = form.Label10(i);
        label.SetCaption(SectionTable::SectionCode(i));
        label.SetToolTip(SectionTable::SectionName(i));
        ShowNeeded(i, kBeforeFirstReload);
    }
}

void SectionGrid::ShowAllNeeded() {
    for (int i = 1; i <= contest.sections.gSectionCount; ++i) {
        ShowNeeded(i, contest.preferences.gColorNeeded);
    }
    ShowLegend();
}

void SectionGrid::ShowLegend() {
    ShowState(form.lblLegend(0), contest.preferences.gColorNeeded, true);
    ShowState(form.lblLegend(1), contest.preferences.gColorWorked, false);
}

void SectionGrid::ShowWorked(int section, Colour colour) {
    ShowState(form.Label10(section), colour, false);
}

void SectionGrid::ShowNeeded(int section, Colour colour) {
    ShowState(form.Label10(section), colour, true);
}

void SectionGrid::ShowSpotted(int section) {
    ShowState(form.Label10(section), kSpotted, true, true);
}

}  // namespace tallyhut
