#include "rig/rig_commands.h"

#include <utility>

#include "platform/platform_error.h"
#include "rig/mode_plan.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

using Kind = CommandStep::Kind;

constexpr const char* kFrequencyError = "Error Changing Frequency";
constexpr const char* kModeError = "Error Changing Mode";
constexpr const char* kLost = "The radio does not answer.";

/// The tick counts in 32 bits here. Close to where it wraps the pause is left out.
Tick EndOfPause(Tick now, int milliseconds) {
    constexpr Tick kWrap = Tick{1} << 32U;
    constexpr Tick kMargin = 2000;
    const auto pause = static_cast<Tick>(milliseconds);
    return now % kWrap + pause <= kWrap - kMargin ? now + pause : now;
}

/// Nothing for a mode that is empty.
void AddModeSteps(RigCommand& command) {
    constexpr int kPauseMs = 99;
    if (!command.mode.empty()) {
        command.steps.push_back({.kind = Kind::Drain});
        command.steps.push_back({.kind = Kind::Pause, .pauseMs = kPauseMs});
        command.steps.push_back({.kind = Kind::SendMode});
    }
    command.steps.push_back({.kind = Kind::Drain});
}

void AddFrequencySteps(RigCommand& command, const RigRow& rig) {
    command.steps.push_back({.kind = Kind::Drain});
    for (const int pause : rig.pausesMs) {
        command.steps.push_back({.kind = Kind::Pause, .pauseMs = pause});
    }
    command.steps.push_back({.kind = Kind::SendFrequency});
    command.steps.push_back({.kind = Kind::Drain});
}

}  // namespace

void RigCommands::ChangeFrequency(float& Frequency) {
    const float frequency = Frequency;
    if (!radio.state.polls || !CanCarry(Frequency)) {
        return;
    }
    if (IsOutOfReach()) {
        Refuse(kFrequencyError, kLost);
        return;
    }
    if (radio.Row().link == RigLink::Server) {
        if (!connection.server.Tune(WholeHertz(frequency), ModeForFrequency(modePlan, frequency))) {
            Refuse(kFrequencyError, kLost);
        }
        return;
    }
    InTurn([this, frequency] {
        RigCommand next{.mode = ModeForFrequency(modePlan, frequency), .frequency = frequency};
        next.steps.push_back({.kind = Kind::Discard});
        AddModeSteps(next);
        AddFrequencySteps(next, radio.Row());
        radio.form.tmrGetData.SetTimerEnabled(false);
        Begin(std::move(next));
    });
}

/// A number that no command holds costs nothing: it is told before anything is begun.
bool RigCommands::CanCarry(float& frequency) {
    const FrequencyCommand make = radio.Row().frequencyCommand;
    try {
        if (radio.Row().link == RigLink::Server) {
            WholeHertz(frequency);
        }
        if (make != nullptr) {
            make({.frequency = frequency,
                  .frequencyString = radio.settings.frequencyString,
                  .vfoDigit = radio.state.VfoDigit});
        }
    } catch (const ValueError& failure) {
        Refuse(kFrequencyError, failure.what());
        return false;
    }
    return true;
}

void RigCommands::ChangeMode(const float& Frequency, std::string& Mode) {
    if (radio.Row().link == RigLink::None) {
        return;
    }
    if (Mode.empty()) {
        Mode = ModeForFrequency(modePlan, Frequency);
    }
    if (Mode.empty()) {
        return;
    }
    if (IsOutOfReach()) {
        Refuse(kModeError, Mode + ' ' + kLost);
        return;
    }
    if (radio.Row().link == RigLink::Server) {
        if (!connection.server.SetMode(Mode)) {
            Refuse(kModeError, Mode + ' ' + kLost);
        }
        return;
    }
    InTurn([this, mode = Mode] {
        RigCommand next{.mode = mode, .frequency = {}};
        AddModeSteps(next);
        Begin(std::move(next));
    });
}

void RigCommands::InTurn(std::function<void()> begin) {
    if (radio.state.commanding) {
        waiting = std::move(begin);
    } else {
        begin();
    }
}

void RigCommands::Begin(RigCommand next) {
    command = std::move(next);
    radio.state.commanding = true;
    Continue();
}

void RigCommands::tmrCommand_Elapsed() {
    radio.form.tmrCommand.SetTimerEnabled(false);
    Continue();
}

void RigCommands::Continue() {
    while (!command.steps.empty()) {
        if (MustWait(command.steps.front())) {
            return;
        }
        const Kind kind = command.steps.front().kind;
        command.steps.pop_front();
        Perform(kind);
    }
    if (radio.state.commanding) {
        End();
    }
}

