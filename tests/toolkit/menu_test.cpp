#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

struct MenuTest : EntryFormTest {
    MenuEntry file{form, "file", "&File"};
    MenuEntry open{file, "open", "&Open"};
    MenuEntry exit{file, "exit", "E&xit"};
    MenuEntry band{form, "band", "&Band"};
    MenuEntry hf{band, "hf", "&HF"};
    MenuEntry forty{hf, "forty", "40 meters"};
    MenuEntry eighty{hf, "eighty", " 80 meters"};
    MenuEntry help{form, "help", "&Help"};

    MenuTest() {
        for (MenuEntry* entry : {&file, &open, &exit, &band, &hf, &forty, &eighty, &help}) {
            RecordClick(*entry);
        }
        RecordFormKeys(form);
    }
};

TEST_F(MenuTest, AltWithItsLetterOpensATopLevelMenu) {
    Press("Alt+F");
    EXPECT_EQ(desk.OpenMenu(), &file);
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_TRUE(form.one.HasFocus());
}

TEST_F(MenuTest, LetterClicksAnEntryOfTheOpenMenuWithOrWithoutAlt) {
    Press("Alt+F");
    Press("x");
    EXPECT_EQ(TakeEvents(), "exit.Click");
    EXPECT_EQ(desk.OpenMenu(), nullptr);
    Press("Alt+F");
    Press("Alt+O");
    EXPECT_EQ(TakeEvents(), "open.Click");
    EXPECT_EQ(form.one.Text(), "");
}

TEST_F(MenuTest, AnEntryMayLeaveItsLetterToAnother) {
    MenuEntry other{form, "other", "O&ther"};
    MenuEntry exchange{other, "exchange", "E&xchange"};
    MenuEntry leave{other, "leave", "E&xit"};
    RecordClick(exchange);
    RecordClick(leave);
    exchange.yieldsLetter = true;
    Press("Alt+T");
    Press("x");
    EXPECT_EQ(TakeEvents(), "leave.Click");
}

TEST_F(MenuTest, EntryWithEntriesOpensThem) {
    Press("Alt+B");
    Press("h");
    EXPECT_EQ(desk.OpenMenu(), &hf);
    Press("4");
    EXPECT_EQ(TakeEvents(), "forty.Click");
}

TEST_F(MenuTest, EntryWithoutAnAccessKeyIsFoundByItsFirstCharacter) {
    Press("Alt+B");
    Press("h");
    Press("8");
    EXPECT_EQ(TakeEvents(), "eighty.Click");
}

TEST_F(MenuTest, MenuWithoutEntriesIsClicked) {
    Press("Alt+H");
    EXPECT_EQ(TakeEvents(), "help.Click");
    EXPECT_EQ(desk.OpenMenu(), nullptr);
}

TEST_F(MenuTest, EscClosesALevel) {
    Press("Alt+B");
    Press("h");
    Press("Esc");
    EXPECT_EQ(desk.OpenMenu(), &band);
    Press("Esc");
    EXPECT_EQ(desk.OpenMenu(), nullptr);
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(MenuTest, ArrowsAndEnterChoose) {
    Press("Alt+F");
    Press("Enter");  // nothing reached yet
    EXPECT_EQ(desk.OpenMenu(), &file);
    Press("Down");
    Press("Down");
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "exit.Click");
    Press("Alt+F");
    Press("Up");
    Press("Up");
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "open.Click");
    Press("Alt+F");
    Press("Down");
    Press("Down");
    Press("Down");
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "open.Click");
}

TEST_F(MenuTest, KeysBelongToTheOpenMenuAlone) {
    Press("Alt+F");
    Type("q");
    Press("F1");
    Press("Tab");
    EXPECT_EQ(TakeEvents(), "");
    EXPECT_EQ(desk.OpenMenu(), &file);
    EXPECT_TRUE(form.one.HasFocus());
}

TEST_F(MenuTest, DisabledAndHiddenEntriesAreNotFound) {
    open.SetEnabled(false);
    Press("Alt+F");
    Press("o");
    EXPECT_EQ(TakeEvents(), "");
    Press("Down");
    Press("Enter");
    EXPECT_EQ(TakeEvents(), "exit.Click");
    file.SetVisible(false);
    Press("Alt+F");
    EXPECT_EQ(desk.OpenMenu(), nullptr);
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 70/4");
}

TEST_F(MenuTest, ClickOnAnEntryRunsItWhenEventsRun) {
    desk.PostMenu(open);
    EXPECT_EQ(TakeEvents(), "");
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "open.Click");
    EXPECT_TRUE(form.one.HasFocus());
}

TEST_F(MenuTest, EntryThatIsDisabledHiddenOrOnAHiddenFormIsNotClicked) {
    open.SetEnabled(false);
    exit.SetVisible(false);
    desk.PostMenu(open);
    desk.PostMenu(exit);
    desk.RunPending();
    form.Hide();
    desk.PostMenu(help);
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(MenuTest, CheckMarksRunNothing) {
    open.SetChecked(true);
    EXPECT_TRUE(open.Checked());
    open.SetChecked(false);
    EXPECT_FALSE(open.Checked());
    desk.RunPending();
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(MenuTest, ClickLeavesTheCheckMark) {
    desk.PostMenu(open);
    desk.RunPending();
    EXPECT_FALSE(open.Checked());
}

TEST_F(MenuTest, ClickElsewhereClosesIt) {
    Press("Alt+F");
    RecordClick(form.note);
    Click(form.note);
    EXPECT_EQ(desk.OpenMenu(), nullptr);
    EXPECT_EQ(TakeEvents(), "note.Click");
}

TEST_F(MenuTest, OtherFormThatComesUpClosesIt) {
    EntryForm other{desk, "Other"};
    Press("Alt+F");
    other.Show();
    EXPECT_EQ(desk.OpenMenu(), nullptr);
    Type("x");
    EXPECT_EQ(other.one.Text(), "x");
    EXPECT_EQ(TakeEvents(), "");
}

TEST_F(MenuTest, HostIsToldOfWhatOpensAndCloses) {
    desk.outlets.menuOpened = [&](MenuEntry* entry) { Note(entry == nullptr ? "closed" : entry->name); };
    Press("Alt+B");
    Press("h");
    Press("4");
    EXPECT_EQ(TakeEvents(), "band, hf, closed, forty.Click");
}

TEST_F(MenuTest, MenusHangTogetherAsTheyWereMade) {
    EXPECT_EQ(form.Menus(), (std::vector<MenuEntry*>{&file, &band, &help}));
    EXPECT_EQ(file.Entries(), (std::vector<MenuEntry*>{&open, &exit}));
    EXPECT_EQ(forty.Above(), &hf);
    EXPECT_EQ(file.Above(), nullptr);
}

TEST_F(MenuTest, F10OpensTheFirstMenu) {
    Press("F10");
    EXPECT_EQ(desk.OpenMenu(), &file);
    Press("x");
    EXPECT_EQ(TakeEvents(), "Entry.KeyDown 121/0, exit.Click");
}

TEST_F(MenuTest, F10ThatTheProgramHasUsedUpOpensNone) {
    form.Form_KeyDown = [](int& KeyCode, int /*Shift*/) { KeyCode = 0; };
    Press("F10");
    EXPECT_EQ(desk.OpenMenu(), nullptr);
}

TEST_F(MenuTest, TheMenuBarOpensAtItsFirstMenuThatCanBeOpened) {
    file.SetEnabled(false);
    desk.OpenMenuBar();
    EXPECT_EQ(desk.OpenMenu(), &band);
}

}  // namespace
}  // namespace tallyhut
