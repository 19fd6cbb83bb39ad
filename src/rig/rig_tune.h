#pragma once

#include <string_view>

#include "forms/frmRigTune.h"
#include "rig/rig_commands.h"

namespace tallyhut {

/// The form that tunes the radio from the keyboard, and its scan. It works by ChangeFrequency and ChangeMode alone:
/// without a running poll it only counts.
struct RigTune {
    frmRigTune& form;
    const Radio& radio;
    RigCommands& commands;

    bool stepWaits = false;  ///< a tick of the scan has found the radio busy

    /// Go.
    void Command1_Click();
    void cmdTune_Click(int Index);
    void cmdBand_Click(int Index);
    /// Of the six mode buttons.
    void Mode_Click(std::string_view mode);
    void chkScan_Click();
    /// The next step of the scan. While a command is under way it waits: no frequency is passed over.
    void Timer1_Elapsed();
    /// The radio is free: takes the step that waits.
    void TakeWaitingStep();
    void EndScan();
    void txtFreq_Change();
    void txtFreq_KeyPress(int& KeyAscii);
    /// Of txtFrom and txtTo.
    static void Limit_KeyPress(int& KeyAscii);
    void Form_KeyDown(int& KeyCode, int Shift);
    /// Esc closes the form when nothing scans; what stands on it stays.
    void Form_KeyPress(int& KeyAscii);
    void cmdDone_Click();

private:
    float Step() const;
};

}  // namespace tallyhut
