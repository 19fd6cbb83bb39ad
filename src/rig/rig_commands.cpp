#include "rig/rig_commands.h"

#include "platform/platform_error.h"
#include "toolkit/running.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kFrequencyError = "Error Changing Frequency";

}  // namespace

void RigCommands::ChangeFrequency(float& Frequency) {
    if (!radio.form.tmrGetData.Enabled() || !CanCarry(Frequency)) {
        return;
    }
    radio.form.tmrGetData.SetTimerEnabled(false);
    radio.state.pollsAfter = true;
    {
        const Running command{radio.state.commanding};
        TuneStepByStep(Frequency);
    }
    radio.form.tmrGetData.SetTimerEnabled(radio.state.pollsAfter);
}

/// A number that no command holds costs nothing: it is told before the poll rests.
bool RigCommands::CanCarry(float frequency) {
    const FrequencyCommand command = radio.Row().frequencyCommand;
    try {
        if (command != nullptr) {
            command({.frequency = frequency,
                     .frequencyString = radio.settings.frequencyString,
                     .vfoDigit = radio.state.VfoDigit});
        }
    } catch (const ValueError& failure) {
        Report(kFrequencyError, failure.what());
        return false;
    }
    return true;
}

void RigCommands::TuneStepByStep(float& Frequency) {
    const auto fail = [this](const std::exception& failure) {
        radio.state.pollsAfter = false;
        Report(kFrequencyError, failure.what());
    };
    try {
        if (radio.Row().link != RigLink::Files) {
            radio.comComm1.ReadAll();
        }
        radio.state.RxBuffer.clear();
        std::string modeOfPlan;
        ChangeMode(Frequency, modeOfPlan);
        WaitOutputDrained();
        SendFrequency(Frequency);
        WaitOutputDrained();
    } catch (const PlatformError& failure) {
        fail(failure);
    } catch (const ValueError& failure) {
        fail(failure);
    }
}

/// Another radio may be chosen while events run: each step asks anew.
void RigCommands::SendFrequency(float& Frequency) {
    for (const int pause : radio.Row().pausesMs) {
        if (pause > 0) {
            DelayMs(pause);
        }
    }
    const RigRow& rig = radio.Row();
    if (rig.link == RigLink::Files) {
        radio.pegasus.WritePegasusFile(Frequency, radio.state.RigMode);
    } else if (rig.frequencyCommand != nullptr) {
        radio.comComm1.Write(rig.frequencyCommand({.frequency = Frequency,
                                                   .frequencyString = radio.settings.frequencyString,
                                                   .vfoDigit = radio.state.VfoDigit}));
    }
}

void RigCommands::ChangeMode(const float& Frequency, std::string& Mode) {
    if (radio.Row().link == RigLink::None) {
        return;
    }
    try {
        if (Mode.empty()) {
            Mode = ModeForFrequency(modePlan, Frequency);
        }
        if (!Mode.empty()) {
            constexpr int kPauseMs = 99;
            desk.RunPending();
            WaitOutputDrained();
            DelayMs(kPauseMs);
            SendMode(Mode);
        }
        WaitOutputDrained();
    } catch (const PlatformError& failure) {
        Report("Error Changing Mode", Mode + ' ' + failure.what());
    } catch (const ValueError& failure) {
        Report("Error Changing Mode", Mode + ' ' + failure.what());
    }
}

void RigCommands::SendMode(const std::string& mode) {
    const ModeCommand command = radio.Row().modeCommand;
    if (command == nullptr) {
        return;
    }
    const std::string bytes = command(
        {.mode = mode, .frequencyString = radio.settings.frequencyString, .modeString = radio.settings.modeString});
    if (!bytes.empty()) {
        radio.comComm1.Write(bytes);
    }
}

void RigCommands::LoadModePlan() {
    modePlan.clear();
    try {
        modePlan = ModePlanOf(files.Read(WorkingFile(directories, "BandPlan.txt")));
    } catch (const PlatformError&) {
        // Without a plan frequencies are set all the same.
    }
}

void RigCommands::WaitOutputDrained() {
    constexpr Tick kLongestMs = 2000;
    const Tick limit = desk.clock.TickMs() + kLongestMs;
    for (;;) {
        desk.RunPending();
        const Tick now = desk.clock.TickMs();
        if (radio.comComm1.OutputCount() < 1 || now >= limit) {
            return;
        }
        desk.clock.SleepUntil(now + 1);
    }
}

void RigCommands::DelayMs(int Milliseconds) {
    // The tick counts in 32 bits here. Close to where it wraps the pause is left out.
    constexpr Tick kWrap = Tick{1} << 32U;
    constexpr Tick kMargin = 2000;
    desk.RunPending();
    const auto pause = static_cast<Tick>(Milliseconds);
    const Tick now = desk.clock.TickMs();
    if (now % kWrap + pause <= kWrap - kMargin) {
        desk.clock.SleepUntil(now + pause);
    }
    desk.RunPending();
}

void RigCommands::Report(const std::string& title, const std::string& text) {
    desk.dialogs.Show(MessageBox{.title = title, .text = text, .buttons = Buttons::OK, .icon = Icon::Exclamation});
}

}  // namespace tallyhut
