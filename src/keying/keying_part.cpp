#include "keying/keying_part.h"

#include "keying/message_keys.h"

namespace tallyhut {
namespace {

constexpr double kFasterLoop = 0.9;
constexpr double kSlowerLoop = 1.111111111111;

KeyOutputs Chosen(const CWFrm& form) {
    return {.dtr = form.Option2.Value(), .rts = form.Option1.Value(), .parallel = form.Option3.Value()};
}

}  // namespace

KeyingPart::KeyingPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log)
    : form{desk},
      stringsForm{desk},
      winKeyForm{desk},
      practiceForm{desk},
      comm{machine.serialPorts.NewPort()},
      line{form.Text10, form.Text14, [this] { return Chosen(form); }, *comm, machine.parallelPorts},
      sender{form, line, log.panel, machine.clock},
      messages{form, sender, log.panel, log.contest.preferences},
      setup{form,
            sender,
            messages,
            {machine.files, machine.settings, support.directories},
            machine.serialPorts,
            machine.parallelPorts,
            desk},
      strings{stringsForm, form, messages},
      device{machine.serialPorts, machine.clock},
      winKey{winKeyForm, form, device, sender, messages, {machine.files, support.directories}, machine.serialPorts},
      practice{practiceForm, form, messages, sender, desk, machine.seed} {
    Bind(log);
}

void KeyingPart::Bind(LogPart& log) {
    Form1& form1 = log.form1;
    sender.enterContact = [&log] { log.commit.Mains(); };
    log.callChanged = [this, &form1] {
        messages.gCWCall = form1.txtCall.Text();
        setup.ShowPreview();
    };
    form1.lblNumCurCon.Change = [this, &form1] {
        messages.gCWNumber = form1.lblNumCurCon.Caption();
        setup.ShowPreview();
    };
    form1.mnuCW.Click = [this] { form.Show(); };
    form1.mnuCWStrings.Click = [this] { strings.Show(); };
    form.Form_Load = [this] { setup.CWFrm_Load(); };
    form.Form_Activate = [this] { setup.CWFrm_Activate(); };
    form.Form_QueryUnload = [this](bool& Cancel) { setup.CWFrm_QueryUnload(Cancel); };
    form.Form_Unload = [this] { setup.CWFrm_Unload(); };
    form.tmrRepeat.Elapsed = [this] { messages.tmrRepeat_Elapsed(); };
    setup.done = [this, &log] {
        if (sender.gCWKeying != kKeyNone) {
            strings.ShowMinimised();
        }
        log.panel.desk.Activate(log.form1);
    };
    BindMessages();
    BindOutput();
    BindSpeed();
    BindTiming();
    BindStrings();
    BindWinKey();
    BindPractice();
}

void KeyingPart::BindMessages() {
    for (const MessageKey& key : kMessageKeys) {
        TextBox& message = form.*key.message;
        message.Change = [this, &message] { setup.Message_Change(message); };
        message.GotFocus = [this, &message] { setup.Message_GotFocus(message); };
        message.KeyPress = CwSetup::Message_KeyPress;
    }
    form.Command1.Click = [this] { setup.Command1_Click(); };
    form.Command4.Click = [this] { setup.Command4_Click(); };
    form.Command7.Click = [this] { setup.Command7_Click(); };
}

void KeyingPart::BindOutput() {
    form.Option1.Click = [this] { setup.Option_Click(kKeyRts); };
    form.Option2.Click = [this] { setup.Option_Click(kKeyDtr); };
    form.Option3.Click = [this] { setup.Option_Click(kKeyPrinter); };
    form.Option4.Click = [this] { setup.Option_Click(kKeyNone); };
    form.Option5.Click = [this] { setup.Option_Click(kKeyWinKey); };
    form.cmdConfWinkey.Click = [this] { setup.configureWinKey(); };
    form.Text10.KeyPress = CwSetup::Number_KeyPress;
    form.Text10.GotFocus = [this] { CwSetup::Number_GotFocus(form.Text10); };
    form.Text10.LostFocus = [this] { setup.Text10_LostFocus(); };
    form.Text14.LostFocus = [this] { setup.ShowPorts(); };
}

