#pragma once

#include <array>
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

/// Where a section lies.
struct SectionPlace {
    std::string_view section;
    std::string_view state;  ///< empty where there is none
    DxccEntity dxcc;
};

/// The sections whose state is not their own code, or that lie outside of the continental United States. Both exports
/// go by it. Of Canada it holds the codes that loggers have long agreed on: newer ones, such as NT and ONN, count as
/// states.
inline constexpr std::array kSectionPlaces{
    SectionPlace{"EMA", "MA", kUnitedStates}, SectionPlace{"WMA", "MA", kUnitedStates},
    SectionPlace{"NNY", "NY", kUnitedStates}, SectionPlace{"ENY", "NY", kUnitedStates},
    SectionPlace{"WNY", "NY", kUnitedStates}, SectionPlace{"NLI", "NY", kUnitedStates},
    SectionPlace{"NNJ", "NJ", kUnitedStates}, SectionPlace{"SNJ", "NJ", kUnitedStates},
    SectionPlace{"EPA", "PA", kUnitedStates}, SectionPlace{"WPA", "PA", kUnitedStates},
    SectionPlace{"NFL", "FL", kUnitedStates}, SectionPlace{"WCF", "FL", kUnitedStates},
    SectionPlace{"SFL", "FL", kUnitedStates}, SectionPlace{"MDC", "MD", kUnitedStates},
    SectionPlace{"NTX", "TX", kUnitedStates}, SectionPlace{"STX", "TX", kUnitedStates},
    SectionPlace{"WTX", "TX", kUnitedStates}, SectionPlace{"EB", "CA", kUnitedStates},
    SectionPlace{"LAX", "CA", kUnitedStates}, SectionPlace{"ORG", "CA", kUnitedStates},
    SectionPlace{"SB", "CA", kUnitedStates},  SectionPlace{"SCV", "CA", kUnitedStates},
    SectionPlace{"SDG", "CA", kUnitedStates}, SectionPlace{"SJV", "CA", kUnitedStates},
    SectionPlace{"SF", "CA", kUnitedStates},  SectionPlace{"SV", "CA", kUnitedStates},
    SectionPlace{"EWA", "WA", kUnitedStates}, SectionPlace{"WWA", "WA", kUnitedStates},
    SectionPlace{"PAC", "HI", kHawaii},       SectionPlace{"AK", "AK", kAlaska},
    SectionPlace{"PR", "", kPuertoRico},      SectionPlace{"VI", "", kVirginIslands},
    SectionPlace{"MAR", "MAR", kCanada},      SectionPlace{"NL", "NL", kCanada},
    SectionPlace{"QC", "QC", kCanada},        SectionPlace{"ON", "ON", kCanada},
    SectionPlace{"OS", "OS", kCanada},        SectionPlace{"OE", "OE", kCanada},
    SectionPlace{"GTA", "GTA", kCanada},      SectionPlace{"MB", "MB", kCanada},
    SectionPlace{"SK", "SK", kCanada},        SectionPlace{"AB", "AB", kCanada},
    SectionPlace{"BC", "BC", kCanada},        SectionPlace{"NWT", "NWT", kCanada},
};

/// A section that the table does not hold is a state of its own name in the continental United States. The result may
/// refer to the text.
constexpr SectionPlace PlaceOfSection(std::string_view section) {
    for (const SectionPlace& place : kSectionPlaces) {
        if (place.section == section) {
            return place;
        }
    }
    return {section, section, kUnitedStates};
}

}  // namespace tallyhut
