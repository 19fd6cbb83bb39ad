#pragma once

#include <memory>

#include "app/machine.h"
#include "app/main_form_keys.h"
#include "log/entry_flow.h"
#include "log/log_reload.h"

namespace tallyhut {

/// The whole program: owns the forms and the units, and connects events to handlers. A host makes one, starts it and
/// runs it; the end comes as ProgramEnd from any of these calls.
struct Program {
    Program(const Machine& lent, const std::string& workingDirectory);

    Machine machine;
    Desk desk;
    Form1 form1;

    Directories directories;
    Preferences preferences;
    PreferencesFile preferencesFile;
    Prompts prompts;
    ContactLog log;
    LogFile logFile;
    SectionTable sections;
    OperatingTime time;
    EntryFields fields;
    MessageLine message;
    ContactList list;
    RateLabels rates;
    Duplicates duplicates;
    LogReload reload;
    Commit commit;
    EntryFlow entry;
    MainFormKeys keys;

    /// Takes the folder for itself, loads and shows the main form.
    void Start();
    /// Serves the operator until the program ends.
    [[noreturn]] void Run();
    /// The close box of the main window, and what a signal to terminate asks for.
    void RequestClose();

private:
    void BindMainForm();
    void BindEntryFields();
    void BindMenus();
    void ClaimFolder();
    void Form1_Load();
    [[noreturn]] void TellFatal(const std::exception& failure);

    std::unique_ptr<Files::FolderLock> folderLock_;
};

}  // namespace tallyhut
