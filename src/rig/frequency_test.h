#pragma once

#include "forms/frmFrequencyTest.h"
#include "rig/rig_commands.h"

namespace tallyhut {

/// Tries commands on the radio while it is polled; what comes back shows on the radio's form. Failures are silent but
/// for what ChangeFrequency tells.
struct FrequencyTest {
    frmFrequencyTest& form;
    RigCommands& commands;
    SerialPort& comComm1;

    /// Shows the form; returns when it has been closed.
    void Open();
    /// A server takes no raw commands.
    void Form_Load();
    /// Sends the raw command: at once, or behind the command that is under way.
    void Command1_Click();
    /// Tunes.
    void Command2_Click();
    /// Enter sends what stands in the box.
    void Text1_KeyPress(int& KeyAscii);
    void Text2_KeyPress(int& KeyAscii);
    void cmdClose_Click();

private:
    void Send(std::string_view bytes);
};

}  // namespace tallyhut
