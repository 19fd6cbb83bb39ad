#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    Text("Label1"),
    Under("Label3(0)"),
    OneLine("Label2(0)", "lblcon(0):6 lblcon(6):3 lblPercent(0) picShare(0):*", RowLook::Reading),
    OneLine("Label2(1)", "lblcon(1):6 lblcon(7):3 lblPercent(1) picShare(1):*", RowLook::Reading),
    OneLine("Label2(2)", "lblcon(2):6 lblcon(8):3 lblPercent(2) picShare(2):*", RowLook::Reading),
    OneLine("Label2(3)", "lblcon(3):6 lblcon(9):3 lblPercent(3) picShare(3):*", RowLook::Reading),
    OneLine("Label2(4)", "lblcon(4):6 lblcon(10):3 lblPercent(4) picShare(4):*", RowLook::Reading),
    OneLine("Label2(5)", "lblcon(5):6 lblcon(11):3 lblPercent(5) picShare(5):*", RowLook::Reading),
    OneLine("Label3(1)", "lblcon(12):6", RowLook::Reading),
    Main("Command1"),
};

}  // namespace

const FormTable kFrmBndStatsTable{kRows};

}  // namespace tallyhut
