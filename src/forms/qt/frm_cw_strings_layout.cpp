#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    Line("Label1(0)", "lblCWString(0):*", RowLook::Reading),
    Line("Label1(1)", "lblCWString(1):*", RowLook::Reading),
    Line("Label1(2)", "lblCWString(2):*", RowLook::Reading),
    Line("Label1(3)", "lblCWString(3):*", RowLook::Reading),
    Line("Label1(4)", "lblCWString(4):*", RowLook::Reading),
    Line("Label1(5)", "lblCWString(5):*", RowLook::Reading),
    Line("Label1(6)", "lblCWString(6):*", RowLook::Reading),
    Line("Label1(7)", "lblCWString(7):*", RowLook::Reading),
    Line("Label1(8)", "lblCWString(8):*", RowLook::Reading),
    Line("Label1(9)", "lblCWString(9):*", RowLook::Reading),
    Line("Label1(10)", "lblCWString(10):*", RowLook::Reading),
    Line("Label1(11)", "lblCWString(11):*", RowLook::Reading),
    Left("Label2"),
    Main("Command1"),
};

}  // namespace

const FormTable kFrmCWStringsTable{kRows};

}  // namespace tallyhut
