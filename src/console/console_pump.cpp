#include "console/console_pump.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tallyhut {

/// A command that was put at a moment may let events run itself; the ones behind it are delivered then, in order.
void ConsolePump::Collect() {
    while (!put_.empty() && put_.begin()->first <= clock_.TickMs()) {
        const std::string line = std::move(put_.begin()->second);
        put_.erase(put_.begin());
        runLine(line, true);
    }
}

void ConsolePump::PutAt(Tick milliseconds, const std::string& line) {
    put_.emplace(clock_.TickMs() + milliseconds, line);
}

std::optional<Tick> ConsolePump::NextPut() const {
    return put_.empty() ? std::nullopt : std::optional{put_.begin()->first};
}

int ConsolePump::MillisecondsTo(std::optional<Tick> tick) const {
    if (virtualClock_ != nullptr || !tick) {
        return -1;
    }
    const Tick now = clock_.TickMs();
    const Tick left = *tick > now ? *tick - now : 0;
    return static_cast<int>(std::min<Tick>(left, std::numeric_limits<int>::max()));
}

void ConsolePump::WaitUntil(std::optional<Tick> tick) {
    while (TakeTurn(tick)) {
    }
}

bool ConsolePump::TakeTurn(std::optional<Tick> tick) {
    if (virtualClock_ != nullptr) {
        if (const std::optional<Tick> held = heldUntil()) {
            virtualClock_->AdvanceTo(tick && *tick < *held ? *tick : *held);
            return false;
        }
    }
    if (lines_.HasEnded()) {
        endOfInput();
        return false;
    }
    const Json turn = describeTurn();
    out_.Ready(turn);
    std::optional<Tick> until = tick;
    if (const std::optional<Tick> put = NextPut(); put && (!until || *put < *until)) {
        until = put;
    }
    const std::optional<std::string> line = lines_.Next(MillisecondsTo(until));
    if (!line) {
        return false;
    }
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

}  // namespace tallyhut
