#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    OneLine("lblField(1)", "Text1:12", RowLook::Data),
    OneLine("lblField(2)", "Text3:3 lblPrecHint", RowLook::Data),
    OneLine("lblField(3)", "Text4:4 lblCheckHint", RowLook::Data),
    OneLine("lblField(4)", "Text5:5 lblSectionHint", RowLook::Data),
    OneLine("lblField(5)", "Text6:7", RowLook::Data),
    OneLine("Frame1", "Option1 Option2"),
    Main("Command1"),
};

}  // namespace

const FormTable kFrmStationIDTable{kRows};

}  // namespace tallyhut
