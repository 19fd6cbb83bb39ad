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
    OneLine("fraBaud",
            "optBaud12 optBaud24 optBaud48 optBaud96 optBaud144 optBaud192 optBaud288 optBaud384 optBaud560"),
    OneLine("fraParity", "optParityOdd optParityNone optParityEven"),
    OneLine("fraData", "optData7 optData8"),
    OneLine("fraStop", "optStop1 optStop2"),
    OneLine("fraPower", "optPowerNone optPowerRTS optPowerDTR"),
    Instead("fraRigServer", 2),
    OneLine("lblRigHost", "txtRigHost:*", RowLook::Data),
    OneLine("lblRigPort", "txtRigPort:6", RowLook::Data),
    OneLine("lblRigLinkCaption", "lblRigLink:12"),
    Group("Asking"),
    OneLine("fraPoll", "optPollFast optPollMed optPollSlow optReallySlow"),
    OneLine("Frame1", "OptRig OptFreq OptDont chkFrequency"),
    OneLine("lblFreqString", "txtFreq:*", RowLook::Data),
    OneLine("lblModeString", "txtMode:* chkConvToHex", RowLook::Data),
    Group("Answer"),
    OneLine("lblFreqCaption", "lblFreq:11 lblModeCaption lblMode:8 Label9", RowLook::Reading),
    OneLine("lblUnProcessCaption", "lblUnProcess:* ChkConvHex", RowLook::Data),

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
