#include "forms/frmRigTune.h"

#include <array>
#include <string_view>

#include "contest/bands.h"
#include "forms/refused_paste.h"
#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 180;
constexpr double kButton = 360;
constexpr std::int32_t kScanMs = 299;

/// Of cmdTune by pairs, up and down.
constexpr std::array<std::string_view, 5> kTuneCaptions{"10 Hz", "1 MHz", "5 KHz", "1 KHz", "100 Hz"};

TextBoxDesign Frequency(double left, double top, int tabIndex) {
    return {.place = {left, top, 1500, 360},
            .maxLength = kLongestNumber,
            .tabIndex = tabIndex,
            .fontSize = 11,
            .refusesPaste = EverythingBut("./0123456789")};
}

ButtonDesign At(double left, double top, double width, int tabIndex) {
    return {.place = {left, top, width, kButton}, .tabIndex = tabIndex};
}

/// Of cmdTune: a pair is a column.
ButtonDesign TuneButton(int index) {
    const int column = index / 2;
    return At(960 + column * 900.0, index % 2 == 0 ? 720 : 1140, 840, 3 + index);
}

/// Of cmdBand: two rows of eight.
ButtonDesign BandButton(int index) {
    return At(330 + index % 8 * 660.0, index < 8 ? 1920 : 2340, 600, 13 + index);
}

ButtonDesign ModeButton(int position) {
    return At(330 + position * 880.0, 3240, 820, 29 + position);
}

ButtonDesign StepOption(int position) {
    return {.place = {330 + position * 1050.0, 4920, 1000, 300}, .tabIndex = 38 + position};
}

}  // namespace

frmRigTune::frmRigTune(Desk& owner)
    : Form{owner, "frmRigTune", " Change Frequency and Mode (Ctrl G (Go))", {.width = 5940, .height = 6000}},
      lblFreq{*this, "lblFreq", "Frequency in MHz:", {.place = {kLeft, 240, 1500, 240}}},
      txtFreq{*this, "txtFreq", Frequency(1740, 180, 1)},
      Command1{*this, "Command1", "&Go", At(3360, 180, 900, 2)},
      lblUp{*this, "lblUp", " UP", {.place = {kLeft, 780, 720, 240}}},
      lblDown{*this, "lblDown", " Down", {.place = {kLeft, 1200, 720, 240}}},
      cmdTune{0, 9,
              [this](int i) {
                  auto button = std::make_unique<Button>(
                      *this, "cmdTune", i, kTuneCaptions.at(static_cast<std::size_t>(i / 2)), TuneButton(i));
                  button->SetEnabled(false);  // there is no frequency yet
                  return button;
              }},
      fraBand{*this, "fraBand", "Band", {kLeft, 1650, 5580, 1170}},
      cmdBand{0, 15,
              [this](int i) {
                  return std::make_unique<Button>(
                      *this, "cmdBand", i, kBandTable.at(static_cast<std::size_t>(i)).tuneCaption, BandButton(i));
              }},
      fraMode{*this, "fraMode", "Mode", {kLeft, 2970, 5580, 750}},
      cmdCW{*this, "cmdCW", "&CW", ModeButton(0)},
      cmdUSB{*this, "cmdUSB", "&USB", ModeButton(1)},
      cmdLSB{*this, "cmdLSB", "&LSB", ModeButton(2)},
      cmdAM{*this, "cmdAM", "&AM", ModeButton(3)},
      cmdFM{*this, "cmdFM", "&FM", ModeButton(4)},
      cmdRTTY{*this, "cmdRTTY", "&RTTY", ModeButton(5)},
      chkScan{*this, "chkScan", "Scan", {.place = {kLeft, 3990, 900, 300}, .tabIndex = 35}},
      lblFrom{*this, "lblFrom", "From:", {.place = {1260, 4020, 540, 240}}},
      txtFrom{*this, "txtFrom", Frequency(1860, 3960, 36)},
      lblTo{*this, "lblTo", "To:", {.place = {3600, 4020, 360, 240}}},
      txtTo{*this, "txtTo", Frequency(4020, 3960, 37)},
      Frame1{*this, "Frame1", "Scan Steps", {kLeft, 4620, 5580, 690}},
      Option5{*this, "Option5", "2.5 KHz", StepOption(0)},
      Option1{*this, "Option1", "500 Hz", StepOption(1)},
      Option2{*this, "Option2", "100 Hz", StepOption(2)},
      Option3{*this, "Option3", "30 Hz", StepOption(3)},
      Option4{*this, "Option4", "10 Hz", StepOption(4)},
      cmdDone{*this, "cmdDone", "&Done", At(4560, 5460, 1200, 43)},
      Timer1{*this, "Timer1", kScanMs, true} {
    for (int i = cmdBand.First(); i <= cmdBand.Last(); ++i) {
        cmdBand(i).PutInto(fraBand);
    }
    for (Button* mode : {&cmdCW, &cmdUSB, &cmdLSB, &cmdAM, &cmdFM, &cmdRTTY}) {
        mode->PutInto(fraMode);
    }
    for (Option* step : {&Option5, &Option1, &Option2, &Option3, &Option4}) {
        step->PutInto(Frame1);
    }
    Option4.SetValue(true);
}

}  // namespace tallyhut
