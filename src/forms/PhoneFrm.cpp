#include "forms/PhoneFrm.h"

#include <string_view>

#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kRow = 390;
constexpr double kMessages = 180;  // left edges
constexpr double kSettings = 5520;
constexpr double kSmallText = 8;
constexpr std::int32_t kLookMs = 40;
constexpr std::int32_t kLevelMs = 50;

constexpr double kKeyingTop = 120;
constexpr double kRepeatTop = 2340;
constexpr double kRecordingTop = 3180;
constexpr double kButtonsTop = 5340;

constexpr std::string_view kLineOut = "Connect the line-out of your sound card to the audio input of your transceiver.";
constexpr std::string_view kCaution = "Caution, RF feedback can damage your PC!";
constexpr std::string_view kByHand = "With port 0 nothing is keyed: use VOX, or key the transmitter by hand.";

double RowTop(int key) {
    return 120 + (key - 1) * kRow;
}

LabelDesign At(double left, double top, double width, double height = 240) {
    return {.place = {left, top, width, height}};
}

LabelDesign Help(double left, double top, double width, double height) {
    return {.place = {left, top, width, height}, .fontSize = kSmallText};
}

/// Three stops a row: the file, Browse, Record.
int StopOf(int key, int place) {
    return (key - 1) * 3 + place;
}

TextBoxDesign File(int key) {
    return {.place = {kMessages + 420, RowTop(key), 2760, 300},
            .maxLength = kLongestPath,
            .tabIndex = StopOf(key, 1),
            .refusesPaste = "\""};
}

ButtonDesign Browse(int key) {
    return {.place = {kMessages + 3240, RowTop(key) - 15, 960, 330}, .tabIndex = StopOf(key, 2)};
}

std::unique_ptr<Label> KeyLabel(Form& form, int key) {
    return std::make_unique<Label>(form, "lblKey", key, "F" + std::to_string(key),
                                   At(kMessages, RowTop(key) + 30, 360));
}

std::unique_ptr<Button> Record(Form& form, int key) {
    return std::make_unique<Button>(
        form, "cmdRecord", key, "Record",
        ButtonDesign{.place = {kMessages + 4260, RowTop(key) - 15, 960, 330}, .tabIndex = StopOf(key, 3)});
}

TextBoxDesign Number(double left, double top, int tabIndex) {
    return {.place = {left, top, 720, 300}, .maxLength = kLongestNumber, .tabIndex = tabIndex, .refusesPaste = "\""};
}

ButtonDesign Press(double left, double top, double width, int tabIndex) {
    return {.place = {left, top, width, 330}, .tabIndex = tabIndex};
}

/// Of the options side by side in the frame of the key line.
ButtonDesign Output(int position) {
    return {.place = {kSettings + 120 + position * 1200.0, kKeyingTop + 270, 1140, 270}, .tabIndex = 28 + position};
}

}  // namespace

