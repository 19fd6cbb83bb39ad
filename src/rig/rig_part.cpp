#include "rig/rig_part.h"

#include "support/port_texts.h"

namespace tallyhut {

RigPart::RigPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log)
    : rigForm{desk},
      tuneForm{desk},
      frequencyTestForm{desk},
      comComm1{machine.serialPorts.NewPort()},
      pegasus{machine.files, machine.settings, machine.environment},
      radio{rigForm, rigState, rigSettings, log.contest.preferences, *comComm1, pegasus},
      bandConversion{log.band, log.contest.log},
      rigConnection{radio, machine, desk},
      rigPoll{radio, bandConversion, rigConnection, machine.clock},
      rigCommands{radio, machine.files, support.directories, desk, rigConnection},
      rigSetup{radio, log.preferencesFile, rigConnection, rigCommands, machine.files, support.directories, desk},
      rigLine{log.form1, radio},
      rigTune{tuneForm, radio, rigCommands},
      frequencyTest{frequencyTestForm, rigCommands, *comComm1} {
    Bind(log.form1, machine.serialPorts);
}

void RigPart::Bind(Form1& form1, const SerialPorts& ports) {
    BindRigForm(ports);
    BindTuneForm();
    BindFrequencyTest();
    form1.mnuRig.Click = [this] { rigForm.Show(); };
    form1.mnuRigTune.Click = [this] { tuneForm.Show(); };
}

void RigPart::BindRigForm(const SerialPorts& ports) {
    rigForm.Form_Load = [this] { rigSetup.RigControlfrm_Load(); };
    rigForm.Form_Activate = [this, &ports] { SetPortToolTips(rigForm.optComm, ports); };
    rigForm.Form_QueryUnload = [this](bool& Cancel) { rigSetup.RigControlfrm_QueryUnload(Cancel); };
    rigForm.Form_Unload = [this] { rigSetup.RigControlfrm_Unload(); };
    rigForm.tmrGetData.Elapsed = [this] {
        rigPoll.tmrGetData_Elapsed();
        rigLine.Show();
    };
    rigConnection.server.read = [this](const RigReading& reading) {
        rigPoll.TakeReading(reading);
        rigLine.Show();
    };
    rigConnection.server.linkChanged = [this] { rigSetup.ShowServerLink(); };
    rigSetup.pollingEnded = [this] { rigLine.Show(); };
    rigForm.tmrCommand.Elapsed = [this] { rigCommands.tmrCommand_Elapsed(); };
    rigForm.List1.Click = [this] { rigSetup.List1_Click(); };
    rigForm.txtFreq.Change = [this] { rigSetup.txtFreq_Change(); };
    rigForm.txtMode.Change = [this] { rigSetup.txtMode_Change(); };
    rigForm.Command1.Click = [this] { rigSetup.Command1_Click(); };
    rigForm.Command2.Click = [this] { rigSetup.Command2_Click(); };
    rigForm.Command3.Click = [this] { rigSetup.Command3_Click(); };
    rigForm.Command4.Click = [this] { rigSetup.Command4_Click(); };
    rigForm.cmdDone.Click = [this] { rigSetup.cmdDone_Click(); };
}

void RigPart::BindTuneForm() {
    tuneForm.Form_KeyDown = [this](int& KeyCode, int Shift) { rigTune.Form_KeyDown(KeyCode, Shift); };
    tuneForm.Form_KeyPress = [this](int& KeyAscii) { rigTune.Form_KeyPress(KeyAscii); };
    tuneForm.txtFreq.Change = [this] { rigTune.txtFreq_Change(); };
    tuneForm.txtFreq.KeyPress = [this](int& KeyAscii) { rigTune.txtFreq_KeyPress(KeyAscii); };
    for (TextBox* limit : {&tuneForm.txtFrom, &tuneForm.txtTo}) {
        limit->KeyPress = RigTune::Limit_KeyPress;
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
    rigCommands.failed = [this] {
        rigTune.EndScan();
        rigLine.Show();
    };
    rigCommands.over = [this] { rigTune.TakeWaitingStep(); };
}

void RigPart::BindFrequencyTest() {
    frequencyTestForm.Form_Load = [this] { frequencyTest.Form_Load(); };
    frequencyTestForm.Text1.KeyPress = [this](int& KeyAscii) { frequencyTest.Text1_KeyPress(KeyAscii); };
    frequencyTestForm.Text2.KeyPress = [this](int& KeyAscii) { frequencyTest.Text2_KeyPress(KeyAscii); };
    frequencyTestForm.Command1.Click = [this] { frequencyTest.Command1_Click(); };
    frequencyTestForm.Command2.Click = [this] { frequencyTest.Command2_Click(); };
    frequencyTestForm.cmdClose.Click = [this] { frequencyTest.cmdClose_Click(); };
    rigSetup.openFrequencyTest = [this] { frequencyTest.Open(); };
}

void RigPart::OpenPort() {
    rigForm.Load();
    rigSetup.Command1_Click();
}

void RigPart::AddTo(ToldNames& told) const {
    told.Add("RxBuffer", rigState.RxBuffer);
    told.Add("RigFrequency", rigState.RigFrequency);
    told.Add("RigMode", rigState.RigMode);
    told.Add("ReadPhase", rigState.ReadPhase);
    told.Add("ModeTurn", rigState.ModeTurn);
    told.Add("VfoDigit", rigState.VfoDigit);
    told.Add("FormLoading", rigSetup.FormLoading);
}

}  // namespace tallyhut
