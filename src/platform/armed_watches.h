#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/descriptor_watch.h"

namespace tallyhut {

/// The watches of a pump that asks by itself which descriptors have something to read.
class ArmedWatches {
public:
    /// @param arrived  notes the arrival and does nothing else: it makes and ends no watch
    std::unique_ptr<DescriptorWatch> Watch(int descriptor, std::function<void()> arrived);

    /// Those to be looked at, in the order they were armed in.
    std::vector<int> Descriptors() const;
    /// Tells the watches whose descriptor has something to read. False where there was none.
    bool Tell(const std::function<bool(int descriptor)>& hasSomething);

private:
    struct Armed;

    std::vector<Armed*> armed_;
};

}  // namespace tallyhut
