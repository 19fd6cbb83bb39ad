#pragma once

#include "forms/Form1.h"
#include "log/utc_clock.h"

namespace tallyhut {

/// The two rates beside the score.
struct RateLabels {
    Form1& form;
    const Contest& contest;
    UtcClock& utc;

    /// Counts the contacts of the last 20 and 60 minutes. A date or time that is none leaves both labels as they are.
    void TimeStats();
};

}  // namespace tallyhut
