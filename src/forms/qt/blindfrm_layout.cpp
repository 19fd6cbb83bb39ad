#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group("fraLevel"),
    OneLine("Option1", "lblOff"),
    OneLine("Option2", "lblCallOnly"),
    OneLine("Option3", "lblAllFields"),
    Text("lblAlways"),
    Group("Recordings"),
    Text("lblFiles Label7 lblShipped"),
    Main("Command1"),
};

}  // namespace

const FormTable kBlindFrmTable{kRows};

}  // namespace tallyhut
