#include "forms/Form6.h"

namespace tallyhut {
namespace {

constexpr double kExampleFontSize = 12;

}  // namespace

Form6::Form6(Desk& owner)
    : Form{owner, "Form6", " Modify Multiplier Color Selections", {.width = 6180, .height = 2220}},
      Label1{*this,
             "Label1",
             "Appearance of multiplier worked",
             {.place = {180, 240, 3240, 330}, .fontSize = kExampleFontSize}},
      Command3{*this, "Command3", "Change \"Worked\" Color", {.place = {3540, 210, 2460, 390}, .tabIndex = 1}},
      Label2{*this,
             "Label2",
             "Appearance of multiplier remaining",
             {.place = {180, 840, 3240, 330}, .fontSize = kExampleFontSize}},
      Command1{*this, "Command1", "Change \"Remaining\" Color", {.place = {3540, 810, 2460, 390}, .tabIndex = 2}},
      Command6{*this, "Command6", "Close", {.place = {4560, 1560, 1440, 420}, .tabIndex = 3}} {}

}  // namespace tallyhut
