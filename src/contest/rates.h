#pragma once

#include <cstdint>
#include <optional>

#include "contest/contact_log.h"
#include "values/date_time.h"

namespace tallyhut {

/// Contacts an hour.
struct Rates {
    std::int32_t lastHour = 0;           ///< contacts younger than 60 minutes
    std::int32_t lastTwentyMinutes = 0;  ///< those younger than 20 minutes, times 3

    bool operator==(const Rates&) const = default;
};

/// The rates at a moment of UTC, counted from the newest contact back to the first that is an hour old. Nothing where a
/// date or time on the way is none. Throws LogFullError while more contacts are counted than the tables hold.
std::optional<Rates> RatesAt(const DateTime& utc, const ContactLog& log);

}  // namespace tallyhut