void KeyingPart::BindSpeed() {
    form.Text11.KeyPress = CwSetup::Number_KeyPress;
    form.Text11.GotFocus = [this] { CwSetup::Number_GotFocus(form.Text11); };
    form.Text11.LostFocus = [this] { setup.Text11_LostFocus(); };
    form.Command2.Click = [this] { messages.UpDown1_UpClick(); };
    form.Command3.Click = [this] { messages.UpDown1_DownClick(); };
    form.txtSpace.KeyPress = CwSetup::txtSpace_KeyPress;
    form.txtSpace.GotFocus = [this] { CwSetup::Number_GotFocus(form.txtSpace); };
    form.txtSpace.LostFocus = [this] { setup.txtSpace_LostFocus(); };
    form.txtSpace.Change = [this] { setup.txtSpace_Change(); };
    form.Command5.Click = [this] { setup.ChangeSpace(-1); };
    form.Command6.Click = [this] { setup.ChangeSpace(1); };
    form.txtCWLoop.KeyPress = CwSetup::txtCWLoop_KeyPress;
    form.txtCWLoop.LostFocus = [this] { setup.txtCWLoop_LostFocus(); };
}

void KeyingPart::BindTiming() {
    form.optTimer.Click = [this] { setup.optTimer_Click(); };
    form.OptSleep.Click = [this] { setup.OptSleep_Click(); };
    form.optLoop.Click = [this] { setup.optLoop_Click(); };
    form.txtLoop.Change = [this] { setup.txtLoop_Change(); };
    form.cmdLoopFaster.Click = [this] { setup.TrimLoop(kFasterLoop); };
    form.cmdLoopSlower.Click = [this] { setup.TrimLoop(kSlowerLoop); };
}

void KeyingPart::BindStrings() {
    stringsForm.Form_Activate = [this] { strings.frmCWStrings_Activate(); };
    stringsForm.Command1.Click = [this] { strings.Command1_Click(); };
    for (int row = stringsForm.Label1.First(); row <= stringsForm.Label1.Last(); ++row) {
        for (Label* label : {&stringsForm.Label1(row), &stringsForm.lblCWString(row)}) {
            label->DblClick = [this, row] { strings.Row_DblClick(row); };
        }
    }
}

void KeyingPart::BindWinKey() {
    line.closeKeyer = [this](int number) {
        if (device.IsOpen() && winKey.gWKPort == number) {
            winKey.cmdCloseWinkey_Click();
        }
    };
    sender.WKTransmit = [this] { winKey.WKTransmit(); };
    messages.wk_clearbuf = [this] { device.wk_clearbuf(); };
    messages.wk_getstatus = [this] { return device.wk_getstatus(); };
    messages.wk_backspace = [this] { device.wk_backspace(); };
    setup.loadWinKey = [this] { winKeyForm.Load(); };
    setup.configureWinKey = [this] { winKeyForm.ShowModal(); };
    form.Text11.Change = [this] { winKey.FollowSpeed(); };
    winKeyForm.Form_Load = [this] { winKey.frmWinKey_Load(); };
    winKeyForm.Form_Activate = [this] { winKey.frmWinKey_Activate(); };
    winKeyForm.Form_Unload = [this] { winKey.frmWinKey_Unload(); };
    winKeyForm.tmrTrouble.Elapsed = [this] { winKey.tmrTrouble_Elapsed(); };
    winKeyForm.cmdOpenWinkey.Click = [this] { winKey.cmdOpenWinkey_Click(); };
    winKeyForm.cmdCloseWinkey.Click = [this] { winKey.cmdCloseWinkey_Click(); };
    winKeyForm.cmdDone.Click = [this] { winKey.cmdDone_Click(); };
    winKeyForm.cmdStop.Click = [this] { winKey.cmdStop_Click(); };
    winKeyForm.Command3.Click = [this] { winKey.Command3_Click(); };
    for (TextBox* field : {&winKeyForm.txtWKComPort, &winKeyForm.txtWKWPM, &winKeyForm.txtWeight, &winKeyForm.txtRatio,
                           &winKeyForm.txtLeadIn, &winKeyForm.txtTail}) {
        field->KeyPress = WinKeySetup::Digits_KeyPress;
    }
    winKeyForm.txtWKComPort.LostFocus = [this] { winKey.txtWKComPort_LostFocus(); };
    winKeyForm.txtWKWPM.LostFocus = [this] { winKey.txtWKWPM_LostFocus(); };
    winKeyForm.txtWeight.LostFocus = [this] { winKey.txtWeight_LostFocus(); };
    winKeyForm.txtRatio.LostFocus = [this] { winKey.txtRatio_LostFocus(); };
    winKeyForm.txtLeadIn.LostFocus = [this] { winKey.LeadTail_LostFocus(winKeyForm.txtLeadIn); };
    winKeyForm.txtTail.LostFocus = [this] { winKey.LeadTail_LostFocus(winKeyForm.txtTail); };
    for (const WinKeyOption& row : kWinKeyModes) {
        (winKeyForm.*row.option).Click = [this, &row] { winKey.Mode_Click(row.value); };
    }
    for (const WinKeyOption& row : kWinKeyPins) {
        (winKeyForm.*row.option).Click = [this, &row] { winKey.Pins_Click(row.value); };
    }
}

