#include "platform/real/polled_descriptors.h"

#include <poll.h>

#include <algorithm>
#include <utility>

namespace tallyhut {

std::unique_ptr<DescriptorWatch> PolledDescriptors::Watch(int descriptor, std::function<void()> arrived) {
    return watches_.Watch(descriptor, std::move(arrived));
}

bool PolledDescriptors::Look(int milliseconds) {
    std::vector<pollfd> polled;
    for (const int descriptor : watches_.Descriptors()) {
        polled.push_back({.fd = descriptor, .events = POLLIN, .revents = 0});
    }
    if (poll(polled.data(), polled.size(), milliseconds) <= 0) {
        return false;
    }
    return watches_.Tell([&polled](int descriptor) {
        return std::ranges::any_of(
            polled, [descriptor](const pollfd& one) { return one.fd == descriptor && one.revents != 0; });
    });
}

}  // namespace tallyhut
