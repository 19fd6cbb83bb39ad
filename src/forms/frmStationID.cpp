#include "forms/frmStationID.h"

#include <array>
#include <string_view>

#include "forms/refused_paste.h"
#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kFirstRow = 180;
constexpr double kRow = 420;
constexpr double kLabelDrop = 60;
constexpr double kFieldLeft = 2760;

constexpr std::array<std::string_view, 5> kFieldCaptions{
    "Please Enter your Call Sign:", "Precedence:", "Check:", "Section:", "Hours added for UTC:",
};

constexpr double RowTop(int position) {
    return kFirstRow + (position - 1) * kRow;
}

TextBoxDesign Field(int position, double width, int maxLength = kLongestExchangePart) {
    return {.place = {kFieldLeft, RowTop(position), width, 330},
            .maxLength = maxLength,
            .tabIndex = position,
            .fontSize = 11};
}

/// Six characters hold every offset of the world, such as -12.75, and no number of hours that would carry a date out of
/// the calendar.
TextBoxDesign OffsetField(int position) {
    TextBoxDesign field = Field(position, 900, 6);
    field.refusesPaste = EverythingBut("-./0123456789");
    return field;
}

LabelDesign Hint(int position) {
    return {.place = {3840, RowTop(position) + kLabelDrop, 2700, 240}};
}

}  // namespace

frmStationID::frmStationID(Desk& owner)
    : Form{owner, "frmStationID", " Amateur Station I.D.", {.width = 6720, .height = 3300}},
      lblField{1, 5,
               [this](int i) {
                   return std::make_unique<Label>(*this, "lblField", i,
                                                  kFieldCaptions.at(static_cast<std::size_t>(i - 1)),
                                                  LabelDesign{.place = {180, RowTop(i) + kLabelDrop, 2520, 240}});
               }},
      Text1{*this, "Text1", Field(1, 1740, kLongestCall)},
      Text3{*this, "Text3", Field(2, 480)},
      lblPrecHint{*this, "lblPrecHint", "(Q, A, B, U, M, or S)", Hint(2)},
      Text4{*this, "Text4", Field(3, 600)},
      lblCheckHint{*this, "lblCheckHint", "(Last 2 digits of year licensed)", Hint(3)},
      Text5{*this, "Text5", Field(4, 780)},
      lblSectionHint{*this, "lblSectionHint", "(ARRL Section: ENY, MDC, etc.)", Hint(4)},
      Text6{*this, "Text6", OffsetField(5)},
      Frame1{*this, "Frame1", "Contest:", {180, 2340, 2820, 780}},
      Option1{*this, "Option1", "CW", {.place = {360, 2640, 1080, 330}, .tabIndex = 6}},
      Option2{*this, "Option2", "Phone", {.place = {1620, 2640, 1200, 330}, .tabIndex = 7}},
      Command1{*this, "Command1", "Done", {.place = {5160, 2700, 1380, 390}, .tabIndex = 8}} {
    Option1.PutInto(Frame1);
    Option2.PutInto(Frame1);
}

}  // namespace tallyhut
