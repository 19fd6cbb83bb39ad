#include "platform/sim/clock.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace tallyhut::sim {
namespace {

constexpr std::uint64_t kNanosecondsAMicrotick = 1'000;
constexpr std::uint64_t kNanosecondsATick = kNanosecondsAMicrotick * kMicroticksATick;
constexpr std::uint64_t kNanosecondsASecond = kNanosecondsATick * 1'000;
constexpr std::uint64_t kNanosecondsARound = 60;
constexpr std::uint64_t kMostRounds = kLongestCountUs * kNanosecondsAMicrotick / kNanosecondsARound;

}  // namespace

DateTime Clock::Now() const {
    return AddSeconds(setTo_, static_cast<std::int64_t>(SinceSet() / kNanosecondsASecond));
}

Microtick Clock::TickUs() const {
    return nanoseconds_ / kNanosecondsAMicrotick;
}

std::string Clock::IsoNow() const {
    const DateTime now = Now();
    std::array<char, 80> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d.%03d", now.year, now.month, now.day,
                      now.hour, now.minute, now.second, static_cast<int>(SinceSet() / kNanosecondsATick % 1000));
    return {text.data(), static_cast<std::size_t>(length)};
}

void Clock::SleepUs(Microtick microseconds) {
    nanoseconds_ += microseconds * kNanosecondsAMicrotick;
}

void Clock::SpinUntil(Microtick moment) {
    nanoseconds_ = std::max(nanoseconds_, moment * kNanosecondsAMicrotick);
}

double Clock::Count(double from, double below) {
    if (!(from < below) || std::abs(from) > kFarthestCount) {
        return from;
    }
    const double rounds = std::min(std::ceil(below - from), static_cast<double>(kMostRounds));
    nanoseconds_ += static_cast<std::uint64_t>(rounds) * kNanosecondsARound;
    return from + rounds;
}

void Clock::BeginPrecise() {
    preciseBegun += isPrecise ? 0 : 1;
    isPrecise = true;
}

void Clock::EndPrecise() {
    preciseEnded += isPrecise ? 1 : 0;
    isPrecise = false;
}

void Clock::Advance(Tick milliseconds) {
    nanoseconds_ += milliseconds * kNanosecondsATick;
}

void Clock::AdvanceTo(Tick tick) {
    nanoseconds_ = std::max(nanoseconds_, tick * kNanosecondsATick);
}

void Clock::SetNow(const DateTime& now) {
    setTo_ = now;
    setAt_ = nanoseconds_;
}

}  // namespace tallyhut::sim
