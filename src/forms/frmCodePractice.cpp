#include "forms/frmCodePractice.h"

#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 150;
constexpr double kRight = 4950;
constexpr double kWidth = 4500;
constexpr double kGenerateTop = 720;
constexpr double kTypeTop = 3600;
constexpr double kButtonsTop = 5850;

constexpr std::string_view kPurpose =
    "You can transmit morse code practice using randomly generated characters, copying and pasting text or typing text "
    "into the \"Text to Send\" text box.  Click Send to send the characters. ";

LabelDesign At(double left, double top, double width) {
    return {.place = {left, top, width, 240}};
}

TextBoxDesign Page(double top, int tabIndex) {
    return {.place = {kLeft, top, kWidth, 1950}, .maxLength = kLongestPage, .tabIndex = tabIndex, .multiLine = true};
}

TextBoxDesign Number(double left, int tabIndex) {
    return {.place = {left, kGenerateTop + 330, 600, 300}, .maxLength = kLongestNumber, .tabIndex = tabIndex};
}

ButtonDesign Press(double left, double top, double width, int tabIndex) {
    return {.place = {left, top, width, 360}, .tabIndex = tabIndex};
}

}  // namespace

frmCodePractice::frmCodePractice(Desk& owner)
    : Form{owner, "frmCodePractice", "On the Air Code Practice", {.width = 9600, .height = 6600}},
      Label1{*this, "Label1", kPurpose, {.place = {kLeft, 120, 9300, 480}}},
      lblToSend{*this, "lblToSend", " Text to Send", At(kLeft, 720, kWidth)},
      Text1{*this, "Text1", Page(960, 1)},
      lblSent{*this, "lblSent", " Text Sent", At(kLeft, 3240, kWidth)},
      Text2{*this, "Text2", Page(3480, 2)},
      fraGenerate{*this, "fraGenerate", "Random groups", {kRight, kGenerateTop, kWidth, 2340}},
      lblGenerate{*this, "lblGenerate", "Generate", At(kRight + 150, kGenerateTop + 360, 800)},
      Text3{*this, "Text3", Number(kRight + 960, 3)},
      lblGroups{*this, "lblGroups", "groups of", At(kRight + 1620, kGenerateTop + 360, 800)},
      Text4{*this, "Text4", Number(kRight + 2430, 4)},
      lblCharacters{*this, "lblCharacters", "characters each.", At(kRight + 3090, kGenerateTop + 360, 1350)},
      fraInclude{*this, "fraInclude", "Include:", {kRight + 150, kGenerateTop + 720, 4200, 660}},
      Option1{
          *this, "Option1", "Letters Only", {.place = {kRight + 300, kGenerateTop + 990, 1500, 300}, .tabIndex = 5}},
      Option2{*this, "Option2", "All", {.place = {kRight + 1950, kGenerateTop + 990, 1200, 300}, .tabIndex = 6}},
      Command2{*this, "Command2", "&Generate Random Characters", Press(kRight + 150, kGenerateTop + 1470, 2600, 7)},
      Command1{*this, "Command1", "&Paste from Clipboard", Press(kRight + 150, kGenerateTop + 1890, 2600, 8)},
      lblType{*this, "lblType", "Type characters here to send text from keyboard:", At(kRight, kTypeTop, kWidth)},
      Text5{
          *this, "Text5", {.place = {kRight, kTypeTop + 270, kWidth, 300}, .maxLength = kLongestAnswer, .tabIndex = 9}},
      Label7{*this, "Label7", "WPM", At(kRight, kTypeTop + 780, 600)},
      Label8{*this, "Label8", "", At(kRight + 660, kTypeTop + 780, 600)},
      Command7{*this, "Command7", "&Faster", Press(kRight + 1350, kTypeTop + 720, 1200, 10)},
      Command8{*this, "Command8", "S&lower", Press(kRight + 2700, kTypeTop + 720, 1200, 11)},
      Command6{*this, "Command6", "&Clear", Press(kLeft, kButtonsTop, 1200, 12)},
      Command5{*this, "Command5", "Cl&ear", Press(kLeft + 1350, kButtonsTop, 1200, 13)},
      Command4{*this, "Command4", "S&top", Press(kRight + 1950, kButtonsTop, 1200, 14)},
      Command3{*this, "Command3", "&Send", Press(kRight + 3300, kButtonsTop, 1200, 15)} {
    Text3.SetText("10");
    Text4.SetText("5");
    Option1.PutInto(fraInclude);
    Option2.PutInto(fraInclude);
    Option2.SetValue(true);
}

}  // namespace tallyhut
