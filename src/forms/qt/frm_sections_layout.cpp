#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group(),
    OneLine("lblInForce", "lblSections:*"),
    Fill("lblLists", "lstSections", 2),
    Fill("lblHolds", "lstHolds", 5, RowLook::Data),
    Text("lblNote"),
    Left("cmdUse"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kFrmSectionsTable{kRows};

}  // namespace tallyhut
