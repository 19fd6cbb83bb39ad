#pragma once

#include <deque>
#include <functional>
#include <map>
#include <set>

#include "platform/armed_watches.h"
#include "platform/event_pump.h"
#include "platform/sim/clock.h"

namespace tallyhut::sim {

/// Thrown by a wait that would never end, so that a test which would hang fails. It is no std::exception: no handler of
/// failures takes it.
struct NothingToWaitFor {};

/// A pump whose events are scripted. A script may do whatever an operator or a cable does: post keys, close forms,
/// advance the clock, script more.
struct EventPump : tallyhut::EventPump {
    explicit EventPump(Clock& clock) : clock_(clock) {}

    void Collect() override;
    /// Runs the next script of OnWait and returns, as if an event had ended the wait. With no script left it returns
    /// for a descriptor with something to read, else the clock jumps to the tick; with no tick either it throws
    /// NothingToWaitFor.
    void WaitUntil(std::optional<Tick> tick) override;
    std::unique_ptr<DescriptorWatch> Watch(int descriptor, std::function<void()> arrived) override;

    /// Scripts what comes in at the nth Collect from now; 1 is the next one. Several at one Collect run in the order
    /// they were scripted in.
    void OnCollect(int nth, std::function<void()> script);
    /// Scripts what ends a wait, one wait a script.
    void OnWait(std::function<void()> script);

    /// The descriptors that have something to read, until whoever reads takes them out. Numbers alone: nothing is
    /// opened.
    std::set<int> readable;

    int Collects() const { return collects_; }
    /// False once every script has run; a test may end with it.
    bool HasScripts() const { return !onCollect_.empty() || !onWait_.empty(); }

private:
    bool TellReadable();

    Clock& clock_;
    ArmedWatches watches_;
    int collects_ = 0;
    std::multimap<int, std::function<void()>> onCollect_;  // by the count of collects
    std::deque<std::function<void()>> onWait_;
};

}  // namespace tallyhut::sim
