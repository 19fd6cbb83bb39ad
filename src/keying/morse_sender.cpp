#include "keying/morse_sender.h"

#include <algorithm>
#include <cmath>

#include "keying/morse_timing.h"
#include "platform/platform_error.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr double kMicrosecondsAMs = 1000;
constexpr double kLoopsOfCalibration = 5'000'000;
constexpr double kElementMs = 60;  // at 20 WPM

/// A function key in the pause of a message begins another inside of it. Deeper than this the new message waits for a
/// loop that runs already: no stack is endless, and no operator gets there.
constexpr int kDeepest = 256;

/// What runs between two characters makes the gap longer than it is told. So much of it is made up for at the most:
/// what lasts longer is a box or a disk, and will not last as long again.
constexpr Microtick kLongestPauseUs = 5'000;

/// Silence after which a word space of any length looks for Esc.
constexpr double kUnitsUnheard = 1000;

constexpr std::string_view kKeyboardIsOn = "Keyboard CW Mode is on.  Press F12 to exit.";

const MessageBox kInvalidPortBox{
    .title = "Invalid port.",
    .text = "The port you have selected for CW keying is invalid.  Please select another or enter 0 for none.",
    .buttons = Buttons::OK,
    .icon = Icon::Exclamation};

/// The machine keeps time as exactly as it can for the length of a character.
class Precisely {
public:
    explicit Precisely(Clock& machineClock) : clock_{machineClock} { clock_.BeginPrecise(); }
    ~Precisely() { clock_.EndPrecise(); }
    Precisely(const Precisely&) = delete;
    Precisely& operator=(const Precisely&) = delete;
    Precisely(Precisely&&) = delete;
    Precisely& operator=(Precisely&&) = delete;

private:
    Clock& clock_;
};

class Deeper {
public:
    explicit Deeper(int& depth) : depth_{depth} { ++depth_; }
    ~Deeper() { --depth_; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;
    Deeper(Deeper&&) = delete;
    Deeper& operator=(Deeper&&) = delete;

private:
    int& depth_;
};

}  // namespace

/// Whatever ends the loop, a failed contact and the end of the program included: the key is up behind it.
class MorseSender::Sending {
public:
    explicit Sending(MorseSender& sender) : sender_{sender} { sender_.gCWSending = 1; }
    ~Sending() {
        sender_.gCWSending = 0;
        sender_.line.Release();
    }
    Sending(const Sending&) = delete;
    Sending& operator=(const Sending&) = delete;
    Sending(Sending&&) = delete;
    Sending& operator=(Sending&&) = delete;

private:
    MorseSender& sender_;
};

void MorseSender::LoopThroughCWBuffer() {
    if (gCWKeying == kKeyWinKey) {
        if (gCWBuffer.find('!') != std::string::npos && !panel.form.txtCall.Text().empty()) {
            enterContact();
        }
        WKTransmit();
        if (gCWRepeat == 1) {
            form.tmrRepeat.SetTimerEnabled(true);
        }
        return;
    }
    messageWaits = depth == kDeepest;
    if (messageWaits) {
        return;
    }
    SendQueue();
    if (form.Check1.Value()) {
        panel.message.Write(gKeyboardCW != 0 ? kKeyboardIsOn : "");
    }
    over();
}

void MorseSender::SendQueue() {
    const Sending sending{*this};
    while (!gCWBuffer.empty()) {
        messageWaits = false;
        const char next = gCWBuffer.front();
        gCWBuffer.erase(0, 1);
        Transmit(next);
        const Microtick begin = clock.TickUs();
        if (form.Check1.Value()) {
            panel.message.Write(gCWBuffer);
        }
        RunEvents();
        pauseUs = clock.TickUs() - begin;
    }
    if (gCWRepeat == 1) {
        form.tmrRepeat.SetTimerEnabled(true);
    }
}

bool MorseSender::RunEvents() {
    if (depth == kDeepest) {
        return false;
    }
    const Deeper deeper{depth};
    panel.desk.RunPending();
    return true;
}

void MorseSender::LetEventsRun() {
    RunEvents();
    if (messageWaits) {
        LoopThroughCWBuffer();
    }
}

void MorseSender::Transmit(char character) {
    if (gCWKeying == kKeyNone) {
        return;
    }
    if (!line.IsOpen() && gCWKeying < kKeyPrinter) {
        CWSetup();
    }
    if (character == '!') {  // outside of the silence below: what fails in the log is heard
        if (!panel.form.txtCall.Text().empty()) {
            enterContact();
        }
        return;
    }
    try {
        KeyCharacter(character);
    } catch (const PlatformError&) {
        line.Close();  // a cable that was pulled: the port is tried anew at the next character
    } catch (const ValueError&) {
        // A speed or an address that is no such thing.
    }
    line.Release();  // what runs between two characters may be a box that stands for long
}

void MorseSender::KeyCharacter(char character) {
    const Keying keying = KeyingOf(character, form.txtSpace.Text());
    const Precisely precisely{clock};
    for (std::size_t i = 0; i < keying.elements.size(); ++i) {
        line.Set(keying.elements[i] == '1');
        WaitUnit(i + 1 == keying.elements.size() && keying.silence < 1);
    }
    WaitGap(keying.silence);
}

void MorseSender::WaitGap(double units) {
    for (double unit = 1; unit <= units; ++unit) {
        line.Set(false);
        WaitUnit(unit + 1 > units);
        if (std::fmod(unit, kUnitsUnheard) == 0) {
            RunEvents();
            if (gCWBuffer.empty()) {
                return;
            }
        }
    }
}

/// By the speed of this moment, and from the moment at which the line was set: no error is carried on. The last unit is
/// shorter by what the events behind it will take, as far as the last ones tell.
void MorseSender::WaitUnit(bool isLast) {
    const std::string& wpm = form.Text11.Text();
    if (form.optTimer.Value()) {
        const Microtick set = clock.TickUs();
        const double us = std::round(UnitMs(wpm) * kMicrosecondsAMs);
        const Microtick unit = us > 0 ? static_cast<Microtick>(us) : 0;
        const Microtick made = isLast && pauseUs <= kLongestPauseUs ? std::min(pauseUs, unit / 2) : 0;
        clock.SpinUntil(set + unit - made);
    } else if (form.OptSleep.Value()) {
        const double wholeMs = RoundHalfEven(UnitMs(wpm));
        clock.SleepUs(wholeMs > 0 ? static_cast<Microtick>(wholeMs * kMicrosecondsAMs) : 0);
    } else if (form.optLoop.Value()) {
        clock.Count(0, UnitRounds(gLoopsPer60ms, wpm));
    }
}

void MorseSender::CWSetup() {
    try {
        line.Open();
        return;
    } catch (const PlatformError&) {
        // Told below, like a text that is no number.
    } catch (const ValueError&) {
        // The same.
    }
    panel.desk.dialogs.Beep();
    panel.desk.dialogs.Show(kInvalidPortBox);
    if (!form.IsVisible()) {
        form.ShowModal();
    }
}

void MorseSender::CalibrateCWLoop() {
    clock.BeginPrecise();
    const Microtick begin = clock.TickUs();
    gLoopsPer60ms = clock.Count(gLoopsPer60ms, kLoopsOfCalibration);
    const Microtick end = clock.TickUs();
    clock.EndPrecise();
    const double ms = static_cast<double>(end - begin) / kMicrosecondsAMs;
    gLoopsPer60ms = ms > 0 ? RoundHalfEven(kLoopsOfCalibration / ms * kElementMs) : 0;
    form.txtLoop.SetText(PlainText(gLoopsPer60ms));
}

}  // namespace tallyhut
