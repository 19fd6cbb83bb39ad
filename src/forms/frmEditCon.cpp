#include "forms/frmEditCon.h"

#include <array>
#include <string_view>

#include "forms/refused_paste.h"
#include "forms/text_lengths.h"

namespace tallyhut {
namespace {

constexpr double kFirstRow = 180;
constexpr double kRow = 390;
constexpr double kLabelDrop = 60;
constexpr Colour kWarning = 0x0000C0;  // a red that can be read on a light form
constexpr std::string_view kDoubleQuote = "\"";

constexpr std::array<std::string_view, 9> kFieldCaptions{"Num Sent", "Num Rec", "Precedence", "Callsign", "Check",
                                                         "Section",  "Date",    "Time",       "Band"};

constexpr double RowTop(int position) {
    return kFirstRow + (position - 1) * kRow;
}

/// A text that is longer than usual must come back as it was.
TextBoxDesign Field(int position, double width, std::string refusesPaste = std::string{kDoubleQuote}) {
    return {.place = {1440, RowTop(position), width, 330},
            .maxLength = kLongestFileText,
            .tabIndex = position,
            .fontSize = 11,
            .refusesPaste = std::move(refusesPaste)};
}

LabelDesign Warning(int position) {
    return {.place = {3300, RowTop(position) + kLabelDrop, 1100, 240}, .foreColor = kWarning, .visible = false};
}

}  // namespace

frmEditCon::frmEditCon(Desk& owner)
    : Form{owner, "frmEditCon", "Edit Contact Entry", {.width = 4560, .height = 4500}},
      lblField{1, 9,
               [this](int i) {
                   return std::make_unique<Label>(*this, "lblField", i,
                                                  kFieldCaptions.at(static_cast<std::size_t>(i - 1)),
                                                  LabelDesign{.place = {180, RowTop(i) + kLabelDrop, 1200, 240}});
               }},
      // A serial number that is none would stop the program at the next look into the log.
      txtEditNumSent{*this, "txtEditNumSent", Field(1, 900, EverythingBut("0123456789"))},
      txtEditNum{*this, "txtEditNum", Field(2, 900)},
      txtEditPre{*this, "txtEditPre", Field(3, 480)},
      txtEditCall{*this, "txtEditCall", Field(4, 1740)},
      txtEditCk{*this, "txtEditCk", Field(5, 600)},
      txtEditSec{*this, "txtEditSec", Field(6, 780)},
      txtEditDate{*this, "txtEditDate", Field(7, 1380)},
      txtEditTime{*this, "txtEditTime", Field(8, 1140)},
      txtEditBnd{*this, "txtEditBnd", Field(9, 600)},
      Label1{*this, "Label1", " Dupe!", Warning(4)},
      Label2{*this, "Label2", "   Invalid!", Warning(6)},
      cmdDeleteDupe{*this,
                    "cmdDeleteDupe",
                    "Delete Dupe",
                    {.place = {180, RowTop(10) + 90, 1500, 375}, .tabIndex = 11, .visible = false}},
      cmdDone{*this, "cmdDone", "Done", {.place = {3060, RowTop(10) + 90, 1320, 375}, .tabIndex = 10}} {}

}  // namespace tallyhut
