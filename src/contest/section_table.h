#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "contest/section_list.h"
#include "contest/told_sections.h"

namespace tallyhut {

/// Where a section lies, as exports tell it. Refers to the list and to the text it was asked for.
struct SectionPlace {
    std::string_view section;
    std::string_view state;  ///< empty where there is none
    std::int32_t dxcc;       ///< 0 where it is not told
};

/// As the exports tell it of a contest that has chosen no list. Of Canada they know the codes that loggers have long
/// agreed on, those of earlier years too: newer ones, such as NT and ONN, count as states of the continental United
/// States, and so does a code that no table holds, by its own name.
SectionPlace PlaceOfSection(std::string_view section);

/// As the list has it. A code that it lacks is looked for among ToldSections and those of earlier years; any other is a
/// state of its own name in the continental United States.
SectionPlace PlaceOfSection(std::string_view section, const SectionList& list);

/// Whether the list, ToldSections or those of earlier years hold the code, so that its place is more than a guess.
bool IsPlaceKnown(std::string_view section, const SectionList& list);

/// Contacts by section. Section i, from 1 to gSectionCount, is entry i of SectionQsos.
struct SectionTable {
    std::optional<SectionList> chosen = {};  ///< of this contest; none for ToldSections
    std::int32_t gSectionCount = 0;          ///< of all, once the table has been filled at the start
    std::array<std::int16_t, SectionList::kMostSections + 1> SectionQsos{};
    std::uint8_t gSectionsWorked = 0;

    /// The chosen list; null where there is none.
    const SectionList* Chosen() const { return chosen ? &*chosen : nullptr; }
    /// The list in force.
    const SectionList& List() const { return chosen ? *chosen : ToldSections(); }
    std::string_view Code(int i) const { return List().Section(i).code; }
    std::string_view Name(int i) const { return List().Section(i).name; }
    /// The section whose code the text is, exactly; 0 for none.
    int Find(std::string_view code) const;

    /// Takes a list for the contest, none for ToldSections, and forgets the contacts.
    void Choose(std::optional<SectionList> list);
    /// Sets the table's size.
    void Fill() { gSectionCount = List().Count(); }
    void Clear();
    /// Counts one contact; true if it is the first of the section.
    bool Count(int i);
};

}  // namespace tallyhut
