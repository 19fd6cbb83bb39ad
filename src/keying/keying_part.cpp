#include "keying/keying_part.h"

#include "keying/message_keys.h"

namespace tallyhut {
namespace {

constexpr double kFasterLoop = 0.9;
constexpr double kSlowerLoop = 1.111111111111;

}  // namespace

KeyingPart::KeyingPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log)
    : form{desk},
      stringsForm{desk},
      comm{machine.serialPorts.NewPort()},
      line{form, *comm, machine.parallelPorts},
      sender{form, line, log.panel, machine.clock},
      messages{form, sender, log.panel, log.contest.preferences},
      setup{form,
            sender,
            messages,
            {machine.files, machine.settings, support.directories},
            machine.serialPorts,
            machine.parallelPorts,
            desk},
      strings{stringsForm, form, messages} {
    Bind(log);
}

void KeyingPart::Bind(LogPart& log) {
    Form1& form1 = log.form1;
    sender.enterContact = [&log] { log.commit.Mains(); };
    sender.WKTransmit = [this] { sender.gCWBuffer.clear(); };  // there is no device to take it
    form1.txtCall.Change = [this, &form1] {
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
    stringsForm.Form_KeyDown = [this](int& KeyCode, int Shift) { strings.Form_KeyDown(KeyCode, Shift); };
    stringsForm.Form_KeyPress = [this](int& KeyAscii) { strings.Form_KeyPress(KeyAscii); };
    stringsForm.Command1.Click = [this] { strings.Command1_Click(); };
    for (int row = stringsForm.Label1.First(); row <= stringsForm.Label1.Last(); ++row) {
        for (Label* label : {&stringsForm.Label1(row), &stringsForm.lblCWString(row)}) {
            label->DblClick = [this, row] { strings.Row_DblClick(row); };
        }
    }
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
}

}  // namespace tallyhut