/// Has the timer look again where the step is a wait that is not over.
bool RigCommands::MustWait(CommandStep& step) {
    constexpr Tick kLongestDrainMs = 2000;
    const bool drains = step.kind == Kind::Drain;
    if (!drains && step.kind != Kind::Pause) {
        return false;
    }
    const Tick now = desk.clock.TickMs();
    if (!step.until) {
        step.until = drains ? now + kLongestDrainMs : EndOfPause(now, step.pauseMs);
    }
    if (now >= *step.until || (drains && radio.comComm1.OutputCount() < 1)) {
        return false;
    }
    radio.form.tmrCommand.SetInterval(drains ? 1 : static_cast<std::int32_t>(*step.until - now));
    radio.form.tmrCommand.SetTimerEnabled(true);
    return true;
}

void RigCommands::Perform(Kind kind) {
    try {
        if (kind == Kind::Discard) {
            DiscardReplies();
        } else if (kind == Kind::SendMode) {
            SendMode();
        } else if (kind == Kind::SendFrequency) {
            SendFrequency();
        }
    } catch (const PlatformError& failure) {
        FailWithThePort(failure.what());
    } catch (const ValueError& failure) {
        Fail(kind, failure.what());
    }
}

void RigCommands::DiscardReplies() {
    if (radio.Row().link != RigLink::Files) {
        radio.comComm1.ReadAll();
    }
    radio.state.RxBuffer.clear();
}

void RigCommands::SendMode() {
    const ModeCommand make = radio.Row().modeCommand;
    if (make == nullptr) {
        return;
    }
    const std::string bytes = make({.mode = command.mode,
                                    .frequencyString = radio.settings.frequencyString,
                                    .modeString = radio.settings.modeString});
    if (!bytes.empty()) {
        radio.comComm1.Write(bytes);
    }
}

/// The settings may have changed since the command was begun: what goes out is made from those of now.
void RigCommands::SendFrequency() {
    const RigRow& rig = radio.Row();
    float frequency = command.frequency.value();
    if (rig.link == RigLink::Files) {
        radio.pegasus.WritePegasusFile(frequency, radio.state.RigMode);
    } else if (rig.frequencyCommand != nullptr) {
        radio.comComm1.Write(rig.frequencyCommand({.frequency = frequency,
                                                   .frequencyString = radio.settings.frequencyString,
                                                   .vfoDigit = radio.state.VfoDigit}));
    }
}

void RigCommands::End() {
    radio.state.commanding = false;
    RestoreThePoll();
    if (const std::function<void()> next = std::exchange(waiting, nullptr)) {
        next();
    }
    if (!radio.state.commanding) {
        over();
    }
}

void RigCommands::RestoreThePoll() {
    if (radio.form.tmrGetData.Enabled() != radio.state.polls) {
        radio.form.tmrGetData.SetTimerEnabled(radio.state.polls);
    }
}

void RigCommands::Abandon() {
    command.steps.clear();
    waiting = nullptr;
    radio.form.tmrCommand.SetTimerEnabled(false);
    radio.state.commanding = false;
}

/// All is as it is to be before the box opens: events run while it stands. A mode that fails ends no frequency command.
void RigCommands::Fail(Kind kind, const std::string& why) {
    waiting = nullptr;
    if (kind != Kind::SendMode) {
        radio.state.polls = false;
        Abandon();
        failed();
        Report(kFrequencyError, why);
        return;
    }
    failed();
    const std::string text = command.mode + ' ' + why;
    if (!command.frequency) {
        command.steps.clear();
        End();
    }
    Report(kModeError, text);
}

/// One box for the whole command: what is left of it would fail as well.
void RigCommands::FailWithThePort(const std::string& why) {
    const bool tunes = command.frequency.has_value();
    const std::string text = tunes ? why : command.mode + ' ' + why;
    Abandon();
    RestoreThePoll();
    connection.PortHasFailed();
    Refuse(tunes ? kFrequencyError : kModeError, text);
}

/// Ends a scan and tells.
void RigCommands::Refuse(const std::string& title, const std::string& text) {
    failed();
    Report(title, text);
}

void RigCommands::LoadModePlan() {
    modePlan.clear();
    try {
        modePlan = ModePlanOf(files.Read(WorkingFile(directories, "BandPlan.txt")));
    } catch (const PlatformError&) {
        // Without a plan frequencies are set all the same.
    }
}

void RigCommands::Report(const std::string& title, const std::string& text) {
    desk.dialogs.Show(MessageBox{.title = title, .text = text, .buttons = Buttons::OK, .icon = Icon::Exclamation});
}

}  // namespace tallyhut
