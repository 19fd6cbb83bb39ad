#include "keying/cw_setup.h"

#include <algorithm>
#include <array>

#include "keying/key_line_texts.h"
#include "keying/message_keys.h"
#include "platform/platform_error.h"
#include "values/number.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr std::string_view kFileName = "CW.txt";
constexpr const char* kSection = "Settings";
constexpr const char* kSelection = "UserCWSelection";
constexpr const char* kLoopOffset = "UserCWLoopOffset";
constexpr double kSmallestSpace = -8;
constexpr double kRepeatLimit = 60;  // seconds
constexpr double kMsASecond = 1000;

struct OutputOption {
    KeyingOutput output;
    Option CWFrm::*option;
};
constexpr std::array kOutputs{
    OutputOption{kKeyRts, &CWFrm::Option1},     OutputOption{kKeyDtr, &CWFrm::Option2},
    OutputOption{kKeyPrinter, &CWFrm::Option3}, OutputOption{kKeyNone, &CWFrm::Option4},
    OutputOption{kKeyWinKey, &CWFrm::Option5},
};

struct TimingOption {
    std::string_view stored;
    Option CWFrm::*option;
};
constexpr std::array kTimings{
    TimingOption{"Timer", &CWFrm::optTimer},
    TimingOption{"Loop", &CWFrm::optLoop},
    TimingOption{"Sleep", &CWFrm::OptSleep},
};

struct RecordField {
    std::string CwRecord::*stored;
    TextBox CWFrm::*shown;
};
constexpr std::array kFields{
    RecordField{&CwRecord::Text1, &CWFrm::Text1},   RecordField{&CwRecord::Text2, &CWFrm::Text2},
    RecordField{&CwRecord::Text3, &CWFrm::Text3},   RecordField{&CwRecord::Text4, &CWFrm::Text4},
    RecordField{&CwRecord::Text5, &CWFrm::Text5},   RecordField{&CwRecord::Text6, &CWFrm::Text6},
    RecordField{&CwRecord::Text7, &CWFrm::Text7},   RecordField{&CwRecord::Text8, &CWFrm::Text8},
    RecordField{&CwRecord::Text9, &CWFrm::Text9},   RecordField{&CwRecord::Text10, &CWFrm::Text10},
    RecordField{&CwRecord::Text11, &CWFrm::Text11}, RecordField{&CwRecord::Text12, &CWFrm::Text12},
    RecordField{&CwRecord::Text13, &CWFrm::Text13}, RecordField{&CwRecord::txtSpace, &CWFrm::txtSpace},
    RecordField{&CwRecord::Text14, &CWFrm::Text14}, RecordField{&CwRecord::txtCWLoop, &CWFrm::txtCWLoop},
};

void Accept(int& KeyAscii, bool accepted) {
    if (!accepted && KeyAscii != kKeyBackspace && KeyAscii != kKeyEsc) {
        KeyAscii = 0;
    }
}

/// What is no number becomes 0.
void ZeroUnlessNumber(TextBox& field) {
    if (!IsNumeric(field.Text())) {
        field.SetText("0");
    }
}

std::string NameIn(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

}  // namespace

/// The paths of the files of this name, whatever their letters; that in the right spelling first.
std::vector<std::string> CwStore::Spellings() const {
    std::vector<std::string> paths = files.FilesIn(directories.WorkingDirectory);
    std::erase_if(paths, [](const std::string& path) { return UpperCase(NameIn(path)) != UpperCase(kFileName); });
    std::stable_partition(paths.begin(), paths.end(),
                          [](const std::string& path) { return NameIn(path) == kFileName; });
    return paths;
}

std::string CwStore::Read() const {
    const std::vector<std::string> paths = Spellings();
    return files.Read(paths.empty() ? WorkingFile(directories, std::string{kFileName}) : paths.front());
}

void CwStore::Write(std::string_view text) {
    const std::string path = WorkingFile(directories, std::string{kFileName});
    files.Replace(path, text);
    try {
        for (const std::string& other : Spellings()) {
            if (NameIn(other) != kFileName && !files.IsSameFile(path, other)) {
                files.Remove(other);
            }
        }
    } catch (const PlatformError&) {
        // It stays, and is not read any more.
    }
}

