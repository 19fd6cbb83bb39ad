#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tallyhut {

/// The headings of the grid of sections: the call areas and Canada.
inline constexpr std::size_t kSectionHeadings = 11;

/// The DXCC entities that sections lie in, by the numbers that ADIF has for them.
enum DxccEntity : std::int32_t {
    kCanada = 1,
    kAlaska = 6,
    kHawaii = 110,
    kPuertoRico = 202,
    kVirginIslands = 285,
    kUnitedStates = 291,
};

/// All that is known of a section.
struct ListedSection {
    std::string code;  ///< 1 to 4 of A-Z and 0-9
    std::string name;
    std::size_t heading = 0;            ///< column of the grid: 0 to 8 for call areas 1 to 9, 9 for 0, 10 for Canada
    std::vector<std::string> prefixes;  ///< calls that begin so are of the section
    std::vector<std::string> aliases;   ///< what operators type for it; the code is what is logged
    std::string state;                  ///< as ADIF has it for the entity; empty where there is none, or several
    std::int32_t dxcc = 0;              ///< the entity by ADIF's number; 0 where it is not told
    std::string since;                  ///< the first year; empty for as long as anybody remembers
    std::string until;                  ///< the last year; empty for a section of today
    std::string word = {};              ///< the code as posts hold it, a blank on each side

    bool operator==(const ListedSection&) const = default;
};

/// The sections of a contest, in the order of the grid's labels; section i is entry i-1.
struct SectionList {
    static constexpr std::size_t kMostSections = 100;

    std::vector<ListedSection> sections;  ///< grows by Add alone

    void Add(ListedSection section);
    std::int32_t Count() const { return static_cast<std::int32_t>(sections.size()); }
    const ListedSection& Section(int i) const { return sections.at(static_cast<std::size_t>(i - 1)); }
    /// The section whose code the text is, exactly; 0 for none.
    int Find(std::string_view code) const;
    /// The code that an alias stands for; any other text as it is.
    std::string_view CodeOf(std::string_view typed) const;
    /// The section that the call's prefix says, the longest prefix of all; 0 for none.
    int OfCall(std::string_view call) const;

    bool operator==(const SectionList&) const = default;

private:
    std::unordered_map<std::uint32_t, int> places_;  ///< by the codes as numbers; the first of equal ones
};

/// Reads the file of a list: a record a section of ten fields, as the struct has them and notes behind them; blanks
/// stand between the values of one field. Lines that begin with '#' and empty ones are none. UTF-8 becomes Latin-1.
///
/// Throws ValueError with the line and the reason for a damaged list: no section or more than kMostSections, a field
/// that is missing, too much or of another form, a code or an alias twice, an alias that is a code, a prefix of two
/// sections.
SectionList ReadSectionList(std::string_view fileBytes);

}  // namespace tallyhut
