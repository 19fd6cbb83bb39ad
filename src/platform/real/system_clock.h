#pragma once

#include "platform/clock.h"

namespace tallyhut {

/// The machine's clock and time zone. A zone that is changed meanwhile counts from the next call.
struct SystemClock : Clock {
    DateTime Now() const override;
    int MinutesToUtc() const override;
    /// From the machine's start.
    Tick TickMs() const override;
    void SleepUntil(Tick tick) override;
};

}  // namespace tallyhut
