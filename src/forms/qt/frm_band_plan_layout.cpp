#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    OneLine("Label2", "lblRadio:*", RowLook::Reading),
    Sheet("picPlan"),
    OnSheet("Label5", SheetText::Begins),
    OnSheet("Label1", SheetText::Ends),
    OnSheet("Label3 Label4 Line1 LineRadio"),
    OnSheet("blbl(*)", SheetText::Heads),
    OnSheet("bnlb(*)"),
    OnSheet("priv(*)", SheetText::Within),
    Left("Command1 Command2 Command3 Command4 Command5 Command6"),
    Main("Command7"),
};

}  // namespace

const FormTable kFrmBandPlanTable{kRows};

}  // namespace tallyhut
