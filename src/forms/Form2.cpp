#include "forms/Form2.h"

#include <array>
#include <string_view>

namespace tallyhut {
namespace {

constexpr double kRow = 330;
constexpr double kField = 300;
constexpr double kLeft = 150;
constexpr double kRight = 4800;
constexpr double kColumn = 4500;

/// The captions of lblText, and where the labels stand.
struct FieldLabel {
    std::string_view caption;
    Place place;
};

constexpr std::array<FieldLabel, 11> kFieldLabels{{
    {"Call of operator if different from call used: ", {kLeft, 1170, 3300, 240}},
    {"If multioperator, list calls of all operators:", {kLeft, 3030, kColumn, 240}},
    {"Rigs:", {kLeft + 150, 5430, 900, 240}},
    {"Antennas:", {kLeft + 150, 5790, 900, 240}},
    {"Your Name:", {kRight, 3090, 1260, 240}},
    {"Address Line 1:", {kRight, 3450, 1260, 240}},
    {"Address Line 2:", {kRight, 3810, 1260, 240}},
    {"Email Address:", {kRight, 4170, 1260, 240}},
    {"Power:", {kLeft + 150, 6150, 900, 240}},
    {"ARRL Affiliated Club:", {kLeft, 4590, 1650, 240}},
    {"Soapbox - add any comments you would like to make about the contest):", {kRight, 4590, kColumn, 240}},
}};

constexpr Place OptionPlace(double left, double frameTop, int row, double width) {
    return {left + 150, frameTop + 240 + row * kRow, width, 300};
}

TextBoxDesign Field(double left, double top, double width, int tabIndex) {
    return {.place = {left, top, width, kField}, .tabIndex = tabIndex};
}

ButtonDesign Choice(const Place& place, int tabIndex) {
    return {.place = place, .tabIndex = tabIndex};
}

constexpr double kClassTop = 120;
constexpr double kOperatorClassTop = 1530;
constexpr double kOperatorTop = 2220;
constexpr double kClubTop = 3780;
constexpr double kEquipmentTop = 5010;
constexpr double kCategoryTop = 120;

/// A row of options beside each other in a frame.
constexpr Place Beside(double frameLeft, double frameTop, int position, double width) {
    return {frameLeft + 150 + position * width, frameTop + 270, width - 60, 300};
}

}  // namespace

Form2::Form2(Desk& owner)
    : Form{owner, "Form2", "Summary Sheet Information", {.width = 9450, .height = 7080}},
      Frame1{*this, "Frame1", "Your License Class:", {kLeft, kClassTop, kColumn, 690}},
      Option1{*this, "Option1", "Novice", Choice(Beside(kLeft, kClassTop, 0, 1400), 1)},
      Option2{*this, "Option2", "Technician", Choice(Beside(kLeft, kClassTop, 1, 1400), 2)},
      Option3{*this, "Option3", "Other", Choice(Beside(kLeft, kClassTop, 2, 1400), 3)},
      lblText{1, 11,
              [this](int i) {
                  const FieldLabel& label = kFieldLabels.at(static_cast<std::size_t>(i - 1));
                  return std::make_unique<Label>(*this, "lblText", i, label.caption, LabelDesign{.place = label.place});
              }},
      Text1{*this, "Text1", Field(3480, 1140, 1170, 4)},
      fraOperatorClass{*this,
                       "fraOperatorClass",
                       "Operator license class if different from call used:",
                       {kLeft, kOperatorClassTop, kColumn, 690}},
      Option4{*this, "Option4", "Novice", Choice(Beside(kLeft, kOperatorClassTop, 0, 1400), 5)},
      Option8{*this, "Option8", "Technician", Choice(Beside(kLeft, kOperatorClassTop, 1, 1400), 6)},
      Option5{*this, "Option5", "Other", Choice(Beside(kLeft, kOperatorClassTop, 2, 1400), 7)},
      fraOperator{*this, "fraOperator", "Operator", {kLeft, kOperatorTop, kColumn, 690}},
      Option6{*this, "Option6", "Single", Choice(Beside(kLeft, kOperatorTop, 0, 1400), 8)},
      Option7{*this, "Option7", "Multiple", Choice(Beside(kLeft, kOperatorTop, 1, 1400), 9)},
      Text2{*this, "Text2", Field(kLeft, 3300, kColumn, 10)},
      fraClub{*this, "fraClub", "Club Participation?", {kLeft, kClubTop, kColumn, 690}},
      Option9{*this, "Option9", "Yes", Choice(Beside(kLeft, kClubTop, 0, 1400), 11)},
      Option10{*this, "Option10", "No", Choice(Beside(kLeft, kClubTop, 1, 1400), 12)},
      Text10{*this, "Text10", Field(1860, 4560, 2790, 13)},
      fraEquipment{*this, "fraEquipment", "Equipment Desc:", {kLeft, kEquipmentTop, kColumn, 1530}},
      Text3{*this, "Text3", Field(1260, 5400, 3240, 14)},
      Text4{*this, "Text4", Field(1260, 5760, 3240, 15)},
      Text9{*this, "Text9", Field(1260, 6120, 1200, 16)},
      fraCategory{*this, "fraCategory", "Category:", {kRight, kCategoryTop, 2250, 2700}},
      Option11{*this, "Option11", "Single-Op", Choice(OptionPlace(kRight, kCategoryTop, 0, 1950), 17)},
      Option12{*this, "Option12", "Single-Op-Assisted", Choice(OptionPlace(kRight, kCategoryTop, 1, 1950), 18)},
      Option13{*this, "Option13", "Multi-Op", Choice(OptionPlace(kRight, kCategoryTop, 2, 1950), 19)},
      Option14{*this, "Option14", "Multi-Two", Choice(OptionPlace(kRight, kCategoryTop, 3, 1950), 20)},
      Option15{*this, "Option15", "Multi-Multi", Choice(OptionPlace(kRight, kCategoryTop, 4, 1950), 21)},
      Option16{*this, "Option16", "School-Club", Choice(OptionPlace(kRight, kCategoryTop, 5, 1950), 22)},
      Option17{*this, "Option17", "Checklog", Choice(OptionPlace(kRight, kCategoryTop, 6, 1950), 23)},
      fraPower{*this, "fraPower", "Power Category:", {7200, kCategoryTop, 2100, 1350}},
      Option18{*this, "Option18", "High", Choice(OptionPlace(7200, kCategoryTop, 0, 1800), 24)},
      Option19{*this, "Option19", "Low", Choice(OptionPlace(7200, kCategoryTop, 1, 1800), 25)},
      Option20{*this, "Option20", "QRP", Choice(OptionPlace(7200, kCategoryTop, 2, 1800), 26)},
      fraAssisted{*this, "fraAssisted", "Category Assisted:", {7200, 1620, 2100, 1200}},
      OptCatYes{*this, "OptCatYes", "Yes", Choice(OptionPlace(7200, 1620, 0, 1800), 27)},
      optCatNo{*this, "optCatNo", "No", Choice(OptionPlace(7200, 1620, 1, 1800), 28)},
      Text5{*this, "Text5", Field(6120, 3060, 3180, 29)},
      Text6{*this, "Text6", Field(6120, 3420, 3180, 30)},
      Text7{*this, "Text7", Field(6120, 3780, 3180, 31)},
      Text8{*this, "Text8", Field(6120, 4140, 3180, 32)},
      Text11{*this, "Text11", Field(kRight, 4860, kColumn, 33)},
      Command4{*this, "Command4", "Write Cabrillo File", {.place = {kRight, 5400, 4500, 390}, .tabIndex = 34}},
      Command1{*this,
               "Command1",
               "Write Sum File (ASCIISum.txt - old format)",
               {.place = {kRight, 5850, 4500, 390}, .tabIndex = 35}},
      Command2{*this, "Command2", "Print Sum Form", {.place = {kRight, 6300, 2190, 390}, .tabIndex = 36}},
      Command3{*this, "Command3", "Done", {.place = {7110, 6300, 2190, 390}, .tabIndex = 37}} {
    for (Option* option : {&Option1, &Option2, &Option3}) {
        option->PutInto(Frame1);
    }
    for (Option* option : {&Option4, &Option8, &Option5}) {
        option->PutInto(fraOperatorClass);
    }
    for (Option* option : {&Option6, &Option7}) {
        option->PutInto(fraOperator);
    }
    for (Option* option : {&Option9, &Option10}) {
        option->PutInto(fraClub);
    }
    for (Control* control :
         std::initializer_list<Control*>{&lblText(3), &Text3, &lblText(4), &Text4, &lblText(9), &Text9}) {
        control->PutInto(fraEquipment);
    }
    for (Option* option : {&Option11, &Option12, &Option13, &Option14, &Option15, &Option16, &Option17}) {
        option->PutInto(fraCategory);
    }
    for (Option* option : {&Option18, &Option19, &Option20}) {
        option->PutInto(fraPower);
    }
    for (Option* option : {&OptCatYes, &optCatNo}) {
        option->PutInto(fraAssisted);
    }
    Option11.SetValue(true);
    Option19.SetValue(true);
    optCatNo.SetValue(true);
}

}  // namespace tallyhut
