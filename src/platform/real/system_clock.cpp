#include "platform/real/system_clock.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <thread>

namespace tallyhut {

namespace {

using std::chrono::steady_clock;

/// Even at real-time priority a program wakes late where another's work inside the system cannot be interrupted, which
/// takes some milliseconds at worst.
constexpr Microtick kAwakeBeforeUs = 4'000;
/// A millisecond or two.
constexpr double kRoundsBetweenLooks = 1'000'000;

std::tm LocalTime() {
    tzset();  // localtime_r alone may keep the zone of its first call
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local;
}

}  // namespace

DateTime SystemClock::Now() const {
    const std::tm local = LocalTime();
    return {.year = local.tm_year + 1900,
            .month = local.tm_mon + 1,
            .day = local.tm_mday,
            .hour = local.tm_hour,
            .minute = local.tm_min,
            .second = local.tm_sec};
}

int SystemClock::MinutesToUtc() const {
    return static_cast<int>(-LocalTime().tm_gmtoff / 60);
}

Microtick SystemClock::TickUs() const {
    return static_cast<Microtick>(
        std::chrono::duration_cast<std::chrono::microseconds>(steady_clock::now().time_since_epoch()).count());
}

void SystemClock::SleepUntil(Tick tick) {
    std::this_thread::sleep_until(steady_clock::time_point{std::chrono::milliseconds{tick}});
}

void SystemClock::SleepUs(Microtick microseconds) {
    std::this_thread::sleep_for(std::chrono::microseconds{microseconds});
}

void SystemClock::SpinUntil(Microtick moment) {
    // To spin all the time at real-time priority would stop whatever else wants this processor; the system itself stops
    // that after a second, by taking the processor away for a twentieth of one, in the middle of a mark.
    if (punctuality_.IsRealTime() && TickUs() + kAwakeBeforeUs < moment) {
        std::this_thread::sleep_until(steady_clock::time_point{std::chrono::microseconds{moment - kAwakeBeforeUs}});
    }
    while (TickUs() < moment) {
    }
}

double SystemClock::Count(double from, double below) {
    if (std::abs(from) > kFarthestCount) {
        return from;
    }
    punctuality_.LeaveRealTime();  // a loop that only counts cannot rest
    const Microtick end = TickUs() + kLongestCountUs;
    volatile double count = from;  // or the loop would be taken for one that does nothing, and left out
    while (count < below && TickUs() < end) {
        const double look = std::min(below, count + kRoundsBetweenLooks);
        while (count < look) {
            count = count + 1;
        }
    }
    return count;
}

}  // namespace tallyhut
