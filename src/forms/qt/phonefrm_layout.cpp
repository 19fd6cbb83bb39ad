#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(3),
    Group("Messages"),
    OneLine("lblKey(1)", "Text1:* Command2 cmdRecord(1)", RowLook::Data),
    OneLine("lblKey(2)", "Text2:* Command3 cmdRecord(2)", RowLook::Data),
    OneLine("lblKey(3)", "Text3:* Command4 cmdRecord(3)", RowLook::Data),
    OneLine("lblKey(4)", "Text4:* Command5 cmdRecord(4)", RowLook::Data),
    OneLine("lblKey(5)", "Text5:* Command6 cmdRecord(5)", RowLook::Data),
    OneLine("lblKey(6)", "Text6:* Command7 cmdRecord(6)", RowLook::Data),
    OneLine("lblKey(7)", "Text7:* Command8 cmdRecord(7)", RowLook::Data),
    OneLine("lblKey(8)", "Text8:* Command9 cmdRecord(8)", RowLook::Data),
    OneLine("lblKey(9)", "Text9:* Command10 cmdRecord(9)", RowLook::Data),
    Group("How to set it up"),
    Text("lblLineOut lblCaution lblByHand"),

    Column(2),
    Group("fraKeying"),
    OneLine("", "Option1 Option2 Option3"),
    OneLine("lblPort", "Text10:4 lblDevice:*", RowLook::Data),
    OneLine("lblAddress", "Text11:7 lblRegister:*", RowLook::Data),
    Text("lblLines"),
    Group("fraRepeat"),
    OneLine("lblPHLoop", "txtPHLoop:5 lblRepeat"),
    Group("fraRecording"),
    OneLine("lblLevelCaption", "lblMeter:22 lblLevel:*", RowLook::Data),
    Text("lblRecording"),
    OneLine("", "cmdStopRecord cmdPlayBack"),

    Right("lblTest Command11 Command12"),
    Main("Command1"),
};

}  // namespace

const FormTable kPhoneFrmTable{kRows};

}  // namespace tallyhut
