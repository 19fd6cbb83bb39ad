#include "toolkit/alarm.h"

#include <utility>

#include "toolkit/desk.h"

namespace tallyhut {

Alarm::Alarm(Desk& owner, std::function<void()> handler) : desk_{owner}, handler_{std::move(handler)} {
    desk_.alarms_.push_back(this);
}

Alarm::~Alarm() {
    std::erase(desk_.alarms_, this);
    desk_.ForgetWatched(this);
}

void Alarm::Start(std::int32_t milliseconds) {
    interval_ = milliseconds;
    PassOn(desk_.clock.TickMs());
}

void Alarm::StartOnce(std::int32_t milliseconds) {
    Start(milliseconds);
    interval_ = 0;
}

void Alarm::PassOn(Tick tick) {
    due_ = interval_ > 0 ? std::optional{tick + static_cast<Tick>(interval_)} : std::nullopt;
}

}  // namespace tallyhut
