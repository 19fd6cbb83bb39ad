#include "forms/qt/form_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>

#include "forms/qt/form1_layout.h"
#include "tests/forms/shown_program.h"

namespace tallyhut {
namespace {

using Told = std::vector<ToldControl>;

TEST(FormTable, ARowTellsItsControlsAndTheRoomOfEach) {
    EXPECT_EQ(ControlsIn("txtFreq:12  lblTo txtTo:*"), (Told{{"txtFreq", 12}, {"lblTo"}, {"txtTo", 0, true}}));
    EXPECT_EQ(ControlsIn("optComm(8-10) cmdBand(3):4"),
              (Told{{"optComm(8)"}, {"optComm(9)"}, {"optComm(10)"}, {"cmdBand(3)", 4}}));
    EXPECT_EQ(ControlsIn(" "), Told{});
}

TEST(FormTable, AFormThatHasNoneIsDrawnFromItsDesign) {
    EXPECT_TRUE(TableOf("frmNone").empty());
}

bool NeedsARow(const Control& control) {
    return control.kind != ControlKind::Timer && control.kind != ControlKind::Menu;
}

TEST(FormTable, EachDialogHasOneThatNamesEachOfItsControlsOnceAndNothingElse) {
    ShownProgram shown;
    for (const Form* form : shown.program.desk.Forms()) {
        if (!form->design.dialog || form->design.neverActive) {
            continue;
        }
        std::map<std::string, int> named;
        for (const TableRow& row : TableOf(form->name)) {
            const bool group = row.kind == TableRow::Kind::Group;
            if (!row.caption.empty() && (!group || form->Find(row.caption) != nullptr)) {
                ++named[std::string{row.caption}];
            }
            for (const ToldControl& told : group ? Told{} : ControlsIn(row.controls)) {
                ++named[told.name];
            }
        }
        for (const Control* control : form->Controls()) {
            if (NeedsARow(*control)) {
                EXPECT_EQ(named[control->FullName()], 1) << form->name << '.' << control->FullName();
            }
        }
        for (const auto& [name, times] : named) {
            if (name.ends_with("(*)")) {
                continue;  // they are made while the program runs
            }
            EXPECT_NE(form->Find(name), nullptr) << form->name << " has no " << name;
        }
    }
}

/// Labels of sections and the picture of the spots have places of their own.
bool IsPlacedBySelf(const Control& control) {
    constexpr std::array<std::string_view, 7> kNames{"Label10",  "lblDX",     "LineDX", "lblFreqSpot",
                                                     "LineSpot", "lblDXSpot", "txtDX"};
    return std::ranges::find(kNames, control.name) != kNames.end();
}

TEST(FormTable, TheMainFormsNamesEachOfItsControlsOnceAndNothingElse) {
    const ShownProgram shown;
    std::map<std::string, int> placed;
    for (const std::string_view name : NamesPlacedOnMainForm()) {
        ++placed[std::string{name}];
        EXPECT_NE(shown.program.form1.Find(name), nullptr) << "the main form has no " << name;
    }
    for (const Control* control : shown.program.form1.Controls()) {
        if (NeedsARow(*control) && !IsPlacedBySelf(*control)) {
            EXPECT_EQ(placed[control->FullName()], 1) << control->FullName();
        }
    }
    for (const std::string_view name : NamesSpokenOfOnMainForm()) {
        EXPECT_NE(shown.program.form1.Find(name), nullptr) << "the main form has no " << name;
    }
}

}  // namespace
}  // namespace tallyhut
