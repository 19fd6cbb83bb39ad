#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    OneLine("lblField(1)", "txtEditNumSent:6", RowLook::Data),
    OneLine("lblField(2)", "txtEditNum:6", RowLook::Data),
    OneLine("lblField(3)", "txtEditPre:3", RowLook::Data),
    OneLine("lblField(4)", "txtEditCall:12 Label1:7", RowLook::Data),
    OneLine("lblField(5)", "txtEditCk:3", RowLook::Data),
    OneLine("lblField(6)", "txtEditSec:5 Label2:7", RowLook::Data),
    OneLine("lblField(7)", "txtEditDate:11", RowLook::Data),
    OneLine("lblField(8)", "txtEditTime:9", RowLook::Data),
    OneLine("lblField(9)", "txtEditBnd:5", RowLook::Data),
    Left("cmdDeleteDupe"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kFrmEditConTable{kRows};

}  // namespace tallyhut
