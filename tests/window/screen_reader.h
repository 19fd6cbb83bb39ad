#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>
#include <vector>

#include "tests/window/window_driver.h"

namespace tallyhut {

/// Orca, listening to what is on one screen, with buses of its own. It makes no sound: its own debug log tells what it
/// hears, what it speaks and when.
class ScreenReader {
public:
    /// Listens when this returns. Throws std::runtime_error with the reason where it cannot.
    ScreenReader(const std::string& folder, const std::string& display);
    ~ScreenReader();
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;
    ScreenReader(ScreenReader&&) = delete;
    ScreenReader& operator=(ScreenReader&&) = delete;

    /// For the program that is to be heard.
    Environment ForProgram() const { return {{"DBUS_SESSION_BUS_ADDRESS", address_}}; }

    using Clock = std::chrono::system_clock;
    struct Utterance {
        std::string words;
        std::chrono::microseconds ofDay;  ///< since midnight
    };
    /// What it has spoken since the log was so long.
    std::vector<Utterance> SpokenSince(std::size_t length) const;
    /// The lines that hold these words, since the log was so long.
    std::vector<std::string> LinesSince(std::size_t length, const std::string& words) const;
    std::size_t LogLength() const;
    /// Waits until it has heard these words from now on, of which it says nothing, and has said what it has to say of
    /// all that it heard before. False when that does not come.
    bool LetSpeak(const std::string& words);
    /// Since midnight.
    static std::chrono::microseconds OfDay(Clock::time_point moment);
    static std::chrono::microseconds OfDay(const std::string& line);

private:
    std::string LogSince(std::size_t length) const;
    /// Nothing that it has heard waits to be looked at. Goes by what has come since it was last so.
    bool IsIdle();
    void EndAll();

    std::string folder_;
    pid_t bus_ = -1;
    pid_t reader_ = -1;
    std::string address_;     ///< of the bus
    std::size_t idleAt_ = 0;  ///< a length of the log
};

}  // namespace tallyhut
