#include "log/utc_clock.h"

namespace tallyhut {

DateTime UtcClock::Now() {
    const double drift = Drift();
    return AddMinutes(UtcOf(clock.Now(), contest.preferences), drift);
}

DateTime UtcClock::NowByWholeHours() {
    const double drift = Drift();
    return AddMinutes(AddHours(clock.Now(), static_cast<double>(contest.preferences.gUtcOffset)), drift);
}

/// An offset that the operator has given anew fits the machine as it is now.
double UtcClock::Drift() {
    const int minutes = clock.MinutesToUtc();
    if (offset != contest.preferences.gUtcOffset) {
        offset = contest.preferences.gUtcOffset;
        minutesWithIt = minutes;
    }
    return minutes - minutesWithIt;
}

}  // namespace tallyhut
