#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(3),
    Group("Messages"),
    Line("lblKey(1)", "Text1:*", RowLook::Data),
    Line("lblKey(2)", "Text2:*", RowLook::Data),
    Line("lblKey(3)", "Text3:*", RowLook::Data),
    Line("lblKey(4)", "Text4:*", RowLook::Data),
    Line("lblKey(5)", "Text5:*", RowLook::Data),
    Line("lblKey(6)", "Text6:*", RowLook::Data),
    Line("lblKey(7)", "Text7:*", RowLook::Data),
    Line("lblKey(8)", "Text8:*", RowLook::Data),
    Line("lblKey(9)", "Text9:*", RowLook::Data),
    Line("lblKey(10)", "Text12:*", RowLook::Data),
    Line("lblKey(11)", "Text13:*", RowLook::Data),
    Line("lblKey(12)", "Label22"),
    Line("lblPreviewCaption", "lblPreview:*", RowLook::Data),
    Group("fraProsigns"),
    Grid("", "lblProsign(1-5)", 5, RowLook::Data),
    Group("How to set it up"),
    Text("lblMessages lblWildcards lblMode lblSideTone"),

    Column(2),
    Group("fraKeying"),
    Line("", "Option1 Option2 Option3 Option4 Option5"),
    Line("lblPort", "Text10:4 lblDevice:*", RowLook::Data),
    Line("lblAddress", "Text14:7 lblRegister:*", RowLook::Data),
    Text("lblLines"),
    Group("fraSpeed"),
    Line("lblWPM", "Text11:5 Command2 Command3"),
    Line("lblSpace", "txtSpace:5 Command5 Command6"),
    Line("lblCWLoop", "txtCWLoop:5 lblRepeat"),
    Line("", "Check1"),
    Group("fraTiming"),
    Line("optTimer", "lblTimer lblTimerCost"),
    Line("OptSleep", "lblSleep lblSleepCost"),
    Line("optLoop", "lblByLoop lblLoopCost"),
    Line("lblLoop", "txtLoop:9 cmdLoopFaster cmdLoopSlower"),
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
