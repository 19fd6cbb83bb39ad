#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <deque>
#include <limits>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "tests/platform/pseudo_terminal.h"

namespace tallyhut {

/// A keyer on the host's serial line, by its maker's rules: it takes commands and characters, keys what is in its
/// buffer, and tells how it stands. It knows no wire and no clock: each byte comes with its moment.
class Winkeyer {
public:
    using Moment = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::steady_clock::duration;

    // How it is made.
    unsigned char version = 23;      ///< 10 and the like a WK1, 20 to 23 a WK2, 30 and 31 a WK3
    std::size_t bufferSize = 128;    ///< characters
    unsigned char knobSpeed = 20;    ///< words per minute, while the host sets none
    bool echoesWhatItShould = true;  ///< answers an echo test with the byte that came
    bool answersEchoTest = true;
    bool answersOpen = true;
    // What goes wrong.
    bool isMute = false;                   ///< does everything and says nothing
    std::string noise;                     ///< said with every answer to a question for the status
    std::optional<unsigned char> holding;  ///< the status, whatever it does

    /// A character that came from the host.
    struct Character {
        Moment at;
        char character;
        unsigned char lastStatus;  ///< as it was told last
        Moment statusToldAt;
    };

    void Hear(unsigned char byte, Moment now);
    /// Keys on, up to this moment.
    void Run(Moment now);
    /// What it has to say since the last call.
    std::string TakeWords();

    /// As a program leaves it that has crashed: open, with echo on, and text in its buffer.
    void LeaveOpenAndSending(std::string_view text, Moment now);
    /// Somebody keys by hand: what waits is discarded, and what comes meanwhile.
    void UsePaddle(Duration length, Moment now);
    void TurnKnob(unsigned char step);
    void LosePower();

    bool IsOpen() const { return isOpen_; }
    bool IsSending() const { return letter_.has_value(); }
    std::size_t Waiting() const { return buffer_.size(); }
    /// What has been keyed, whole letters.
    const std::string& Keyed() const { return keyed_; }
    /// What has come since the device was made, but for the questions for the status.
    const std::string& Heard() const { return heard_; }
    const std::vector<Character>& Characters() const { return characters_; }
    /// Characters that came when the buffer was full.
    int Overflows() const { return overflows_; }

private:
    void Obey(Moment now);
    void ObeyAdmin(Moment now);
    void TakeCharacter(char character, Moment now);
    void BeginLetter(Moment at);
    void EndLetter();
    void Empty();
    void Say(unsigned char byte);
    void Report(Moment now);
    unsigned char Status() const;
    std::size_t Owed() const;
    Duration Units(int units) const;

    bool isOpen_ = false;
    std::string command_;  ///< with the parameters that have come; empty between commands
    std::string buffer_;
    std::optional<char> letter_;  ///< on the key
    Moment letterEnds_;
    bool isLetterCleared_ = false;
    unsigned char speed_ = 0;
    unsigned char mode_ = 0;
    bool isTuning_ = false;
    std::optional<Moment> paddleUntil_;
    unsigned char lastStatus_ = 0xC0;
    Moment lastStatusAt_;
    std::string words_;
    std::string heard_;
    std::string keyed_;
    std::vector<Character> characters_;
    int overflows_ = 0;
};

/// A keyer at the other end of a wire of 1200 baud, in a thread of its own.
class KeyerCable {
public:
    KeyerCable();
    ~KeyerCable();
    KeyerCable(const KeyerCable&) = delete;
    KeyerCable& operator=(const KeyerCable&) = delete;
    KeyerCable(KeyerCable&&) = delete;
    KeyerCable& operator=(KeyerCable&&) = delete;

    /// The device at the program's end. Another one after each time the cable was put back.
    std::string Path();
    /// Does something with the keyer while its thread rests, and hands on what that gives.
    auto With(const auto& step) {
        const std::lock_guard held{mutex_};
        return step(keyer_);
    }
    /// What is on the wire is lost.
    void Pull();
    void PutBack();
    /// Pulls the cable behind so many more bytes from the program.
    void PullBehind(std::size_t bytes);
    /// When the program gave the wire its first byte of the kind since a moment, before the time that it takes there.
    std::optional<Winkeyer::Moment> FirstGiven(char byte, Winkeyer::Moment since);

private:
    struct TimedByte {
        Winkeyer::Moment due;
        char byte;
    };

    void Live();
    void Carry(Winkeyer::Moment now);
    static void Queue(std::deque<TimedByte>& line, Winkeyer::Moment& free, std::string_view bytes,
                      Winkeyer::Moment now);

    std::mutex mutex_;
    Winkeyer keyer_;
    std::unique_ptr<PseudoTerminal> terminal_ = std::make_unique<PseudoTerminal>();
    std::string path_ = terminal_->Path();
    std::deque<TimedByte> toKeyer_;
    std::deque<TimedByte> fromKeyer_;
    Winkeyer::Moment toKeyerFree_;
    Winkeyer::Moment fromKeyerFree_;
    std::size_t bytesToPull_ = std::numeric_limits<std::size_t>::max();
    std::vector<TimedByte> given_;
    std::atomic<bool> over_ = false;
    std::thread thread_;
};

}  // namespace tallyhut
