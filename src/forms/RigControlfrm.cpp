#include "forms/RigControlfrm.h"

#include <string_view>

#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr std::string_view kHowToUse =
    "To use the Rig Control interface, select the appropriate parameters for your radio and click test.  Be sure to "
    "select the connection power option if your interface requires it.  From the main form, when changing bands on "
    "your radio the band on this program should automatically change.";
constexpr std::string_view kSpotsTune =
    "I have added additional code so that by right clicking on a DX spot that is being displayed on the DX spotting "
    "band map, your radio will change to the spot frequency.  Most Elecrafts, Icoms, Kenwoods and Yaesus are now "
    "supported.  If you would like to help develop and test this feature for other rigs, please click the Change "
    "Frequency button.";
constexpr std::string_view kUnlisted =
    "If your radio is not listed, please select \"Other\", enter the commands from your radio's manual that read the "
    "frequency and the mode, click test and read the response in the unprocessed data field.";
constexpr std::string_view kAddress =
    "Icom radio users will have to replace the 64 in the string with the ID for your particular radio.  Please check "
    "your Icom user's manual for details.";

/// A frame and the options in it, row by row.
struct OptionGrid {
    double left;
    double top;
    int columns;
    int rows;
    double optionWidth;

    constexpr Place Frame() const { return {left, top, 180 + columns * optionWidth, kHead + rows * kRow + 60}; }
    constexpr ButtonDesign Cell(int position, int firstTab) const {
        const int column = position % columns;
        const int row = position / columns;
        return {.place = {left + 120 + column * optionWidth, top + kHead + row * kRow, optionWidth - 30, kRow},
                .tabIndex = firstTab + position};
    }

private:
    static constexpr double kHead = 270;
    static constexpr double kRow = 270;
};

constexpr double kLeft = 1980;  ///< beside the list
constexpr OptionGrid kBaud{kLeft, 90, 5, 2, 750};
constexpr OptionGrid kPort{6030, 90, 5, 2, 600};
constexpr OptionGrid kParity{kLeft, 1020, 3, 1, 780};
constexpr OptionGrid kData{4560, 1020, 2, 1, 450};
constexpr OptionGrid kStop{5700, 1020, 2, 1, 450};
constexpr OptionGrid kPower{6840, 1020, 3, 1, 750};
constexpr OptionGrid kPoll{kLeft, 1680, 2, 2, 960};
constexpr OptionGrid kModeBy{4200, 1680, 3, 1, 1290};

constexpr double kStrings = 2610;
constexpr double kButtons = 3750;
constexpr double kReadings = 4320;
constexpr double kTexts = 5040;
constexpr double kTextsWidth = 9240;
constexpr double kSmallText = 7;

}  // namespace

