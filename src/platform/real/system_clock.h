#pragma once

#include "platform/clock.h"
#include "platform/real/punctuality.h"

namespace tallyhut {

/// The machine's clock and time zone. A zone that is changed meanwhile counts from the next call.
struct SystemClock : Clock {
    DateTime Now() const override;
    int MinutesToUtc() const override;
    /// From the machine's start.
    Microtick TickUs() const override;
    void SleepUntil(Tick tick) override;
    void SleepUs(Microtick microseconds) override;
    /// With real-time scheduling it rests until shortly before the moment.
    void SpinUntil(Microtick moment) override;
    /// Gives real-time scheduling back.
    double Count(double from, double below) override;
    void BeginPrecise() override { punctuality_.Begin(); }
    void EndPrecise() override { punctuality_.End(); }

private:
    Punctuality punctuality_;
};

}  // namespace tallyhut
