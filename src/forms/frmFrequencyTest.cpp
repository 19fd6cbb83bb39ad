#include "forms/frmFrequencyTest.h"

#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 180;
constexpr double kWidth = 6000;

LabelDesign Paragraph(double top, double height) {
    return {.place = {kLeft, top, kWidth, height}};
}

}  // namespace

frmFrequencyTest::frmFrequencyTest(Desk& owner)
    : Form{owner, "frmFrequencyTest", "Test Change Frequency Function", {.width = 6360, .height = 5280}},
      Label1{*this, "Label1",
             "Please use the text box below to enter a complete command to send to your radio.  The default example is "
             "the command used for Kenwood radios.",
             Paragraph(150, 540)},
      Label2{*this, "Label2",
             "If your radio requires a hexidecimal format, please enter in the format of XX XX XX (using spaces "
             "between each two digits) and click the Convert to Hex check box below.",
             Paragraph(750, 540)},
      Text1{*this,
            "Text1",
            {.place = {kLeft, 1380, 4500, 360}, .maxLength = kLongestDescription, .tabIndex = 1, .fontSize = 11}},
      Check1{*this, "Check1", "Convert to Hex", {.place = {kLeft, 1830, 2100, 300}, .tabIndex = 2}},
      Command1{*this, "Command1", "Send", {.place = {4860, 1380, 1320, 360}, .tabIndex = 3}},
      Label4{*this, "Label4",
             "Most Elecrafts, Icoms, Kenwoods and Yaesus are now supported. For any supported radio, you should be "
             "able to enter a frequency in Mhz, click send and your radio should switch to the specified frequency.",
             Paragraph(2370, 750)},
      Text2{*this,
            "Text2",
            {.place = {kLeft, 3210, 1800, 360}, .maxLength = kLongestNumber, .tabIndex = 4, .fontSize = 11}},
      Command2{*this, "Command2", "Send", {.place = {4860, 3210, 1320, 360}, .tabIndex = 5}},
      Label3{*this, "Label3",
             "If you find a command that tunes a radio which is not in the list, please tell us what it is, so that "
             "the radio can be added.",
             Paragraph(3810, 540)},
      cmdClose{*this, "cmdClose", "Close", {.place = {4860, 4590, 1320, 390}, .tabIndex = 6}} {
    Text1.SetText("FA00028475000;");
    Text2.SetText("28.475");
}

}  // namespace tallyhut
