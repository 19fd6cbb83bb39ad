#pragma once

#include <functional>

#include "log/preferences_file.h"
#include "rig/radio.h"
#include "rig/rig_commands.h"
#include "rig/rig_connection.h"

namespace tallyhut {

/// The radio's form: its settings and their file, opening and closing the port, starting and ending the poll.
struct RigSetup {
    Radio& radio;
    PreferencesFile& preferencesFile;
    RigConnection& connection;
    RigCommands& commands;
    Files& files;
    const Directories& directories;
    Desk& desk;

    /// Shows the form on which commands are tried out; returns when it is closed.
    std::function<void()> openFrequencyTest = [] {};
    std::function<void()> pollingEnded = [] {};

    bool FormLoading = false;  ///< a row that is selected meanwhile brings no defaults

    void RigControlfrm_Load();
    /// Says how the connection to a server stands.
    void ShowServerLink();
    void RigControlfrm_QueryUnload(bool& Cancel);
    void RigControlfrm_Unload();
    void List1_Click();
    void txtFreq_Change();
    void txtMode_Change();
    /// Test: commits the form to the settings and starts the poll. At start-up with the form hidden.
    void Command1_Click();
    /// End Test.
    void Command2_Click();
    /// Change Frequency.
    void Command3_Click();
    /// Copies what came back.
    void Command4_Click();
    /// Tests again, saves and hides. Throws PlatformError when the settings cannot be saved.
    void cmdDone_Click();

    /// What the file lacks or what is damaged in it keeps the form's values.
    void ReadRigSettings();
    void WriteRigSettings();
    /// A failure ends the poll and the command under way, is told in a box, and the form shown where it is hidden.
    void OpenRadio();
    void StartPolling();

private:
    void ShowRecord(const RigRecord& record);
    void ShowLinkOfRow();
    void CommitForm();
    void StopPolling();
    void ShowPolling(bool polling);
    void SayFarewell();
};

}  // namespace tallyhut
