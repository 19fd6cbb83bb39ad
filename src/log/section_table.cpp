#include "log/section_table.h"

namespace tallyhut {
namespace {

constexpr Colour kBeforeFirstReload = 0x000080;
constexpr double kRowHeight = 220;
constexpr double kFirstRow = 3050;

const Label& HeadingLabel(const Form1& form, int heading) {
    const std::array<const Label*, 11> labels{&form.lblSecOne,  &form.lblSecTwo,  &form.lblSecThre,  &form.lblSecFour,
                                              &form.lblSecFive, &form.lblSecSix,  &form.lblSecSeven, &form.lblSecEight,
                                              &form.lblSecNine, &form.lblSecZero, &form.lblSecCA};
    return *labels.at(static_cast<std::size_t>(heading));
}

void ShowState(Label& section, Colour colour, bool needed) {
    section.SetForeColor(colour);
    section.SetBold(needed);
    section.SetUnderlined(false);  // a spot is marked anew where it is noticed
}

}  // namespace

void ShowNeeded(Label& section, Colour colour) {
    ShowState(section, colour, true);
}

void ShowWorked(Label& section, Colour colour) {
    ShowState(section, colour, false);
}

int SectionTable::Find(std::string_view code) const {
    for (int i = 1; i <= gSectionCount; ++i) {
        if (SectionCode(i) == code) {
            return i;
        }
    }
    return 0;
}

void SectionTable::PlaceLabels(Form1& form) {
    std::array<int, 11> rowsUnder{};
    int i = 0;
    for (const SectionRow& section : kSections) {
        const int row = rowsUnder.at(static_cast<std::size_t>(section.heading))++;
        const Place& column = HeadingLabel(form, section.heading).State().place;
        form.Label10(++i).SetPlace(
            {.left = column.left, .top = kFirstRow + row * kRowHeight, .width = column.width, .height = kRowHeight});
    }
}

void SectionTable::Fill(Form1& form) {
    gSectionCount = static_cast<std::int32_t>(kSections.size());
    for (int i = 1; i <= gSectionCount; ++i) {
        Label& label = form.Label10(i);
        label.SetCaption(SectionCode(i));
        label.SetToolTip(SectionName(i));
        ShowNeeded(label, kBeforeFirstReload);
    }
}

void SectionTable::Clear() {
    SectionQsos.fill(0);
    gSectionsWorked = 0;
}

bool SectionTable::Count(int i) {
    std::int16_t& contacts = SectionQsos.at(static_cast<std::size_t>(i));
    ++contacts;
    if (contacts != 1) {
        return false;
    }
    ++gSectionsWorked;
    return true;
}

std::int32_t Score(int sectionsWorked, std::int32_t contacts) {
    return sectionsWorked * contacts * 2;
}

}  // namespace tallyhut
