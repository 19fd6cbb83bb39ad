#include "forms/PacketSpotfrm.h"

#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 180;
constexpr double kWidth = 9240;
constexpr double kTerminalLeft = 2640;
constexpr double kTerminalWidth = 6780;
constexpr double kSerialTop = 4980;
constexpr std::int32_t kPollMs = 333;

/// A line of options in a frame.
struct OptionRow {
    double left;
    double top;
    int options;
    double optionWidth;

    constexpr Place Frame() const { return {left, top, 180 + options * optionWidth, 600}; }
    constexpr ButtonDesign Cell(int position, int firstTab) const {
        return {.place = {left + 120 + position * optionWidth, top + 270, optionWidth - 30, 270},
                .tabIndex = firstTab + position};
    }
};

constexpr OptionRow kPort{kLeft, kSerialTop, 10, 480};
constexpr OptionRow kPower{5280, kSerialTop, 3, 720};
constexpr OptionRow kBaud{kLeft, kSerialTop + 660, 6, 720};
constexpr OptionRow kParity{4800, kSerialTop + 660, 3, 780};
constexpr OptionRow kData{7380, kSerialTop + 660, 2, 420};
constexpr OptionRow kStop{8460, kSerialTop + 660, 2, 390};
constexpr OptionRow kHandshaking{kLeft, kSerialTop + 1320, 4, 1200};

LabelDesign CaptionAt(double left, double top, double width) {
    return {.place = {left, top, width, 240}};
}

ButtonDesign Press(double left, int tabIndex) {
    return {.place = {left, 6960, 1440, 360}, .tabIndex = tabIndex};
}

TextBoxDesign Field(double left, double top, double width, int maxLength, int tabIndex) {
    return {.place = {left, top, width, 300}, .maxLength = maxLength, .tabIndex = tabIndex};
}

}  // namespace

