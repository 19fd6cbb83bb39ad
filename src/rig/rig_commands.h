#pragma once

#include <string>
#include <vector>

#include "platform/files.h"
#include "rig/mode_plan.h"
#include "rig/radio.h"
#include "support/directories.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// Tunes the radio and sets its mode. Between the commands stand pauses that the radios need; events run at their begin
/// and end, so a caller finds that anything may have happened.
struct RigCommands {
    Radio& radio;
    const Files& files;
    const Directories& directories;
    Desk& desk;

    std::vector<BandPlanRow> modePlan = {};

    /// Sets the mode that fits a frequency in MHz, then the frequency. Nothing unless the radio is polled; the poll
    /// rests meanwhile, and after a failure, which is told in a box, until the next Test. Callers lend a copy: the
    /// variable may be overwritten.
    void ChangeFrequency(float& Frequency);
    /// Sets a mode by its name; an empty one becomes the one that the plan has for the frequency in MHz. A failure is
    /// told in a box.
    void ChangeMode(const float& Frequency, std::string& Mode);
    /// A plan that is missing is empty: no mode is set with a frequency then.
    void LoadModePlan();

    /// Lets events run until all bytes have left the machine, for 2 seconds at most.
    void WaitOutputDrained();
    /// Lets events run before and after, not in between.
    void DelayMs(int Milliseconds);

private:
    void TuneStepByStep(float& Frequency);
    bool CanCarry(float frequency);
    void SendMode(const std::string& mode);
    void SendFrequency(float& Frequency);
    void Report(const std::string& title, const std::string& text);
};

}  // namespace tallyhut
