#pragma once

#include <cstdint>

#include "values/date_time.h"

namespace tallyhut {

/// Milliseconds on a clock that only moves forward; its zero means nothing.
using Tick = std::uint64_t;
/// Microseconds on the same clock.
using Microtick = std::uint64_t;

inline constexpr Microtick kMicroticksATick = 1'000;

/// No unit of any speed that a person keys at is as long.
inline constexpr Microtick kLongestCountUs = 10'000'000;
/// Far beyond it a number no longer holds steps of 1.
inline constexpr double kFarthestCount = 1e15;

/// The machine's clocks. Units never read another; with a virtual clock a whole contest runs in a second.
struct Clock {
    virtual ~Clock() = default;

    /// Local date and time, whole seconds.
    virtual DateTime Now() const = 0;
    /// Minutes to add to local time for UTC, as the machine is set; west of Greenwich is positive.
    virtual int MinutesToUtc() const = 0;
    /// For intervals: never goes back when the date and time are set.
    virtual Microtick TickUs() const = 0;
    Tick TickMs() const { return TickUs() / kMicroticksATick; }

    // Waits. No event runs in any of them, and each returns at once where its end is past.

    /// Rests until the tick has come.
    virtual void SleepUntil(Tick tick) = 0;
    /// Rests as long as the machine lets it; a little longer, never shorter.
    virtual void SleepUs(Microtick microseconds) = 0;
    /// Reads the clock again and again until the moment has come, which ends the wait within a few microseconds of it.
    virtual void SpinUntil(Microtick moment) = 0;
    /// Counts up in steps of 1 while the count is below the limit, and does nothing else; returns where it has ended.
    /// How long a step takes is the machine's. No count lasts longer than kLongestCountUs: one whose limit is out of
    /// reach ends there, and one that begins farther from 0 than kFarthestCount at once.
    virtual double Count(double from, double below) = 0;

    /// Around what must be on time: until EndPrecise the machine wakes and runs this program as exactly as it grants
    /// without asking anybody. Each may come again before the other has, and both do nothing then.
    virtual void BeginPrecise() = 0;
    virtual void EndPrecise() = 0;
};

}  // namespace tallyhut
