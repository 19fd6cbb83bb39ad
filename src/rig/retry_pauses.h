#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/clock.h"

namespace tallyhut {

/// How long a radio that is gone is let be before it is tried again, whatever it is reached through: 1, 2, 5 and then
/// always 10 seconds, and anew after a minute in which all was well.
struct RetryPauses {
    std::size_t failures = 0;  ///< in a row

    /// Milliseconds, after a failure before which all had been well for so many.
    std::int32_t After(Tick goodFor) {
        constexpr std::array<std::int32_t, 4> kPauses{1'000, 2'000, 5'000, 10'000};
        constexpr Tick kGoodConnection = 60'000;
        if (goodFor >= kGoodConnection) {
            failures = 0;
        }
        return kPauses.at(std::min(failures++, kPauses.size() - 1));
    }
};

}  // namespace tallyhut
