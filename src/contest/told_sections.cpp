#include "contest/told_sections.h"

#include <array>

#include "values/text.h"

namespace tallyhut {
namespace {

struct ToldSection {
    std::string_view code;
    std::string_view name;
    std::size_t heading;
    std::string_view prefixes;
    std::string_view state;
    DxccEntity dxcc;
    std::string_view since = {};
    std::string_view until = {};
};

/// The order is the labels' and is not alphabetic: WCF stands far from the other sections of its call area.
constexpr std::array<ToldSection, 83> kSections{{
    {"CT", "Connecticut", 0, "", "CT", kUnitedStates},
    {"EMA", "East Massachusetts", 0, "", "MA", kUnitedStates},
    {"ME", "Maine", 0, "", "ME", kUnitedStates},
    {"NH", "New Hampshire", 0, "", "NH", kUnitedStates},
    {"RI", "Rhode Island", 0, "", "RI", kUnitedStates},
    {"VT", "Vermont", 0, "", "VT", kUnitedStates},
    {"WMA", "West Massachusetts", 0, "", "MA", kUnitedStates},
    {"NNY", "North New York", 1, "", "NY", kUnitedStates},
    {"ENY", "East New York", 1, "", "NY", kUnitedStates},
    {"NLI", "NY Long Island", 1, "", "NY", kUnitedStates},
    {"NNJ", "North New Jersey", 1, "", "NJ", kUnitedStates},
    {"SNJ", "South New Jersey", 1, "", "NJ", kUnitedStates},
    {"WNY", "West New York", 1, "", "NY", kUnitedStates},
    {"DE", "Delaware", 2, "", "DE", kUnitedStates},
    {"EPA", "East Pennsylvania", 2, "", "PA", kUnitedStates},
    {"MDC", "Maryland-DC", 2, "", "MD", kUnitedStates},
    {"WPA", "West Pennsylvania", 2, "", "PA", kUnitedStates},
    {"AL", "Alabama", 3, "", "AL", kUnitedStates},
    {"GA", "Georgia", 3, "", "GA", kUnitedStates},
    {"KY", "Kentucky", 3, "", "KY", kUnitedStates},
    {"NC", "North Carolina", 3, "", "NC", kUnitedStates},
    {"NFL", "North Florida", 3, "", "FL", kUnitedStates},
    {"SC", "South Carolina", 3, "", "SC", kUnitedStates},
    {"SFL", "South Florida", 3, "", "FL", kUnitedStates},
    {"TN", "Tennessee", 3, "", "TN", kUnitedStates},
    {"VA", "Virginia", 3, "", "VA", kUnitedStates},
    {"PR", "Puerto Rico", 3, "KP3 KP4 NP3 NP4 WP3 WP4", "", kPuertoRico},
    {"VI", "Virgin Islands", 3, "KP2 NP2 WP2", "", kVirginIslands},
    {"AR", "Arkansas", 4, "", "AR", kUnitedStates},
    {"LA", "Louisiana", 4, "", "LA", kUnitedStates},
    {"MS", "Mississippi", 4, "", "MS", kUnitedStates},
    {"NM", "New Mexico", 4, "", "NM", kUnitedStates},
    {"NTX", "North Texas", 4, "", "TX", kUnitedStates},
    {"OK", "Oklahoma", 4, "", "OK", kUnitedStates},
    {"STX", "South Texas", 4, "", "TX", kUnitedStates},
    {"WTX", "West Texas", 4, "", "TX", kUnitedStates},
    {"EB", "East Bay", 5, "", "CA", kUnitedStates},
    {"LAX", "Los Angeles", 5, "", "CA", kUnitedStates},
    {"ORG", "Orange", 5, "", "CA", kUnitedStates},
    {"SB", "Santa Barbara", 5, "", "CA", kUnitedStates},
    {"SCV", "Santa Clara Valley", 5, "", "CA", kUnitedStates},
    {"SDG", "San Diego", 5, "", "CA", kUnitedStates},
    {"SF", "San Francisco", 5, "", "CA", kUnitedStates},
    {"SJV", "San Joaquin Valley", 5, "", "CA", kUnitedStates},
    {"SV", "Sacramento Valley", 5, "", "CA", kUnitedStates},
    {"PAC", "Pacific", 5, "AH6 KH6 NH6 WH6 AH7 KH7 NH7 WH7", "HI", kHawaii},
    {"AZ", "Arizona", 6, "", "AZ", kUnitedStates},
    {"EWA", "East Washington", 6, "", "WA", kUnitedStates},
    {"ID", "Idaho", 6, "", "ID", kUnitedStates},
    {"MT", "Montana", 6, "", "MT", kUnitedStates},
    {"NV", "Nevada", 6, "", "NV", kUnitedStates},
    {"OR", "Oregon", 6, "", "OR", kUnitedStates},
    {"UT", "Utah", 6, "", "UT", kUnitedStates},
    {"WWA", "West Washington", 6, "", "WA", kUnitedStates},
    {"WY", "Wyoming", 6, "", "WY", kUnitedStates},
    {"AK", "Alaska", 6, "AL KL NL WL", "AK", kAlaska},
    {"MI", "Michigan", 7, "", "MI", kUnitedStates},
    {"OH", "Ohio", 7, "", "OH", kUnitedStates},
    {"WV", "West Virginia", 7, "", "WV", kUnitedStates},
    {"IL", "Illinois", 8, "", "IL", kUnitedStates},
    {"IN", "Indiana", 8, "", "IN", kUnitedStates},
    {"WI", "Wisconsin", 8, "", "WI", kUnitedStates},
    {"CO", "Colorado", 9, "", "CO", kUnitedStates},
    {"IA", "Iowa", 9, "", "IA", kUnitedStates},
    {"KS", "Kansas", 9, "", "KS", kUnitedStates},
    {"MN", "Minnesota", 9, "", "MN", kUnitedStates},
    {"MO", "Missouri", 9, "", "MO", kUnitedStates},
    {"NE", "Nebraska", 9, "", "NE", kUnitedStates},
    {"ND", "North Dakota", 9, "", "ND", kUnitedStates},
    {"SD", "South Dakota", 9, "", "SD", kUnitedStates},
    {"NL", "Newfoundland-Labrador", 10, "VO1 VO2", "NL", kCanada},
    {"MAR", "Maritime", 10, "VE1 VE9 VA1 CY9 CY0 VY2", "", kCanada, "", "2022"},
    {"QC", "Quebec", 10, "VE2 VA2", "QC", kCanada},
    {"ONN", "Ontario North", 10, "", "ON", kCanada, "2012", ""},
    {"MB", "Manitoba", 10, "VE4 VA4", "MB", kCanada},
    {"SK", "Saskatchewan", 10, "VE5 VA5", "SK", kCanada},
    {"AB", "Alberta", 10, "VE6 VA6", "AB", kCanada},
    {"BC", "British Columbia", 10, "VE7 VA7", "BC", kCanada},
    {"NT", "Northern Territories", 10, "VE8 VY1 VY0", "", kCanada, "", "2022"},
    {"WCF", "West Central Florida", 3, "", "FL", kUnitedStates},
    {"ONS", "Ontario South", 10, "", "ON", kCanada, "2012", ""},
    {"ONE", "Ontario East", 10, "", "ON", kCanada, "2012", ""},
    {"GTA", "Greater Toronto Area", 10, "", "ON", kCanada, "2012", "2022"},
}};

SectionList MakeToldSections() {
    SectionList list;
    for (const ToldSection& row : kSections) {
        list.Add({.code = std::string{row.code},
                  .name = std::string{row.name},
                  .heading = row.heading,
                  .prefixes = Words(row.prefixes),
                  .aliases = {},
                  .state = std::string{row.state},
                  .dxcc = row.dxcc,
                  .since = std::string{row.since},
                  .until = std::string{row.until}});
    }
    return list;
}

}  // namespace

const SectionList& ToldSections() {
    static const SectionList told = MakeToldSections();
    return told;
}

}  // namespace tallyhut
