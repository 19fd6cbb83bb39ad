#include "app/program.h"

#include <cstdlib>

#include "platform/platform_error.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr const char* kProgramTitle = "Tallyhut Log";
constexpr std::string_view kFirstMessage = "Select a band from the menu bar and click Log \"Time On\" below!";
constexpr double kMinutesAnHour = 60;

MessageBox Failure(std::string text) {
    return {.title = kProgramTitle, .text = std::move(text), .buttons = Buttons::OK, .icon = Icon::Critical};
}

/// The compiler does not see through the virtual call that it never returns.
[[noreturn]] void EndWith(EventPump& pump, int status) {
    pump.EndProgram(status);
    std::abort();
}

}  // namespace

Program::Program(const Machine& lent, const std::string& workingDirectory)
    : machine{lent},
      desk{lent.clock, lent.pump, lent.dialogs, lent.clipboard},
      form1{desk},
      directories{.WorkingDirectory = workingDirectory, .DataDirectory = {}, .SharedDirectory = {}},
      preferencesFile{lent.files, directories, preferences},
      logFile{lent.files, directories},
      fields{form1, preferences, log},
      message{form1},
      list{form1, log, lent.clock},
      rates{form1, log, preferences, lent.clock},
      duplicates{fields, message, log, time, preferences, prompts, desk},
      reload{form1, log, sections, preferences, logFile, fields, list, rates, desk},
      commit{form1, log, sections, preferences, logFile, fields, message, time, duplicates, list, rates, desk},
      entry{form1, desk, log, preferences, preferencesFile, fields, message, time, duplicates, commit, prompts} {
    desk.onFatal = [this](const std::exception& failure) { TellFatal(failure); };
    BindMainForm();
    BindEntryFields();
    BindMenus();
}

void Program::BindMainForm() {
    form1.Form_Load = [this] { Form1_Load(); };
    form1.Form_Unload = [this] { desk.pump.EndProgram(0); };
    form1.Form_KeyDown = [this](int& KeyCode, int Shift) { keys.Form_KeyDown(KeyCode, Shift); };
    form1.Form_KeyPress = [this](int& KeyAscii) { keys.Form_KeyPress(KeyAscii); };
    form1.Timer1.Elapsed = [this] { rates.TimeStats(); };
    form1.cmdClear.Click = [this] { entry.cmdClear_Click(); };
    form1.cmdDup.Click = [this] { duplicates.cmdDup_Click(); };
    form1.ListView1.ColumnClick = [this](int column) {
        form1.ListView1.SortOnce(static_cast<std::size_t>(column - 1));
    };
}

void Program::BindEntryFields() {
    form1.txtNum.KeyPress = [this](int& KeyAscii) { entry.txtNum_KeyPress(KeyAscii); };
    form1.txtPre.KeyPress = [this](int& KeyAscii) { entry.txtPre_KeyPress(KeyAscii); };
    form1.txtCall.KeyPress = [this](int& KeyAscii) { entry.txtCall_KeyPress(KeyAscii); };
    form1.txtCK.KeyPress = [this](int& KeyAscii) { entry.txtCK_KeyPress(KeyAscii); };
    form1.txtSec.KeyPress = [this](int& KeyAscii) { entry.txtSec_KeyPress(KeyAscii); };
    form1.txtNum.GotFocus = [this] { entry.txtNum_GotFocus(); };
    form1.txtPre.GotFocus = [this] { entry.txtPre_GotFocus(); };
    form1.txtCall.GotFocus = [this] { entry.txtCall_GotFocus(); };
    form1.txtCK.GotFocus = [this] { entry.txtCK_GotFocus(); };
    form1.txtSec.GotFocus = [this] { entry.txtSec_GotFocus(); };
    form1.txtCall.LostFocus = [this] { entry.txtCall_LostFocus(); };
    form1.txtNum.KeyGate = [this](const Key& key) { return duplicates.HoldsKey(key); };
    form1.txtCall.KeyGate = [this](const Key& key) { return duplicates.HoldsKey(key); };
}

void Program::BindMenus() {
    form1.mnuOpen.Click = [this] { reload.mnuopen2(); };
    form1.mnuExit.Click = [this] { desk.pump.EndProgram(0); };
    form1.numopt.Click = [this] { entry.numopt_Click(); };
    form1.callopt.Click = [this] { entry.callopt_Click(); };
    form1.mnuCallTwice.Click = [this] { entry.mnuCallTwice_Click(); };
}

void Program::Start() {
    ClaimFolder();
    form1.Show();
}

void Program::Run() {
    desk.RunUntil([] { return false; });
    EndWith(desk.pump, 0);
}

void Program::RequestClose() {
    desk.PostAction([this] { form1.RequestClose(); });
}

/// Two programs on one folder would mix their serial numbers.
void Program::ClaimFolder() {
    try {
        machine.files.CheckWritable(directories.WorkingDirectory);
        folderLock_ = machine.files.Lock(directories.WorkingDirectory);
    } catch (const PlatformError& failure) {
        machine.dialogs.Show(Failure(std::string{"The log cannot be kept here. "} + failure.what()));
        desk.pump.EndProgram(1);
    }
    if (!folderLock_) {
        machine.dialogs.Show(
            Failure("Another Tallyhut Log is already running in the folder " + directories.WorkingDirectory + "."));
        desk.pump.EndProgram(1);
    }
}

void Program::Form1_Load() {
    message.Write(kFirstMessage);
    form1.lblNumCurCon.SetCaption(" " + NumberForm(log.gContactCount + 1));
    sections.Fill(form1);
    preferences.gUtcOffset = static_cast<float>(machine.clock.MinutesToUtc() / kMinutesAnHour);
    if (machine.files.FileExists(WorkingFile(directories, "nspref.txt"))) {
        preferencesFile.Load();
    }
    entry.CheckTabModeEntry();
    entry.SetTabPositions();
    if (logFile.Exists()) {
        reload.mnuopen2();
    } else {
        reload.ShowCounts();
        rates.TimeStats();
    }
}

void Program::TellFatal(const std::exception& failure) {
    const bool ofTheLog = dynamic_cast<const LogWriteError*>(&failure) != nullptr;
    const std::string rest = ofTheLog ? "" : "\n\nEvery contact that was logged is in " + logFile.Path() + ".";
    machine.dialogs.Show(Failure(std::string{"The program must end.\n\n"} + failure.what() + rest));
    EndWith(desk.pump, 1);
}

}  // namespace tallyhut
