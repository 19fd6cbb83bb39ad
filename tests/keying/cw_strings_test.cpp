#include "tests/keying/keying_fixture.h"

namespace tallyhut {
namespace {

struct CwStringsTest : KeyingFixture {
    void ShowList() {
        Press("Ctrl+W");
        ASSERT_TRUE(Strings().IsActive());
    }
    void DoubleClick(Label& label) {
        TheDesk().PostClick(label, kLeftButton, true);
        TheDesk().RunPending();
    }
};

TEST_F(CwStringsTest, ShowsTheMessageOfEachKey) {
    StartKeying();
    Cw().Text1.SetText("CQ SS $");
    Cw().Text9.SetText("NINE");
    Cw().Text12.SetText("TEN");
    Cw().Text13.SetText("ELEVEN");
    ShowList();
    EXPECT_EQ(Strings().Label1(9).Caption(), "F10");
    EXPECT_EQ(Strings().lblCWString(0).Caption(), "CQ SS $");
    EXPECT_EQ(Strings().lblCWString(8).Caption(), "NINE");
    EXPECT_EQ(Strings().lblCWString(9).Caption(), "TEN");
    EXPECT_EQ(Strings().lblCWString(10).Caption(), "ELEVEN");
    EXPECT_EQ(Strings().lblCWString(11).Caption(), "Keyboard");
}

TEST_F(CwStringsTest, ChangedMessageShowsAtTheNextActivation) {
    StartKeying();
    ShowList();
    Cw().Text1.SetText("NEW");
    TheDesk().RunPending();
    EXPECT_EQ(Strings().lblCWString(0).Caption(), "");
    TheDesk().Activate(Main());
    TheDesk().Activate(Strings());
    TheDesk().RunPending();
    EXPECT_EQ(Strings().lblCWString(0).Caption(), "NEW");
}

TEST_F(CwStringsTest, DoubleClickSendsTheMessageOfTheRow) {
    StartKeying();
    Cw().Text2.SetText("E");
    Cw().Text12.SetText("T");
    Cw().Text13.SetText("I");
    ShowList();
    const std::pair<int, const char*> cases[] = {{1, "E"}, {9, "T"}, {10, "I"}, {11, ""}};
    for (const auto& [row, text] : cases) {
        for (Label* label : {&Strings().Label1(row), &Strings().lblCWString(row)}) {
            Listen();
            DoubleClick(*label);
            EXPECT_EQ(Keyed(), Elements(text)) << row;
        }
    }
    EXPECT_EQ(Sender().gKeyboardCW, 0);
}

TEST_F(CwStringsTest, DoubleClickWithoutAnOutputDoesNothing) {
    StartKeying();
    Cw().Text1.SetText("E");
    Choose(Cw().Option4);
    ShowList();
    Sender().gCWBuffer = "as it was";
    DoubleClick(Strings().lblCWString(0));
    EXPECT_EQ(Sender().gCWBuffer, "as it was");
}

TEST_F(CwStringsTest, KeysWorkAsOnTheMainForm) {
    StartKeying();
    Cw().Text1.SetText("TEST");
    ShowList();
    Behind(1, [this] { PostNamed("Esc"); });
    Listen();
    Press("F1");
    EXPECT_EQ(Keyed(), Elements("T"));
    EXPECT_TRUE(Strings().IsVisible());
    Press("Up");
    EXPECT_EQ(Cw().Text11.Text(), "21");
}

TEST_F(CwStringsTest, KeyboardModeTakesBlankAndEnterToo) {
    StartKeying();
    ShowList();
    Strings().Command1.SetFocus();
    Press("F12");
    Listen();
    Type("e e");
    EXPECT_EQ(Keyed(), Elements("E E"));
    Press("Enter");
    EXPECT_FALSE(Strings().IsMinimised());
}

TEST_F(CwStringsTest, DoneMinimisesAndCtrlWRestores) {
    StartKeying();
    ShowList();
    Click(Strings().Command1);
    EXPECT_TRUE(Strings().IsMinimised());
    EXPECT_TRUE(Strings().IsLoaded());
    EXPECT_TRUE(Main().IsActive());
    Press("Ctrl+W");
    EXPECT_FALSE(Strings().IsMinimised());
    EXPECT_TRUE(Strings().IsActive());
}

}  // namespace
}  // namespace tallyhut
