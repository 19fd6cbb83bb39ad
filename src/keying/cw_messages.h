#pragma once

#include "keying/morse_sender.h"
#include "keying/wildcards.h"

namespace tallyhut {

/// The messages of the function keys, the repeat of F1, and the mode in which what is typed is sent.
struct CwMessages {
    CWFrm& form;
    MorseSender& sender;
    Panel& panel;
    const Preferences& preferences;

    std::string gCWCall = {};    ///< follows txtCall
    std::string gCWNumber = {};  ///< follows lblNumCurCon
    std::string gCWRst = {};     ///< empty until the first report was sent

    // Of the keyer device.
    std::uint8_t gWKVersion = 0;  ///< 0: it is closed
    std::int32_t gWKStatus = 0;   ///< what it said last
    std::function<void()> wk_clearbuf = [] {};
    std::function<std::int32_t()> wk_getstatus = [] { return 0; };
    std::function<void()> wk_backspace = [] {};

    /// Sends the message of a key, or in keyboard mode the character of a code. F10 is kCwKeyF10.
    void FKeyCW(int KeyCode);
    /// What a message would send now.
    std::string Preview(std::string_view message) const;

    // The main form's keys.
    /// Any key ends the repeat, and goes on to do what it does.
    void EndRepeat();
    /// Whether function keys and arrows are the keyer's.
    bool TakesKeys() const;
    /// Whether what is typed is sent.
    bool TakesTyping() const;
    void UpDown1_UpClick() { ChangeSpeed(1); }
    void UpDown1_DownClick() { ChangeSpeed(-1); }
    void ShowSpeed();
    void ToggleKeyboard();
    /// What Esc does to the keyer; false where nothing is being sent.
    bool StopsAtEsc();
    /// In keyboard mode every key is sent, and 0 afterwards.
    void SendTyped(int& KeyAscii);

    void tmrRepeat_Elapsed();

private:
    void ChangeSpeed(int by);
    std::string MessageOf(int KeyCode) const;
    bool WinKeyIsOpen() const { return gWKVersion > 0; }
};

}  // namespace tallyhut
