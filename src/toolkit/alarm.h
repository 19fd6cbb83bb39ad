#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "platform/clock.h"

namespace tallyhut {

struct Desk;

/// A time to wait for that belongs to no form. The handler runs when events run; one that is late runs once, and counts
/// on from then. Of those due at once the one made first runs first, timers of forms included. It never runs inside
/// itself, and may start, stop or end its alarm.
struct Alarm {
    Alarm(Desk& owner, std::function<void()> handler);
    ~Alarm();
    Alarm(const Alarm&) = delete;
    Alarm& operator=(const Alarm&) = delete;
    Alarm(Alarm&&) = delete;
    Alarm& operator=(Alarm&&) = delete;

    /// Runs the handler each time so many milliseconds have passed, counted anew from now; 0 or less stops.
    void Start(std::int32_t milliseconds);
    /// The same, once.
    void StartOnce(std::int32_t milliseconds);
    void Stop() { due_.reset(); }
    bool IsStarted() const { return due_.has_value(); }

private:
    friend struct Desk;

    /// Counts on from the tick, or is over.
    void PassOn(Tick tick);

    Desk& desk_;
    std::function<void()> handler_;
    std::optional<Tick> due_;
    std::int32_t interval_ = 0;  ///< 0 for one that runs once
};

}  // namespace tallyhut