void KeyingPart::BindPractice() {
    setup.sendPractice = [this] { practice.Open(); };
    practiceForm.Form_Load = [this] { practice.frmCodePractice_Load(); };
    practiceForm.Form_QueryUnload = [this](bool& Cancel) { practice.frmCodePractice_QueryUnload(Cancel); };
    practiceForm.Text1.KeyPress = CodePractice::Text1_KeyPress;
    practiceForm.Text5.KeyPress = [this](int& KeyAscii) { practice.Text5_KeyPress(KeyAscii); };
    practiceForm.Command1.Click = [this] { practice.Command1_Click(); };
    practiceForm.Command2.Click = [this] { practice.Command2_Click(); };
    practiceForm.Command3.Click = [this] { practice.Command3_Click(); };
    practiceForm.Command4.Click = [this] { practice.Command4_Click(); };
    practiceForm.Command5.Click = [this] { practiceForm.Text2.SetText(""); };
    practiceForm.Command6.Click = [this] { practiceForm.Text1.SetText(""); };
    practiceForm.Command7.Click = [this] { practice.Command7_Click(); };
    practiceForm.Command8.Click = [this] { practice.Command8_Click(); };
}

void KeyingPart::ReadMessages() {
    form.Load();
    setup.LoadCWSettings();
}

bool KeyingPart::MayClose() {
    sender.gCWBuffer.clear();
    return sender.gCWSending == 0;
}

void KeyingPart::AddTo(ToldNames& told) const {
    told.Add("gCWBuffer", sender.gCWBuffer);
    told.Add("gCWSending", sender.gCWSending);
    told.Add("gCWKeying", sender.gCWKeying);
    told.Add("gCWRepeat", sender.gCWRepeat);
    told.Add("gKeyboardCW", sender.gKeyboardCW);
    told.Add("gKeyboardCw", sender.gKeyboardCW);
    told.Add("gLoopsPer60ms", sender.gLoopsPer60ms);
    told.Add("gCWCall", messages.gCWCall);
    told.Add("gCWNumber", messages.gCWNumber);
    told.Add("gCWRst", messages.gCWRst);
    told.Add("gWKVersion", messages.gWKVersion);
    told.Add("gWKStatus", messages.gWKStatus);
    told.Add("gWKPort", winKey.gWKPort);
    told.Add("gWKPinConfig", winKey.gWKPinConfig);
    told.Add("gWKMode", winKey.gWKMode);
    told.Add("mSendText", practice.mSendText);
}

}  // namespace tallyhut
