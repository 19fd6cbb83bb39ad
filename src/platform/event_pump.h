#pragma once

#include <optional>

#include "platform/clock.h"

namespace tallyhut {

/// Where keys, clicks and the readiness of ports come in. It hands them over (Desk::PostKey, IoSource::Signal) and runs
/// no handler of its own accord.
struct EventPump {
    virtual ~EventPump() = default;

    /// Takes in what has arrived by now, and shows what has changed. Does not wait.
    virtual void Collect() = 0;
    /// Waits until something arrives or the tick comes; without a tick, until something arrives.
    virtual void WaitUntil(std::optional<Tick> tick) = 0;
    /// Ends the program; files that are open are complete already. 0 for exit and close, 1 for failures.
    [[noreturn]] void EndProgram(int status);
};

}  // namespace tallyhut
