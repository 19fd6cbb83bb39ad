#include "rig/frequency_test.h"

#include "platform/platform_error.h"
#include "rig/reply_numbers.h"
#include "toolkit/key.h"
#include "values/hex.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {

void FrequencyTest::Open() {
    form.ShowModal();
    form.Unload();
}

void FrequencyTest::Form_Load() {
    const bool isServer = commands.radio.Row().link == RigLink::Server;
    for (Control* raw : std::initializer_list<Control*>{&form.Text1, &form.Check1, &form.Command1}) {
        raw->SetEnabled(!isServer);
    }
}

void FrequencyTest::Command1_Click() {
    const std::string command = Trim(form.Text1.Text());
    try {
        commands.InTurn([this, bytes = form.Check1.Value() ? SpacedHexToBytes(command) : command] { Send(bytes); });
    } catch (const ValueError&) {  // the radio's silence tells
    }
}

void FrequencyTest::Send(std::string_view bytes) {
    try {
        comComm1.Write(bytes);
    } catch (const PlatformError&) {  // the radio's silence tells
    }
}

/// A text that is no number tunes nothing.
void FrequencyTest::Command2_Click() {
    if (std::optional<float> frequency = FloatOf(form.Text2.Text())) {
        commands.ChangeFrequency(*frequency);
    }
}

void FrequencyTest::Text1_KeyPress(int& KeyAscii) {
    if (KeyAscii == kKeyEnter) {
        KeyAscii = 0;
        Command1_Click();
    }
}

void FrequencyTest::Text2_KeyPress(int& KeyAscii) {
    if (KeyAscii == kKeyEnter) {
        KeyAscii = 0;
        Command2_Click();
    }
}

void FrequencyTest::cmdClose_Click() {
    form.Hide();
}

}  // namespace tallyhut
