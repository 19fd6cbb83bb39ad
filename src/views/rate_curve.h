#pragma once

#include <array>
#include <cstdint>

#include "contest/contact_log.h"
#include "values/colour.h"
#include "values/date_time.h"

namespace tallyhut {

/// The rate of contacts over the time from the log's first contact to its last: 1500 positions, each as long as the
/// others.
struct RateCurve {
    static constexpr int kPositions = 1500;
    static constexpr std::size_t kEntries = 1601;

    // By position; 1 to kPositions are drawn.
    std::array<float, kEntries> RateRaw{};     ///< QSOs an hour; 0 where no contact fell
    std::array<float, kEntries> RateSmooth{};  ///< the same with gaps filled, averaged
    std::array<Colour, kEntries> RateColor{};  ///< of the band of the contact there; 0 where no contact fell

    float RateMin = 0;  ///< of RateSmooth
    float RateMax = 0;

    DateTime start;
    std::int64_t span = 0;  ///< seconds; negative where the last contact is the earlier

    /// UTC, at so much of the time axis, from 0 to 1.
    DateTime MomentAt(double share) const;
    /// The position of a moment so many seconds behind the start; beyond 0 to 1600 for one that lies far outside.
    double PositionOf(std::int64_t seconds) const;
    /// The colour that a position is drawn in: its own or else the last before it.
    Colour ColourAt(int position) const;
};

// The steps of a graph, in their order. Those that read the log throw ValueError where a date or time is none.

/// An empty curve from the log's first contact to its last.
RateCurve CurveOver(const ContactLog& log, int presentYear);
/// At each contact the contacts of the ten minutes before it, times 6. What a later contact finds at its position it
/// overwrites; one whose position is none is left out. What was read before a failure stays in the curve.
void TakeRates(RateCurve& curve, const ContactLog& log, int presentYear);
/// Where no contact fell: straight on to the next rate, if one stands within 15 positions.
void FillGaps(RateCurve& curve);
/// From position 7 on the mean of the rates above 0 at a position and the six before it.
void Average(RateCurve& curve);
void FindBounds(RateCurve& curve);

}  // namespace tallyhut
