#include "forms/CWFrm.h"

#include <array>
#include <string_view>

#include "forms/refused_paste.h"
#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kRow = 330;
constexpr double kMessages = 180;  // left edges
constexpr double kSettings = 4920;
constexpr double kSmallText = 8;

constexpr double kPreviewTop = 120 + 12 * kRow;
constexpr double kKeyingTop = 120;
constexpr double kSpeedTop = 2160;
constexpr double kTimingTop = 4020;
constexpr double kButtonsTop = 6660;

constexpr std::string_view kMessagesHelp =
    "Each text box corresponds to a function key.  Enter the characters you would like to associate with the function "
    "key. From the main logging page, press the appropriate function key each time you wish to send the string.  A ! "
    "in "
    "the string enters the contact.";
constexpr std::string_view kWildcardsHelp = "Wildcards are $ for Call, * for RST  and # for Number (where applicable).";
constexpr std::string_view kArrowsHelp = "Up / Down arrows on main form change speed.";
constexpr std::string_view kFinallyHelp =
    "Finally, enter the WPM code speed and any adjustments to the standard word spacing (0 is standard, -8 is no "
    "spacing).  You can adjust your speed on the main form by using the Up / Down arrows. Check the check box if you "
    "would like to see the characters you are sending on the main form.  For the most precise timing, do not run any "
    "other programs, virus software etc. while transmitting.";
constexpr std::string_view kSideTone =
    "The program will not generate a side tone so make sure your transceiver is set to produce one.";

/// Behind their names, how they are typed.
constexpr std::array<std::string_view, 5> kProsigns{"AR  [", "CL  \\", "SK  ]", "KN  ;", "BT  ="};

double RowTop(int key) {
    return 120 + (key - 1) * kRow;
}

LabelDesign At(double left, double top, double width, double height = 240) {
    return {.place = {left, top, width, height}};
}

LabelDesign Help(double left, double top, double width, double height) {
    return {.place = {left, top, width, height}, .fontSize = kSmallText};
}

TextBoxDesign Message(int key) {
    return {.place = {kMessages + 600, RowTop(key), 3900, 300},
            .maxLength = kLongestFileText,
            .tabIndex = key,
            .refusesPaste = "\""};
}

TextBoxDesign Number(double left, double top, int tabIndex) {
    return {.place = {left, top, 720, 300}, .maxLength = kLongestNumber, .tabIndex = tabIndex, .refusesPaste = "\""};
}

ButtonDesign Press(double left, double top, double width, int tabIndex) {
    return {.place = {left, top, width, 330}, .tabIndex = tabIndex};
}

ButtonDesign Choice(double left, double top, double width, int tabIndex) {
    return {.place = {left, top, width, 270}, .tabIndex = tabIndex};
}

/// Of the options side by side in the frame of the output.
ButtonDesign Output(int position) {
    return Choice(kSettings + 120 + position * 860.0, kKeyingTop + 270, 840, 12 + position);
}

std::unique_ptr<Label> KeyLabel(Form& form, int key) {
    return std::make_unique<Label>(form, "lblKey", key, "F" + std::to_string(key),
                                   At(kMessages, RowTop(key) + 30, 540));
}

std::unique_ptr<Label> Prosign(Form& form, int position) {
    return std::make_unique<Label>(form, "lblProsign", position, kProsigns.at(static_cast<std::size_t>(position - 1)),
                                   At(kMessages + (position - 1) * 840.0, 6240, 780));
}

}  // namespace

