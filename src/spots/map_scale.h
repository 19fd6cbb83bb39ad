#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "contest/bands.h"
#include "spots/spot_filter.h"
#include "spots/spot_table.h"
#include "values/colour.h"

namespace tallyhut {

// What both maps of spots are drawn by: a band is a line with five captions, and each spot has its place along it.

inline constexpr int kScaleCaptions = 5;
using ScaleCaptions = std::array<std::string, kScaleCaptions>;

/// From a kilohertz below the lowest spot of the band to a kilohertz above the highest; the band whole where its spots
/// do not lie apart. The oldest row of the table is not looked at, nor what
/// the filter leaves out.
BandSpan ZoomedToSpots(const SpotTable& table, const BandSpan& band, const SpotFilter& filter = {});

/// MHz at the line's first end, at each quarter of it, and at its second end.
ScaleCaptions CaptionsOf(const BandSpan& scale);

/// The scale as its captions say it, rounded as they are. Throws ValueError where they are no numbers.
BandSpan ScaleOf(const std::string& first, const std::string& last);

/// How far along the line a frequency lies: 0 at its first end, 1 at its second. The scale must not be empty.
double ShareOf(float frequency, const BandSpan& scale);

/// How a spot of some age is drawn.
struct AgeRow {
    std::int64_t below;  ///< seconds
    Colour colour;
    bool bold;  ///< so that an age is told by more than its colour
    bool italic;
};

inline constexpr std::array kAges{
    AgeRow{600, 0x80FFFF, true, false},
    AgeRow{1800, 0xFFFFFF, false, false},
    AgeRow{3600, 0xC0C0C0, false, true},
};

/// Null from an hour on, when a spot is on no map any more. A post of the future, before the clock was set back, is
/// new.
const AgeRow* AgeOf(const DateTime& posted, const DateTime& now);

/// The call, the frequency in MHz and the time.
std::string HintOf(const Spot& spot, const DateTime& utc);

/// Centres of labels along a line so that none lies on another: what is alone stays where it is, what is crowded moves
/// as little as it can. Where all of them do not fit between the ends, they stand as close as they must.
///
/// @param wanted  ascending
std::vector<double> SpreadOut(const std::vector<double>& wanted, double height, double first, double last);

}  // namespace tallyhut