PhoneFrm::PhoneFrm(Desk& owner)
    : Form{owner, "PhoneFrm", "Phone Wave Selections", {.width = 9420, .height = 6180}},
      lblKey{1, kKeys, [this](int key) { return KeyLabel(*this, key); }},
      Text1{*this, "Text1", File(1)},
      Text2{*this, "Text2", File(2)},
      Text3{*this, "Text3", File(3)},
      Text4{*this, "Text4", File(4)},
      Text5{*this, "Text5", File(5)},
      Text6{*this, "Text6", File(6)},
      Text7{*this, "Text7", File(7)},
      Text8{*this, "Text8", File(8)},
      Text9{*this, "Text9", File(9)},
      Command2{*this, "Command2", "Browse", Browse(1)},
      Command3{*this, "Command3", "Browse", Browse(2)},
      Command4{*this, "Command4", "Browse", Browse(3)},
      Command5{*this, "Command5", "Browse", Browse(4)},
      Command6{*this, "Command6", "Browse", Browse(5)},
      Command7{*this, "Command7", "Browse", Browse(6)},
      Command8{*this, "Command8", "Browse", Browse(7)},
      Command9{*this, "Command9", "Browse", Browse(8)},
      Command10{*this, "Command10", "Browse", Browse(9)},
      cmdRecord{1, kKeys, [this](int key) { return Record(*this, key); }},
      lblLineOut{*this, "lblLineOut", kLineOut, Help(kMessages, RowTop(10) + 60, 5040, 420)},
      lblCaution{*this, "lblCaution", kCaution, Help(kMessages, RowTop(10) + 540, 5040, 240)},
      fraKeying{*this, "fraKeying", "Keying", {kSettings, kKeyingTop, 3780, 2100}},
      Option1{*this, "Option1", "RTS", Output(0)},
      Option2{*this, "Option2", "DTR", Output(1)},
      Option3{*this, "Option3", "Parallel", Output(2)},
      lblPort{*this, "lblPort", "Serial Port:", At(kSettings + 120, kKeyingTop + 660, 1080)},
      Text10{*this, "Text10", Number(kSettings + 1260, kKeyingTop + 600, 31)},
      lblDevice{*this, "lblDevice", "", At(kSettings + 2040, kKeyingTop + 660, 1680)},
      lblAddress{*this, "lblAddress", "Parallel Port:", At(kSettings + 120, kKeyingTop + 1020, 1080)},
      Text11{*this, "Text11", Number(kSettings + 1260, kKeyingTop + 960, 32)},
      lblRegister{*this, "lblRegister", "", At(kSettings + 2040, kKeyingTop + 1020, 1680)},
      lblLines{*this, "lblLines", "", Help(kSettings + 120, kKeyingTop + 1320, 3540, 420)},
      lblByHand{*this, "lblByHand", kByHand, Help(kSettings + 120, kKeyingTop + 1740, 3540, 300)},
      fraRepeat{*this, "fraRepeat", "Repeat", {kSettings, kRepeatTop, 3780, 720}},
      lblPHLoop{*this, "lblPHLoop", "Loop (Sec)", At(kSettings + 120, kRepeatTop + 330, 1080)},
      txtPHLoop{*this, "txtPHLoop", Number(kSettings + 1260, kRepeatTop + 270, 33)},
      lblRepeat{*this, "lblRepeat", "F1 again so long after its end; 0 is once",
                At(kSettings + 2040, kRepeatTop + 330, 1680)},
      fraRecording{*this, "fraRecording", "Recording", {kSettings, kRecordingTop, 3780, 1860}},
      lblRecording{*this, "lblRecording", "", At(kSettings + 120, kRecordingTop + 690, 3540, 540)},
      lblLevelCaption{*this, "lblLevelCaption", "Level:", At(kSettings + 120, kRecordingTop + 330, 1080)},
      lblMeter{*this, "lblMeter", "", At(kSettings + 1260, kRecordingTop + 330, 1380)},
      lblLevel{*this, "lblLevel", "", At(kSettings + 2700, kRecordingTop + 330, 1020)},
      cmdStopRecord{*this, "cmdStopRecord", "Stop Recording", Press(kSettings + 120, kRecordingTop + 1380, 1740, 34)},
      cmdPlayBack{*this, "cmdPlayBack", "Play Back", Press(kSettings + 1920, kRecordingTop + 1380, 1740, 35)},
      lblTest{*this, "lblTest", "Plays F1 Command", At(4440, kButtonsTop + 60, 1500)},
      Command12{
          *this, "Command12", "Stop", {.place = {6000, kButtonsTop, 1020, 330}, .tabIndex = 36, .visible = false}},
      Command11{*this, "Command11", "Test", Press(7080, kButtonsTop, 1020, 37)},
      Command1{*this, "Command1", "Done", Press(8160, kButtonsTop, 1140, 38)},
      Timer1{*this, "Timer1", kLookMs, false},
      tmrRepeat{*this, "tmrRepeat", 0, false},
      tmrLevel{*this, "tmrLevel", kLevelMs, false} {
    for (Option* option : {&Option1, &Option2, &Option3}) {
        option->PutInto(fraKeying);
    }
    Option1.SetValue(true);
    Text10.SetText("0");
    Text11.SetText("&H378");
    txtPHLoop.SetText("0");
    cmdStopRecord.SetEnabled(false);
    cmdPlayBack.SetEnabled(false);
}

}  // namespace tallyhut
