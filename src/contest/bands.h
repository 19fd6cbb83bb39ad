#pragma once

#include <array>
#include <string_view>

namespace tallyhut {

/// A stretch of frequencies in MHz; nothing where the two are equal.
struct BandSpan {
    float low = 0;
    float high = 0;

    constexpr bool IsEmpty() const { return low == high; }
    /// The limits themselves lie outside.
    constexpr bool Holds(float frequency) const { return frequency > low && frequency < high; }
};

/// A part of a band where one mode is usual; in MHz, the limits themselves belong to neither side.
struct ModeSegment {
    BandSpan span;
    std::string_view mode;
};

/// All that is known of a band. What it has no use for is empty: only the contest's bands have a menu entry, an edge in
/// the entry file and readings of a radio that choose them.
struct Band {
    std::string_view name;             ///< metres, as contacts are stamped with it
    std::string_view menuText;         ///< caption of its menu entry
    std::string_view kilohertz;        ///< what an entry says for its frequency, 5 wide
    BandSpan readings;                 ///< readings that lie on it: a little beyond its edges
    BandSpan map;                      ///< between which edges the scale of a band map runs
    std::array<ModeSegment, 2> modes;  ///< from which a radio's mode is derived; none on 160 metres
    std::string_view tuneCaption;      ///< of the button that tunes to it
    std::string_view tuneTo;           ///< MHz, by that button; none for one without a button
};

inline constexpr std::string_view kCw = "CW";
inline constexpr std::string_view kPhone = "PH";

inline constexpr std::array kBandTable{
    Band{"160", "160", " 1800", {1.7999F, 2.0001F}, {1.8F, 2}, {}, "160", "1.9"},
    Band{"80",
         "  80",
         " 3500",
         {3.4999F, 4.0001F},
         {3.5F, 4},
         {{{{3.5F, 3.6F}, kCw}, {{3.6F, 4.0F}, kPhone}}},
         "80",
         "3.75"},
    Band{"60", "", "", {}, {}, {}, "60", "5.368"},
    Band{"40",
         "  40",
         " 7000",
         {6.9999F, 7.3001F},
         {7, 7.3F},
         {{{{7.0F, 7.125F}, kCw}, {{7.125F, 7.3F}, kPhone}}},
         "40",
         "7.15"},
    Band{"30", "", "", {}, {}, {{{{10.1F, 10.15F}, kCw}}}, "30", "10.13"},
    Band{"20",
         "  20",
         "14000",
         {13.9999F, 14.3501F},
         {14, 14.35F},
         {{{{14.0F, 14.15F}, kCw}, {{14.15F, 14.35F}, kPhone}}},
         "20",
         "14.175"},
    Band{"17", "", "", {}, {}, {{{{18.068F, 18.11F}, kCw}, {{18.11F, 18.168F}, kPhone}}}, "17", "18.118"},
    Band{"15",
         "  15",
         "21000",
         {20.9999F, 21.4501F},
         {21, 21.45F},
         {{{{21.0F, 21.2F}, kCw}, {{21.2F, 21.45F}, kPhone}}},
         "15",
         "21.225"},
    Band{"12", "", "", {}, {}, {{{{24.89F, 24.93F}, kCw}, {{24.93F, 24.99F}, kPhone}}}, "12", "24.94"},
    Band{"10",
         "  10",
         "28000",
         {27.9999F, 29.7001F},
         {28, 29.7F},
         {{{{28.0F, 28.3F}, kCw}, {{28.3F, 29.7F}, kPhone}}},
         "10",
         "28.5"},
    Band{"6", "", "", {}, {50, 54}, {{{{50.0F, 50.1F}, kCw}, {{50.1F, 54.0F}, kPhone}}}, "6", "52"},
    Band{"2", "", "", {}, {144, 148}, {{{{144.0F, 144.1F}, kCw}, {{144.1F, 148.0F}, kPhone}}}, "2", "146"},
    Band{"1.25", "", "", {}, {219, 225}, {}, "1.25", "223.5"},
    Band{"440", "", "", {}, {420, 450}, {}, "70", "435"},
    Band{"33", "", "", {}, {}, {}, "33", "915"},
    Band{"23", "", "", {}, {}, {}, "23", "1270"},
};

/// The row of a band; null for a text that is none.
const Band* FindBand(std::string_view name);

/// The contest band of a frequency; empty where it lies on none.
std::string_view ContestBand(float frequency);

/// The contest band behind this one, the first one behind the last; empty for a text that is no contest band.
std::string_view NextContestBand(std::string_view name);

/// The usual mode on a frequency; empty outside of all segments.
std::string_view SegmentMode(float frequency);

}  // namespace tallyhut
