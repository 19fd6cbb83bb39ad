#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    Sheet("picGraph"),
    OnSheet("lblY(0-16)", SheetText::Ends),
    OnSheet("lblTime(0-14) lblDate(0-14) LineHover"),
    OnSheet("Label1 lblBnd(0-6)", SheetText::Begins),
    OneLine("", "lblHover:*", RowLook::Reading),
    Left("Command1 cmdSave"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kGraphQSOTable{kRows};

}  // namespace tallyhut
