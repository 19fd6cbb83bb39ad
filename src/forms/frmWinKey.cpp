#include "forms/frmWinKey.h"

#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 150;
constexpr double kRight = 5100;
constexpr double kRow = 390;
constexpr double kDeviceTop = 120;
constexpr double kSendingTop = 2400;
constexpr double kModeTop = 120;
constexpr double kPinsTop = 2400;
constexpr double kButtonsTop = 5100;
constexpr int kLookMs = 250;

LabelDesign NameOf(double top, int row) {
    return {.place = {kLeft + 150, top + 330 + row * kRow, 1500, 240}};
}

LabelDesign Value(double top, int row, double left, double width) {
    return {.place = {kLeft + left, top + 330 + row * kRow, width, 240}};
}

TextBoxDesign Number(double top, int row, int tabIndex) {
    return {.place = {kLeft + 1700, top + 300 + row * kRow, 720, 300},
            .maxLength = kLongestNumber,
            .tabIndex = tabIndex,
            .refusesPaste = "\""};
}

ButtonDesign Choice(double top, int row, int tabIndex) {
    return {.place = {kRight + 150, top + 330 + row * kRow, 2400, 300}, .tabIndex = tabIndex};
}

ButtonDesign Press(double left, double top, int tabIndex) {
    return {.place = {left, top, 1200, 360}, .tabIndex = tabIndex};
}

}  // namespace

frmWinKey::frmWinKey(Desk& owner)
    : Form{owner, "frmWinKey", " WinKey Setup", {.width = 8100, .height = 6000}},
      fraDevice{*this, "fraDevice", "Device", {kLeft, kDeviceTop, 4800, 2160}},
      lblComPort{*this, "lblComPort", "Com Port:", NameOf(kDeviceTop, 0)},
      txtWKComPort{*this, "txtWKComPort", Number(kDeviceTop, 0, 1)},
      lblDevice{*this, "lblDevice", "", Value(kDeviceTop, 0, 2520, 2200)},
      lblOpenCaption{*this, "lblOpenCaption", "WinKey Status:", NameOf(kDeviceTop, 1)},
      lblOpenStatus{*this, "lblOpenStatus", "", Value(kDeviceTop, 1, 1700, 2800)},
      lblVersionCaption{*this, "lblVersionCaption", "WinKey Version:", NameOf(kDeviceTop, 2)},
      lblVersion{*this, "lblVersion", "", Value(kDeviceTop, 2, 1700, 2800)},
      lblTrouble{*this, "lblTrouble", "", Value(kDeviceTop, 3, 150, 4500)},
      cmdOpenWinkey{*this, "cmdOpenWinkey", "Open", Press(kLeft + 150, kDeviceTop + 1740, 2)},
      cmdCloseWinkey{*this, "cmdCloseWinkey", "Close", Press(kLeft + 1500, kDeviceTop + 1740, 3)},
      fraSending{*this, "fraSending", "Sending", {kLeft, kSendingTop, 4800, 2460}},
      lblWPM{*this, "lblWPM", "WPM:", NameOf(kSendingTop, 0)},
      txtWKWPM{*this, "txtWKWPM", Number(kSendingTop, 0, 4)},
      lblWeight{*this, "lblWeight", "Weight:", NameOf(kSendingTop, 1)},
      txtWeight{*this, "txtWeight", Number(kSendingTop, 1, 5)},
      lblWeightHint{*this, "lblWeightHint", "Proportional amount added or subtracted (50 is standard).",
                    Value(kSendingTop, 1, 2520, 2200)},
      lblRatio{*this, "lblRatio", "Ratio:", NameOf(kSendingTop, 2)},
      txtRatio{*this, "txtRatio", Number(kSendingTop, 2, 6)},
      lblRatioHint{*this, "lblRatioHint", "Ratio of dits to dahs (Range: 33 - 66).", Value(kSendingTop, 2, 2520, 2200)},
      lblLeadIn{*this, "lblLeadIn", "Lead In:", NameOf(kSendingTop, 3)},
      txtLeadIn{*this, "txtLeadIn", Number(kSendingTop, 3, 7)},
      lblLeadInHint{*this, "lblLeadInHint", "Lead in time for transmitter (10 ms increments).",
                    Value(kSendingTop, 3, 2520, 2200)},
      lblTail{*this, "lblTail", "Tail:", NameOf(kSendingTop, 4)},
      txtTail{*this, "txtTail", Number(kSendingTop, 4, 8)},
      lblTailHint{*this, "lblTailHint", "Tail time after keying has stopped (10 ms increments).",
                  Value(kSendingTop, 4, 2520, 2200)},
      fraMode{*this, "fraMode", "Keyer Mode", {kRight, kModeTop, 2850, 2160}},
      optIambicB{*this, "optIambicB", "Iambic B", Choice(kModeTop, 0, 9)},
      optIambicA{*this, "optIambicA", "Iambic A", Choice(kModeTop, 1, 10)},
      optUltimatic{*this, "optUltimatic", "Ultimatic", Choice(kModeTop, 2, 11)},
      optBug{*this, "optBug", "Bug Keyer", Choice(kModeTop, 3, 12)},
      fraPins{*this, "fraPins", "Pin 5 Configuration", {kRight, kPinsTop, 2850, 2460}},
      optKey5Off3Out{*this, "optKey5Off3Out", "P5 Off, P3 Key Out", Choice(kPinsTop, 0, 13)},
      optPTT{*this, "optPTT", "PTT", Choice(kPinsTop, 1, 14)},
      optTone{*this, "optTone", "Tone", Choice(kPinsTop, 2, 15)},
      optKey5Out3Off{*this, "optKey5Out3Off", "P5 Key Out, P3 Off", Choice(kPinsTop, 3, 16)},
      Command3{*this, "Command3", "Test", Press(kLeft, kButtonsTop, 17)},
      cmdStop{*this, "cmdStop", "Stop", Press(kLeft + 1350, kButtonsTop, 18)},
      cmdDone{*this, "cmdDone", "&Done", Press(kRight + 1650, kButtonsTop, 19)},
      tmrTrouble{*this, "tmrTrouble", kLookMs, false} {
    txtWKWPM.SetText("18");
    txtWeight.SetText("50");
    txtRatio.SetText("50");
    txtLeadIn.SetText("0");
    txtTail.SetText("0");
    for (Option* option : {&optIambicB, &optIambicA, &optUltimatic, &optBug}) {
        option->PutInto(fraMode);
    }
    for (Option* option : {&optKey5Off3Out, &optPTT, &optTone, &optKey5Out3Off}) {
        option->PutInto(fraPins);
    }
}

}  // namespace tallyhut
