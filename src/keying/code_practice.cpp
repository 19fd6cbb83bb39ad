#include "keying/code_practice.h"

#include <cmath>
#include <string_view>

#include "forms/text_lengths.h"
#include "toolkit/running.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr std::string_view kCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.,?/-";
constexpr int kLetters = 26;

void Capital(int& KeyAscii) {
    if (KeyAscii >= 'a' && KeyAscii <= 'z') {
        KeyAscii += 'A' - 'a';
    }
}

double NumberOr(TextBox& field, std::string_view otherwise) {
    if (!IsNumeric(field.Text())) {
        field.SetText(otherwise);
    }
    return TrimmedNumber(field.Text());
}

void RemoveLast(TextBox& field) {
    if (!field.Text().empty()) {
        field.SetText(field.Text().substr(0, field.Text().size() - 1));
    }
}

}  // namespace

std::string PracticeGroups(double groups, double characters, int kinds, const std::function<double()>& random) {
    std::string text;
    for (double group = 1; group <= groups; ++group) {
        for (double i = 1; i <= characters; ++i) {
            if (text.size() + 1 >= kLongestPage) {
                return text + ' ';
            }
            text += kCharacters.at(static_cast<std::size_t>(std::floor(kinds * random())));
        }
        if (text.size() >= kLongestPage) {
            return text;
        }
        text += ' ';
    }
    return text;
}

void CodePractice::Open() {
    form.ShowModal();
    form.Unload();
}

void CodePractice::frmCodePractice_Load() {
    ShowSpeed();
}

void CodePractice::ShowSpeed() {
    form.Label8.SetCaption(cwForm.Text11.Text());
}

void CodePractice::frmCodePractice_QueryUnload(bool& Cancel) {
    sender.gCWBuffer.clear();
    mSendText.clear();
    Cancel = sender.gCWSending == 1;
}

void CodePractice::Command2_Click() {
    const double groups = NumberOr(form.Text3, "10");
    const double characters = NumberOr(form.Text4, "5");
    std::mt19937 engine{seed.value_or(static_cast<std::uint32_t>(desk.clock.TickUs()))};
    std::uniform_real_distribution<double> upToOne{0, 1};
    const int kinds = form.Option1.Value() ? kLetters : static_cast<int>(kCharacters.size());
    form.Text1.SetText(PracticeGroups(groups, characters, kinds, [&] { return upToOne(engine); }));
}

void CodePractice::Command1_Click() {
    form.Text1.SetText(desk.clipboard.Text());
}

void CodePractice::Command3_Click() {
    if (isSending) {
        return;  // a second press would say that everything has gone out
    }
    const Running sending{isSending};
    mSendText = form.Text1.Text();
    form.Text1.SetFocus();
    for (std::size_t i = 0; i < mSendText.size(); ++i) {
        SendFrom(i);
    }
}

/// The text is read anew for each character: what is edited meanwhile counts. Stop empties it.
void CodePractice::SendFrom(std::size_t position) {
    mSendText = form.Text1.Text();
    if (position >= mSendText.size()) {
        return;
    }
    const char character = mSendText[position];
    sender.gCWBuffer = character;
    if (sender.gCWSending == 0) {
        sender.LoopThroughCWBuffer();
    }
    if (!form.IsLoaded()) {
        return;
    }
    form.Text2.SetText(form.Text2.Text() + character);
    form.Text2.SetCaret(static_cast<int>(form.Text2.Text().size()) - 1);
    form.Text1.SetCaret(static_cast<int>(position) + 1);
    desk.RunPending();
}

void CodePractice::Command4_Click() {
    mSendText.clear();
    sender.gCWBuffer.clear();
}

void CodePractice::Text1_KeyPress(int& KeyAscii) {
    Capital(KeyAscii);
}

void CodePractice::Text5_KeyPress(int& KeyAscii) {
    int typed = KeyAscii;
    Capital(typed);
    if (typed == kKeyEsc) {
        return;  // it closes the form
    }
    if (typed == kKeyBackspace) {
        if (!sender.gCWBuffer.empty()) {
            sender.gCWBuffer.pop_back();
        }
        RemoveLast(form.Text2);
        return;
    }
    KeyAscii = 0;
    form.Text2.SetText(form.Text2.Text() + static_cast<char>(typed));
    sender.gCWBuffer += static_cast<char>(typed);
    if (sender.gCWSending == 0) {
        sender.LoopThroughCWBuffer();
    }
}

void CodePractice::Command7_Click() {
    messages.UpDown1_UpClick();
    ShowSpeed();
}

void CodePractice::Command8_Click() {
    messages.UpDown1_DownClick();
    ShowSpeed();
}

}  // namespace tallyhut
