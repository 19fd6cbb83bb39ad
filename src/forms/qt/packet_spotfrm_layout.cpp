#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(0),
    Group("Source"),
    Below("lblSelect", "List1:18"),
    OneLine("Label3", "txtTelnetHost:*"),
    OneLine("Label7", "txtTelnetPort:6"),
    OneLine("lblEngine", "txtEngine:*"),
    Group("Main form"),
    OneLine("Frame2", "OptBand OptList"),
    OneLine("", "chkDX"),
    OneLine("", "chkNeededOnly"),
    OneLine("", "chkNearOnly"),
    Text("Label5"),

    Column(0),
    Group("fraPort"),
    Grid("", "optComm(0-9)", 5, RowLook::Devices),
    Group("fraBaud"),
    Grid("", "optBaud12 optBaud24 optBaud48 optBaud96 optBaud144 optBaud192", 6),
    Group("Line"),
    OneLine("fraParity", "optParityOdd optParityNone optParityEven"),
    OneLine("fraData", "optData7 optData8"),
    OneLine("fraStop", "optStop1 optStop2"),
    OneLine("fraHandshaking", "Option1 Option2 Option3 Option4"),
    OneLine("fraPower", "optPowerNone optPowerRTS optPowerDTR"),
    OneLine("Label1", "txtHex:3 chkConvToHex"),
    Text("Label2"),

    Column(0),
    Group("Login"),
    OneLine("", "chkLogin"),
    OneLine("lblLogin", "txtLogin:*"),
    OneLine("lblPassword", "txtPassword:*"),
    OneLine("", "chkKeepPassword"),
    Fill("lblLoginSend", "txtLoginSend:24"),
    Group("Nodes"),
    Fill("lblNodes", "lstNodes:24"),
    OneLine("", "cmdAddNode cmdRemoveNode"),

    Column(1),
    Group("Terminal"),
    Fill("", "txtUnProcessed:40", 1, RowLook::Data),
    Below("Label6", "txtSent:*"),
    OneLine("", "Label4"),

    Left("Command3"),
    Right("Command2 Command1"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kPacketSpotfrmTable{kRows};

}  // namespace tallyhut
