#pragma once

#include "platform/armed_watches.h"

namespace tallyhut {

/// Descriptors that are looked at where a pump says so, for one that has no event loop of the desktop's.
class PolledDescriptors {
public:
    /// As EventPump::Watch.
    std::unique_ptr<DescriptorWatch> Watch(int descriptor, std::function<void()> arrived);
    /// Waits until a descriptor has something to read, at most so many milliseconds (-1: for ever), and tells the
    /// watches of all that have. False where there was none; a signal may end the wait early.
    bool Look(int milliseconds);

private:
    ArmedWatches watches_;
};

}  // namespace tallyhut
