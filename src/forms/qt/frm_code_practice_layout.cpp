#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(3),
    Group(),
    Fill("lblToSend", "Text1"),
    OneLine("", "Command6"),
    Fill("lblSent", "Text2"),
    OneLine("", "Command5"),

    Column(1),
    Group("What it is for"),
    Text("Label1"),
    Group("fraGenerate"),
    OneLine("lblGenerate", "Text3:4 lblGroups Text4:4 lblCharacters"),
    OneLine("fraInclude", "Option1 Option2"),
    OneLine("", "Command2"),
    OneLine("", "Command1"),
    Group("By hand"),
    Below("lblType", "Text5:*"),
    OneLine("Label7", "Label8:4 Command7 Command8"),

    Right("Command4"),
    Main("Command3"),
};

}  // namespace

const FormTable kFrmCodePracticeTable{kRows};

}  // namespace tallyhut
