#include "keying/cw_messages.h"

#include "keying/message_keys.h"
#include "log/entry_flow.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr Colour kKeyboardGround = 0xC0FFFF;
constexpr std::string_view kKeyboardIsOn = "Keyboard CW mode is ON!  Press F12 to exit keyboard CW mode.";

}  // namespace

void CwMessages::FKeyCW(int KeyCode) {
    sender.gCWBuffer.clear();
    const bool keyboard = sender.gKeyboardCW != 0;
    const bool isKey = KeyCode >= kKeyF1 && KeyCode <= kCwKeyF10;
    if (sender.gCWKeying != kKeyNone && (isKey || keyboard)) {
        if (KeyCode == kKeyF1 && ParseNumber(form.txtCWLoop.Text()).value_or(0) > 0) {
            sender.gCWRepeat = 1;
        }
        const std::string text = MessageOf(KeyCode);
        if (!text.empty()) {
            if (text.find('*') != std::string::npos) {
                gCWRst = SentReport(gCWRst);
            }
            sender.gCWBuffer += Preview(text);
            sender.LoopThroughCWBuffer();
        }
    }
    sender.LetEventsRun();
}

std::string CwMessages::MessageOf(int KeyCode) const {
    if (sender.gKeyboardCW != 0 && KeyCode < kKeyF1) {
        int capital = KeyCode;
        Capital(capital);
        return {static_cast<char>(capital)};
    }
    const auto* const key = std::ranges::find(kMessageKeys, KeyCode, &MessageKey::code);
    return key == kMessageKeys.end() ? "" : (form.*key->message).Text();
}

std::string CwMessages::Preview(std::string_view message) const {
    return ReplaceWildcards(message, {.call = gCWCall, .number = gCWNumber, .report = SentReport(gCWRst)});
}

void CwMessages::EndRepeat() {
    if (sender.gCWRepeat == 0) {
        return;
    }
    if (WinKeyIsOpen()) {
        wk_clearbuf();
    }
    sender.gCWBuffer.clear();
    sender.gCWRepeat = 0;
    form.tmrRepeat.SetTimerEnabled(false);
}

bool CwMessages::TakesKeys() const {
    return preferences.gContestMode == 0 && sender.gCWKeying != kKeyNone;
}

bool CwMessages::TakesTyping() const {
    return preferences.gContestMode == 0 && sender.gKeyboardCW != 0;
}

/// There are no bounds: a speed of 0 and below sends nothing that could be heard. A text that is no number counts as 0.
void CwMessages::ChangeSpeed(int by) {
    form.Text11.SetText(PlainText(ParseNumber(form.Text11.Text()).value_or(0) + by));
}

void CwMessages::ShowSpeed() {
    panel.message.Write(form.Text11.Text() + " WPM");
}

void CwMessages::ToggleKeyboard() {
    sender.gKeyboardCW = sender.gKeyboardCW == 0 ? 1 : 0;
    if (sender.gKeyboardCW != 0) {
        panel.message.WriteOn(kKeyboardGround, kKeyboardIsOn);
    } else {
        panel.message.WriteNormal("");
    }
}

bool CwMessages::StopsAtEsc() {
    if (sender.gCWKeying == kKeyWinKey && WinKeyIsOpen()) {
        gWKStatus = wk_getstatus();
        if (gWKStatus > 0) {
            wk_clearbuf();
            sender.gCWBuffer.clear();
            return true;
        }
    }
    if (sender.gCWSending == 0) {
        return false;
    }
    sender.gCWBuffer.clear();
    return true;
}

void CwMessages::SendTyped(int& KeyAscii) {
    if (WinKeyIsOpen()) {
        gWKStatus = wk_getstatus();
    }
    if (!TakesTyping()) {
        return;
    }
    int typed = KeyAscii;
    KeyAscii = 0;
    if (typed == kKeyBackspace && gWKStatus > 0) {
        wk_backspace();
        return;
    }
    if (typed == kKeyBackspace && !sender.gCWBuffer.empty() && sender.gCWSending == 1) {
        sender.gCWBuffer.pop_back();
        return;
    }
    Capital(typed);
    sender.gCWBuffer += static_cast<char>(typed);
    if (sender.gCWSending == 0) {
        sender.LoopThroughCWBuffer();
    }
}

void CwMessages::tmrRepeat_Elapsed() {
    form.tmrRepeat.SetTimerEnabled(false);
    FKeyCW(kKeyF1);
}

}  // namespace tallyhut
