#include "voice/voice_part.h"

#include "values/number.h"

namespace tallyhut {
namespace {

/// Without a port number no serial line is keyed. Beside the parallel port RTS goes along.
KeyOutputs Chosen(const PhoneFrm& form) {
    const bool isSerial = ParseNumber(form.Text10.Text()).value_or(0) > 0;
    return {.dtr = isSerial && form.Option2.Value(),
            .rts = isSerial && !form.Option2.Value(),
            .parallel = form.Option3.Value()};
}

}  // namespace

VoicePart::VoicePart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log)
    : form{desk},
      promptsForm{desk},
      commPhone{machine.serialPorts.NewPort()},
      messagePlayer{machine.sound.NewPlayer(form.name)},
      promptPlayer{machine.sound.NewPlayer(promptsForm.name)},
      recorder{machine.sound.NewRecorder()},
      line{form.Text10, form.Text11, [this] { return Chosen(form); }, *commPhone, machine.parallelPorts},
      messages{form, line, *messagePlayer, machine.files, support.directories, machine.dialogs},
      selections{form, messages, machine.files, support.directories, machine.serialPorts, machine.parallelPorts},
      recording{form, messages, *recorder, machine.files, support.directories, desk},
      prompts{promptsForm,         *promptPlayer,
              machine.clock,       {machine.files, support.directories, machine.dataFolder},
              log.preferencesFile, log.contest.preferences} {
    Bind(log);
}

void VoicePart::Bind(LogPart& log) {
    log.form1.mnuPhone.Click = [this] { form.Show(); };
    log.form1.mnuBlind.Click = [this] { promptsForm.ShowModal(); };
    form.Form_Activate = [this] { selections.ShowPorts(); };
    form.Form_QueryUnload = [this](bool& Cancel) {
        Cancel = true;  // messages are played from the form: its close box hides it
        recording.Stop();
        form.Hide();
    };
    form.Form_Unload = [this] {
        recording.Stop();
        selections.PhoneFrm_Unload();
    };
    BindMessages();
    BindOutput();
    BindRecording();
    BindPrompts(log);
}

void VoicePart::BindMessages() {
    for (const PhoneKey& key : kPhoneKeys) {
        (form.*key.browse).Click = [this, &key] { selections.Browse_Click(key); };
        TextBox& file = form.*key.file;
        file.KeyPress = WaveSelections::File_KeyPress;
        file.Change = [&file] { file.SetToolTip(file.Text()); };  // a path is longer than its field
    }
    form.Timer1.Elapsed = [this] { messages.Timer1_Elapsed(); };
    form.tmrRepeat.Elapsed = [this] { messages.tmrRepeat_Elapsed(); };
    form.Command11.Click = [this] {
        recording.Stop();  // it would record the message
        selections.Command11_Click();
    };
    form.Command12.Click = [this] { selections.Command12_Click(); };
    form.Command1.Click = [this] {
        recording.Stop();
        selections.Command1_Click();
    };
}

void VoicePart::BindOutput() {
    for (Option* option : {&form.Option1, &form.Option2, &form.Option3}) {
        option->Click = [this] { selections.ShowPorts(); };
    }
    form.Text10.LostFocus = [this] { selections.Text10_LostFocus(); };
    form.Text11.LostFocus = [this] { selections.ShowPorts(); };
    form.txtPHLoop.KeyPress = WaveSelections::txtPHLoop_KeyPress;
    form.txtPHLoop.LostFocus = [this] { selections.txtPHLoop_LostFocus(); };
}

void VoicePart::BindRecording() {
    for (int key = form.cmdRecord.First(); key <= form.cmdRecord.Last(); ++key) {
        form.cmdRecord(key).Click = [this, key] { recording.cmdRecord_Click(key); };
    }
    form.cmdStopRecord.Click = [this] { recording.cmdStopRecord_Click(); };
    form.cmdPlayBack.Click = [this] { recording.cmdPlayBack_Click(); };
    form.tmrLevel.Elapsed = [this] { recording.tmrLevel_Elapsed(); };
    form.Form_KeyPress = [this](int& KeyAscii) {
        recording.PhoneFrm_KeyPress(KeyAscii);
        if (KeyAscii == kKeyEsc && messages.StopsAtEsc()) {
            KeyAscii = 0;  // a second one closes the form
        }
    };
}

void VoicePart::BindPrompts(LogPart& log) {
    log.prompts.BlindKeyPhone = [this](std::string_view prompt) { prompts.BlindKeyPhone(prompt); };
    log.prompts.AwaitEnd = [this] { prompts.AwaitEnd(); };
    prompts.whileWaiting = [this] { messages.LetGoWhenOver(); };
    promptsForm.Form_Load = [this] { prompts.BlindFrm_Load(); };
    promptsForm.Form_Unload = [this] { prompts.BlindFrm_Unload(); };
    promptsForm.Option1.Click = [this] { prompts.Option1_Click(); };
    promptsForm.Option2.Click = [this] { prompts.Option2_Click(); };
    promptsForm.Option3.Click = [this] { prompts.Option3_Click(); };
    promptsForm.Command1.Click = [this] { prompts.Command1_Click(); };
}

void VoicePart::AddTo(ToldNames& told) const {
    told.Add("gPhoneRepeat", messages.gPhoneRepeat);
}

}  // namespace tallyhut
