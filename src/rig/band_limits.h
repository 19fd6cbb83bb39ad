#pragma once

#include <array>
#include <string_view>

namespace tallyhut {

/// A band in MHz.
struct BandSpan {
    std::string_view band;
    float low;
    float high;
};

/// Where a reading lies on a contest band: a little beyond its edges, limits exclusive. The rows do not overlap.
inline constexpr std::array<BandSpan, 6> kContestBands{{
    {"160", 1.7999F, 2.0001F},
    {"80", 3.4999F, 4.0001F},
    {"40", 6.9999F, 7.3001F},
    {"20", 13.9999F, 14.3501F},
    {"15", 20.9999F, 21.4501F},
    {"10", 27.9999F, 29.7001F},
}};

/// The edges between which the scale of a band map runs.
inline constexpr std::array<BandSpan, 10> kBandEdges{{
    {"160", 1.8F, 2},
    {"80", 3.5F, 4},
    {"40", 7, 7.3F},
    {"20", 14, 14.35F},
    {"15", 21, 21.45F},
    {"10", 28, 29.7F},
    {"6", 50, 54},
    {"2", 144, 148},
    {"1.25", 219, 225},
    {"440", 420, 450},
}};

/// The contest band of a frequency; empty where it lies on none.
constexpr std::string_view ContestBand(float frequency) {
    for (const BandSpan& band : kContestBands) {
        if (frequency > band.low && frequency < band.high) {
            return band.band;
        }
    }
    return {};
}

}  // namespace tallyhut