PacketSpotfrm::PacketSpotfrm(Desk& owner)
    : Form{owner, "PacketSpotfrm", " DX Spotting Setup", {.width = 9600, .height = 7800}},
      lblSelect{*this, "lblSelect", "Select Option:", CaptionAt(kLeft, 90, 2280)},
      List1{*this, "List1", {.place = {kLeft, 360, 2280, 1080}, .tabIndex = 1}},
      Frame2{*this, "Frame2", "Main Form", {kLeft, 1560, 2280, 600}},
      OptBand{*this, "OptBand", "Band Map", {.place = {300, 1830, 1080, 270}, .tabIndex = 2}},
      OptList{*this, "OptList", "List", {.place = {1440, 1830, 900, 270}, .tabIndex = 3}},
      chkDX{
          *this, "chkDX", "List DX Only (also controls main form)", {.place = {kLeft, 2280, 2280, 480}, .tabIndex = 4}},
      Label5{*this,
             "Label5",
             "Only US and Canadian spots are displayed on the main form for SS!",
             {.place = {kLeft, 2880, 2280, 720}}},
      txtUnProcessed{
          *this,
          "txtUnProcessed",
          {.place = {kTerminalLeft, 90, kTerminalWidth, 3480}, .tabIndex = 5, .multiLine = true, .locked = true}},
      Label6{*this, "Label6", "", CaptionAt(kTerminalLeft, 3690, kTerminalWidth)},
      txtSent{*this, "txtSent", Field(kTerminalLeft, 3960, kTerminalWidth, kLongestDescription, 6)},
      Label4{*this, "Label4", "Listening", {.place = {kLeft, 3960, 2280, 240}, .visible = false}},
      Command1{*this, "Command1", "Open Port", Press(kLeft, 70)},
      Command2{*this, "Command2", "Close Port", Press(1740, 71)},
      Command3{*this, "Command3", "&Spot Last", Press(3300, 72)},
      cmdDone{*this, "cmdDone", "&Done", Press(7980, 73)},
      Label3{*this, "Label3", "Telnet Host:", CaptionAt(kLeft, 4440, 1200)},
      txtTelnetHost{*this, "txtTelnetHost", Field(1380, 4380, 2400, kLongestAnswer, 7)},
      Label7{*this, "Label7", "Telnet Port:", CaptionAt(3900, 4440, 1080)},
      txtTelnetPort{*this, "txtTelnetPort", Field(5040, 4380, 780, kLongestNumber, 8)},
      lblEngine{*this, "lblEngine", "Engine (host:port):", CaptionAt(5940, 4440, 1500)},
      txtEngine{*this, "txtEngine", Field(7440, 4380, 1980, kLongestAnswer, 9)},
      chkLogin{
          *this,
          "chkLogin",
          "Log in and reconnect",
          {.place = {kLeft, kSerialTop, 2280, 270}, .toolTip = "Counts from the next Open Port on.", .tabIndex = 74}},
      lblLogin{*this, "lblLogin", "Call (or your own):", CaptionAt(kLeft, kSerialTop + 330, 1560)},
      txtLogin{*this, "txtLogin", Field(1800, kSerialTop + 300, 1200, kLongestCall, 75)},
      lblPassword{*this, "lblPassword", "Password (if any):", CaptionAt(kLeft, kSerialTop + 690, 1560)},
      txtPassword{*this,
                  "txtPassword",
                  {.place = {1800, kSerialTop + 660, 1200, 300},
                   .maxLength = kLongestExchangePart * 10,
                   .tabIndex = 76,
                   .secret = true}},
      chkKeepPassword{*this,
                      "chkKeepPassword",
                      "Keep the password",
                      {.place = {kLeft, kSerialTop + 1020, 2280, 270}, .tabIndex = 77}},
      lblLoginSend{*this, "lblLoginSend", "Sent then, up to ten lines:", CaptionAt(3180, kSerialTop, 2400)},
      txtLoginSend{*this,
                   "txtLoginSend",
                   {.place = {3180, kSerialTop + 270, 3000, 1320},
                    .maxLength = kLongestDescription,
                    .tabIndex = 78,
                    .multiLine = true}},
      lblNodes{*this, "lblNodes", "Your nodes:", CaptionAt(6360, kSerialTop, 2400)},
      lstNodes{*this, "lstNodes", {.place = {6360, kSerialTop + 270, 1800, 1320}, .tabIndex = 79}},
      cmdAddNode{*this, "cmdAddNode", "Add", {.place = {8280, kSerialTop + 270, 1140, 360}, .tabIndex = 80}},
      cmdRemoveNode{*this, "cmdRemoveNode", "Remove", {.place = {8280, kSerialTop + 690, 1140, 360}, .tabIndex = 81}},
      chkNeededOnly{*this,
                    "chkNeededOnly",
                    "Needed sections only",
                    {.place = {4860, 6930, 3000, 270},
                     .toolTip = "Maps and list show the spots whose post offers a section that is needed.",
                     .tabIndex = 82}},
      chkNearOnly{*this,
                  "chkNearOnly",
                  "Spotters in US and Canada only",
                  {.place = {4860, 7200, 3000, 270},
                   .toolTip = "Maps and list show the spots of posts from there.",
                   .tabIndex = 83}},
      Label1{*this, "Label1", "TNC cmd mode hex character:", CaptionAt(5280, kSerialTop + 1620, 2400)},
      txtHex{*this, "txtHex", Field(7740, kSerialTop + 1560, 600, 2, 69)},
      Label2{*this, "Label2", "The TNC must be set to the same speed, parity and bits as this port.",
             CaptionAt(kLeft, 4740, kWidth)},
      chkConvToHex{*this,
                   "chkConvToHex",
                   "Convert to Hex",
                   {.place = {8400, kSerialTop + 1560, 1020, 300}, .tabIndex = 68, .visible = false}},
      fraPort{*this, "fraPort", "Comm Port", kPort.Frame()},
      optComm{0, 9,
              [this](int i) {
                  return std::make_unique<Option>(*this, "optComm", i, std::to_string(i + 1), kPort.Cell(i, 10));
              }},
      fraBaud{*this, "fraBaud", "Baud Rate of Com Port to TNC (not necessarily transmitted baud rate)", kBaud.Frame()},
      optBaud12{*this, "optBaud12", "1.2k", kBaud.Cell(0, 20)},
      optBaud24{*this, "optBaud24", "2.4k", kBaud.Cell(1, 20)},
      optBaud48{*this, "optBaud48", "4.8k", kBaud.Cell(2, 20)},
      optBaud96{*this, "optBaud96", "9.6k", kBaud.Cell(3, 20)},
      optBaud144{*this, "optBaud144", "14.4k", kBaud.Cell(4, 20)},
      optBaud192{*this, "optBaud192", "19.2k", kBaud.Cell(5, 20)},
      fraParity{*this, "fraParity", "Parity", kParity.Frame()},
      optParityOdd{*this, "optParityOdd", "Odd", kParity.Cell(0, 30)},
      optParityNone{*this, "optParityNone", "None", kParity.Cell(1, 30)},
      optParityEven{*this, "optParityEven", "Even", kParity.Cell(2, 30)},
      fraData{*this, "fraData", "Data Bits", kData.Frame()},
      optData7{*this, "optData7", "7", kData.Cell(0, 40)},
      optData8{*this, "optData8", "8", kData.Cell(1, 40)},
      fraStop{*this, "fraStop", "Stop Bits", kStop.Frame()},
      optStop1{*this, "optStop1", "1", kStop.Cell(0, 45)},
      optStop2{*this, "optStop2", "2", kStop.Cell(1, 45)},
      fraHandshaking{*this, "fraHandshaking", "Handshaking", kHandshaking.Frame()},
      Option1{*this, "Option1", "None", kHandshaking.Cell(0, 50)},
      Option2{*this, "Option2", "Xon Xoff", kHandshaking.Cell(1, 50)},
      Option3{*this, "Option3", "RTS", kHandshaking.Cell(2, 50)},
      Option4{*this, "Option4", "RTS OnOff", kHandshaking.Cell(3, 50)},
      fraPower{*this, "fraPower", "Connection Power", kPower.Frame()},
      optPowerNone{*this, "optPowerNone", "None", kPower.Cell(0, 60)},
      optPowerRTS{*this, "optPowerRTS", "RTS", kPower.Cell(1, 60)},
      optPowerDTR{*this, "optPowerDTR", "DTR", kPower.Cell(2, 60)},
      Timer1{*this, "Timer1", kPollMs, false} {
    List1.SetItems({"None", "TNC", "Telnet", "AGW Packet Engine"});
    for (Option* option : {&OptBand, &OptList}) {
        option->PutInto(Frame2);
    }
    for (int i = optComm.First(); i <= optComm.Last(); ++i) {
        optComm(i).PutInto(fraPort);
    }
    for (Option* option : {&optBaud12, &optBaud24, &optBaud48, &optBaud96, &optBaud144, &optBaud192}) {
        option->PutInto(fraBaud);
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
    for (Option* option : {&Option1, &Option2, &Option3, &Option4}) {
        option->PutInto(fraHandshaking);
    }
    for (Option* option : {&optPowerNone, &optPowerRTS, &optPowerDTR}) {
        option->PutInto(fraPower);
    }
    OptBand.SetValue(true);
    chkKeepPassword.SetEnabled(false);
}

}  // namespace tallyhut
