#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(3),
    Group("Messages"),
    OneLine("lblKey(1)", "Text1:*", RowLook::Data),
    OneLine("lblKey(2)", "Text2:*", RowLook::Data),
    OneLine("lblKey(3)", "Text3:*", RowLook::Data),
    OneLine("lblKey(4)", "Text4:*", RowLook::Data),
    OneLine("lblKey(5)", "Text5:*", RowLook::Data),
    OneLine("lblKey(6)", "Text6:*", RowLook::Data),
    OneLine("lblKey(7)", "Text7:*", RowLook::Data),
    OneLine("lblKey(8)", "Text8:*", RowLook::Data),
    OneLine("lblKey(9)", "Text9:*", RowLook::Data),
    OneLine("lblKey(10)", "Text12:*", RowLook::Data),
    OneLine("lblKey(11)", "Text13:*", RowLook::Data),
    OneLine("lblKey(12)", "Label22"),
    OneLine("lblPreviewCaption", "lblPreview:*", RowLook::Data),
    Group("fraProsigns"),
    Grid("", "lblProsign(1-5)", 5, RowLook::Data),
    Group("How to set it up"),
    Text("lblMessages lblWildcards lblMode lblSideTone"),

    Column(2),
    Group("fraKeying"),
    OneLine("", "Option1 Option2 Option3 Option4 Option5"),
    OneLine("lblPort", "Text10:4 lblDevice:*", RowLook::Data),
    OneLine("lblAddress", "Text14:7 lblRegister:*", RowLook::Data),
    Text("lblLines"),
    Group("fraSpeed"),
    OneLine("lblWPM", "Text11:5 Command2 Command3"),
    OneLine("lblSpace", "txtSpace:5 Command5 Command6"),
    OneLine("lblCWLoop", "txtCWLoop:5 lblRepeat"),
    OneLine("", "Check1"),
    Group("fraTiming"),
    OneLine("optTimer", "lblTimer lblTimerCost"),
    OneLine("OptSleep", "lblSleep lblSleepCost"),
    OneLine("optLoop", "lblByLoop lblLoopCost"),
    OneLine("lblLoop", "txtLoop:9 cmdLoopFaster cmdLoopSlower"),
    Text("lblPreferred"),
    Group("While operating"),
    Text("lblArrows lblFinally"),

    Left("Command7 cmdConfWinkey"),
    Right("Label23 Command4"),
    Main("Command1"),
};

}  // namespace

const FormTable kCWFrmTable{kRows};

}  // namespace tallyhut
