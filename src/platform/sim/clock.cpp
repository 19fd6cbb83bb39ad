#include "platform/sim/clock.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace tallyhut::sim {

DateTime Clock::Now() const {
    return AddSeconds(setTo_, static_cast<std::int64_t>((tick_ - setAt_) / 1000));
}

std::string Clock::IsoNow() const {
    const DateTime now = Now();
    std::array<char, 80> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d.%03d", now.year, now.month, now.day,
                      now.hour, now.minute, now.second, static_cast<int>((tick_ - setAt_) % 1000));
    return {text.data(), static_cast<std::size_t>(length)};
}

void Clock::AdvanceTo(Tick tick) {
    tick_ = std::max(tick_, tick);
}

void Clock::SetNow(const DateTime& now) {
    setTo_ = now;
    setAt_ = tick_;
}

}  // namespace tallyhut::sim
