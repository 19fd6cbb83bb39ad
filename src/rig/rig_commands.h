#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "rig/rig_connection.h"
#include "support/directories.h"
#include "toolkit/desk.h"
#include "values/band_plan.h"

namespace tallyhut {

/// One step of a command to the radio.
struct CommandStep {
    enum class Kind {
        Discard,  ///< forgets what the radio has sent
        Drain,    ///< waits until all bytes have left the machine, for 2 seconds at most
        Pause,
        SendMode,
        SendFrequency,
    };

    Kind kind = Kind::Drain;
    int pauseMs = 0;
    std::optional<Tick> until = {};  ///< of a wait that has begun
};

/// A command to the radio: what it sets, and the steps that are left.
struct RigCommand {
    std::string mode;
    std::optional<float> frequency;  ///< MHz; none where the mode alone is set
    std::deque<CommandStep> steps = {};
};

/// Tunes the radio and sets its mode. A command is begun and comes back: its waits are waited for by a timer, and
/// everything else goes on meanwhile, but for the poll. There is one command at a time; what is asked for meanwhile
/// waits its turn, and the newest replaces one that waits.
struct RigCommands {
    Radio& radio;
    const Files& files;
    const Directories& directories;
    Desk& desk;
    RigConnection& connection;

    /// A command has failed; runs before the operator is told.
    std::function<void()> failed = [] {};
    /// No command is under way any more, and none has waited.
    std::function<void()> over = [] {};

    std::vector<BandPlanRow> modePlan = {};
    RigCommand command = {};                  ///< the one under way
    std::function<void()> waiting = nullptr;  ///< begins the next one

    /// Sets the mode that fits a frequency in MHz, then the frequency. Nothing unless the radio is polled; the poll
    /// rests meanwhile. A failure is told in one box, and then nothing more of it goes out: a radio that is lost is not
    /// tuned, a port that has gone is opened again, and after a command that cannot be made the poll rests until the
    /// next Test. Callers lend a copy: the variable may be overwritten.
    void ChangeFrequency(float& Frequency);
    /// Sets a mode by its name; an empty one becomes the one that the plan has for the frequency in MHz. A failure is
    /// told in a box.
    void ChangeMode(const float& Frequency, std::string& Mode);
    /// Runs what writes to the radio: at once, or when its turn comes.
    void InTurn(std::function<void()> begin);
    /// Ends the command under way where it stands, and forgets the one that waits. The poll is the caller's.
    void Abandon();
    /// A plan that is missing is empty: no mode is set with a frequency then.
    void LoadModePlan();
    /// The wait of the command under way may be over.
    void tmrCommand_Elapsed();

private:
    bool CanCarry(float& frequency);
    bool IsOutOfReach() const { return radio.state.lost || radio.state.portGone; }
    void Refuse(const std::string& title, const std::string& text);
    void Begin(RigCommand next);
    void Continue();
    bool MustWait(CommandStep& step);
    void Perform(CommandStep::Kind kind);
    void DiscardReplies();
    void SendMode();
    void SendFrequency();
    void End();
    void RestoreThePoll();
    void Fail(CommandStep::Kind kind, const std::string& why);
    void FailWithThePort(const std::string& why);
    void Report(const std::string& title, const std::string& text);
};

}  // namespace tallyhut
