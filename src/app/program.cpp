#include "app/program.h"

#include "app/about.h"
#include "platform/platform_error.h"
#include "support/form_scaling.h"
#include "support/port_texts.h"

namespace tallyhut {
namespace {

constexpr const char* kProgramTitle = "Tallyhut Log";

}  // namespace

Program::Program(const Machine& lent, const std::string& workingDirectory)
    : machine{lent},
      desk{lent.clock, lent.pump, lent.dialogs, lent.clipboard},
      form1{desk},
      splash{desk},
      logo{desk},
      editForm{desk},
      stationForm{desk},
      form2{desk},
      portsForm{desk},
      helpForm{desk},
      colourForm{desk},
      rigForm{desk},
      tuneForm{desk},
      frequencyTestForm{desk},
      directories{.WorkingDirectory = workingDirectory, .DataDirectory = {}, .SharedDirectory = {}},
      shared{lent.files},
      preferencesFile{lent.files, directories, preferences},
      logFile{lent.files, directories},
      fields{form1, preferences, log},
      message{form1},
      time{form1, desk, lent.files, directories, preferences, preferencesFile, fields, message},
      band{form1, preferences, preferencesFile, time, desk},
      postContest{form1, desk, message},
      list{form1, log, lent.clock},
      rates{form1, log, preferences, lent.clock},
      duplicates{fields, message, log, time, preferences, prompts, desk},
      reload{form1, log, sections, preferences, logFile, fields, list, rates, desk},
      commit{form1, log,         sections,   preferences, logFile, fields, message,
             time,  postContest, duplicates, list,        rates,   desk},
      entry{form1, desk, log, preferences, preferencesFile, fields, message, time, duplicates, commit, prompts},
      editing{form1, editForm, desk, log, sections, logFile, fields, list, reload},
      copies{desk, lent.files, directories, log, logFile, preferences, preferencesFile, time, rates, reload},
      station{form1, stationForm, desk, preferences, preferencesFile, lent.settings},
      ports{portsForm, desk, lent.serialPorts},
      comComm1{lent.serialPorts.NewPort()},
      pegasus{lent.files, lent.settings, lent.environment},
      bandConversion{band, log},
      rigPoll{rigForm, rigState, rigSettings, preferences, *comComm1, pegasus, bandConversion},
      rigCommands{rigForm, rigState, rigSettings, preferences, *comComm1, pegasus, lent.files, directories, desk},
      rigSetup{rigForm,   rigState,   rigSettings, preferences, preferencesFile, rigPoll, rigCommands,
               *comComm1, lent.files, directories, desk},
      rigTune{tuneForm, preferences, rigCommands},
      frequencyTest{frequencyTestForm, rigCommands, *comComm1},
      utcOffset{desk, preferences, preferencesFile},
      question{desk, station, copies, reload, entry, preferences},
      entryForm{form1,      form2,    desk,          directories, preferences, log,
                lent.files, sections, lent.settings, shared,      lent.printer},
      paperReports{form1, desk, directories, log, sections, preferences, logFile, reload, message, lent.printer},
      exports{form1, desk, directories, preferences, log, lent.files},
      colours{colourForm, desk, preferences, preferencesFile, reload},
      help{helpForm, lent.files, directories},
      layout{form1, lent.screen, preferences, preferencesFile},
      folderChoice{lent.files, lent.dialogs, lent.settings, lent.environment},
      keys{preferences, entry},
      startUp{machine, form1, directories, shared, preferences, preferencesFile, log,   sections,
              message, time,  band,        entry,  utcOffset,   question,        layout},
      shortDate_{lent.environment.ShortDatePicture()} {
    time.shortDate = shortDate_;
    exports.shortDate = shortDate_;
    station.SetSharedPreference = [this](std::string_view key, std::string_view value, bool saveNow) {
        shared.SetSharedPreference(key, value, saveNow);
    };
    desk.onFatal = [this](const std::exception& failure) { TellFatal(failure); };
    SectionTable::PlaceLabels(form1);
    BindMainForm();
    BindEntryFields();
    BindPostContest();
    BindContacts();
    BindEditForm();
    BindStationForm();
    BindColourForm();
    BindHelpForm();
    BindPortsForm();
    BindRigForm();
    BindTuneForm();
    BindMenus();
    BindReports();
    for (Form* form : desk.Forms()) {
        if (form != &form1) {
            ScaleAtLoad(*form);
        }
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

void Program::BindMainForm() {
    form1.Form_Load = [this] { startUp.Form1_Load(); };
    form1.Form_Unload = [this] { Form1_Unload(); };
    form1.Form_KeyDown = [this](int& KeyCode, int Shift) { keys.Form_KeyDown(KeyCode, Shift); };
    form1.Form_KeyPress = [this](int& KeyAscii) { keys.Form_KeyPress(KeyAscii); };
    form1.Timer1.Elapsed = [this] { rates.TimeStats(); };
    form1.Timer2.Elapsed = [this] { time.Timer2_Elapsed(); };
    form1.cmdClear.Click = [this] { entry.cmdClear_Click(); };
    form1.cmdDup.Click = [this] { duplicates.cmdDup_Click(); };
    form1.cmdLogOn.Click = [this] { time.cmdLogOn_Click(); };
    form1.Label30.DblClick = [this] { band.Label30_DblClick(); };
    splash.Form_Load = [this] { frmSplash_Load(); };
    logo.Timer1.Elapsed = [this] { logo.Unload(); };
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
    form1.txtPre.KeyGate = [this](const Key& key) { return entry.txtPre_HoldsKey(key); };
    form1.txtCall.KeyGate = [this](const Key& key) { return duplicates.HoldsKey(key); };
}

void Program::BindPostContest() {
    form1.txtPostConTime.GotFocus = [this] { postContest.txtPostConTime_GotFocus(); };
    form1.txtPostConDate.GotFocus = [this] { postContest.txtPostConDate_GotFocus(); };
    form1.txtPostConTime.KeyPress = [this](int& KeyAscii) {
        if (postContest.txtPostConTime_KeyPress(KeyAscii)) {
            commit.Mains();
        }
    };
    form1.txtPostConDate.KeyPress = [this](int& KeyAscii) {
        if (postContest.txtPostConDate_KeyPress(KeyAscii)) {
            commit.Mains();
        }
    };
}

void Program::BindContacts() {
    form1.cmdEdit.Click = [this] { editing.cmdEdit_Click(); };
    form1.cmdDelete.Click = [this] { editing.cmdDelete_Click(); };
    form1.cmdList.Click = [this] { editing.cmdList_Click(); };
    form1.ListView1.Click = [this] { editing.ListView1_Click(); };
    form1.ListView1.MouseDown = [this](MouseButton button) { editing.ListView1_MouseDown(button); };
    form1.ListView1.ColumnClick = [this](int column) { editing.ListView1_ColumnClick(column); };
}

void Program::BindEditForm() {
    editForm.Form_Load = [this] { editing.frmEditCon_Load(); };
    for (TextBox* field : {&editForm.txtEditNum, &editForm.txtEditPre, &editForm.txtEditCall, &editForm.txtEditCk,
                           &editForm.txtEditSec, &editForm.txtEditBnd}) {
        field->KeyPress = [this](int& KeyAscii) { editing.TextField_KeyPress(KeyAscii); };
    }
    editForm.txtEditNumSent.KeyPress = [this](int& KeyAscii) { editing.txtEditNumSent_KeyPress(KeyAscii); };
    editForm.txtEditDate.KeyPress = [this](int& KeyAscii) { editing.txtEditDate_KeyPress(KeyAscii); };
    editForm.txtEditTime.KeyPress = [this](int& KeyAscii) { editing.txtEditTime_KeyPress(KeyAscii); };
    editForm.txtEditDate.LostFocus = [this] { editing.txtEditDate_LostFocus(); };
    editForm.txtEditTime.LostFocus = [this] { editing.txtEditTime_LostFocus(); };
    editForm.cmdDone.Click = [this] { editing.cmdDone_Click(); };
    editForm.cmdDeleteDupe.Click = [this] { editing.cmdDeleteDupe_Click(); };
}

void Program::BindStationForm() {
    stationForm.Form_Load = [this] { station.frmStationID_Load(); };
    for (TextBox* field : {&stationForm.Text1, &stationForm.Text3, &stationForm.Text4, &stationForm.Text5}) {
        field->KeyPress = [this](int& KeyAscii) { station.TextField_KeyPress(KeyAscii); };
    }
    stationForm.Text6.KeyPress = [this](int& KeyAscii) { station.Text6_KeyPress(KeyAscii); };
    stationForm.Text6.LostFocus = [this] { station.Text6_LostFocus(); };
    stationForm.Command1.Click = [this] { station.Command1_Click(); };
}

void Program::BindPortsForm() {
    portsForm.Form_Load = [this] { ports.frmPorts_Load(); };
    portsForm.lstPorts.Click = [this] { ports.lstPorts_Click(); };
    portsForm.lstDevices.Click = [this] { ports.lstDevices_Click(); };
    portsForm.lstDevices.DblClick = [this] { ports.cmdUse_Click(); };
    portsForm.lstDevices.KeyPress = [this](int& KeyAscii) { ports.Device_KeyPress(KeyAscii); };
    portsForm.txtDevice.KeyPress = [this](int& KeyAscii) { ports.Device_KeyPress(KeyAscii); };
    portsForm.cmdUse.Click = [this] { ports.cmdUse_Click(); };
    portsForm.cmdLook.Click = [this] { ports.cmdLook_Click(); };
    portsForm.cmdDone.Click = [this] { ports.cmdDone_Click(); };
}

void Program::BindColourForm() {
    colourForm.Form_Load = [this] { colours.Form6_Load(); };
    colourForm.Command1.Click = [this] { colours.Command1_Click(); };
    colourForm.Command3.Click = [this] { colours.Command3_Click(); };
    colourForm.Command6.Click = [this] { colours.Command6_Click(); };
}

void Program::BindHelpForm() {
    helpForm.Form_Load = [this] { help.Form5_Load(); };
    helpForm.Command1.Click = [this] { help.Command1_Click(); };
    helpForm.Command2.Click = [this] { help.Command2_Click(); };
}

void Program::BindRigForm() {
    rigForm.Form_Load = [this] { rigSetup.RigControlfrm_Load(); };
    rigForm.Form_Activate = [this] { SetPortToolTips(rigForm.optComm, machine.serialPorts); };
    rigForm.Form_QueryUnload = [this](bool& Cancel) { rigSetup.RigControlfrm_QueryUnload(Cancel); };
    rigForm.Form_Unload = [this] { rigSetup.RigControlfrm_Unload(); };
    rigForm.tmrGetData.Elapsed = [this] { rigPoll.tmrGetData_Elapsed(); };
    rigForm.List1.Click = [this] { rigSetup.List1_Click(); };
    rigForm.txtFreq.Change = [this] { rigSetup.txtFreq_Change(); };
    rigForm.txtMode.Change = [this] { rigSetup.txtMode_Change(); };
    rigForm.Command1.Click = [this] { rigSetup.Command1_Click(); };
    rigForm.Command2.Click = [this] { rigSetup.Command2_Click(); };
    rigForm.Command3.Click = [this] { rigSetup.Command3_Click(); };
    rigForm.Command4.Click = [this] { rigSetup.Command4_Click(); };
    rigForm.cmdDone.Click = [this] { rigSetup.cmdDone_Click(); };
    keys.onCtrlKey['R'] = [this] { rigForm.Show(); };
    startUp.openRigPort = [this] {
        rigForm.Load();
        rigSetup.Command1_Click();
    };
}

void Program::BindTuneForm() {
    tuneForm.Form_KeyDown = [this](int& KeyCode, int Shift) { rigTune.Form_KeyDown(KeyCode, Shift); };
    tuneForm.Form_KeyPress = [this](int& KeyAscii) { rigTune.Form_KeyPress(KeyAscii); };
    tuneForm.txtFreq.Change = [this] { rigTune.txtFreq_Change(); };
    tuneForm.txtFreq.KeyPress = [this](int& KeyAscii) { rigTune.txtFreq_KeyPress(KeyAscii); };
    for (TextBox* limit : {&tuneForm.txtFrom, &tuneForm.txtTo}) {
        limit->KeyPress = [this](int& KeyAscii) { rigTune.Limit_KeyPress(KeyAscii); };
    }
    for (int i = tuneForm.cmdTune.First(); i <= tuneForm.cmdTune.Last(); ++i) {
        tuneForm.cmdTune(i).Click = [this, i] { rigTune.cmdTune_Click(i); };
    }
    for (int i = tuneForm.cmdBand.First(); i <= tuneForm.cmdBand.Last(); ++i) {
        tuneForm.cmdBand(i).Click = [this, i] { rigTune.cmdBand_Click(i); };
    }
    tuneForm.cmdCW.Click = [this] { rigTune.Mode_Click("CW"); };
    tuneForm.cmdUSB.Click = [this] { rigTune.Mode_Click("USB"); };
    tuneForm.cmdLSB.Click = [this] { rigTune.Mode_Click("LSB"); };
    tuneForm.cmdAM.Click = [this] { rigTune.Mode_Click("AM"); };
    tuneForm.cmdFM.Click = [this] { rigTune.Mode_Click("FM"); };
    tuneForm.cmdRTTY.Click = [this] { rigTune.Mode_Click("RTTY"); };
    tuneForm.chkScan.Click = [this] { rigTune.chkScan_Click(); };
    tuneForm.Command1.Click = [this] { rigTune.Command1_Click(); };
    tuneForm.cmdDone.Click = [this] { rigTune.cmdDone_Click(); };
    tuneForm.Timer1.Elapsed = [this] { rigTune.Timer1_Elapsed(); };
    form1.mnuRigTune.Click = [this] { tuneForm.Show(); };
    keys.onCtrlKey['G'] = [this] { tuneForm.Show(); };

    frequencyTestForm.Text1.KeyPress = [this](int& KeyAscii) { frequencyTest.Text1_KeyPress(KeyAscii); };
    frequencyTestForm.Text2.KeyPress = [this](int& KeyAscii) { frequencyTest.Text2_KeyPress(KeyAscii); };
    frequencyTestForm.Command1.Click = [this] { frequencyTest.Command1_Click(); };
    frequencyTestForm.Command2.Click = [this] { frequencyTest.Command2_Click(); };
    frequencyTestForm.cmdClose.Click = [this] { frequencyTest.cmdClose_Click(); };
    rigSetup.openFrequencyTest = [this] { frequencyTest.Open(); };
}

void Program::BindMenus() {
    form1.mnuOpen.Click = [this] { reload.mnuopen2(); };
    form1.mnuNew.Click = [this] { copies.mnuNew_Click(); };
    form1.mnuArchive.Click = [this] { copies.mnuArchive_Click(); };
    form1.mnuRestore.Click = [this] { copies.mnuRestore_Click(); };
    form1.mnuPostContest.Click = [this] { postContest.mnuPostContest_Click(); };
    form1.mnuExit.Click = [this] { mnuExit_Click(); };
    form1.mnuSetup.Click = [this] { station.mnuSetup_Click(); };
    form1.mnuRig.Click = [this] { rigForm.Show(); };
    form1.mnuPorts.Click = [this] { ports.mnuPorts_Click(); };
    for (const BandRow& row : kBands) {
        (form1.*row.entry).Click = [this, &row] { band.ChooseBand(row.band); };
    }
    form1.numopt.Click = [this] { entry.numopt_Click(); };
    form1.callopt.Click = [this] { entry.callopt_Click(); };
    form1.mnuCallTwice.Click = [this] { entry.mnuCallTwice_Click(); };
    form1.mnuFormSize.Click = [this] { layout.mnuFormSize_Click(); };
    form1.mnuTaskbar.Click = [this] { layout.mnuTaskbar_Click(); };
    form1.mnuColors.Click = [this] { colours.mnuColors_Click(); };
    form1.mnuDXSpotsColor.Click = [this] { Toggle(form1.mnuDXSpotsColor, preferences.gColorNeededSpots); };
    form1.mnuAudioAlert.Click = [this] { Toggle(form1.mnuAudioAlert, preferences.gAudioAlert); };
    form1.mnuHelp.Click = [this] { help.mnuHelp_Click(); };
    look.Bind();
    form1.mnuAbout.Click = [this] { machine.dialogs.Show(AboutBox()); };
}

void Program::BindReports() {
    form2.Form_Load = [this] { entryForm.Form2_Load(); };
    form2.Text2.KeyPress = [this](int& KeyAscii) { entryForm.Text2_KeyPress(KeyAscii); };
    form2.Command1.Click = [this] { entryForm.Command1_Click(); };
    form2.Command2.Click = [this] { entryForm.Command2_Click(); };
    form2.Command3.Click = [this] { entryForm.Command3_Click(); };
    form2.Command4.Click = [this] { entryForm.Command4_Click(); };
    form1.mnuCabrillo.Click = [this] { entryForm.Open(); };
    form1.mnuSummary.Click = [this] { entryForm.Open(); };
    form1.expADIF.Click = [this] { exports.expADIF_Click(); };
    form1.mnuExport.Click = [this] { exports.mnuExport_Click(); };
    form1.mnuCopyListtoClipboard.Click = [this] { exports.mnuCopyListtoClipboard_Click(); };
    form1.mnuPrintLog.Click = [this] { paperReports.PrintLog(); };
    form1.mnuPrintDupe.Click = [this] { paperReports.PrintDupeSheet(); };
    form1.mnuWriteLog.Click = [this] { paperReports.WriteLogFile(); };
    form1.mnuWriteDupe.Click = [this] { paperReports.WriteDupeFile(); };
}

void Program::Toggle(MenuEntry& menuEntry, std::uint8_t& value) {
    value = value == 1 ? 0 : 1;
    menuEntry.SetChecked(value == 1);
    preferencesFile.SavePref();
}

void Program::ChooseDirectory() {
    const std::optional<std::string> chosen = folderChoice.Choose();
    if (!chosen) {
        desk.pump.EndProgram(0);
    }
    directories.WorkingDirectory = *chosen;
}

void Program::Start() {
    ClaimFolder();
    splash.Load();
    form1.Show();
    splash.Unload();
}

void Program::frmSplash_Load() {
    logo.Show();
    try {
        startUp.PrepareFolders();
    } catch (const PlatformError& failure) {
        EndForFailure(std::string{"The folder of the contest cannot be prepared.\n\n"} + failure.what());
    }
}

void Program::Run() {
    desk.RunUntil([] { return false; });
    desk.pump.EndProgram(0);
}

void Program::RequestClose() {
    desk.PostAction([this] { form1.RequestClose(); });
}

/// Leaves at once: no form unloads, and no backup is made by this door.
void Program::mnuExit_Click() {
    time.CloseAtExit(true);
    desk.pump.EndProgram(0);
}

void Program::Form1_Unload() {
    for (Form* form : desk.Forms()) {
        if (form != &form1) {
            form->Unload();
        }
    }
    copies.Backup();
    time.CloseAtExit(false);
    desk.pump.EndProgram(0);
}

/// Two programs on one folder would mix their serial numbers.
void Program::ClaimFolder() {
    try {
        machine.files.CheckWritable(directories.WorkingDirectory);
        folderLock_ = machine.files.Lock(directories.WorkingDirectory);
    } catch (const PlatformError& failure) {
        EndForFailure(std::string{"The log cannot be kept here. "} + failure.what());
    }
    if (!folderLock_) {
        EndForFailure("Another Tallyhut Log is already running in the folder " + directories.WorkingDirectory + ".");
    }
}

void Program::EndForFailure(const std::string& text) {
    machine.dialogs.Show(
        MessageBox{.title = kProgramTitle, .text = text, .buttons = Buttons::OK, .icon = Icon::Critical});
    desk.pump.EndProgram(1);
}

void Program::TellFatal(const std::exception& failure) {
    const bool ofTheLog = dynamic_cast<const LogWriteError*>(&failure) != nullptr;
    EndForFailure(std::string{"The program must end.\n\n"} + failure.what() + (ofTheLog ? "" : UnsavedEntry()));
}

/// What a failure elsewhere loses: nothing but the exchange that stands in the fields.
std::string Program::UnsavedEntry() const {
    const std::string logged = "\n\nEvery contact that was logged is in " + logFile.Path() + ".";
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
    return nothingTyped ? logged : logged + " This entry was not logged: " + exchange;
}

}  // namespace tallyhut
