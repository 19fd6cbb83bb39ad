#include "forms/Form2.h"

#include <array>
#include <string_view>

#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kRow = 330;
constexpr double kField = 300;
// What the entry file takes stands at the left, what the summary sheet has beside it at the right.
constexpr double kLeft = 150;
constexpr double kRight = 4800;
constexpr double kColumn = 4500;

/// The captions of lblText, and where the labels stand.
struct FieldLabel {
    std::string_view caption;
    Place place;
};

constexpr std::array<FieldLabel, 11> kFieldLabels{{
    {"Call of operator if different from call used: ", {kRight, 1050, 3300, 240}},
    {"If multioperator, list calls of all operators:", {kLeft, 2970, kColumn, 240}},
    {"Rigs:", {kRight + 150, 4080, 900, 240}},
    {"Antennas:", {kRight + 150, 4440, 900, 240}},
    {"Your Name:", {kLeft, 3690, 1650, 240}},
    {"Address Line 1:", {kLeft, 4050, 1650, 240}},
    {"Address Line 2:", {kLeft, 4410, 1650, 240}},
    {"Email Address:", {kLeft, 4770, 1650, 240}},
    {"Power:", {kRight + 150, 4800, 900, 240}},
    {"ARRL Affiliated Club:", {kLeft, 5130, 1650, 240}},
    {"Soapbox - add any comments you would like to make about the contest):", {kLeft, 5490, kColumn, 240}},
}};

TextBoxDesign Field(double left, double top, double width, int tabIndex, int maxLength) {
    return {.place = {left, top, width, kField}, .maxLength = maxLength, .tabIndex = tabIndex};
}

/// A field beside its label in the left column.
TextBoxDesign LabelledField(double top, int tabIndex) {
    return Field(kLeft + 1710, top, kColumn - 1710, tabIndex, kLongestAnswer);
}

constexpr double kCategoryTop = 120;
constexpr double kPowerLeft = 2550;
constexpr double kAssistedTop = 1620;
constexpr double kClassTop = 120;
constexpr double kOperatorClassTop = 1470;
constexpr double kOperatorTop = 2220;
constexpr double kClubTop = 2970;
constexpr double kEquipmentTop = 3720;

/// Options below each other in a frame.
ButtonDesign Below(double frameLeft, double frameTop, int position, int tabIndex) {
    return {.place = {frameLeft + 150, frameTop + 270 + position * kRow, 1800, 300}, .tabIndex = tabIndex};
}

/// Options beside each other in a frame.
ButtonDesign Beside(double frameTop, int position, int tabIndex) {
    return {.place = {kRight + 150 + position * 1400.0, frameTop + 270, 1340, 300}, .tabIndex = tabIndex};
}

ButtonDesign ButtonAt(double left, double top, double width, int tabIndex) {
    return {.place = {left, top, width, 390}, .tabIndex = tabIndex};
}

}  // namespace

