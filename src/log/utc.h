#pragma once

#include "log/preferences.h"
#include "platform/clock.h"

namespace tallyhut {

/// The present UTC by the operator's offset, taken as minutes: 3.5 hours are 3 hours and 30 minutes.
inline DateTime UtcNow(const Clock& clock, const Preferences& preferences) {
    return AddMinutes(clock.Now(), static_cast<double>(preferences.gUtcOffset) * 60);
}

}  // namespace tallyhut
