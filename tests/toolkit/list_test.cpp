#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

struct ListTest : EntryFormTest {
    List list{form, "list", {}};
    ListView view{form, "view", {{"Call", 900}, {"Sec", 400}}, {}};

    ListTest() {
        list.SetItems({"a", "b", "c"});
        view.SetRows(3, [](std::size_t row, std::size_t column) { return CellText(row, column); });
        RecordMouse(list);
        RecordMouse(view);
    }
    static std::string CellText(std::size_t row, std::size_t column) {
        constexpr const char* kCells[3][2] = {{"W1AW", "CT"}, {"K1AB", "MDC"}, {"N0AX", "CT"}};
        return kCells[row][column];
    }
};

TEST_F(ListTest, RowSetFromCodeRunsClickIfItDiffers) {
    list.SelectRow(1);
    EXPECT_EQ(TakeEvents(), "list.Click");
    list.SelectRow(1);
    EXPECT_EQ(TakeEvents(), "");
    view.SelectRow(2);
    view.SelectRow(2);
    EXPECT_EQ(TakeEvents(), "view.Click");
    EXPECT_EQ(list.Row(), 1);
    EXPECT_EQ(view.Row(), 2);
}

TEST_F(ListTest, RowThatIsNoneSelectsNone) {
    list.SelectRow(1);
    TakeEvents();
    for (const int row : {3, -1, 99}) {
        list.SelectRow(row);
        EXPECT_EQ(list.Row(), -1) << row;
    }
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(ListTest, OperatorsClickOnARowAlwaysRunsClick) {
    list.SelectRow(1);
    TakeEvents();
    ClickRow(list, 1);
    EXPECT_EQ(TakeEvents(), "list.MouseDown 1, list.MouseUp 1, list.Click");
    ClickRow(list, 2);
    EXPECT_EQ(TakeEvents(), "list.MouseDown 1, list.MouseUp 1, list.Click");
    EXPECT_EQ(list.Row(), 2);
    EXPECT_TRUE(list.HasFocus());
}

TEST_F(ListTest, RightClickSelectsTheRowBeforeItsHandlersRun) {
    view.MouseDown = [&](MouseButton button) {
        Note("down " + std::to_string(button) + " row " + std::to_string(view.Row()));
    };
    ClickRow(view, 1, kRightButton);
    EXPECT_EQ(TakeEvents(), "down 2 row 1, view.MouseUp 2");
    EXPECT_EQ(view.Row(), 1);
}

TEST_F(ListTest, TheContextKeysClickTheSelectedRowRight) {
    view.SetFocus();
    view.SelectRow(1);
    TakeEvents();
    for (const char* key : {"Menu", "Shift+F10"}) {
        Press(key);
        EXPECT_EQ(TakeEvents(), "view.MouseDown 2, view.MouseUp 2") << key;
        EXPECT_EQ(view.Row(), 1);
    }
}

TEST_F(ListTest, TheContextKeysDoNothingWhereNoRowIsSelected) {
    view.SetFocus();
    TakeEvents();
    Press("Menu");
    Press("Shift+F10");
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(ListTest, DoubleClickOnARow) {
    ClickRow(view, 0, kLeftButton, true);
    EXPECT_EQ(TakeEvents(), "view.MouseDown 1, view.MouseUp 1, view.Click, view.DblClick");
    ClickRow(view, 0, kRightButton, true);
    EXPECT_EQ(TakeEvents(), "view.MouseDown 2, view.MouseUp 2");
}

TEST_F(ListTest, ClickBesideTheRowsDoesNothing) {
    ClickRow(list, 3);
    ClickRow(list, -1);
    Click(list);
    list.SetEnabled(false);
    ClickRow(list, 0);
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_EQ(list.Row(), -1);
}

TEST_F(ListTest, ClickOnARowIsDroppedIfLostFocusShowedABox) {
    form.one.LostFocus = [&] { dialogs.Show(MessageBox{.title = "t", .text = "x"}); };
    ClickRow(list, 1);
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_EQ(list.Row(), -1);
}

TEST_F(ListTest, ArrowsMoveTheRowAndStopAtTheEnds) {
    list.SetItems({"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"});
    list.SetFocus();
    const struct {
        std::string_view key;
        int row;
        std::string_view ran;
    } rows[] = {
        {"Down", 0, "list.Click"},      {"Down", 1, "list.Click"}, {"Up", 0, "list.Click"}, {"Up", 0, ""},
        {"PageDown", 10, "list.Click"}, {"End", 11, "list.Click"}, {"Down", 11, ""},        {"PageUp", 1, "list.Click"},
        {"Home", 0, "list.Click"},      {"Left", 0, ""},           {"PageUp", 0, ""},
    };
    for (const auto& row : rows) {
        Press(row.key);
        EXPECT_EQ(list.Row(), row.row) << row.key;
        EXPECT_EQ(TakeEvents(), row.ran) << row.key;
    }
}

TEST_F(ListTest, ArrowsInAnEmptyListDoNothing) {
    list.Clear();
    list.SetFocus();
    Press("Down");
    Press("End");
    EXPECT_EQ(list.Row(), -1);
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(ListTest, NewRowsSelectNoneAndRunNothing) {
    list.SelectRow(1);
    view.SelectRow(1);
    TakeEvents();
    list.SetItems({"x"});
    view.SetRows(1, [](std::size_t /*row*/, std::size_t /*column*/) { return "x"; });
    EXPECT_EQ(list.Row(), -1);
    EXPECT_EQ(view.Row(), -1);
    list.SelectRow(0);
    TakeEvents();
    list.Add("y");
    EXPECT_EQ(list.Row(), 0);
    EXPECT_EQ(list.Items(), (std::vector<std::string>{"x", "y"}));
    list.Clear();
    EXPECT_TRUE(list.Items().empty());
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(ListTest, RowsCostNothingUntilTheyAreDrawn) {
    int asked = 0;
    view.SetRows(11'000, [&](std::size_t row, std::size_t /*column*/) {
        ++asked;
        return std::to_string(row);
    });
    EXPECT_EQ(view.RowCount(), 11'000U);
    view.SelectRow(10'999);
    ClickRow(view, 5);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(view.Cell(10'999, 0), "10999");
    EXPECT_EQ(asked, 1);
}

/// The first column from top to bottom.
std::string Calls(const ListView& view) {
    std::string calls;
    for (std::size_t row = 0; row < view.RowCount(); ++row) {
        calls += (row == 0 ? "" : " ") + view.Cell(row, 0);
    }
    return calls;
}

TEST_F(ListTest, SortOncePutsThePresentRowsInOrderOfAColumn) {
    view.SelectRow(1);
    TakeEvents();
    view.SortOnce(0);
    EXPECT_EQ(Calls(view), "K1AB N0AX W1AW");
    EXPECT_EQ(view.Cell(0, 1), "MDC");
    EXPECT_EQ(view.Row(), 0) << "the row that was selected still is, wherever it stands now";
    EXPECT_EQ(TakeEvents(), "");
    view.SortOnce(1);  // equal ones stand as given
    EXPECT_EQ(Calls(view), "W1AW N0AX K1AB");
}

TEST_F(ListTest, NextRowsStandAsGivenAfterASort) {
    view.SortOnce(0);
    view.SetRows(2, [](std::size_t row, std::size_t column) { return CellText(row, column); });
    EXPECT_EQ(Calls(view), "W1AW K1AB");
}

TEST_F(ListTest, CheckBoxSetFromCodeRunsClickIfItDiffers) {
    CheckBox box{form, "box", "", {}};
    RecordClick(box);
    box.SetValue(false);
    EXPECT_EQ(TakeEvents(), "");
    box.SetValue(true);
    box.SetValue(true);
    EXPECT_EQ(TakeEvents(), "box.Click");
    box.SetValue(false);
    EXPECT_EQ(TakeEvents(), "box.Click");
}

TEST_F(ListTest, OptionsOfOneFrameExcludeEachOther) {
    FrameBox frame{form, "frame", "", {}};
    Option a{form, "a", "", {}};
    Option b{form, "b", "", {}};
    Option apart{form, "apart", "", {}};
    a.PutInto(frame);
    b.PutInto(frame);
    for (Option* option : {&a, &b, &apart}) {
        RecordClick(*option);
    }
    apart.SetValue(true);
    a.SetValue(true);
    EXPECT_EQ(TakeEvents(), "apart.Click, a.Click");
    b.Click = [&] {
        Note("b.Click");
        EXPECT_FALSE(a.Value());  // already, when the handler runs
    };
    b.SetValue(true);
    b.SetValue(true);
    EXPECT_EQ(TakeEvents(), "b.Click");
    EXPECT_TRUE(b.Value() && apart.Value());
    b.SetValue(false);
    EXPECT_FALSE(a.Value() || b.Value());
    EXPECT_EQ(TakeEvents(), "");
}

}  // namespace
}  // namespace tallyhut
