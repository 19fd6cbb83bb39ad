#include "console/console_pump.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "toolkit/desk.h"

namespace tallyhut {
namespace {

/// How often events run for devices between two lines of the driver's, so that a flood leaves it its turn.
constexpr int kMostRounds = 1'000;

/// Timers on the machine's clock are looked at so often while the program settles.
constexpr Tick kSettleSlice = 10;

}  // namespace

/// A command that was put at a moment may let events run itself; the ones behind it are delivered then, in order.
void ConsolePump::Collect() {
    descriptors_.Look(0);
    arrived_ = false;  // the caller runs events now
    while (!put_.empty() && put_.begin()->first <= Now()) {
        const std::string line = std::move(put_.begin()->second);
        put_.erase(put_.begin());
        runLine(line, true);
    }
}

std::unique_ptr<DescriptorWatch> ConsolePump::Watch(int descriptor, std::function<void()> arrived) {
    return descriptors_.Watch(descriptor, [this, told = std::move(arrived)] {
        arrived_ = true;
        told();
    });
}

void ConsolePump::PutAt(Tick milliseconds, const std::string& line) {
    put_.emplace(Now() + milliseconds, line);
}

std::optional<Tick> ConsolePump::NextPut() const {
    return put_.empty() ? std::nullopt : std::optional{put_.begin()->first};
}

int ConsolePump::MillisecondsTo(std::optional<Tick> tick) const {
    if (virtualClock_ != nullptr || !tick) {
        return -1;
    }
    const Tick now = Now();
    const Tick left = *tick > now ? *tick - now : 0;
    return static_cast<int>(std::min<Tick>(left, std::numeric_limits<int>::max()));
}

void ConsolePump::WaitUntil(std::optional<Tick> tick) {
    if (virtualClock_ != nullptr) {
        descriptors_.Look(0);
        if (RunsOnBeforeTurn(std::exchange(arrived_, false))) {
            return;
        }
    }
    while (TakeTurn(tick)) {
    }
}

void ConsolePump::Yield() {
    if (RunsOnBeforeTurn(true)) {
        return;
    }
    WaitUntil(virtualClock_ != nullptr ? std::nullopt : std::optional{Now()});
}

bool ConsolePump::RunsOnBeforeTurn(bool waits) {
    return virtualClock_ != nullptr && waits && ++roundsSinceLine_ <= kMostRounds;
}

void ConsolePump::Settle(Tick milliseconds, Desk& desk) {
    const Tick end = machineClock_.TickMs() + milliseconds;
    for (;;) {
        desk.RunPending();
        const Tick now = machineClock_.TickMs();
        if (now >= end || lines_.HasEnded()) {
            return;
        }
        descriptors_.Look(desk.SourceWaits() ? 0 : static_cast<int>(std::min(end - now, kSettleSlice)));
    }
}

bool ConsolePump::TakeTurn(std::optional<Tick> tick) {
    if (virtualClock_ != nullptr) {
        if (const std::optional<Tick> held = heldUntil()) {
            const Tick end = std::min(*held, tick.value_or(*held));
            virtualClock_->AdvanceTo(std::min(end, NextPut().value_or(end)));
            return false;
        }
    }
    const Json turn = describeTurn();
    out_.Ready(turn);
    if (lines_.HasEnded()) {
        endOfInput();
        return false;
    }
    std::optional<Tick> until = tick;
    if (const std::optional<Tick> put = NextPut(); put && (!until || *put < *until)) {
        until = put;
    }
    const std::optional<std::string> line = NextLine(until);
    if (!line) {
        return false;
    }
    roundsSinceLine_ = 0;
    out_.LineRead();
    runLine(*line, false);
    if (!std::exchange(timeMoved_, false)) {
        return false;
    }
    Json before = turn;
    Json after = describeTurn();
    before.erase("focus");
    after.erase("focus");
    return before == after;  // a loop that waits for a form or a dialog to go must look again
}

std::optional<std::string> ConsolePump::NextLine(std::optional<Tick> tick) {
    for (;;) {
        if (std::optional<std::string> line = lines_.Take()) {
            return line;
        }
        const bool deviceFirst = virtualClock_ == nullptr && std::exchange(arrived_, false);
        if (lines_.HasEnded() || deviceFirst || !descriptors_.Look(MillisecondsTo(tick))) {
            return std::nullopt;
        }
    }
}

}  // namespace tallyhut
