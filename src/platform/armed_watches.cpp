#include "platform/armed_watches.h"

#include <algorithm>
#include <utility>

namespace tallyhut {

struct ArmedWatches::Armed : DescriptorWatch {
    Armed(ArmedWatches& owner, int number, std::function<void()> toTell)
        : watches{owner}, descriptor{number}, arrived{std::move(toTell)} {
        watches.armed_.push_back(this);
    }
    ~Armed() override { std::erase(watches.armed_, this); }
    Armed(const Armed&) = delete;
    Armed& operator=(const Armed&) = delete;
    Armed(Armed&&) = delete;
    Armed& operator=(Armed&&) = delete;

    void Rearm() override {
        if (std::ranges::count(watches.armed_, this) == 0) {
            watches.armed_.push_back(this);
        }
    }

    ArmedWatches& watches;
    const int descriptor;
    const std::function<void()> arrived;
};

std::unique_ptr<DescriptorWatch> ArmedWatches::Watch(int descriptor, std::function<void()> arrived) {
    return std::make_unique<Armed>(*this, descriptor, std::move(arrived));
}

std::vector<int> ArmedWatches::Descriptors() const {
    std::vector<int> descriptors;
    for (const Armed* watch : armed_) {
        descriptors.push_back(watch->descriptor);
    }
    return descriptors;
}

bool ArmedWatches::Tell(const std::function<bool(int descriptor)>& hasSomething) {
    const auto told = std::stable_partition(
        armed_.begin(), armed_.end(), [&hasSomething](const Armed* watch) { return !hasSomething(watch->descriptor); });
    const std::vector<Armed*> arrived(told, armed_.end());
    armed_.erase(told, armed_.end());
    for (const Armed* watch : arrived) {  // one that is armed again meanwhile is told the next time
        watch->arrived();
    }
    return !arrived.empty();
}

}  // namespace tallyhut
