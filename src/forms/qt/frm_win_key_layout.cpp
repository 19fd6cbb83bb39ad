#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(3),
    Group("fraDevice"),
    Line("lblComPort", "txtWKComPort:4 lblDevice:*", RowLook::Data),
    Line("lblOpenCaption", "lblOpenStatus:*", RowLook::Data),
    Line("lblVersionCaption", "lblVersion:*", RowLook::Data),
    Text("lblTrouble"),
    Line("", "cmdOpenWinkey cmdCloseWinkey"),
    Group("fraSending"),
    Line("lblWPM", "txtWKWPM:5"),
    Line("lblWeight", "txtWeight:5 lblWeightHint"),
    Line("lblRatio", "txtRatio:5 lblRatioHint"),
    Line("lblLeadIn", "txtLeadIn:5 lblLeadInHint"),
    Line("lblTail", "txtTail:5 lblTailHint"),

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
