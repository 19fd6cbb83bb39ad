#pragma once

#include "contest/contest.h"
#include "platform/clock.h"

namespace tallyhut {

/// UTC by the operator's offset. The end of daylight-saving time falls into some contests: a change of the machine's
/// own offset while the program runs changes the local time and not UTC.
struct UtcClock {
    const Clock& clock;
    const Contest& contest;

    float offset = 0;                          ///< the operator's, in hours, as it was last looked at
    int minutesWithIt = clock.MinutesToUtc();  ///< the machine's at that moment

    /// The offset taken as minutes: 3.5 hours are 3 hours and 30 minutes.
    DateTime Now();
    /// The offset taken as hours, a fraction rounded.
    DateTime NowByWholeHours();

private:
    /// What the machine's offset has changed since the operator's was taken, in minutes.
    double Drift();
};

}  // namespace tallyhut
