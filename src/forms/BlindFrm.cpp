#include "forms/BlindFrm.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 180;
constexpr double kWidth = 5640;
constexpr double kRow = 390;
constexpr double kLevelTop = 120;
constexpr double kHelpTop = 1680;
constexpr double kButtonsTop = 3960;
constexpr double kSmallText = 8;

constexpr std::string_view kAlways =
    "The warning of a duplicate is spoken at every level; that of a needed section where Appearance, Color "
    "Needed DX Spots Green and Audio Alert of Needed Spots are both on.";
constexpr std::string_view kFiles =
    "The navigation audio wave files must be added to the working directory of this program.";
constexpr std::string_view kShipped =
    "They are Call, Number, Prec, Check, Section, Dupe, Needspot, NavEn and NavDis, each with .wav behind it. The "
    "program has a recording of its own for each that is not there.";

ButtonDesign Level(int row) {
    return {.place = {kLeft + 150, kLevelTop + 300 + row * kRow, 1800, 300}, .tabIndex = row + 1};
}

LabelDesign Told(int row) {
    return {.place = {kLeft + 2040, kLevelTop + 330 + row * kRow, 3480, 240}, .fontSize = kSmallText};
}

LabelDesign Help(double top, double height) {
    return {.place = {kLeft, kHelpTop + top, kWidth, height}};
}

}  // namespace

BlindFrm::BlindFrm(Desk& owner)
    : Form{owner, "BlindFrm", "Voice Navigation Settings", {.width = 6000, .height = 4800}},
      fraLevel{*this, "fraLevel", "Spoken", {kLeft, kLevelTop, kWidth, 1440}},
      Option1{*this, "Option1", "Off", Level(0)},
      lblOff{*this, "lblOff", "No field tells its name.", Told(0)},
      Option2{*this, "Option2", "Call Only", Level(1)},
      lblCallOnly{*this, "lblCallOnly", "The call's field tells its name.", Told(1)},
      Option3{*this, "Option3", "All Data Fields", Level(2)},
      lblAllFields{*this, "lblAllFields", "All five fields tell their names.", Told(2)},
      lblAlways{*this, "lblAlways", kAlways, Help(0, 480)},
      lblFiles{*this, "lblFiles", kFiles, Help(540, 480)},
      Label7{*this, "Label7", "", Help(1080, 480)},
      lblShipped{*this, "lblShipped", kShipped, Help(1620, 480)},
      Command1{*this, "Command1", "Done", {.place = {4620, kButtonsTop, 1200, 330}, .tabIndex = 4}} {
    for (Option* option : {&Option1, &Option2, &Option3}) {
        option->PutInto(fraLevel);
    }
}

}  // namespace tallyhut
