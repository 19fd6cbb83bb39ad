#include "voice/wave_selections.h"

#include <algorithm>
#include <array>

#include "toolkit/desk.h"
#include "values/number.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kFileName = "wave2.txt";
const MessageBox kQuoteBox{.title = "Browse",
                           .text = "A file whose name holds a quote cannot be chosen. Please rename it first.",
                           .buttons = Buttons::OK,
                           .icon = Icon::Exclamation};
constexpr double kRepeatLimit = 60;           // seconds, of what is typed
constexpr double kLongestRepeat = 2'000'000;  // of what stands in the file: as long as a timer counts
constexpr double kMsASecond = 1000;

struct RecordField {
    std::string PhoneRecord::*stored;
    TextBox PhoneFrm::*shown;
    bool isTrimmed = false;  ///< in the file
};
constexpr std::array kFields{
    RecordField{&PhoneRecord::Text1, &PhoneFrm::Text1, true},
    RecordField{&PhoneRecord::Text2, &PhoneFrm::Text2, true},
    RecordField{&PhoneRecord::Text3, &PhoneFrm::Text3, true},
    RecordField{&PhoneRecord::Text4, &PhoneFrm::Text4, true},
    RecordField{&PhoneRecord::Text5, &PhoneFrm::Text5, true},
    RecordField{&PhoneRecord::Text6, &PhoneFrm::Text6, true},
    RecordField{&PhoneRecord::Text7, &PhoneFrm::Text7, true},
    RecordField{&PhoneRecord::Text8, &PhoneFrm::Text8, true},
    RecordField{&PhoneRecord::Text9, &PhoneFrm::Text9, true},
    RecordField{&PhoneRecord::Text10, &PhoneFrm::Text10},
    RecordField{&PhoneRecord::Text11, &PhoneFrm::Text11},
    RecordField{&PhoneRecord::txtPHLoop, &PhoneFrm::txtPHLoop},
};

/// By the number in the file.
constexpr std::array kLines{&PhoneFrm::Option1, &PhoneFrm::Option2, &PhoneFrm::Option3};

}  // namespace

void WaveSelections::ReadSettings() {
    form.Load();
    PhoneRecord record = Shown();
    const bool isWhole = ReadPhoneRecord(files.Read(WorkingFile(directories, kFileName)), record);
    Show(record);
    if (!isWhole) {
        throw ValueError{std::string{kFileName} + " is damaged"};
    }
}

PhoneRecord WaveSelections::Shown() const {
    PhoneRecord record;
    for (const RecordField& field : kFields) {
        const std::string& text = (form.*field.shown).Text();
        record.*field.stored = field.isTrimmed ? Trim(text) : text;
    }
    const auto* const line = std::ranges::find_if(kLines, [this](auto option) { return (form.*option).Value(); });
    record.line = line == kLines.end() ? 0 : static_cast<std::uint8_t>(line - kLines.begin());
    return record;
}

void WaveSelections::Show(const PhoneRecord& record) {
    for (const RecordField& field : kFields) {
        (form.*field.shown).SetText(record.*field.stored);
    }
    if (record.line < kLines.size()) {
        (form.*kLines.at(record.line)).SetValue(true);
    }
    const double seconds = ParseNumber(record.txtPHLoop).value_or(0);
    SetRepeatInterval(seconds >= 0 && seconds < kLongestRepeat ? seconds : 0);
}

void WaveSelections::SetRepeatInterval(double seconds) {
    form.tmrRepeat.SetInterval(ToInt32(seconds * kMsASecond));
}

void WaveSelections::PhoneFrm_Unload() {
    messages.Silence();
    messages.line.Close();
}

void WaveSelections::ShowPorts() {
    if (!form.IsVisible()) {
        return;  // looking for devices takes time
    }
    const KeyLineTexts texts = TextsOf(messages.line, serialPorts, parallelPorts);
    form.lblDevice.SetCaption(texts.device);
    form.lblRegister.SetCaption(texts.parallel);
    form.lblLines.SetCaption(texts.note);
}

void WaveSelections::Browse_Click(const PhoneKey& key) {
    const FileRequest request{.filter = "(*.wav)|*.wav", .folder = directories.WorkingDirectory};
    const std::optional<std::string> chosen = messages.dialogs.OpenFile(request);
    if (!chosen) {
        return;
    }
    if (chosen->find('"') != std::string::npos) {
        messages.dialogs.Show(kQuoteBox);
        return;
    }
    (form.*key.file).SetText(*chosen);
    form.Command1.SetFocus();
}

void WaveSelections::Command11_Click() {
    messages.FKeyPhone(kKeyF1);
    if (form.IsVisible()) {
        form.Command1.SetFocus();
    }
    if (messages.gPhoneRepeat == 1) {
        form.Command12.SetVisible(true);
    }
}

void WaveSelections::Command12_Click() {
    messages.gPhoneRepeat = 0;
    form.Command12.SetVisible(false);
}

void WaveSelections::Command1_Click() {
    form.Hide();  // before the file, so that a failure is told over the form behind
    files.Replace(WorkingFile(directories, kFileName), WritePhoneRecord(Shown()));
}

void WaveSelections::Text10_LostFocus() {
    if (!IsNumeric(form.Text10.Text())) {
        form.Text10.SetText("0");
    }
    messages.PhoneSetup();
    ShowPorts();
}

void WaveSelections::File_KeyPress(int& KeyAscii) {
    if (KeyAscii == '"') {
        KeyAscii = 0;
    }
}

void WaveSelections::txtPHLoop_KeyPress(int& KeyAscii) {
    const bool accepted = KeyAscii == kKeyBackspace || KeyAscii == kKeyEnter || KeyAscii == kKeyEsc ||
                          KeyAscii == '.' || (KeyAscii >= '0' && KeyAscii <= '9');
    if (!accepted) {
        KeyAscii = 0;
    }
}

void WaveSelections::txtPHLoop_LostFocus() {
    const std::optional<double> seconds = ParseNumber(form.txtPHLoop.Text());
    const bool accepted = seconds && *seconds >= 0 && *seconds < kRepeatLimit;
    if (!accepted) {
        form.txtPHLoop.SetText("0");
    }
    SetRepeatInterval(accepted ? *seconds : 0);
}

}  // namespace tallyhut
