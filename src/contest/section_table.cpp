#include "contest/section_table.h"

#include <algorithm>

namespace tallyhut {

SectionPlace PlaceOfSection(std::string_view section) {
    if (const auto* row = std::ranges::find(kSections, section, &SectionRow::code); row != kSections.end()) {
        return {row->code, row->state, row->dxcc};
    }
    const auto* former = std::ranges::find(kFormerSections, section, &SectionPlace::section);
    return former != kFormerSections.end() ? *former : SectionPlace{section, section, kUnitedStates};
}

int SectionTable::Find(std::string_view code) const {
    for (int i = 1; i <= gSectionCount; ++i) {
        if (SectionCode(i) == code) {
            return i;
        }
    }
    return 0;
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

}  // namespace tallyhut
