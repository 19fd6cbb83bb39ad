#include "platform/real/system_clock.h"

#include <chrono>
#include <ctime>
#include <thread>

namespace tallyhut {

namespace {

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

Tick SystemClock::TickMs() const {
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<Tick>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count());
}

void SystemClock::SleepUntil(Tick tick) {
    std::this_thread::sleep_until(std::chrono::steady_clock::time_point{std::chrono::milliseconds{tick}});
}

}  // namespace tallyhut
