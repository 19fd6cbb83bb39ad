#pragma once

#include <algorithm>

#include "platform/clock.h"
#include "platform/event_pump.h"
#include "platform/real/polled_descriptors.h"

namespace tallyhut {

/// A pump that has descriptors and nothing else.
struct DescriptorPump : EventPump {
    explicit DescriptorPump(Clock& machineClock) : clock{machineClock} {}

    Clock& clock;
    PolledDescriptors descriptors;
    int waits = 0;  ///< so far

    void Collect() override { descriptors.Look(0); }
    void WaitUntil(std::optional<Tick> tick) override {
        ++waits;
        const Tick now = clock.TickMs();
        descriptors.Look(tick ? static_cast<int>(std::max(*tick, now) - now) : -1);
    }
    std::unique_ptr<DescriptorWatch> Watch(int descriptor, std::function<void()> arrived) override {
        return descriptors.Watch(descriptor, std::move(arrived));
    }
};

}  // namespace tallyhut
