#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

#include "tests/platform/pseudo_terminal.h"

namespace tallyhut {

/// The wire between a radio and the program. The radio lives in a thread of its own: it hears what the program sends,
/// thinks for some milliseconds and answers byte by byte at the speed of its line.
class RadioCable {
public:
    /// Takes the bytes that have come in, in whatever pieces, and returns what the radio says to them.
    using Radio = std::function<std::string(std::string_view)>;

    explicit RadioCable(Radio radio);
    ~RadioCable();
    RadioCable(const RadioCable&) = delete;
    RadioCable& operator=(const RadioCable&) = delete;
    RadioCable(RadioCable&&) = delete;
    RadioCable& operator=(RadioCable&&) = delete;

    /// The device at the program's end.
    const std::string& Path() const { return terminal_.Path(); }
    /// Does something with the radio while its thread rests, and hands on what that gives.
    auto With(const auto& step) {
        const std::lock_guard held{mutex_};
        return step();
    }
    /// Everything that has come in so far.
    std::string Heard();
    /// Puts bytes on the line that nobody has asked for, at the speed of the line.
    void Say(std::string_view bytes);
    /// Puts bytes on the line as fast as the program takes them; what has to be said meanwhile waits.
    void Flood(std::string bytes);
    bool IsFlooding();
    void Pull();

private:
    using Clock = std::chrono::steady_clock;
    struct TimedByte {
        Clock::time_point due;
        char byte;
    };

    void Live();
    void Schedule(std::string_view bytes, Clock::duration thinking);
    void SendWhatIsDue();

    std::mutex mutex_;
    PseudoTerminal terminal_;
    Radio radio_;
    std::string heard_;
    std::deque<TimedByte> queue_;
    std::string flood_;
    std::atomic<bool> over_ = false;
    std::thread thread_;
};

}  // namespace tallyhut
