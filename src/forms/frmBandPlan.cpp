#include "forms/frmBandPlan.h"

namespace tallyhut {
namespace {

constexpr double kLeft = 960;
constexpr double kButtonTop = 6540;
constexpr std::int32_t kRadioMs = 500;

ButtonDesign Choice(int index) {
    return {.place = {kLeft + index * 1140.0, kButtonTop, 1080, 375}, .tabIndex = index + 1};
}

}  // namespace

frmBandPlan::frmBandPlan(Desk& owner)
    : Form{owner, "frmBandPlan", "Frequency Privileges", {.width = 9600, .height = 7200}},
      Label1{*this, "Label1", "", {.place = {5700, 480, 3420, 270}}},
      Label2{*this, "Label2", "", {.place = {kLeft, 120, 4680, 270}}},
      Label5{*this, "Label5", "Privelages", {.place = {kLeft, 480, 1200, 270}}},
      Label3{*this, "Label3", "CW", {.place = {2220, 480, 900, 270}}},
      Label4{*this, "Label4", "Phone", {.place = {3180, 480, 900, 270}}},
      lblRadio{*this, "lblRadio", "", {.place = {5700, 120, 3420, 270}}},
      Line1{*this, "Line1", kLeft, 810, 9120, 810},
      picPlan{*this, "picPlan", {.place = {kLeft, 900, 8160, 4320}, .toolTip = "The bands and their segments"}},
      blbl{*this, "blbl"},
      priv{*this, "priv"},
      bnlb{*this, "bnlb"},
      LineRadio{*this, "LineRadio", 0, 0, 0, 0},
      Command1{*this, "Command1", "Novice", Choice(0)},
      Command2{*this, "Command2", "Technician", Choice(1)},
      Command3{*this, "Command3", "Tech +", Choice(2)},
      Command4{*this, "Command4", "General", Choice(3)},
      Command5{*this, "Command5", "Advanced", Choice(4)},
      Command6{*this, "Command6", "Extra", Choice(5)},
      Command7{*this, "Command7", "Done", Choice(6)},
      tmrRadio{*this, "tmrRadio", kRadioMs, true} {
    LineRadio.SetVisible(false);
}

}  // namespace tallyhut