RigControlfrm::RigControlfrm(Desk& owner)
    : Form{owner, "RigControlfrm", " Rig Interface Setup", {.width = 9600, .height = 6480}},
      List1{*this, "List1", {.place = {180, 90, 1680, 4110}, .tabIndex = 1}},
      fraBaud{*this, "fraBaud", "Baud Rate (k):", kBaud.Frame()},
      optBaud12{*this, "optBaud12", "1.2", kBaud.Cell(0, 10)},
      optBaud24{*this, "optBaud24", "2.4", kBaud.Cell(1, 10)},
      optBaud48{*this, "optBaud48", "4.8", kBaud.Cell(2, 10)},
      optBaud96{*this, "optBaud96", "9.6", kBaud.Cell(3, 10)},
      optBaud144{*this, "optBaud144", "14.4", kBaud.Cell(4, 10)},
      optBaud192{*this, "optBaud192", "19.2", kBaud.Cell(5, 10)},
      optBaud288{*this, "optBaud288", "28.8", kBaud.Cell(6, 10)},
      optBaud384{*this, "optBaud384", "38.4", kBaud.Cell(7, 10)},
      optBaud560{*this, "optBaud560", "56", kBaud.Cell(8, 10)},
      fraPort{*this, "fraPort", "Comm Port:", kPort.Frame()},
      optComm{0, 9,
              [this](int i) {
                  return std::make_unique<Option>(*this, "optComm", i, std::to_string(i + 1), kPort.Cell(i, 20));
              }},
      fraPower{*this, "fraPower", "Connection Power:", kPower.Frame()},
      optPowerNone{*this, "optPowerNone", "None", kPower.Cell(0, 30)},
      optPowerRTS{*this, "optPowerRTS", "RTS", kPower.Cell(1, 30)},
      optPowerDTR{*this, "optPowerDTR", "DTR", kPower.Cell(2, 30)},
      fraParity{*this, "fraParity", "Parity:", kParity.Frame()},
      optParityOdd{*this, "optParityOdd", "Odd", kParity.Cell(0, 40)},
      optParityNone{*this, "optParityNone", "None", kParity.Cell(1, 40)},
      optParityEven{*this, "optParityEven", "Even", kParity.Cell(2, 40)},
      fraData{*this, "fraData", "Data Bits:", kData.Frame()},
      optData7{*this, "optData7", "7", kData.Cell(0, 50)},
      optData8{*this, "optData8", "8", kData.Cell(1, 50)},
      fraStop{*this, "fraStop", "Stop Bits:", kStop.Frame()},
      optStop1{*this, "optStop1", "1", kStop.Cell(0, 60)},
      optStop2{*this, "optStop2", "2", kStop.Cell(1, 60)},
      fraPoll{*this, "fraPoll", "Radio Polling Rate:", kPoll.Frame()},
      optPollFast{*this, "optPollFast", "100 ms", kPoll.Cell(0, 70)},
      optPollMed{*this, "optPollMed", "500 ms", kPoll.Cell(1, 70)},
      optPollSlow{*this, "optPollSlow", "2 Sec", kPoll.Cell(2, 70)},
      optReallySlow{*this, "optReallySlow", "10 Sec", kPoll.Cell(3, 70)},
      Frame1{*this, "Frame1", "Mode by:", kModeBy.Frame()},
      OptRig{*this, "OptRig", "Rig", kModeBy.Cell(0, 80)},
      OptFreq{*this, "OptFreq", "Frequency", kModeBy.Cell(1, 80)},
      OptDont{*this, "OptDont", "Don't Use", kModeBy.Cell(2, 80)},
      chkFrequency{*this, "chkFrequency", "Use Frequency", {.place = {4200, 2310, 2100, 270}, .tabIndex = 65}},
      fraRigServer{*this, "fraRigServer", "Server:", {kLeft, 90, 7440, 1500}},
      lblRigHost{*this, "lblRigHost", "Host", {.place = {kLeft + 120, 420, 900, 240}}},
      txtRigHost{
          *this,
          "txtRigHost",
          {.place = {kLeft + 1080, 390, 2700, 330}, .maxLength = kLongestAnswer, .tabIndex = 99, .refusesPaste = "\""}},
      lblRigPort{*this, "lblRigPort", "Port", {.place = {kLeft + 120, 810, 900, 240}}},
      txtRigPort{*this,
                 "txtRigPort",
                 {.place = {kLeft + 1080, 780, 960, 330}, .maxLength = 5, .tabIndex = 100, .refusesPaste = "\""}},
      lblRigLinkCaption{*this, "lblRigLinkCaption", "Connection", {.place = {kLeft + 120, 1200, 960, 240}}},
      lblRigLink{*this, "lblRigLink", "", {.place = {kLeft + 1080, 1200, 1800, 240}}},
      lblFreqString{*this, "lblFreqString", "String to read frequency", {.place = {kLeft, kStrings, 2700, 240}}},
      txtFreq{*this,
              "txtFreq",
              {.place = {kLeft, kStrings + 240, 2700, 330},
               .maxLength = kLongestDescription,
               .tabIndex = 90,
               .refusesPaste = "\""}},
      lblModeString{*this, "lblModeString", "String to read mode", {.place = {4800, kStrings, 2700, 240}}},
      txtMode{*this,
              "txtMode",
              {.place = {4800, kStrings + 240, 2700, 330},
               .maxLength = kLongestDescription,
               .tabIndex = 91,
               .refusesPaste = "\""}},
      chkConvToHex{*this,
                   "chkConvToHex",
                   "Convert to Hex",
                   {.place = {7620, kStrings + 270, 1800, 270}, .tabIndex = 92, .visible = false}},
      Label10{*this, "Label10", kAddress, {.place = {kLeft, kStrings + 630, 7440, 450}, .visible = false}},
      Command1{*this, "Command1", "Test", {.place = {kLeft, kButtons, 1200, 390}, .tabIndex = 93}},
      Command2{*this, "Command2", "End Test", {.place = {3300, kButtons, 1200, 390}, .tabIndex = 94, .visible = false}},
      Label2{*this, "Label2", "Polling Rig", {.place = {4620, kButtons + 60, 1500, 240}, .visible = false}},
      Command3{*this, "Command3", "Change Frequency", {.place = {6180, kButtons, 2040, 390}, .tabIndex = 95}},
      cmdDone{*this, "cmdDone", "&Done", {.place = {8340, kButtons, 1080, 390}, .tabIndex = 98}},
      lblFreqCaption{*this, "lblFreqCaption", "Frequency:", {.place = {180, kReadings, 960, 240}}},
      lblFreq{*this, "lblFreq", "", {.place = {1200, kReadings, 1380, 240}}},
      lblModeCaption{*this, "lblModeCaption", "Mode:", {.place = {2640, kReadings, 600, 240}}},
      lblMode{*this, "lblMode", "", {.place = {3300, kReadings, 1200, 240}}},
      Label9{*this, "Label9", "Should be PH or CW", {.place = {4560, kReadings, 1920, 240}}},
      ChkConvHex{*this, "ChkConvHex", "Convert from Hex", {.place = {6720, kReadings - 30, 2100, 270}, .tabIndex = 96}},
      lblUnProcessCaption{
          *this, "lblUnProcessCaption", "Unprocessed data returned:", {.place = {180, kReadings + 300, 2400, 240}}},
      lblUnProcess{*this, "lblUnProcess", "", {.place = {2640, kReadings + 300, 3120, 420}}},
      Command4{*this,
               "Command4",
               "Copy unprocessed data to clipboard",
               {.place = {5820, kReadings + 270, 3600, 390}, .tabIndex = 97}},
      Label8{*this, "Label8", kHowToUse, {.place = {180, kTexts, kTextsWidth, 510}, .fontSize = kSmallText}},
      Label12{*this, "Label12", kSpotsTune, {.place = {180, kTexts + 540, kTextsWidth, 510}, .fontSize = kSmallText}},
      Label11{*this, "Label11", kUnlisted, {.place = {180, kTexts + 1080, kTextsWidth, 345}, .fontSize = kSmallText}},
      tmrGetData{*this, "tmrGetData", 250, false},
      tmrCommand{*this, "tmrCommand", 0, false} {
    for (Option* option : {&optBaud12, &optBaud24, &optBaud48, &optBaud96, &optBaud144, &optBaud192, &optBaud288,
                           &optBaud384, &optBaud560}) {
        option->PutInto(fraBaud);
    }
    for (int i = optComm.First(); i <= optComm.Last(); ++i) {
        optComm(i).PutInto(fraPort);
    }
    for (Option* option : {&optPowerNone, &optPowerRTS, &optPowerDTR}) {
        option->PutInto(fraPower);
    }
    for (Option* option : {&optParityOdd, &optParityNone, &optParityEven}) {
        option->PutInto(fraParity);
    }
    for (Option* option : {&optData7, &optData8}) {
        option->PutInto(fraData);
    }
    for (Option* option : {&optStop1, &optStop2}) {
        option->PutInto(fraStop);
    }
    for (Option* option : {&optPollFast, &optPollMed, &optPollSlow, &optReallySlow}) {
        option->PutInto(fraPoll);
    }
    for (Option* option : {&OptRig, &OptFreq, &OptDont}) {
        option->PutInto(Frame1);
    }
    for (Control* ofServer : std::initializer_list<Control*>{&lblRigHost, &txtRigHost, &lblRigPort, &txtRigPort,
                                                             &lblRigLinkCaption, &lblRigLink}) {
        ofServer->PutInto(fraRigServer);
    }
    fraRigServer.SetVisible(false);
    for (Option* preset :
         {&optBaud560, &optComm(0), &optPowerNone, &optParityNone, &optData8, &optStop1, &optPollMed, &OptRig}) {
        preset->SetValue(true);
    }
    chkFrequency.SetValue(true);
}

}  // namespace tallyhut
