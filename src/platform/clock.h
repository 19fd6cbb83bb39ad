#pragma once

#include <cstdint>

#include "values/date_time.h"

namespace tallyhut {

/// Milliseconds on a clock that only moves forward; its zero means nothing.
using Tick = std::uint64_t;

/// The machine's clocks. Units never read another; with a virtual clock a whole contest runs in a second.
struct Clock {
    virtual ~Clock() = default;

    /// Local date and time, whole seconds.
    virtual DateTime Now() const = 0;
    /// Minutes to add to local time for UTC, as the machine is set; west of Greenwich is positive.
    virtual int MinutesToUtc() const = 0;
    /// For intervals: never goes back when the date and time are set.
    virtual Tick TickMs() const = 0;
    /// Waits until the tick has come; no event runs meanwhile. Returns at once for a tick that is past.
    virtual void SleepUntil(Tick tick) = 0;
};

}  // namespace tallyhut
