#pragma once

#include <memory>

#include "app/main_form_keys.h"
#include "app/start_up.h"
#include "forms/frmQ7ZZQLogo.h"
#include "forms/frmSplash.h"
#include "log/contact_editing.h"
#include "rig/frequency_test.h"
#include "rig/rig_setup.h"
#include "rig/rig_tune.h"
#include "support/ports_setup.h"

namespace tallyhut {

/// The whole program: owns the forms and the units, and connects events to handlers. A host makes one, starts it and
/// runs it; the end comes as ProgramEnd from any of these calls.
struct Program {
    Program(const Machine& lent, const std::string& workingDirectory);

    Machine machine;
    Desk desk;
    Form1 form1;
    frmSplash splash;
    frmQ7ZZQLogo logo;
    frmEditCon editForm;
    frmStationID stationForm;
    frmPorts portsForm;
    RigControlfrm rigForm;
    frmRigTune tuneForm;
    frmFrequencyTest frequencyTestForm;

    Directories directories;
    SharedPreferences shared;
    Preferences preferences;
    PreferencesFile preferencesFile;
    Prompts prompts;
    ContactLog log;
    LogFile logFile;
    SectionTable sections;
    EntryFields fields;
    MessageLine message;
    OperatingTime time;
    BandSelection band;
    PostContest postContest;
    ContactList list;
    RateLabels rates;
    Duplicates duplicates;
    LogReload reload;
    Commit commit;
    EntryFlow entry;
    ContactEditing editing;
    LogCopies copies;
    Station station;
    PortsSetup ports;
    std::unique_ptr<SerialPort> comComm1;
    RigSettings rigSettings;
    RigState rigState;
    PegasusFiles pegasus;
    BandConversion bandConversion;
    RigPoll rigPoll;
    RigCommands rigCommands;
    RigSetup rigSetup;
    RigTune rigTune;
    FrequencyTest frequencyTest;
    UtcOffsetCheck utcOffset;
    StartQuestion question;
    MainFormKeys keys;
    StartUp startUp;

    /// Takes the folder for itself, asks what a start asks, and shows the main form.
    void Start();
    /// Serves the operator until the program ends.
    [[noreturn]] void Run();
    /// The close box of the main window, and what a signal to terminate asks for.
    void RequestClose();

private:
    void BindMainForm();
    void BindEntryFields();
    void BindPostContest();
    void BindContacts();
    void BindEditForm();
    void BindStationForm();
    void BindPortsForm();
    void BindRigForm();
    void BindTuneForm();
    void BindMenus();
    void ClaimFolder();
    void frmSplash_Load();
    void Toggle(MenuEntry& entry, std::uint8_t& value);
    [[noreturn]] void mnuExit_Click();
    [[noreturn]] void Form1_Unload();
    [[noreturn]] void EndForFailure(const std::string& text);
    [[noreturn]] void TellFatal(const std::exception& failure);
    std::string UnsavedEntry() const;

    std::string shortDate_;
    std::unique_ptr<Files::FolderLock> folderLock_;
};

}  // namespace tallyhut
