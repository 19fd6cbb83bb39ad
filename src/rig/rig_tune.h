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

    /// Go.
    void Command1_Click();
    void cmdTune_Click(int Index);
    void cmdBand_Click(int Index);
    /// Of the six mode buttons.
    void Mode_Click(std::string_view mode);
    void chkScan_Click();
    /// The next step of the scan.
    void Timer1_Elapsed();
    void txtFreq_Change();
    void txtFreq_KeyPress(int& KeyAscii);
    /// Of txtFrom and txtTo.
    void Limit_KeyPress(int& KeyAscii);
    void Form_KeyDown(int& KeyCode, int Shift);
    void Form_KeyPress(int& KeyAscii);
    void cmdDone_Click();

private:
    float Step() const;
};

}  // namespace tallyhut
