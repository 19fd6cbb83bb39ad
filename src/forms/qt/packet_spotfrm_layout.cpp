#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group("Source"),
    Below("lblSelect", "List1:18"),
    Line("Label3", "txtTelnetHost:*"),
    Line("Label7", "txtTelnetPort:6"),
    Line("lblEngine", "txtEngine:*"),
    Group("Main form"),
    Line("Frame2", "OptBand OptList"),
    Line("", "chkDX"),
    Text("Label5"),

    Column(2),
    Group("fraPort"),
    Grid("", "optComm(0-9)", 5, RowLook::Devices),
    Group("fraBaud"),
    Grid("", "optBaud12 optBaud24 optBaud48 optBaud96 optBaud144 optBaud192", 6),
    Group("Line"),
    Line("fraParity", "optParityOdd optParityNone optParityEven"),
    Line("fraData", "optData7 optData8"),
    Line("fraStop", "optStop1 optStop2"),
    Line("fraHandshaking", "Option1 Option2 Option3 Option4"),
    Line("fraPower", "optPowerNone optPowerRTS optPowerDTR"),
    Line("Label1", "txtHex:3 chkConvToHex"),
    Text("Label2"),

    Column(3),
    Group("Terminal"),
    Fill("", "txtUnProcessed"),
    Below("Label6", "txtSent:*"),
    Line("", "Label4"),

    Left("Command3"),
    Right("Command2 Command1"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kPacketSpotfrmTable{kRows};

}  // namespace tallyhut