void CwSetup::CWFrm_Load() {
    ReadTiming();
    ShowPorts();
}

void CwSetup::CWFrm_Activate() {
    ShowPorts();
    ShowPreview();
}

/// Messages are sent from the form: its close box hides it.
void CwSetup::CWFrm_QueryUnload(bool& Cancel) {
    Cancel = true;
    form.Hide();
}

void CwSetup::CWFrm_Unload() {
    sender.line.Close();
    previewed = nullptr;
}

void CwSetup::ReadTiming() {
    const std::string loops = store.settings.Get(kSection, kLoopOffset);
    sender.gLoopsPer60ms = ParseNumber(loops).value_or(0);
    form.txtLoop.SetText(loops.empty() ? "0" : loops);
    const std::string selection = store.settings.Get(kSection, kSelection);
    const auto* const timing = std::ranges::find(kTimings, selection, &TimingOption::stored);
    if (timing != kTimings.end()) {
        (form.*timing->option).SetValue(true);
    }
}

void CwSetup::StoreTiming() {
    const auto* const timing =
        std::ranges::find_if(kTimings, [this](const TimingOption& row) { return (form.*row.option).Value(); });
    if (timing != kTimings.end()) {
        store.settings.Set(kSection, kSelection, std::string{timing->stored});
    }
    store.settings.Set(kSection, kLoopOffset, form.txtLoop.Text());
}

void CwSetup::LoadCWSettings() {
    CwRecord record = Shown();
    try {
        const bool isWhole = ReadCwRecord(store.Read(), record);
        Show(record);
        if (!isWhole) {
            return;  // with no output shown
        }
        SetRepeatInterval(TrimmedNumber(record.txtCWLoop));
    } catch (const PlatformError&) {
        return;  // no file yet
    } catch (const ValueError&) {
        return;  // a repeat that is no number
    }
    ChooseOutput();
}

CwRecord CwSetup::Shown() const {
    CwRecord record;
    for (const RecordField& field : kFields) {
        record.*field.stored = (form.*field.shown).Text();
    }
    record.gCWKeying = sender.gCWKeying;
    record.Check1 = form.Check1.Value() ? 1 : 0;
    return record;
}

void CwSetup::Show(const CwRecord& record) {
    for (const RecordField& field : kFields) {
        (form.*field.shown).SetText(record.*field.stored);
    }
    sender.gCWKeying = record.gCWKeying;
    form.Check1.SetValue(record.Check1 != 0);
    ShowPorts();
}

/// Throws ValueError for an interval that no timer has.
void CwSetup::SetRepeatInterval(double seconds) {
    const std::int32_t interval = ToInt32(seconds * kMsASecond);
    if (interval < 0) {
        throw ValueError{"No repeat comes before its message"};
    }
    form.tmrRepeat.SetInterval(interval);
}

void CwSetup::ChooseOutput() {
    const KeyingOutput output{sender.gCWKeying};
    for (Option* option : {&form.Option1, &form.Option2, &form.Option3}) {
        option->SetValue(false);
    }
    const auto* const row = std::ranges::find(kOutputs, output, &OutputOption::output);
    if (row != kOutputs.end()) {
        (form.*row->option).SetValue(true);
    }
}

void CwSetup::Command1_Click() {
    try {
        store.Write(WriteCwRecord(Shown()));
        StoreTiming();
    } catch (const PlatformError&) {
        form.Hide();  // what could not be kept is in force until the end
        return;
    }
    form.Hide();
    done();
}

void CwSetup::Message_GotFocus(TextBox& message) {
    previewed = &message;
    ShowPreview();
}

void CwSetup::Message_Change(TextBox& message) {
    if (previewed == &message) {
        ShowPreview();
    }
}

void CwSetup::ShowPreview() {
    if (form.IsVisible() && previewed != nullptr) {
        form.lblPreview.SetCaption(messages.Preview(previewed->Text()));
    }
}

void CwSetup::Message_KeyPress(int& KeyAscii) {
    if (KeyAscii >= 'a' && KeyAscii <= 'z') {
        KeyAscii += 'A' - 'a';
    }
}

