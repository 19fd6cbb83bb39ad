#include "log/section_grid.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace tallyhut {
namespace {

constexpr Colour kBeforeFirstReload = 0x000080;
constexpr Colour kSpotted = 49152;  ///< green
constexpr double kRowHeight = 220;
constexpr double kFirstRow = 3050;
constexpr int kRowsOfColumn = 12;  ///< above the score
constexpr double kFirstColumn = 4920;
constexpr double kAllColumns = 4620;
constexpr double kColumnGap = 20;

std::array<Label*, kSectionHeadings> HeadingsOf(Form1& form) {
    return {&form.lblSecOne,   &form.lblSecTwo,   &form.lblSecThre, &form.lblSecFour, &form.lblSecFive, &form.lblSecSix,
            &form.lblSecSeven, &form.lblSecEight, &form.lblSecNine, &form.lblSecZero, &form.lblSecCA};
}

/// How many columns the sections of each heading need; a heading without any has one to itself.
std::array<int, kSectionHeadings> ColumnsOf(const SectionList& list) {
    std::array<int, kSectionHeadings> columns{};
    for (const ListedSection& section : list.sections) {
        ++columns.at(section.heading);
    }
    for (int& column : columns) {
        column = std::max((column + kRowsOfColumn - 1) / kRowsOfColumn, 1);
    }
    return columns;
}

void ShowState(Label& section, Colour colour, bool needed, bool spotted = false) {
    section.SetForeColor(colour);
    section.SetBold(needed);
    section.SetUnderlined(spotted);
}

}  // namespace

void SectionGrid::PlaceLabels() {
    const SectionList& list = contest.sections.List();
    const std::array<int, kSectionHeadings> columns = ColumnsOf(list);
    const double step = kAllColumns / std::accumulate(columns.begin(), columns.end(), 0);
    std::array<int, kSectionHeadings> firstColumn{};
    std::exclusive_scan(columns.begin(), columns.end(), firstColumn.begin(), 0);
    const auto left = [step](int column) { return kFirstColumn + column * step; };
    for (std::size_t heading = 0; heading < kSectionHeadings; ++heading) {
        Label& label = *HeadingsOf(form).at(heading);
        Place place = label.DesignPlace();
        place.left = left(firstColumn.at(heading));
        place.width = step - kColumnGap;
        label.Redesign(place);
    }
    std::array<int, kSectionHeadings> placed{};
    for (int i = 1; i <= list.Count(); ++i) {
        const std::size_t heading = list.Section(i).heading;
        const int n = placed.at(heading)++;
        form.Label10(i).Redesign({.left = left(firstColumn.at(heading) + n / kRowsOfColumn),
                                  .top = kFirstRow + n % kRowsOfColumn * kRowHeight,
                                  .width = step - kColumnGap,
                                  .height = kRowHeight});
    }
}

void SectionGrid::Fill() {
    const int count = contest.sections.gSectionCount;
    for (int i = form.Label10.First(); i <= form.Label10.Last(); ++i) {
        form.Label10(i).SetVisible(i <= count);
    }
    for (int i = 1; i <= count; ++i) {
        Label& label = form.Label10(i);
        label.SetCaption(contest.sections.Code(i));
        label.SetToolTip(contest.sections.Name(i));
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
