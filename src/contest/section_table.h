#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace tallyhut {

/// The DXCC entities that sections lie in, by the numbers that ADIF has for them.
enum DxccEntity {
    kCanada = 1,
    kAlaska = 6,
    kHawaii = 110,
    kPuertoRico = 202,
    kVirginIslands = 285,
    kUnitedStates = 291,
};

/// All that is known of a section.
struct SectionRow {
    std::string_view code;
    std::string_view name;
    int heading;             ///< column of the grid: 0 to 8 for call areas 1 to 9, 9 for area 0, 10 for Canada
    std::string_view state;  ///< as exports tell it; empty where there is none
    DxccEntity dxcc;
};

/// The ARRL and RAC sections; section i is entry i-1 and has the label Label10(i). The order is the labels' and is not
/// alphabetic: WCF stands far from the other sections of its call area.
///
/// Of Canada the exports know the codes that loggers have long agreed on: newer ones, such as NT and ONN, count as
/// states of the continental United States.
inline constexpr std::array<SectionRow, 83> kSections{{
    {"CT", "Connecticut", 0, "CT", kUnitedStates},
    {"EMA", "East Massachusetts", 0, "MA", kUnitedStates},
    {"ME", "Maine", 0, "ME", kUnitedStates},
    {"NH", "New Hampshire", 0, "NH", kUnitedStates},
    {"RI", "Rhode Island", 0, "RI", kUnitedStates},
    {"VT", "Vermont", 0, "VT", kUnitedStates},
    {"WMA", "West Massachusetts", 0, "MA", kUnitedStates},
    {"NNY", "North New York", 1, "NY", kUnitedStates},
    {"ENY", "East New York", 1, "NY", kUnitedStates},
    {"NLI", "NY Long Island", 1, "NY", kUnitedStates},
    {"NNJ", "North New Jersey", 1, "NJ", kUnitedStates},
    {"SNJ", "South New Jersey", 1, "NJ", kUnitedStates},
    {"WNY", "West New York", 1, "NY", kUnitedStates},
    {"DE", "Delaware", 2, "DE", kUnitedStates},
    {"EPA", "East Pennsylvania", 2, "PA", kUnitedStates},
    {"MDC", "Maryland-DC", 2, "MD", kUnitedStates},
    {"WPA", "West Pennsylvania", 2, "PA", kUnitedStates},
    {"AL", "Alabama", 3, "AL", kUnitedStates},
    {"GA", "Georgia", 3, "GA", kUnitedStates},
    {"KY", "Kentucky", 3, "KY", kUnitedStates},
    {"NC", "North Carolina", 3, "NC", kUnitedStates},
    {"NFL", "North Florida", 3, "FL", kUnitedStates},
    {"SC", "South Carolina", 3, "SC", kUnitedStates},
    {"SFL", "South Florida", 3, "FL", kUnitedStates},
    {"TN", "Tennessee", 3, "TN", kUnitedStates},
    {"VA", "Virginia", 3, "VA", kUnitedStates},
    {"PR", "Puerto Rico", 3, "", kPuertoRico},
    {"VI", "Virgin Islands", 3, "", kVirginIslands},
    {"AR", "Arkansas", 4, "AR", kUnitedStates},
    {"LA", "Louisiana", 4, "LA", kUnitedStates},
    {"MS", "Mississippi", 4, "MS", kUnitedStates},
    {"NM", "New Mexico", 4, "NM", kUnitedStates},
    {"NTX", "North Texas", 4, "TX", kUnitedStates},
    {"OK", "Oklahoma", 4, "OK", kUnitedStates},
    {"STX", "South Texas", 4, "TX", kUnitedStates},
    {"WTX", "West Texas", 4, "TX", kUnitedStates},
    {"EB", "East Bay", 5, "CA", kUnitedStates},
    {"LAX", "Los Angeles", 5, "CA", kUnitedStates},
    {"ORG", "Orange", 5, "CA", kUnitedStates},
    {"SB", "Santa Barbara", 5, "CA", kUnitedStates},
    {"SCV", "Santa Clara Valley", 5, "CA", kUnitedStates},
    {"SDG", "San Diego", 5, "CA", kUnitedStates},
    {"SF", "San Francisco", 5, "CA", kUnitedStates},
    {"SJV", "San Joaquin Valley", 5, "CA", kUnitedStates},
    {"SV", "Sacramento Valley", 5, "CA", kUnitedStates},
    {"PAC", "Pacific", 5, "HI", kHawaii},
    {"AZ", "Arizona", 6, "AZ", kUnitedStates},
    {"EWA", "East Washington", 6, "WA", kUnitedStates},
    {"ID", "Idaho", 6, "ID", kUnitedStates},
    {"MT", "Montana", 6, "MT", kUnitedStates},
    {"NV", "Nevada", 6, "NV", kUnitedStates},
    {"OR", "Oregon", 6, "OR", kUnitedStates},
    {"UT", "Utah", 6, "UT", kUnitedStates},
    {"WWA", "West Washington", 6, "WA", kUnitedStates},
    {"WY", "Wyoming", 6, "WY", kUnitedStates},
    {"AK", "Alaska", 6, "AK", kAlaska},
    {"MI", "Michigan", 7, "MI", kUnitedStates},
    {"OH", "Ohio", 7, "OH", kUnitedStates},
    {"WV", "West Virginia", 7, "WV", kUnitedStates},
    {"IL", "Illinois", 8, "IL", kUnitedStates},
    {"IN", "Indiana", 8, "IN", kUnitedStates},
    {"WI", "Wisconsin", 8, "WI", kUnitedStates},
    {"CO", "Colorado", 9, "CO", kUnitedStates},
    {"IA", "Iowa", 9, "IA", kUnitedStates},
    {"KS", "Kansas", 9, "KS", kUnitedStates},
    {"MN", "Minnesota", 9, "MN", kUnitedStates},
    {"MO", "Missouri", 9, "MO", kUnitedStates},
    {"NE", "Nebraska", 9, "NE", kUnitedStates},
    {"ND", "North Dakota", 9, "ND", kUnitedStates},
    {"SD", "South Dakota", 9, "SD", kUnitedStates},
    {"NL", "Newfoundland-Labrador", 10, "NL", kCanada},
    {"MAR", "Maritime", 10, "MAR", kCanada},
    {"QC", "Quebec", 10, "QC", kCanada},
    {"ONN", "Ontario North", 10, "ONN", kUnitedStates},
    {"MB", "Manitoba", 10, "MB", kCanada},
    {"SK", "Saskatchewan", 10, "SK", kCanada},
    {"AB", "Alberta", 10, "AB", kCanada},
    {"BC", "British Columbia", 10, "BC", kCanada},
    {"NT", "Northern Territories", 10, "NT", kUnitedStates},
    {"WCF", "West Central Florida", 3, "FL", kUnitedStates},
    {"ONS", "Ontario South", 10, "ONS", kUnitedStates},
    {"ONE", "Ontario East", 10, "ONE", kUnitedStates},
    {"GTA", "Greater Toronto Area", 10, "GTA", kCanada},
}};

