#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/serial_port.h"

namespace tallyhut {

/// What wk_open says. The other operations say kWkSuccess, or kWkNotOpen and have sent nothing.
enum WkResult : std::int32_t {
    kWkSuccess = 0,
    kWkNoEcho = -1,           ///< nothing answers
    kWkWrongEcho = -2,        ///< what answers is no keyer
    kWkNoVersion = -3,        ///< it answered and does not open
    kWkNoPort = -4,           ///< the port cannot be opened
    kWkNoSettings = -5,       ///< what is there has no line settings
    kWkSettingsRefused = -6,  ///< it does not take the keyer's
    kWkAlreadyOpen = -8,
    kWkNotOpen = -9,
};

/// A keyer on a serial line, spoken to in its own protocol: 1200 baud, no handshake, no lengths and no checksums. It
/// keys by itself what it has in its buffer.
///
/// No operation waits for the device but wk_open. A device whose cable is pulled counts as not open; when it is there
/// again the next operation opens it and gives it the last settings, so that a contest goes on where it was.
///
/// Source: the maker's interface manuals for WK1, WK2 and WK3.
class WinKey {
public:
    WinKey(SerialPorts& ports, Clock& clock);
    WinKey(const WinKey&) = delete;
    WinKey& operator=(const WinKey&) = delete;
    WinKey(WinKey&&) = delete;
    WinKey& operator=(WinKey&&) = delete;
    ~WinKey();

    /// Opens the device on a port number; also one that a program left open. Takes half a second; up to 1.2 s where
    /// nothing answers, and a quarter of a second at the most once a device of the second generation or later was open.
    ///
    /// @param version  becomes the device's: 10 and the like a WK1, 20 to 23 a WK2, 30 and 31 a WK3. A failure leaves
    /// it
    std::int32_t wk_open(std::uint8_t& version, std::uint8_t port);
    std::int32_t wk_close();
    /// The newest status as far as it is known by now: bit 0 the buffer is over two thirds full, 1 the paddle is in
    /// use, 2 Morse is being sent, 3 tuning, 4 a timed wait; 0 idle. 0 also where the device has been silent for a
    /// second. kWkNotOpen where there is none.
    std::int32_t wk_getstatus();
    /// One character for the buffer, 20 to 7F hexadecimal; others would be commands and are dropped.
    std::int32_t wk_char(int code);
    /// Ends what is being sent behind the present letter.
    std::int32_t wk_clearbuf();
    /// Takes back the newest character that still waits.
    std::int32_t wk_backspace();
    std::int32_t wk_wpm(std::uint8_t speed);           ///< 5 to 99 words per minute; 0 for the speed knob
    std::int32_t wk_weight(std::uint8_t weight);       ///< 10 to 90; 50 is none
    std::int32_t wk_ditdah_ratio(std::uint8_t ratio);  ///< 33 to 66; 50 is a dah of three dits
    std::int32_t wk_ptt_leadtail(std::uint8_t leadIn, std::uint8_t tail);  ///< 0 to 250, in units of 10 ms
    std::int32_t wk_pincfg(std::uint8_t pins);
    std::int32_t wk_setmode(std::uint8_t mode);

    bool IsOpen() const { return isOpen_; }
    /// The device is open and does not say what it does: its cable is pulled, or it has been silent for a second.
    bool IsSilent() const { return isOpen_ && (isLost_ || isMute_); }
    /// The system's own words for the last port that could not be opened.
    const std::string& PortFailure() const { return portFailure_; }

private:
    /// How long an opening waits, in milliseconds.
    struct Patience {
        Tick wakeUp;
        Tick settle;
        Tick answer;
    };

    std::int32_t Open(const Patience& patience, std::uint8_t& version);
    std::int32_t OpenPort();
    std::int32_t Greet(const Patience& patience, std::uint8_t& version);
    /// The first byte that is neither status nor speed knob; -1 where none comes in time.
    int Answer(Tick patience);
    const Patience& PatienceHere() const;

    std::int32_t Send(std::string_view bytes);
    /// A command with its parameters; the device gets it again when it has come back.
    std::int32_t SendSetting(std::initializer_list<int> command);
    void TryToRecover();
    void Lose();
    void TakeWhatCame();
    void AskStatus();
    void Forget();

    Clock& clock_;
    std::unique_ptr<SerialPort> port_;
    std::string portFailure_;
    std::map<char, std::string> settings_;  ///< the last of each command
    std::uint8_t number_ = 0;
    std::uint8_t knownVersion_ = 0;  ///< of the last device that was open on the port
    bool isOpen_ = false;
    bool isLost_ = false;   ///< the cable is pulled
    bool isMute_ = false;   ///< the last question was not answered
    bool isAsked_ = false;  ///< a question is under way
    int status_ = 0;
    Tick askedAt_ = 0;
    Tick triedAt_ = 0;
    Tick busyUntil_ = 0;  ///< so long a status of 0 may be older than the last character
};

}  // namespace tallyhut
