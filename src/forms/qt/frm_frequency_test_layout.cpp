#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group("A command"),
    Text("Label1 Label2"),
    OneLine("", "Text1:* Command1", RowLook::Data),
    OneLine("", "Check1"),
    Group("A frequency"),
    Text("Label4"),
    OneLine("", "Text2:12 Command2", RowLook::Data),
    Text("Label3"),
    Main("cmdClose"),
};

}  // namespace

const FormTable kFrmFrequencyTestTable{kRows};

}  // namespace tallyhut