/// Where a section lies, as both exports tell it.
struct SectionPlace {
    std::string_view section;
    std::string_view state;  ///< empty where there is none
    DxccEntity dxcc;
};

/// Codes that are no sections any more; logs of earlier years hold them.
inline constexpr std::array kFormerSections{
    SectionPlace{"ON", "ON", kCanada},
    SectionPlace{"OS", "OS", kCanada},
    SectionPlace{"OE", "OE", kCanada},
    SectionPlace{"NWT", "NWT", kCanada},
};

/// A code that no table holds is a state of its own name in the continental United States. The result may refer to the
/// text.
SectionPlace PlaceOfSection(std::string_view section);

/// Contacts by section. Section i, from 1 to gSectionCount, is entry i of SectionQsos.
struct SectionTable {
    std::int32_t gSectionCount = 0;  ///< of all, once the table has been filled at the start
    std::array<std::int16_t, kSections.size() + 1> SectionQsos{};
    std::uint8_t gSectionsWorked = 0;

    static std::string_view SectionCode(int i) { return kSections.at(static_cast<std::size_t>(i - 1)).code; }
    static std::string_view SectionName(int i) { return kSections.at(static_cast<std::size_t>(i - 1)).name; }
    /// The section whose code the text is, exactly; 0 for none.
    int Find(std::string_view code) const;

    /// Sets the table's size.
    void Fill() { gSectionCount = static_cast<std::int32_t>(kSections.size()); }
    void Clear();
    /// Counts one contact; true if it is the first of the section.
    bool Count(int i);
};

}  // namespace tallyhut