void CwSetup::Option_Click(KeyingOutput output) {
    sender.line.Release();
    sender.gCWKeying = output;
    if (output == kKeyNone && sender.gKeyboardCW != 0) {
        messages.ToggleKeyboard();  // F12 is no key of ours any more, and what is typed would be lost
    }
    form.cmdConfWinkey.SetVisible(output == kKeyWinKey);
    if (output == kKeyWinKey) {
        loadWinKey();
    }
    ShowPorts();
}

void CwSetup::ShowPorts() {
    if (!form.IsVisible()) {
        return;  // looking for devices takes time
    }
    const KeyLineTexts texts = TextsOf(sender.line, serialPorts, parallelPorts);
    form.lblDevice.SetCaption(texts.device);
    form.lblRegister.SetCaption(texts.parallel);
    form.lblLines.SetCaption(texts.note);
}

void CwSetup::Number_KeyPress(int& KeyAscii) {
    Accept(KeyAscii, KeyAscii >= '0' && KeyAscii <= ':');
}

void CwSetup::Number_GotFocus(TextBox& field) {
    field.Select(0, static_cast<int>(field.Text().size()));
}

void CwSetup::Text10_LostFocus() {
    ZeroUnlessNumber(form.Text10);
    sender.CWSetup();
    ShowPorts();
}

void CwSetup::Text11_LostFocus() {
    ZeroUnlessNumber(form.Text11);
}

void CwSetup::txtSpace_KeyPress(int& KeyAscii) {
    Accept(KeyAscii, KeyAscii >= '-' && KeyAscii <= ':');
}

void CwSetup::txtSpace_LostFocus() {
    ZeroUnlessNumber(form.txtSpace);
}

void CwSetup::txtSpace_Change() {
    const std::optional<double> units = ParseNumber(form.txtSpace.Text());
    if (units && *units < kSmallestSpace) {
        form.txtSpace.SetText(PlainText(kSmallestSpace));
    }
}

void CwSetup::ChangeSpace(int by) {
    const std::optional<double> units = ParseNumber(form.txtSpace.Text());
    form.txtSpace.SetText(units ? PlainText(*units + by) : "0");
}

void CwSetup::txtCWLoop_KeyPress(int& KeyAscii) {
    Accept(KeyAscii, KeyAscii == '.' || (KeyAscii >= '0' && KeyAscii <= '9'));
}

void CwSetup::txtCWLoop_LostFocus() {
    const std::optional<double> seconds = ParseNumber(form.txtCWLoop.Text());
    const bool accepted = seconds && *seconds >= 0 && *seconds < kRepeatLimit;
    if (!accepted) {
        form.txtCWLoop.SetText("0");
    }
    SetRepeatInterval(accepted ? *seconds : 0);
}

void CwSetup::ShowLoop(bool on) {
    for (Control* control :
         std::initializer_list<Control*>{&form.txtLoop, &form.lblLoop, &form.cmdLoopFaster, &form.cmdLoopSlower}) {
        control->SetEnabled(on);
    }
}

void CwSetup::optLoop_Click() {
    ShowLoop(true);
    desk.RunPending();
    if (sender.gLoopsPer60ms == 0) {
        sender.CalibrateCWLoop();
    }
    form.txtLoop.SetText(PlainText(sender.gLoopsPer60ms));
}

void CwSetup::txtLoop_Change() {
    if (const std::optional<double> loops = ParseNumber(form.txtLoop.Text())) {
        sender.gLoopsPer60ms = *loops;
    }
}

void CwSetup::TrimLoop(double factor) {
    if (const std::optional<double> loops = ParseNumber(form.txtLoop.Text())) {
        form.txtLoop.SetText(PlainText(RoundHalfEven(*loops * factor)));
    }
    form.Command1.SetFocus();
}

void CwSetup::Command4_Click() {
    form.Label23.SetVisible(true);
    desk.RunPending();
    messages.FKeyCW(kTestKey);
    form.Label23.SetVisible(false);
    if (form.IsVisible()) {
        form.Text1.SetFocus();
    }
}

void CwSetup::Command7_Click() {
    sendPractice();
    sender.gCWBuffer.clear();
}

}  // namespace tallyhut
