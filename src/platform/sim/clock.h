#pragma once

#include <string>

#include "platform/clock.h"

namespace tallyhut::sim {

/// A clock that stands still until someone waits or advances it. Its ticks count from 0.
struct Clock : tallyhut::Clock {
    /// The offset is minutesToUtc.
    explicit Clock(const DateTime& start = {2026, 11, 7, 21, 0, 0}, int offset = 0)
        : minutesToUtc(offset), setTo_(start) {}

    DateTime Now() const override;
    int MinutesToUtc() const override { return minutesToUtc; }
    Tick TickMs() const override { return tick_; }
    /// Jumps to the tick.
    void SleepUntil(Tick tick) override { AdvanceTo(tick); }

    /// Local time with milliseconds, "2026-11-07T21:04:33.000".
    std::string IsoNow() const;

    void Advance(Tick milliseconds) { tick_ += milliseconds; }
    /// Stands still for a tick that is past.
    void AdvanceTo(Tick tick);
    /// Sets the date and time as the operator would set the machine's; the tick goes on.
    void SetNow(const DateTime& now);

    int minutesToUtc = 0;

private:
    DateTime setTo_;
    Tick setAt_ = 0;
    Tick tick_ = 0;
};

}  // namespace tallyhut::sim
