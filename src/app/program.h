#pragma once

#include <memory>

#include "app/folder_choice.h"
#include "app/look_menu.h"
#include "app/main_form_keys.h"
#include "app/start_up.h"
#include "forms/Form2.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "forms/frmQ7ZZQLogo.h"
#include "forms/frmSplash.h"
#include "log/contact_editing.h"
#include "log/section_colours.h"
#include "reports/entry_form.h"
#include "reports/log_exports.h"
#include "reports/paper_reports.h"
#include "rig/frequency_test.h"
#include "rig/rig_setup.h"
#include "rig/rig_tune.h"
#include "support/help_page.h"
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
    Form2 form2;
    frmPorts portsForm;
    Form5 helpForm;
    Form6 colourForm;
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
    EntryForm entryForm;
    PaperReports paperReports;
    LogExports exports;
    SectionColours colours;
    HelpPage help;
    MainFormLayout layout;
    FolderChoice folderChoice;
    MainFormKeys keys;
    StartUp startUp;
    LookMenu look{form1, machine.settings};

    /// Asks for the working directory before the start; ends the program if none is chosen.
    void ChooseDirectory();
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
    void BindColourForm();
    void BindHelpForm();
    void ScaleAtLoad(Form& form);
    void BindRigForm();
    void BindTuneForm();
    void BindMenus();
    void BindReports();
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
