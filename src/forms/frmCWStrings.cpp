#include "forms/frmCWStrings.h"

namespace tallyhut {
namespace {

constexpr int kKeyboard = 11;
constexpr double kRow = 360;
constexpr double kLargeText = 12;

LabelDesign At(int index, double left, double width) {
    return {.place = {left, 120 + index * kRow, width, 330}, .fontSize = kLargeText};
}

}  // namespace

frmCWStrings::frmCWStrings(Desk& owner)
    : Form{owner, "frmCWStrings", "CW Strings", {.width = 6600, .height = 5160}},
      Label1{0, kKeyboard,
             [this](int i) {
                 return std::make_unique<Label>(*this, "Label1", i, "F" + std::to_string(i + 1), At(i, 180, 600));
             }},
      lblCWString{0, kKeyboard,
                  [this](int i) {
                      return std::make_unique<Label>(*this, "lblCWString", i, i == kKeyboard ? "Keyboard" : "",
                                                     At(i, 840, 5580));
                  }},
      Label2{*this, "Label2", "Press Ctrl W to Show this form.", {.place = {180, 4680, 3600, 240}}},
      Command1{*this, "Command1", "Done", {.place = {5220, 4620, 1200, 360}, .tabIndex = 1}} {}

}  // namespace tallyhut
