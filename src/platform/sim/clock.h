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
    Microtick TickUs() const override;
    // Each wait jumps to its end. The counting loop counts 1,000,000 rounds in 60 ms.
    void SleepUntil(Tick tick) override { AdvanceTo(tick); }
    void SleepUs(Microtick microseconds) override;
    void SpinUntil(Microtick moment) override;
    double Count(double from, double below) override;
    void BeginPrecise() override;
    void EndPrecise() override;

    /// Local time with milliseconds, "2026-11-07T21:04:33.000".
    std::string IsoNow() const;

    void Advance(Tick milliseconds);
    /// Stands still for a tick that is past.
    void AdvanceTo(Tick tick);
    /// Sets the date and time as the operator would set the machine's; the tick goes on.
    void SetNow(const DateTime& now);

    int minutesToUtc = 0;

    // What the program has asked for.
    bool isPrecise = false;  ///< between BeginPrecise and EndPrecise
    int preciseBegun = 0;    ///< times that it became so
    int preciseEnded = 0;    ///< times that it was so no more

private:
    std::uint64_t SinceSet() const { return nanoseconds_ - setAt_; }

    DateTime setTo_;
    std::uint64_t setAt_ = 0;        // of nanoseconds_
    std::uint64_t nanoseconds_ = 0;  // a round of the counting loop is 60 of them
};

}  // namespace tallyhut::sim
