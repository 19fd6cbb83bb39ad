#include "app/program.h"

#include <array>
#include <utility>

#include "app/about.h"
#include "platform/platform_error.h"
#include "support/form_scaling.h"
#include "support/one_device.h"

namespace tallyhut {
namespace {

constexpr const char* kProgramTitle = "Tallyhut Log";
constexpr const char* kTimeNotSaved = "Not all of the operating time could be saved. ";

/// In which order the forms are listed, and unloaded at the end.
constexpr std::array<std::string_view, 27> kFormOrder{
    "Form1",        "frmSplash",   "frmQ7ZZQLogo",  "frmEditCon",    "frmStationID",     "Form2",       "frmPorts",
    "Form5",        "Form6",       "RigControlfrm", "frmRigTune",    "frmFrequencyTest", "PhoneFrm",    "CWFrm",
    "frmCWStrings", "BlindFrm",    "PacketSpotfrm", "SpectrumMap",   "SectionMap",       "frmBandPlan", "GraphQSO",
    "frmbndstats",  "frmSections", "frmImport",     "frmKnownCalls", "frmCheckLog",      "frmNetwork",
};

std::string AlreadyRunning(const std::string& folder) {
    return "Another Tallyhut Log is already running in the folder " + folder + ".";
}

}  // namespace

Program::Program(const Machine& lent, const std::string& workingDirectory)
    : machine{lent},
      desk{lent.clock, lent.pump, lent.dialogs, lent.clipboard},
      supportPart{machine, desk, workingDirectory},
      logPart{machine, desk, supportPart},
      splash{desk},
      logo{desk},
      reportsPart{machine, desk, supportPart, logPart},
      importPart{machine, desk, supportPart, logPart},
      rigPart{machine, desk, supportPart, logPart},
      keyingPart{machine, desk, supportPart, logPart},
      voicePart{machine, desk, supportPart, logPart},
      spotsPart{machine, desk, supportPart, logPart, rigPart},
      viewsPart{machine, desk, supportPart, logPart, rigPart},
      networkPart{machine, desk, supportPart, logPart, rigPart},
      layout{logPart.form1, lent.screen, logPart.contest.preferences, logPart.preferencesFile},
      look{logPart.form1, lent.settings},
      folderChoice{lent.files, lent.dialogs, lent.settings, lent.environment},
      keys{logPart, rigPart, keyingPart, voicePart, spotsPart, viewsPart},
      startUp{machine, supportPart, logPart, layout} {
    desk.ArrangeForms(kFormOrder);
    Connect();
    for (Form* form : desk.Forms()) {
        if (form != &logPart.form1) {
            ScaleAtLoad(*form);
        }
    }
    supportPart.AddTo(told);
    logPart.AddTo(told);
    rigPart.AddTo(told);
    keyingPart.AddTo(told);
    voicePart.AddTo(told);
    spotsPart.AddTo(told);
    viewsPart.AddTo(told);
    told.Add("gCtrlKeyTaken", keys.gCtrlKeyTaken);
}

/// Where parts meet that do not stand on each other, and what the program itself does.
void Program::Connect() {
    Form1& form1 = logPart.form1;
    desk.onFatal = [this](const std::exception& failure) { TellFatal(failure); };
    desk.onFailure = [this](const PlatformError& failure) { TellFailure(failure.what()); };
    logPart.logFile.holdFolder = [this] { HoldFolder(); };
    splash.Form_Load = [this] { frmSplash_Load(); };
    logo.Timer1.Elapsed = [this] { logo.Unload(); };
    form1.Form_Load = [this] { startUp.Form1_Load(); };
    form1.Form_Unload = [this] { Form1_Unload(); };
    form1.Form_KeyDown = [this](int& KeyCode, int Shift) { keys.Form_KeyDown(KeyCode, Shift); };
    form1.Form_KeyPress = [this](int& KeyAscii) { keys.Form_KeyPress(KeyAscii); };
    look.Bind();
    form1.mnuExit.Click = [this] { mnuExit_Click(); };
    form1.mnuFormSize.Click = [this] { layout.mnuFormSize_Click(); };
    form1.mnuTaskbar.Click = [this] { layout.mnuTaskbar_Click(); };
    form1.mnuAbout.Click = [this] { machine.dialogs.Show(AboutBox()); };
    logPart.sectionSetup.changed = [this] {
        if (logPart.form1.lblHint.IsShown()) {
            logPart.panel.message.Write("");  // the operator has followed it
        }
        layout.LayOutMainForm();
        viewsPart.sectionMap.ShowOtherSections();
        spotsPart.posts.MarkNeededSections();
    };
    startUp.openSpotSource = [this] { spotsPart.OpenSource(); };
    layout.PacketResize = [this] { spotsPart.PacketResize(); };
    startUp.openRigPort = [this] { rigPart.OpenPort(); };
    ConnectKeying();
    ConnectVoice();
}

void Program::ConnectKeying() {
    // What is on the air ends when the operator says so, and not when a duplicate's red line goes.
    desk.isUrgent = [this](const Key& key) {
        return key.code == kKeyEsc && (voicePart.messages.IsOnTheAir() || keyingPart.sender.gCWSending != 0);
    };
    startUp.readCwMessages = [this] { keyingPart.ReadMessages(); };
    logPart.form1.Form_QueryUnload = [this](bool& Cancel) { Cancel = !keyingPart.MayClose(); };
    keyingPart.sender.over = [this] {
        if (std::exchange(closeWaits_, false)) {
            RequestClose();
        }
    };
    logPart.form1.Form_AnyKey = [this] { keys.EndRepeats(); };
    logPart.duplicates.typingIsSent = [this] { return keyingPart.messages.TakesTyping(); };
    keyingPart.stringsForm.Form_KeyDown = [this](int& KeyCode, int Shift) { keys.Form_KeyDown(KeyCode, Shift); };
    keyingPart.stringsForm.Form_KeyPress = [this](int& KeyAscii) { keys.Form_KeyPress(KeyAscii); };
    rigPart.rigConnection.portIsTaken = [this](int number) {
        FreePort(keyingPart.line, number);
        FreePort(voicePart.line, number);
    };
    rigPart.rigConnection.mayTakePort = [this](int number) {
        const bool isKeyed = Holds(keyingPart.line, number) && keyingPart.sender.gCWSending != 0;
        const bool isSpoken = Holds(voicePart.line, number) && voicePart.messages.IsOnTheAir();
        return !isKeyed && !isSpoken;  // a message is not cut off by a radio that comes back
    };
    keyingPart.line.lentPort = [this](int number) { return RadioPort(number); };
    keyingPart.line.lentPortHasFailed = [this] { rigPart.rigConnection.PortHasFailed(); };
    keyingPart.line.closeOther = [this] { voicePart.line.Close(); };
    keyingPart.winKey.closePhonePort = [this] { voicePart.line.Close(); };
}

void Program::ConnectVoice() {
    startUp.readVoiceSettings = [this] { voicePart.selections.ReadSettings(); };
    voicePart.line.lentPort = [this](int number) { return RadioPort(number); };
    voicePart.line.lentPortHasFailed = [this] { rigPart.rigConnection.PortHasFailed(); };
    voicePart.line.closeOther = [this] { keyingPart.line.Close(); };
    voicePart.line.closeKeyer = [this](int /*number*/) {
        if (keyingPart.messages.gWKVersion > 0) {
            keyingPart.winKey.cmdCloseWinkey_Click();
        }
    };
}

/// Rig and keys often share one cable: the radio's port, where it is the device of the number.
std::optional<LentPort> Program::RadioPort(int number) const {
    const RigConnection& rig = rigPart.rigConnection;
    if (!rigPart.comComm1->IsOpen() || !AreOneDevice(machine, rig.openNumber, number)) {
        return std::nullopt;
    }
    return LentPort{.port = *rigPart.comComm1, .dtrIsTaken = rig.TakesDtr(), .rtsIsTaken = rig.TakesRts()};
}

/// Whether a key is on the device of the radio's port.
bool Program::Holds(const KeyLine& line, int number) const {
    return line.lent || (line.IsOpen() && AreOneDevice(machine, line.openNumber, number));
}

/// The radio is about to take the port.
void Program::FreePort(KeyLine& line, int number) const {
    if (Holds(line, number)) {
        line.Close();
    }
}

/// The first step of a form's load, whatever else it does: to be called when the form's own is bound.
void Program::ScaleAtLoad(Form& form) {
    form.Form_Load = [this, &form, load = form.Form_Load] {
        ScaleSmallForm(form, machine.screen);
        if (load) {
            load();
        }
    };
}

void Program::ChooseDirectory() {
    const std::optional<std::string> chosen = folderChoice.Choose();
    if (!chosen) {
        desk.pump.EndProgram(0);
    }
    supportPart.directories.WorkingDirectory = *chosen;
    startUp.asksForSections = !sectionsAreTold_ && ContestIsNew();
}

/// Where there is a log or a list, the sections have been chosen.
bool Program::ContestIsNew() const try {
    return !logPart.logFile.Exists() && !logPart.sectionChoice.FolderHasList();
} catch (const PlatformError&) {  // the start tells of it
    return false;
}

void Program::TakeSections(const std::string& nameOrPath) {
    sections_ = SectionsNamed(machine.files, logPart.shippedSections.Lists(), nameOrPath);
    sectionsAreTold_ = true;
}

void Program::Start() {
    ClaimFolder();
    GiveSections();
    splash.Load();
    logPart.form1.Show();
    splash.Unload();
}

void Program::frmSplash_Load() {
    logo.Show();
    try {
        startUp.PrepareFolders();
        machine.files.RemoveLeftovers(logPart.copies.BackupFolder());
        machine.files.RemoveLeftovers(logPart.copies.KeptFolder());
    } catch (const PlatformError& failure) {
        EndForFailure(std::string{"The folder of the contest cannot be prepared.\n\n"} + failure.what());
    }
}

void Program::Run() {
    desk.RunUntil([] { return false; });
    desk.pump.EndProgram(0);
}

void Program::RequestClose() {
    desk.PostAction([this] {
        closeWaits_ = true;
        logPart.form1.RequestClose();
        closeWaits_ = keyingPart.sender.gCWSending == 1;
    });
}

/// Leaves at once: no form unloads, and no backup is made by this door.
void Program::mnuExit_Click() {
    EndWithTime(true);
}

void Program::Form1_Unload() {
    for (Form* form : desk.Forms()) {
        if (form != &logPart.form1) {
            form->Unload();
        }
    }
    logPart.copies.Backup();
    EndWithTime(false);
}

/// Who wants to leave is not kept here by a disk that is full, but hears what it has cost.
void Program::EndWithTime(bool withTotal) {
    voicePart.messages.Silence();
    try {
        logPart.time.CloseAtExit(withTotal);
    } catch (const PlatformError& failure) {
        const std::string text = kTimeNotSaved + std::string{failure.what()} + "\n\n" + logPart.logFile.WhatStands();
        EndForFailure(text + UnloggedEntry(text));
    }
    desk.pump.EndProgram(0);
}

/// Two programs on one folder would mix their serial numbers.
void Program::ClaimFolder() {
    const std::string& folder = supportPart.directories.WorkingDirectory;
    try {
        machine.files.CheckWritable(folder);
        folderLock_ = machine.files.Lock(folder);
    } catch (const PlatformError& failure) {
        EndForFailure(std::string{"The log cannot be kept here. "} + failure.what());
    }
    if (!folderLock_) {
        EndForFailure(AlreadyRunning(folder));
    }
    machine.files.RemoveLeftovers(folder);
}

/// A list that the folder has is never replaced.
void Program::GiveSections() {
    try {
        if (sections_ && !logPart.sectionChoice.FolderHasList()) {
            machine.files.Replace(logPart.sectionChoice.Path(), *sections_);
            startUp.sectionsAreGiven = true;
        }
    } catch (const PlatformError& failure) {
        EndForFailure(std::string{"The sections of the contest cannot be kept. "} + failure.what());
    }
}

/// The lock follows the folder that is written to: another one may stand at its path by now.
void Program::HoldFolder() {
    const std::string& folder = supportPart.directories.WorkingDirectory;
    if (folderLock_ && folderLock_->StillHolds()) {
        return;
    }
    std::unique_ptr<Files::FolderLock> lock = machine.files.Lock(folder);
    if (!lock) {
        throw PlatformError{AlreadyRunning(folder)};
    }
    folderLock_ = std::move(lock);
}

void Program::TellFailure(const std::string& text) {
    machine.dialogs.Show({.title = kProgramTitle, .text = text, .buttons = Buttons::OK, .icon = Icon::Exclamation});
}

void Program::EndForFailure(const std::string& text) {
    machine.dialogs.Show(
        MessageBox{.title = kProgramTitle, .text = text, .buttons = Buttons::OK, .icon = Icon::Critical});
    desk.pump.EndProgram(1);
}

/// The operating time first, as far as that can be done, so that one box says all.
void Program::TellFatal(const std::exception& failure) {
    voicePart.messages.Silence();  // no timer will let the transmitter go while the box stands
    std::string text = std::string{"The program must end.\n\n"} + failure.what();
    try {
        logPart.time.CloseAtExit(false);
    } catch (const std::exception& unsaved) {  // whatever it is, the first failure must be told
        text += "\n\n" + std::string{kTimeNotSaved} + unsaved.what();
    }
    const bool ofTheLog = dynamic_cast<const LogWriteError*>(&failure) != nullptr;
    text += "\n\n" + logPart.logFile.WhatStands() + (ofTheLog ? KeptElsewhere() : "");
    EndForFailure(text + UnloggedEntry(text));
}

/// Where more than the last contact has gone from the disk, what is in memory may be all there is.
std::string Program::KeptElsewhere() {
    std::int32_t onDisk = 0;
    try {
        onDisk = RecordCount(logPart.logFile.Read());
    } catch (const PlatformError&) {  // then there is nothing to count
    }
    if (onDisk + 1 >= logPart.contest.log.gContactCount()) {
        return "";
    }
    try {
        return " The contacts of this program are in " + logPart.copies.KeepTables() + ".";
    } catch (const std::exception& failure) {  // whatever it is, the first failure must be told
        return std::string{" The contacts of this program could not be kept elsewhere. "} + failure.what();
    }
}

/// The exchange that stands in the fields, where the text does not tell of it yet.
std::string Program::UnloggedEntry(const std::string& text) const {
    const Form1& form1 = logPart.form1;
    const Contact typed{.Ns = {},
                        .Nr = form1.txtNum.Text(),
                        .P = form1.txtPre.Text(),
                        .Call = form1.txtCall.Text(),
                        .Ck = form1.txtCK.Text(),
                        .Sec = form1.txtSec.Text(),
                        .Date = {},
                        .Time = {},
                        .Bnd = {},
                        .Frq = {}};
    const std::string exchange = ExchangeText(typed);
    const bool nothingTyped = exchange.find_first_not_of(' ') == std::string::npos;
    const bool isTold = text.find(": " + exchange) != std::string::npos;
    return nothingTyped || isTold ? "" : " This entry was not logged: " + exchange;
}

}  // namespace tallyhut
