#include "tests/peers/radio_cable.h"

#include <algorithm>
#include <utility>

namespace tallyhut {
namespace {

using namespace std::chrono_literals;

constexpr auto kThinking = 5ms;
constexpr auto kByteTime = 2292us;  // 11 bits at 4800 baud
constexpr auto kBetweenLooks = 1ms;

}  // namespace

RadioCable::RadioCable(Radio radio) : radio_{std::move(radio)}, thread_{[this] { Live(); }} {}

RadioCable::~RadioCable() {
    over_ = true;
    thread_.join();
}

void RadioCable::Live() {
    while (!over_) {
        With([this] {
            const std::string bytes = terminal_.Receive();
            if (!bytes.empty()) {
                heard_ += bytes;
                Schedule(radio_(bytes), kThinking);
            }
            SendWhatIsDue();
        });
        std::this_thread::sleep_for(kBetweenLooks);
    }
}

void RadioCable::Schedule(std::string_view bytes, Clock::duration thinking) {
    Clock::time_point due = Clock::now() + thinking;
    if (!queue_.empty()) {
        due = std::max(due, queue_.back().due);
    }
    for (const char byte : bytes) {
        due += kByteTime;
        queue_.push_back({due, byte});
    }
}

void RadioCable::SendWhatIsDue() {
    flood_.erase(0, terminal_.Send(flood_));
    const Clock::time_point now = Clock::now();
    while (flood_.empty() && !queue_.empty() && queue_.front().due <= now &&
           terminal_.Send({queue_.front().byte}) == 1) {
        queue_.pop_front();
    }
}

std::string RadioCable::Heard() {
    return With([this] { return heard_; });
}

void RadioCable::Say(std::string_view bytes) {
    With([&] { Schedule(bytes, 0ms); });
}

void RadioCable::Flood(std::string bytes) {
    With([&] { flood_ += bytes; });
}

bool RadioCable::IsFlooding() {
    return With([this] { return !flood_.empty(); });
}

void RadioCable::Pull() {
    With([this] { terminal_.HangUp(); });
}

}  // namespace tallyhut
