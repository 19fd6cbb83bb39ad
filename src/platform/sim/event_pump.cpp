#include "platform/sim/event_pump.h"

#include <utility>

namespace tallyhut::sim {

void EventPump::Collect() {
    const int now = ++collects_;  // a script may collect again
    for (auto due = onCollect_.equal_range(now); due.first != due.second; due = onCollect_.equal_range(now)) {
        onCollect_.extract(due.first).mapped()();
    }
    TellReadable();
}

void EventPump::WaitUntil(std::optional<Tick> tick) {
    if (!onWait_.empty()) {
        const std::function<void()> script = std::move(onWait_.front());
        onWait_.pop_front();
        script();
    } else if (TellReadable()) {
        return;
    } else if (tick) {
        clock_.AdvanceTo(*tick);
    } else {
        throw NothingToWaitFor{};
    }
}

std::unique_ptr<DescriptorWatch> EventPump::Watch(int descriptor, std::function<void()> arrived) {
    return watches_.Watch(descriptor, std::move(arrived));
}

bool EventPump::TellReadable() {
    return watches_.Tell([this](int descriptor) { return readable.contains(descriptor); });
}

void EventPump::OnCollect(int nth, std::function<void()> script) {
    onCollect_.emplace(collects_ + nth, std::move(script));
}

void EventPump::OnWait(std::function<void()> script) {
    onWait_.push_back(std::move(script));
}

}  // namespace tallyhut::sim
