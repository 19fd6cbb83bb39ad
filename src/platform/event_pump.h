#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/clock.h"
#include "platform/descriptor_watch.h"

namespace tallyhut {

/// Where keys, clicks and the readiness of descriptors come in. It hands them over (Desk::PostKey, IoSource::Signal)
/// and runs no handler of its own accord.
struct EventPump {
    virtual ~EventPump() = default;

    /// Takes in what has arrived by now, and shows what has changed. Does not wait.
    virtual void Collect() = 0;
    /// The same in the middle of a handler's steps: what has changed may be shown with the next of them, until the
    /// handler has taken as long as the eye notices.
    virtual void CollectBetweenSteps() { Collect(); }
    /// Waits until something arrives or the tick comes; without a tick, until something arrives.
    virtual void WaitUntil(std::optional<Tick> tick) = 0;
    /// In place of a wait, where the program has more to do by itself: gives what the operator does its turn, for a
    /// pump that takes that in by WaitUntil alone.
    virtual void Yield() {}

    /// Looks at a descriptor from now on. `arrived` is called by Collect and WaitUntil; it notes the arrival and does
    /// nothing else: it makes and ends no watch.
    virtual std::unique_ptr<DescriptorWatch> Watch(int descriptor, std::function<void()> arrived) = 0;

    /// Ends the program; files that are open are complete already. 0 for exit and close, 1 for failures.
    [[noreturn]] void EndProgram(int status);
};

}  // namespace tallyhut
