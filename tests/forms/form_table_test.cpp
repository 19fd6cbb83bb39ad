#include "forms/qt/form_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

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
            EXPECT_NE(form->Find(name), nullptr) << form->name << " has no " << name;
        }
    }
}

}  // namespace
}  // namespace tallyhut
