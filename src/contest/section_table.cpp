#include "contest/section_table.h"

#include <algorithm>
#include <utility>

namespace tallyhut {
namespace {

/// Where the exports of a contest without a list differ from its list: codes of earlier years, and those whose province
/// they tell by the code or as a state.
constexpr std::array kToldPlaces{
    SectionPlace{"ON", "ON", kCanada},         SectionPlace{"OS", "OS", kCanada},
    SectionPlace{"OE", "OE", kCanada},         SectionPlace{"NWT", "NWT", kCanada},
    SectionPlace{"MAR", "MAR", kCanada},       SectionPlace{"GTA", "GTA", kCanada},
    SectionPlace{"ONN", "ONN", kUnitedStates}, SectionPlace{"ONS", "ONS", kUnitedStates},
    SectionPlace{"ONE", "ONE", kUnitedStates}, SectionPlace{"NT", "NT", kUnitedStates},
};

/// Codes that are no sections any more; logs of earlier years hold them.
constexpr std::array kFormerPlaces{
    SectionPlace{"ON", "ON", kCanada},
    SectionPlace{"OS", "ON", kCanada},
    SectionPlace{"OE", "ON", kCanada},
    SectionPlace{"NWT", "NT", kCanada},
};

}  // namespace

SectionPlace PlaceOfSection(std::string_view section) {
    const auto* const told = std::ranges::find(kToldPlaces, section, &SectionPlace::section);
    return told != kToldPlaces.end() ? *told : PlaceOfSection(section, ToldSections());
}

SectionPlace PlaceOfSection(std::string_view section, const SectionList& list) {
    for (const SectionList* holder : {&list, &ToldSections()}) {
        if (const int i = holder->Find(section); i != 0) {
            const ListedSection& found = holder->Section(i);
            return {found.code, found.state, found.dxcc};
        }
    }
    const auto* const former = std::ranges::find(kFormerPlaces, section, &SectionPlace::section);
    return former != kFormerPlaces.end() ? *former : SectionPlace{section, section, kUnitedStates};
}

bool IsPlaceKnown(std::string_view section, const SectionList& list) {
    return list.Find(section) != 0 || ToldSections().Find(section) != 0 ||
           std::ranges::find(kFormerPlaces, section, &SectionPlace::section) != kFormerPlaces.end();
}

int SectionTable::Find(std::string_view code) const {
    const int i = List().Find(code);
    return i <= gSectionCount ? i : 0;
}

void SectionTable::Choose(std::optional<SectionList> list) {
    chosen = std::move(list);
    Fill();
    Clear();
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
