#include "log/entry_flow.h"

#include <algorithm>
#include <array>

#include "support/form_scaling.h"

namespace tallyhut {
namespace {

constexpr double kPartialsFontSize = 9;
constexpr int kDoubleQuote = '"';
constexpr std::string_view kPrecedences = "ABQUMS";
constexpr Colour kGreetingGround = 0xFFFFC0;

struct Greeting {
    std::string_view call;
    std::string_view text;
};

/// The authors like to be greeted.
constexpr std::array kGreetings{
    Greeting{"Q7ZZQ", "Q7ZZQ, Alden, wrote this software!  Please say hi!"},
    Greeting{"Q7YYRT", "Q7YYRT, Maren, helped write this software!  Please say hi!"},
};

bool IsDigit(int character) {
    return character >= '0' && character <= '9';
}

}  // namespace

void Capital(int& KeyAscii) {
    if (KeyAscii >= 'a' && KeyAscii <= 'z') {
        KeyAscii += 'A' - 'a';
    }
}

void number(int& KeyAscii) {
    if (KeyAscii != kKeyBackspace && !IsDigit(KeyAscii)) {
        KeyAscii = 0;
    }
}

bool EntryFlow::CommitsOnEnter(int& KeyAscii) {
    if (KeyAscii != kKeyEnter) {
        return false;
    }
    KeyAscii = 0;
    commit.Mains();
    return true;
}

void EntryFlow::StartCarry(Carry from, int key) {
    gCarryKey = key;
    gCarryFrom = from;
}

/// Writes the carried key into the field itself: the focus moves, but the key is never typed there. A key that the
/// field refuses leaves it empty.
void EntryFlow::EndCarry(TextBox& field, int key) {
    field.SetText(key == 0 ? std::string{} : std::string(1, static_cast<char>(key)));
    field.SetCaret(static_cast<int>(field.Text().size()));
    gCarryFrom = kNoCarry;
}

void EntryFlow::RemindOfTimeOn() {
    panel.message.Refuse(kNotOnTime);
    panel.desk.dialogs.Beep();
}

void EntryFlow::txtNum_KeyPress(int& KeyAscii) {
    if (CommitsOnEnter(KeyAscii)) {
        return;
    }
    if (contest.log.gContactCount() > 0) {
        panel.fields.ShowNextSerial();
    }
    panel.message.WriteNormal(" ");
    panel.message.BlankPartials();
    if (time.gTimeOn == 0) {
        RemindOfTimeOn();
    }
    if (KeyAscii > '9' && gCarryFrom == kNoCarry) {  // a letter is no serial number: it is the precedence
        StartCarry(kNumToPre, KeyAscii);
        panel.form.txtPre.SetText("");
        txtPre_KeyPress(KeyAscii);
        KeyAscii = ' ';
    }
    const bool carried = gCarryFrom == kCallToNext;
    if (carried) {
        KeyAscii = gCarryKey;
    }
    if (KeyAscii == ' ') {
        panel.form.txtPre.SetFocus();
    }
    number(KeyAscii);
    if (carried) {
        EndCarry(panel.form.txtNum, KeyAscii);
    }
    if (duplicates.gIsDupe == 1) {
        duplicates.WaitDupeDelay();
    }
}

void EntryFlow::txtPre_KeyPress(int& KeyAscii) {
    if (CommitsOnEnter(KeyAscii)) {
        return;
    }
    const int mode = TabMode(contest.preferences);
    if (KeyAscii == ' ' && gCarryFrom == kNoCarry) {
        KeyAscii = 0;
        (mode == 2 ? panel.form.txtCK : panel.form.txtCall).SetFocus();
        return;
    }
    if (panel.form.txtPre.Text().size() == 1 &&
        KeyAscii >= '0') {  // the one letter is there: the key is for the next field
        StartCarry(kPreToNext, KeyAscii);
        if (mode == 1) {
            panel.form.txtCall.SetFocus();
            txtCall_KeyPress(KeyAscii);
        } else {
            panel.form.txtCK.SetFocus();
            if (KeyAscii >= 'A') {  // no check begins with a letter, and the section is not next: the key is lost
                StartCarry(kNoCarry, 0);
            } else {
                txtCK_KeyPress(KeyAscii);
            }
        }
        KeyAscii = ' ';
    }
    const bool carried = gCarryFrom == kNumToPre;
    if (carried) {
        KeyAscii = gCarryKey;
    }
    Capital(KeyAscii);
    const bool accepted =
        KeyAscii == kKeyBackspace ||
        (KeyAscii > ' ' && KeyAscii <= 'Z' && kPrecedences.find(static_cast<char>(KeyAscii)) != std::string_view::npos);
    if (!accepted) {
        KeyAscii = 0;
    }
    if (carried) {
        EndCarry(panel.form.txtPre, KeyAscii);
    }
}

/// A call ends in letters: a digit typed behind them begins the next field. Not so behind a "/" or before the first
/// digit.
bool EntryFlow::DigitBeginsNextField(int key) const {
    const std::string& call = panel.form.txtCall.Text();
    const bool plain = std::ranges::none_of(call, [](char c) { return static_cast<unsigned char>(c) < '0'; });
    const bool hasDigit = std::ranges::any_of(call, [](char c) { return IsDigit(c); });
    const bool caretAtEnd = panel.form.txtCall.SelStart() == static_cast<int>(call.size());
    return call.size() >= 3 && hasDigit && !IsDigit(call.back()) && plain && IsDigit(key) && caretAtEnd;
}

void EntryFlow::txtCall_KeyPress(int& KeyAscii) {
    if (CommitsOnEnter(KeyAscii)) {
        return;
    }
    panel.form.lblDupe.SetFontSize(kPartialsFontSize * FontRatioOf(panel.form));
    if (KeyAscii == kDoubleQuote) {
        KeyAscii = 0;
    }
    const int mode = TabMode(contest.preferences);
    if (DigitBeginsNextField(KeyAscii)) {
        StartCarry(kCallToNext, KeyAscii);
        if (mode == 1) {
            panel.form.txtCK.SetFocus();
            txtCK_KeyPress(KeyAscii);
        } else {
            panel.form.txtNum.SetFocus();
            txtNum_KeyPress(KeyAscii);
        }
        KeyAscii = ' ';
    }
    if (time.gTimeOn == 1 && panel.form.txtCall.Text().size() < 3) {
        panel.message.Write(" ");
    }
    if (time.gTimeOn == 0) {
        RemindOfTimeOn();
    }
    const bool carried = gCarryFrom == kPreToNext;
    if (carried) {
        KeyAscii = gCarryKey;
    }
    if (KeyAscii == ' ' && gCarryFrom != kCallToNext) {
        KeyAscii = 0;
        (mode == 2 ? panel.form.txtNum : panel.form.txtCK).SetFocus();
    }
    Capital(KeyAscii);
    duplicates.ShowPartials(KeyAscii);
    if (carried) {
        EndCarry(panel.form.txtCall, KeyAscii);
    }
    if (duplicates.gIsDupe == 1) {
        duplicates.WaitDupeDelay();
    }
}

void EntryFlow::txtCK_KeyPress(int& KeyAscii) {
    if (CommitsOnEnter(KeyAscii)) {
        return;
    }
    if (KeyAscii > '9' && gCarryFrom != kPreToNext) {  // a letter is no check: it begins the section
        StartCarry(kCkToSec, KeyAscii);
        txtSec_KeyPress(KeyAscii);
        KeyAscii = ' ';
    }
    const bool carried = gCarryFrom == kPreToNext || gCarryFrom == kCallToNext;
    if (carried) {
        KeyAscii = gCarryKey;
    }
    if (KeyAscii == ' ') {
        panel.form.txtSec.SetFocus();
    }
    number(KeyAscii);
    if (carried) {
        EndCarry(panel.form.txtCK, KeyAscii);
    }
}

void EntryFlow::txtSec_KeyPress(int& KeyAscii) {
    if (CommitsOnEnter(KeyAscii)) {
        return;
    }
    if (KeyAscii == kDoubleQuote) {
        KeyAscii = 0;
    }
    const bool carried = gCarryFrom == kCkToSec;
    if (carried) {
        KeyAscii = gCarryKey;
    }
    if (KeyAscii == ' ') {
        KeyAscii = 0;
        if (TabMode(contest.preferences) == 3) {
            panel.fields.gPassedCallTwice = false;
            panel.form.txtCall.SetFocus();
        } else {
            panel.desk.SendKeys(KeyForCharacter(kKeyTab));
        }
    }
    Capital(KeyAscii);
    if (carried) {
        EndCarry(panel.form.txtSec, KeyAscii);
    }
}

void EntryFlow::Prompt(std::string_view prompt, int leastLevel) const {
    if (contest.preferences.gVoiceNav >= leastLevel) {
        prompts.BlindKeyPhone(prompt);
    }
}

void EntryFlow::txtNum_GotFocus() {
    if (!numHasHadFocus) {
        numHasHadFocus = true;
        if (TabMode(contest.preferences) == 3 && panel.form.txtNum.HasFocus()) {
            panel.form.txtCall.SetFocus();
        }
    }
    panel.fields.HideRowButtons();
    Prompt("Number", 2);
}

void EntryFlow::txtPre_GotFocus() {
    Prompt("Prec", 2);
}

void EntryFlow::txtCall_GotFocus() {
    panel.fields.HideRowButtons();
    Prompt("Call", 1);
}

void EntryFlow::txtCK_GotFocus() {
    const bool looksTwice =
        TabMode(contest.preferences) == 3 && !panel.fields.gPassedCallTwice && duplicates.gIsDupe == 0;
    if (looksTwice && panel.form.txtCK.HasFocus()) {
        panel.fields.gPassedCallTwice = true;
        panel.form.txtNum.SetFocus();
    }
    Prompt("Check", 2);
}

void EntryFlow::txtSec_GotFocus() {
    Prompt("Section", 2);
}

void EntryFlow::txtCall_LostFocus() {
    if (commit.messageStands) {
        return;
    }
    for (const Greeting& greeting : kGreetings) {
        if (panel.form.txtCall.Text() == greeting.call) {
            panel.message.WriteOn(kGreetingGround, greeting.text);
            panel.desk.dialogs.Beep();
        }
    }
    if (!panel.form.txtCall.Text().empty()) {
        duplicates.dupcheck();
    }
}

std::optional<Tick> EntryFlow::txtPre_HoldsKey(const Key& key) const {
    const bool goesToCall =
        TabMode(contest.preferences) == 1 && panel.form.txtPre.Text().size() == 1 && key.character >= '0';
    return goesToCall ? duplicates.HoldsKey(key) : std::nullopt;
}

void EntryFlow::cmdClear_Click() {
    panel.fields.gPassedCallTwice = false;
    panel.fields.Empty();
    panel.message.BlankPartials();
    panel.message.WriteNormal(" ");
    panel.fields.First().SetFocus();
}

void EntryFlow::SetTabPositions() {
    Form1& f = panel.form;
    const std::array exchangeOrder{&f.txtNum, &f.txtPre, &f.txtCall, &f.txtCK, &f.txtSec};
    const std::array callFirst{&f.txtCall, &f.txtNum, &f.txtPre, &f.txtCK, &f.txtSec};
    int position = 0;
    for (TextBox* field : TabMode(contest.preferences) == 2 ? callFirst : exchangeOrder) {
        field->SetTabIndex(++position);
    }
}

void EntryFlow::CheckTabModeEntry() {
    panel.form.numopt.SetChecked(TabMode(contest.preferences) == 1);
    panel.form.callopt.SetChecked(TabMode(contest.preferences) == 2);
    panel.form.mnuCallTwice.SetChecked(TabMode(contest.preferences) == 3);
}

void EntryFlow::ChooseTabMode(int mode) {
    contest.preferences.gTabMode = static_cast<std::uint8_t>(mode);
    SetTabPositions();
    if (mode == 3) {
        panel.fields.gPassedCallTwice = false;
    }
    panel.fields.First().SetFocus();
    preferencesFile.SavePref();
    CheckTabModeEntry();
}

}  // namespace tallyhut
