#include "rig/rig_tune.h"

#include <array>
#include <optional>
#include <utility>

#include "contest/bands.h"
#include "rig/reply_numbers.h"
#include "toolkit/key.h"
#include "values/format.h"
#include "values/number.h"

namespace tallyhut {
namespace {

/// MHz, by pairs of cmdTune: the first of a pair goes up.
constexpr std::array kTuneSteps{0.00001, 1.0, 0.005, 0.001, 0.0001};

struct ScanStep {
    Option frmRigTune::*option;
    float megahertz;
};

constexpr std::array kScanSteps{
    ScanStep{&frmRigTune::Option5, 0.0025F},  ScanStep{&frmRigTune::Option1, 0.0005F},
    ScanStep{&frmRigTune::Option2, 0.0001F},  ScanStep{&frmRigTune::Option3, 0.00003F},
    ScanStep{&frmRigTune::Option4, 0.00001F},
};

void KeepFrequencyKeys(int& KeyAscii) {
    const bool digitPointOrSlash = KeyAscii >= '.' && KeyAscii <= '9';
    if (!digitPointOrSlash && KeyAscii != kKeyBackspace) {
        KeyAscii = 0;
    }
}

}  // namespace

void RigTune::Command1_Click() {
    const std::optional<float> typed = FloatOf(form.txtFreq.Text());
    if (typed && radio.Row().link != RigLink::None) {
        float Frequency = *typed;  // the command may overwrite it
        commands.ChangeFrequency(Frequency);
    }
}

void RigTune::cmdTune_Click(int Index) {
    const double step = kTuneSteps.at(static_cast<std::size_t>(Index / 2));
    if (const std::optional<double> frequency = ParseNumber(form.txtFreq.Text())) {
        form.txtFreq.SetText(PlainText(*frequency + (Index % 2 == 0 ? step : -step)));
    }
    Command1_Click();
    form.cmdDone.SetFocus();
}

void RigTune::cmdBand_Click(int Index) {
    form.txtFreq.SetText(kBandTable.at(static_cast<std::size_t>(Index)).tuneTo);
    Command1_Click();
}

void RigTune::Mode_Click(std::string_view mode) {
    std::string Mode{mode};
    commands.ChangeMode(0, Mode);
    form.cmdDone.SetFocus();
}

void RigTune::chkScan_Click() {
    if (form.chkScan.Value() && !IsNumeric(form.txtFreq.Text())) {
        form.txtFreq.SetText(form.txtFrom.Text());
    }
    if (form.IsActive()) {  // a scan that ends by itself takes no keys from another form
        form.Command1.SetFocus();
    }
}

float RigTune::Step() const {
    for (const ScanStep& step : kScanSteps) {
        if ((form.*step.option).Value()) {
            return step.megahertz;
        }
    }
    return 0;
}

/// Upward only. A step that lands on the upper limit is still sent.
void RigTune::Timer1_Elapsed() {
    const std::optional<float> from = FloatOf(form.txtFrom.Text());
    const std::optional<float> to = FloatOf(form.txtTo.Text());
    std::optional<float> frequency = FloatOf(form.txtFreq.Text());
    if (!form.chkScan.Value() || !from || !to || !frequency) {
        return;
    }
    if (radio.state.commanding) {
        stepWaits = true;
        return;
    }
    *frequency += Step();
    form.txtFreq.SetText(FormatNumber(*frequency > *to ? *from : *frequency, "####.#####"));
    Command1_Click();
}

void RigTune::TakeWaitingStep() {
    if (std::exchange(stepWaits, false)) {
        form.Timer1.SetTimerEnabled(true);  // the one behind it counts from here
        Timer1_Elapsed();
    }
}

void RigTune::EndScan() {
    stepWaits = false;
    form.chkScan.SetValue(false);
}

void RigTune::txtFreq_Change() {
    const bool numeric = IsNumeric(form.txtFreq.Text());
    for (int i = form.cmdTune.First(); i <= form.cmdTune.Last(); ++i) {
        form.cmdTune(i).SetEnabled(numeric);
    }
}

void RigTune::txtFreq_KeyPress(int& KeyAscii) {
    if (KeyAscii == kKeyEnter) {
        KeyAscii = 0;
        Command1_Click();
        form.txtFreq.Select(0, static_cast<int>(form.txtFreq.Text().size()));
    }
    KeepFrequencyKeys(KeyAscii);
}

void RigTune::Limit_KeyPress(int& KeyAscii) {
    KeepFrequencyKeys(KeyAscii);
}

/// Space and Enter click the button that has the focus, and no press of theirs comes to Form_KeyPress. On the check box
/// Space is the switch itself.
void RigTune::Form_KeyDown(int& KeyCode, int /*Shift*/) {
    if ((KeyCode == kKeySpace || KeyCode == kKeyEnter) && !form.chkScan.HasFocus()) {
        EndScan();
    }
}

/// One key stroke stops a scan, whichever it is. Esc does that alone, or is Done.
void RigTune::Form_KeyPress(int& KeyAscii) {
    const bool scanned = form.chkScan.Value();
    EndScan();
    if (KeyAscii == kKeyEsc) {
        KeyAscii = 0;
        if (!scanned) {
            cmdDone_Click();
        }
    }
}

void RigTune::cmdDone_Click() {
    form.txtFreq.SetFocus();  // where the next use begins
    form.Hide();
}

}  // namespace tallyhut
