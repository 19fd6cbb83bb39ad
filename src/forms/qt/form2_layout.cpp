#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(0),
    Group("fraCategory"),
    Grid("", "Option11 Option12 Option13 Option14 Option15 Option16 Option17", 1),
    Group("fraPower"),
    OneLine("", "Option18 Option19 Option20"),
    Group("fraAssisted"),
    OneLine("", "OptCatYes optCatNo"),

    Column(3),
    Group("Entry"),
    Below("lblText(2)", "Text2:*"),
    OneLine("lblText(5)", "Text5:*"),
    OneLine("lblText(6)", "Text6:*"),
    OneLine("lblText(7)", "Text7:*"),
    OneLine("lblText(8)", "Text8:*"),
    OneLine("lblText(10)", "Text10:*"),
    Below("lblText(11)", "Text11:*"),
    Text("lblMissing"),
    OneLine("", "chkCabrillo3"),
    OneLine("", "Command4"),

    Column(2),
    Group("Summary sheet"),
    Below("Frame1", "Option1 Option2 Option3"),
    Below("lblText(1)", "Text1:*"),
    Below("fraOperatorClass", "Option4 Option8 Option5"),
    OneLine("fraOperator", "Option6 Option7"),
    OneLine("fraClub", "Option9 Option10"),
    Group("fraEquipment"),
    OneLine("lblText(3)", "Text3:*"),
    OneLine("lblText(4)", "Text4:*"),
    OneLine("lblText(9)", "Text9:*"),

    Left("Command1 Command2"),
    Right("cmdKept"),
    Main("Command3"),
};

}  // namespace

const FormTable kForm2Table{kRows};

}  // namespace tallyhut