Form2::Form2(Desk& owner)
    : Form{owner, "Form2", "Summary Sheet Information", {.width = 9450, .height = 6900}},
      lblText{1, 11,
              [this](int i) {
                  const FieldLabel& label = kFieldLabels.at(static_cast<std::size_t>(i - 1));
                  return std::make_unique<Label>(*this, "lblText", i, label.caption, LabelDesign{.place = label.place});
              }},
      fraCategory{*this, "fraCategory", "Category:", {kLeft, kCategoryTop, 2250, 2700}},
      Option11{*this, "Option11", "Single-Op", Below(kLeft, kCategoryTop, 0, 1)},
      Option12{*this, "Option12", "Single-Op-Assisted", Below(kLeft, kCategoryTop, 1, 2)},
      Option13{*this, "Option13", "Multi-Op", Below(kLeft, kCategoryTop, 2, 3)},
      Option14{*this, "Option14", "Multi-Two", Below(kLeft, kCategoryTop, 3, 4)},
      Option15{*this, "Option15", "Multi-Multi", Below(kLeft, kCategoryTop, 4, 5)},
      Option16{*this, "Option16", "School-Club", Below(kLeft, kCategoryTop, 5, 6)},
      Option17{*this, "Option17", "Checklog", Below(kLeft, kCategoryTop, 6, 7)},
      fraPower{*this, "fraPower", "Power Category:", {kPowerLeft, kCategoryTop, 2100, 1350}},
      Option18{*this, "Option18", "High", Below(kPowerLeft, kCategoryTop, 0, 8)},
      Option19{*this, "Option19", "Low", Below(kPowerLeft, kCategoryTop, 1, 9)},
      Option20{*this, "Option20", "QRP", Below(kPowerLeft, kCategoryTop, 2, 10)},
      fraAssisted{*this, "fraAssisted", "Category Assisted:", {kPowerLeft, kAssistedTop, 2100, 1200}},
      OptCatYes{*this, "OptCatYes", "Yes", Below(kPowerLeft, kAssistedTop, 0, 11)},
      optCatNo{*this, "optCatNo", "No", Below(kPowerLeft, kAssistedTop, 1, 12)},
      Text2{*this, "Text2", Field(kLeft, 3240, kColumn, 13, kLongestDescription)},
      Text5{*this, "Text5", LabelledField(3660, 14)},
      Text6{*this, "Text6", LabelledField(4020, 15)},
      Text7{*this, "Text7", LabelledField(4380, 16)},
      Text8{*this, "Text8", LabelledField(4740, 17)},
      Text10{*this, "Text10", LabelledField(5100, 18)},
      Text11{*this, "Text11", Field(kLeft, 5760, kColumn, 19, kLongestFileText)},
      lblMissing{*this, "lblMissing", "", {.place = {kLeft, 6060, kColumn, 180}}},
      // Last: who writes the entry by keyboard finds all else where it was.
      chkCabrillo3{*this,
                   "chkCabrillo3",
                   "Header as Cabrillo 3 lists it",
                   {.place = {kLeft, 6645, kColumn, 240},
                    .toolTip = "CATEGORY-MODE SSB, LOCATION, EMAIL and the operator categories of today",
                    .tabIndex = 40}},
      Command4{*this, "Command4", "Write Cabrillo File", ButtonAt(kLeft, 6240, kColumn, 21)},
      Frame1{*this, "Frame1", "Your License Class:", {kRight, kClassTop, kColumn, 690}},
      Option1{*this, "Option1", "Novice", Beside(kClassTop, 0, 22)},
      Option2{*this, "Option2", "Technician", Beside(kClassTop, 1, 23)},
      Option3{*this, "Option3", "Other", Beside(kClassTop, 2, 24)},
      Text1{*this, "Text1", Field(kRight + 3330, 1020, 1170, 25, kLongestCall)},
      fraOperatorClass{*this,
                       "fraOperatorClass",
                       "Operator license class if different from call used:",
                       {kRight, kOperatorClassTop, kColumn, 690}},
      Option4{*this, "Option4", "Novice", Beside(kOperatorClassTop, 0, 26)},
      Option8{*this, "Option8", "Technician", Beside(kOperatorClassTop, 1, 27)},
      Option5{*this, "Option5", "Other", Beside(kOperatorClassTop, 2, 28)},
      fraOperator{*this, "fraOperator", "Operator", {kRight, kOperatorTop, kColumn, 690}},
      Option6{*this, "Option6", "Single", Beside(kOperatorTop, 0, 29)},
      Option7{*this, "Option7", "Multiple", Beside(kOperatorTop, 1, 30)},
      fraClub{*this, "fraClub", "Club Participation?", {kRight, kClubTop, kColumn, 690}},
      Option9{*this, "Option9", "Yes", Beside(kClubTop, 0, 31)},
      Option10{*this, "Option10", "No", Beside(kClubTop, 1, 32)},
      fraEquipment{*this, "fraEquipment", "Equipment Desc:", {kRight, kEquipmentTop, kColumn, 1470}},
      Text3{*this, "Text3", Field(kRight + 1110, 4050, 3240, 33, kLongestDescription)},
      Text4{*this, "Text4", Field(kRight + 1110, 4410, 3240, 34, kLongestDescription)},
      Text9{*this, "Text9", Field(kRight + 1110, 4770, 1200, 35, kLongestNumber)},
      Command1{*this, "Command1", "Write Sum File (ASCIISum.txt - old format)", ButtonAt(kRight, 5340, kColumn, 36)},
      Command2{*this, "Command2", "Print Sum Form", ButtonAt(kRight, 5790, kColumn, 37)},
      cmdKept{*this, "cmdKept", "&Fill In as Before", ButtonAt(kRight, 6240, 2190, 38)},
      Command3{*this, "Command3", "Done", ButtonAt(kRight + 2310, 6240, 2190, 39)} {
    cmdKept.SetVisible(false);
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