CWFrm::CWFrm(Desk& owner)
    : Form{owner, "CWFrm", "CW String Selections", {.width = 9420, .height = 7140}},
      lblKey{1, 12, [this](int key) { return KeyLabel(*this, key); }},
      Text1{*this, "Text1", Message(1)},
      Text2{*this, "Text2", Message(2)},
      Text3{*this, "Text3", Message(3)},
      Text4{*this, "Text4", Message(4)},
      Text5{*this, "Text5", Message(5)},
      Text6{*this, "Text6", Message(6)},
      Text7{*this, "Text7", Message(7)},
      Text8{*this, "Text8", Message(8)},
      Text9{*this, "Text9", Message(9)},
      Text12{*this, "Text12", Message(10)},
      Text13{*this, "Text13", Message(11)},
      Label22{*this, "Label22", "Keyboard", At(kMessages + 600, RowTop(12) + 30, 3900)},
      lblPreviewCaption{*this, "lblPreviewCaption", "Sends:", At(kMessages, kPreviewTop + 60, 600)},
      lblPreview{*this, "lblPreview", "", At(kMessages + 660, kPreviewTop + 60, 3840)},
      lblMessages{*this, "lblMessages", kMessagesHelp, Help(kMessages, kPreviewTop + 360, 4500, 780)},
      lblWildcards{*this, "lblWildcards", kWildcardsHelp, Help(kMessages, kPreviewTop + 1140, 4500, 240)},
      fraKeying{*this, "fraKeying", "Keying", {kSettings, kKeyingTop, 4380, 1980}},
      Option1{*this, "Option1", "RTS", Output(0)},
      Option2{*this, "Option2", "DTR", Output(1)},
      Option3{*this, "Option3", "Printer", Output(2)},
      Option4{*this, "Option4", "None", Output(3)},
      Option5{*this, "Option5", "WinKey", Output(4)},
      cmdConfWinkey{*this,
                    "cmdConfWinkey",
                    "Configure Winkey",
                    {.place = {kSettings + 2700, kKeyingTop + 1560, 1560, 330}, .tabIndex = 19, .visible = false}},
      lblPort{*this, "lblPort", "Serial Port:", At(kSettings + 120, kKeyingTop + 660, 1020)},
      Text10{*this, "Text10", Number(kSettings + 1200, kKeyingTop + 600, 17)},
      lblDevice{*this, "lblDevice", "", At(kSettings + 2040, kKeyingTop + 660, 2280)},
      lblAddress{*this, "lblAddress", "Printer Port:", At(kSettings + 120, kKeyingTop + 1020, 1020)},
      Text14{*this, "Text14", Number(kSettings + 1200, kKeyingTop + 960, 18)},
      lblRegister{*this, "lblRegister", "", At(kSettings + 2040, kKeyingTop + 1020, 2280)},
      lblLines{*this, "lblLines", "", Help(kSettings + 120, kKeyingTop + 1320, 2520, 600)},
      fraSpeed{*this, "fraSpeed", "Speed", {kSettings, kSpeedTop, 4380, 1800}},
      lblWPM{*this, "lblWPM", "WPM:", At(kSettings + 120, kSpeedTop + 330, 1020)},
      Text11{*this, "Text11", Number(kSettings + 1200, kSpeedTop + 270, 20)},
      Command2{*this, "Command2", "Faster", Press(kSettings + 2040, kSpeedTop + 255, 900, 21)},
      Command3{*this, "Command3", "Slower", Press(kSettings + 3000, kSpeedTop + 255, 900, 22)},
      lblSpace{*this, "lblSpace", "Word Space", At(kSettings + 120, kSpeedTop + 690, 1020)},
      txtSpace{*this, "txtSpace", Number(kSettings + 1200, kSpeedTop + 630, 23)},
      Command5{*this, "Command5", "Less", Press(kSettings + 2040, kSpeedTop + 615, 900, 24)},
      Command6{*this, "Command6", "More", Press(kSettings + 3000, kSpeedTop + 615, 900, 25)},
      lblCWLoop{*this, "lblCWLoop", "Loop (Sec)", At(kSettings + 120, kSpeedTop + 1050, 1020)},
      txtCWLoop{*this, "txtCWLoop", Number(kSettings + 1200, kSpeedTop + 990, 26)},
      lblRepeat{*this, "lblRepeat", "F1 again so long after its end; 0 is once",
                At(kSettings + 2040, kSpeedTop + 1050, 2280)},
      Check1{*this, "Check1", "Display CW text on main form (NA for WinKey).",
             Choice(kSettings + 120, kSpeedTop + 1410, 4140, 27)},
      lblArrows{*this, "lblArrows", kArrowsHelp, Help(kMessages, kPreviewTop + 1380, 4500, 210)},
      lblFinally{*this, "lblFinally", kFinallyHelp, Help(kSettings, kTimingTop + 1560, 4380, 990)},
      lblMode{*this, "lblMode", "You must be in CW mode.", Help(kMessages, kPreviewTop + 1590, 2100, 210)},
      fraTiming{*this, "fraTiming", "Timing", {kSettings, kTimingTop, 4380, 1500}},
      optTimer{*this, "optTimer", "Timer", Choice(kSettings + 120, kTimingTop + 240, 780, 28)},
      lblTimer{*this, "lblTimer", "Times by Windows System time.", At(kSettings + 960, kTimingTop + 255, 1800)},
      lblTimerCost{*this, "lblTimerCost", "Exact. Keeps a processor busy while it sends.",
                   Help(kSettings + 2760, kTimingTop + 255, 1560, 240)},
      OptSleep{*this, "OptSleep", "Sleep", Choice(kSettings + 120, kTimingTop + 510, 780, 29)},
      lblSleep{*this, "lblSleep", "Times by Windows System time.", At(kSettings + 960, kTimingTop + 525, 1800)},
      lblSleepCost{*this, "lblSleepCost", "Spares the processor. Units are a little long.",
                   Help(kSettings + 2760, kTimingTop + 525, 1560, 240)},
      optLoop{*this, "optLoop", "Loop", Choice(kSettings + 120, kTimingTop + 780, 780, 30)},
      lblByLoop{*this, "lblByLoop", "Times by a For Next loop.", At(kSettings + 960, kTimingTop + 795, 1800)},
      lblLoopCost{*this, "lblLoopCost", "As Timer, and to be trimmed by hand.",
                  Help(kSettings + 2760, kTimingTop + 795, 1560, 240)},
      lblLoop{*this, "lblLoop", "Loops per 60 ms", At(kSettings + 120, kTimingTop + 1140, 1020)},
      txtLoop{*this, "txtLoop", Number(kSettings + 1200, kTimingTop + 1080, 31)},
      cmdLoopFaster{*this, "cmdLoopFaster", "Speed up CW", Press(kSettings + 2040, kTimingTop + 1065, 1110, 32)},
      cmdLoopSlower{*this, "cmdLoopSlower", "Slow Down CW", Press(kSettings + 3180, kTimingTop + 1065, 1140, 33)},
      lblPreferred{*this, "lblPreferred", "Timer is the preferred option on most systems. ",
                   Help(kMessages + 2160, kPreviewTop + 1590, 2400, 210)},
      lblSideTone{*this, "lblSideTone", kSideTone, Help(kMessages, kPreviewTop + 1800, 4500, 420)},
      fraProsigns{*this, "fraProsigns", "Prosigns", {kMessages - 60, 6060, 4560, 480}},
      lblProsign{1, 5, [this](int position) { return Prosign(*this, position); }},
      Command7{*this, "Command7", "Send Code Practice", {.place = {kMessages, kButtonsTop, 1800, 330}, .tabIndex = 34}},
      Label23{*this, "Label23", "Sending!", {.place = {5820, kButtonsTop + 60, 900, 240}, .visible = false}},
      Command4{*this, "Command4", "&Test", Press(6840, kButtonsTop, 1080, 35)},
      Command1{*this, "Command1", "Done", Press(8040, kButtonsTop, 1200, 36)},
      tmrRepeat{*this, "tmrRepeat", 0, false} {
    for (Option* option : {&Option1, &Option2, &Option3, &Option4, &Option5}) {
        option->PutInto(fraKeying);
    }
    for (Option* option : {&optTimer, &OptSleep, &optLoop}) {
        option->PutInto(fraTiming);
    }
    Text10.SetText("0");
    Text14.SetText("&H378");
    Text11.SetText("13");
    for (TextBox* zero : {&txtSpace, &txtCWLoop, &txtLoop}) {
        zero->SetText("0");
    }
    optTimer.SetValue(true);
    for (Control* control : std::initializer_list<Control*>{&txtLoop, &lblLoop, &cmdLoopFaster, &cmdLoopSlower}) {
        control->SetEnabled(false);
    }
}

}  // namespace tallyhut
