#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(0),
    Group("Radio", "List1"),
    Fill("", "List1:16"),

    Column(1),
    Group("fraPort"),
    Grid("", "optComm(0-9)", 5, RowLook::Devices),
    Group("Line"),
    Line("fraBaud", "optBaud12 optBaud24 optBaud48 optBaud96 optBaud144 optBaud192 optBaud288 optBaud384 optBaud560"),
    Line("fraParity", "optParityOdd optParityNone optParityEven"),
    Line("fraData", "optData7 optData8"),
    Line("fraStop", "optStop1 optStop2"),
    Line("fraPower", "optPowerNone optPowerRTS optPowerDTR"),
    Group("Asking"),
    Line("fraPoll", "optPollFast optPollMed optPollSlow optReallySlow"),
    Line("Frame1", "OptRig OptFreq OptDont chkFrequency"),
    Line("lblFreqString", "txtFreq:*", RowLook::Data),
    Line("lblModeString", "txtMode:* chkConvToHex", RowLook::Data),
    Group("Answer"),
    Line("lblFreqCaption", "lblFreq:11 lblModeCaption lblMode:8 Label9", RowLook::Reading),
    Line("lblUnProcessCaption", "lblUnProcess:* ChkConvHex", RowLook::Data),

    Column(2),
    Group("How to set it up"),
    Text("Label8 Label11 Label12 Label10"),

    Left("Command4"),
    Right("Label2 Command2 Command3 Command1"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kRigControlfrmTable{kRows};

}  // namespace tallyhut
