#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    OneLine("Label1(0)", "lblCWString(0):*", RowLook::Reading),
    OneLine("Label1(1)", "lblCWString(1):*", RowLook::Reading),
    OneLine("Label1(2)", "lblCWString(2):*", RowLook::Reading),
    OneLine("Label1(3)", "lblCWString(3):*", RowLook::Reading),
    OneLine("Label1(4)", "lblCWString(4):*", RowLook::Reading),
    OneLine("Label1(5)", "lblCWString(5):*", RowLook::Reading),
    OneLine("Label1(6)", "lblCWString(6):*", RowLook::Reading),
    OneLine("Label1(7)", "lblCWString(7):*", RowLook::Reading),
    OneLine("Label1(8)", "lblCWString(8):*", RowLook::Reading),
    OneLine("Label1(9)", "lblCWString(9):*", RowLook::Reading),
    OneLine("Label1(10)", "lblCWString(10):*", RowLook::Reading),
    OneLine("Label1(11)", "lblCWString(11):*", RowLook::Reading),
    Left("Label2"),
    Main("Command1"),
};

}  // namespace

const FormTable kFrmCWStringsTable{kRows};

}  // namespace tallyhut
