#pragma once

#include <memory>

#include "app/folder_choice.h"
#include "app/look_menu.h"
#include "app/main_form_keys.h"
#include "app/main_form_layout.h"
#include "app/start_up.h"
#include "forms/frmQ7ZZQLogo.h"
#include "forms/frmSplash.h"
#include "import/import_part.h"
#include "keying/keying_part.h"
#include "network/network_part.h"
#include "reports/reports_part.h"
#include "rig/rig_part.h"
#include "spots/spots_part.h"
#include "views/views_part.h"
#include "voice/voice_part.h"

namespace tallyhut {

/// The whole program: holds its parts, starts and ends. A host makes one, starts it and runs it; the end comes as
/// ProgramEnd from any of these calls.
struct Program {
    Program(const Machine& lent, const std::string& workingDirectory);

    Machine machine;
    Desk desk;
    ToldNames told;

    SupportPart supportPart;
    LogPart logPart;
    frmSplash splash;
    frmQ7ZZQLogo logo;
    ReportsPart reportsPart;
    ImportPart importPart;
    RigPart rigPart;
    KeyingPart keyingPart;
    VoicePart voicePart;
    SpotsPart spotsPart;
    ViewsPart viewsPart;
    NetworkPart networkPart;

    MainFormLayout layout;
    LookMenu look;
    FolderChoice folderChoice;
    MainFormKeys keys;
    StartUp startUp;

    /// The sections of a folder that has no list, told before the start: the name of a shipped list, or a file. Throws
    /// ValueError, in one line, for what is neither.
    void TakeSections(const std::string& nameOrPath);
    /// Asks for the working directory before the start, and at the start for the sections of a new contest; ends the
    /// program if no directory is chosen.
    void ChooseDirectory();
    /// Takes the folder for itself, asks what a start asks, and shows the main form.
    void Start();
    /// Serves the operator until the program ends.
    [[noreturn]] void Run();
    /// What a signal to terminate asks for: the close box of the main window, again when the message that refuses it
    /// has been sent.
    void RequestClose();

private:
    void Connect();
    void ConnectKeying();
    void ConnectVoice();
    std::optional<LentPort> RadioPort(int number) const;
    bool Holds(const KeyLine& line, int number) const;
    void FreePort(KeyLine& line, int number) const;
    void ScaleAtLoad(Form& form);
    void ClaimFolder();
    void HoldFolder();
    void GiveSections();
    bool ContestIsNew() const;
    void frmSplash_Load();
    [[noreturn]] void mnuExit_Click();
    [[noreturn]] void Form1_Unload();
    [[noreturn]] void EndWithTime(bool withTotal);
    void TellFailure(const std::string& text);
    [[noreturn]] void EndForFailure(const std::string& text);
    [[noreturn]] void TellFatal(const std::exception& failure);
    std::string UnloggedEntry(const std::string& text) const;
    std::string KeptElsewhere();

    std::unique_ptr<Files::FolderLock> folderLock_;
    bool sectionsAreTold_ = false;
    std::optional<std::string> sections_;  ///< the Sections.txt of a folder without one
    bool closeWaits_ = false;              ///< for the end of a message
};

}  // namespace tallyhut
