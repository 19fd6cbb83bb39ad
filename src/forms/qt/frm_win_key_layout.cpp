#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(3),
    Group("fraDevice"),
    OneLine("lblComPort", "txtWKComPort:4 lblDevice:*", RowLook::Data),
    OneLine("lblOpenCaption", "lblOpenStatus:*", RowLook::Data),
    OneLine("lblVersionCaption", "lblVersion:*", RowLook::Data),
    Text("lblTrouble"),
    OneLine("", "cmdOpenWinkey cmdCloseWinkey"),
    Group("fraSending"),
    OneLine("lblWPM", "txtWKWPM:5"),
    OneLine("lblWeight", "txtWeight:5 lblWeightHint"),
    OneLine("lblRatio", "txtRatio:5 lblRatioHint"),
    OneLine("lblLeadIn", "txtLeadIn:5 lblLeadInHint"),
    OneLine("lblTail", "txtTail:5 lblTailHint"),

    Column(1),
    Group("fraMode"),
    Grid("", "optIambicB optIambicA optUltimatic optBug", 1),
    Group("fraPins"),
    Grid("", "optKey5Off3Out optPTT optTone optKey5Out3Off", 1),

    Left("Command3 cmdStop"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kFrmWinKeyTable{kRows};

}  // namespace tallyhut
