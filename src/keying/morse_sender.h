#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "forms/CWFrm.h"
#include "keying/key_line.h"
#include "log/panel.h"
#include "platform/clock.h"

namespace tallyhut {

/// Turns text into key-down and key-up at a speed in words per minute. While a character is sent nothing else runs;
/// between two characters events run on the stack of the loop. So Esc empties the queue, a typed key joins it, a
/// function key sends its message from inside and leaves nothing for the loop around it.
struct MorseSender {
    CWFrm& form;
    KeyLine& line;
    Panel& panel;
    Clock& clock;

    /// Enters the contact: what a "!" in a message is for.
    std::function<void()> enterContact = [] {};
    /// Hands the queue to the keyer device.
    std::function<void()> WKTransmit = [] {};
    /// Nothing is being sent any more.
    std::function<void()> over = [] {};

    std::string gCWBuffer = {};    ///< the first character is the next to go
    std::uint8_t gCWSending = 0;   ///< 1 while the loop below runs
    std::uint8_t gCWKeying = 0;    ///< KeyingOutput
    std::uint8_t gCWRepeat = 0;    ///< 1 while the message of F1 is repeated
    std::uint8_t gKeyboardCW = 0;  ///< 1 while what is typed is sent
    double gLoopsPer60ms = 0;      ///< rounds of the counting loop

    Microtick pauseUs = 0;      ///< that the events behind the last character took
    int depth = 0;              ///< pauses between characters inside of each other
    bool messageWaits = false;  ///< begun in the deepest of them

    /// Sends the queue. Returns when it is empty, with the key up.
    void LoopThroughCWBuffer();
    /// Sends one character; what fails in it ends it without a word.
    void Transmit(char character);
    /// Opens the port that the form names. A failure is told in a box, and the form shown where it is hidden.
    void CWSetup();
    void CalibrateCWLoop();
    /// A message ends with it: events run, and a message that was begun too deep inside of others is sent.
    void LetEventsRun();
    /// Between two characters. False where messages stand inside of each other too deep for it.
    bool RunEvents();

private:
    class Sending;

    void SendQueue();
    void KeyCharacter(char character);
    void WaitGap(double units);
    /// @param isLast  of the character: events run behind it
    void WaitUnit(bool isLast = false);
};

/// Values of gCWKeying. There is no 4.
enum KeyingOutput : std::uint8_t { kKeyNone = 0, kKeyRts = 1, kKeyDtr = 2, kKeyPrinter = 3, kKeyWinKey = 5 };

}  // namespace tallyhut
