#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "forms/Form1.h"

namespace tallyhut {

struct SectionRow {
    std::string_view code;
    std::string_view name;
    int heading;  ///< column of the grid: 0 to 8 for call areas 1 to 9, 9 for area 0, 10 for Canada
};

/// The ARRL and RAC sections; section i is entry i-1 and has the label Label10(i). The order is the labels' and is not
/// alphabetic: WCF stands far from the other sections of its call area.
inline constexpr std::array<SectionRow, 83> kSections{{
    {"CT", "Connecticut", 0},
    {"EMA", "East Massachusetts", 0},
    {"ME", "Maine", 0},
    {"NH", "New Hampshire", 0},
    {"RI", "Rhode Island", 0},
    {"VT", "Vermont", 0},
    {"WMA", "West Massachusetts", 0},
    {"NNY", "North New York", 1},
    {"ENY", "East New York", 1},
    {"NLI", "NY Long Island", 1},
    {"NNJ", "North New Jersey", 1},
    {"SNJ", "South New Jersey", 1},
    {"WNY", "West New York", 1},
    {"DE", "Delaware", 2},
    {"EPA", "East Pennsylvania", 2},
    {"MDC", "Maryland-DC", 2},
    {"WPA", "West Pennsylvania", 2},
    {"AL", "Alabama", 3},
    {"GA", "Georgia", 3},
    {"KY", "Kentucky", 3},
    {"NC", "North Carolina", 3},
    {"NFL", "North Florida", 3},
    {"SC", "South Carolina", 3},
    {"SFL", "South Florida", 3},
    {"TN", "Tennessee", 3},
    {"VA", "Virginia", 3},
    {"PR", "Puerto Rico", 3},
    {"VI", "Virgin Islands", 3},
    {"AR", "Arkansas", 4},
    {"LA", "Louisiana", 4},
    {"MS", "Mississippi", 4},
    {"NM", "New Mexico", 4},
    {"NTX", "North Texas", 4},
    {"OK", "Oklahoma", 4},
    {"STX", "South Texas", 4},
    {"WTX", "West Texas", 4},
    {"EB", "East Bay", 5},
    {"LAX", "Los Angeles", 5},
    {"ORG", "Orange", 5},
    {"SB", "Santa Barbara", 5},
    {"SCV", "Santa Clara Valley", 5},
    {"SDG", "San Diego", 5},
    {"SF", "San Francisco", 5},
    {"SJV", "San Joaquin Valley", 5},
    {"SV", "Sacramento Valley", 5},
    {"PAC", "Pacific", 5},
    {"AZ", "Arizona", 6},
    {"EWA", "East Washington", 6},
    {"ID", "Idaho", 6},
    {"MT", "Montana", 6},
    {"NV", "Nevada", 6},
    {"OR", "Oregon", 6},
    {"UT", "Utah", 6},
    {"WWA", "West Washington", 6},
    {"WY", "Wyoming", 6},
    {"AK", "Alaska", 6},
    {"MI", "Michigan", 7},
    {"OH", "Ohio", 7},
    {"WV", "West Virginia", 7},
    {"IL", "Illinois", 8},
    {"IN", "Indiana", 8},
    {"WI", "Wisconsin", 8},
    {"CO", "Colorado", 9},
    {"IA", "Iowa", 9},
    {"KS", "Kansas", 9},
    {"MN", "Minnesota", 9},
    {"MO", "Missouri", 9},
    {"NE", "Nebraska", 9},
    {"ND", "North Dakota", 9},
    {"SD", "South Dakota", 9},
    {"NL", "Newfoundland-Labrador", 10},
    {"MAR", "Maritime", 10},
    {"QC", "Quebec", 10},
    {"ONN", "Ontario North", 10},
    {"MB", "Manitoba", 10},
    {"SK", "Saskatchewan", 10},
    {"AB", "Alberta", 10},
    {"BC", "British Columbia", 10},
    {"NT", "Northern Territories", 10},
    {"WCF", "West Central Florida", 3},
    {"ONS", "Ontario South", 10},
    {"ONE", "Ontario East", 10},
    {"GTA", "Greater Toronto Area", 10},
}};

/// The state of a section on its label, told by more than the colour: needed is bold, worked is not.
/// Neither is underlined: that is how a needed section that is spotted is told.
void ShowNeeded(Label& section, Colour colour);
void ShowWorked(Label& section, Colour colour);

/// Contacts by section. Section i, from 1 to gSectionCount, is entry i of SectionQsos.
struct SectionTable {
    std::int32_t gSectionCount = 0;  ///< 83 once the table has been filled at the start
    std::array<std::int16_t, kSections.size() + 1> SectionQsos{};
    std::uint8_t gSectionsWorked = 0;

    static std::string_view SectionCode(int i) { return kSections.at(static_cast<std::size_t>(i - 1)).code; }
    static std::string_view SectionName(int i) { return kSections.at(static_cast<std::size_t>(i - 1)).name; }
    /// The section whose code the text is, exactly; 0 for none.
    int Find(std::string_view code) const;

    /// Puts each label under its heading, in the form's design.
    static void PlaceLabels(Form1& form);
    /// Sets the table's size, and each label's caption, tool tip and first colour.
    void Fill(Form1& form);
    void Clear();
    /// Counts one contact; true if it is the first of the section.
    bool Count(int i);
};

/// Points of the contest: two for each contact, times the sections worked.
std::int32_t Score(int sectionsWorked, std::int32_t contacts);

}  // namespace tallyhut
