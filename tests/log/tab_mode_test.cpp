#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct TabModeTest : ProgramFixture {
    /// The tab positions in the order of the exchange.
    std::vector<int> Positions() {
        const Form1& form = Main();
        return {form.txtNum.State().tabIndex, form.txtPre.State().tabIndex, form.txtCall.State().tabIndex,
                form.txtCK.State().tabIndex, form.txtSec.State().tabIndex};
    }
    std::string Checks() {
        return std::string{Main().numopt.Checked() ? "1" : "-"} + (Main().callopt.Checked() ? "2" : "-") +
               (Main().mnuCallTwice.Checked() ? "3" : "-");
    }
    std::string StoredMode() {
        Preferences onDisk;
        ReadPreferences(files.contents.at(kPreferencesPath), onDisk);
        return std::to_string(onDisk.gTabMode);
    }
};

const std::vector<int> kExchangeOrder{1, 2, 3, 4, 5};
const std::vector<int> kCallFirst{2, 3, 1, 4, 5};

TEST_F(TabModeTest, MenuHasTheToldCaptions) {
    Start();
    EXPECT_EQ(Main().mnuTabOrder.Caption(), "&TabOrder");
    EXPECT_EQ(Main().mnuTabOrder.Entries(),
              (std::vector<MenuEntry*>{&Main().numopt, &Main().callopt, &Main().mnuCallTwice}));
    EXPECT_EQ(Main().numopt.Caption(), "Begin in # Field");
    EXPECT_EQ(Main().callopt.Caption(), "Begin in Call Field");
    EXPECT_EQ(Main().mnuCallTwice.Caption(), "Begin in Call Field and pass through Call again");
}

TEST_F(TabModeTest, StartTakesTheStoredMode) {
    StartInMode(1);
    EXPECT_EQ(Positions(), kExchangeOrder);
    EXPECT_EQ(Checks(), "1--");
    program.reset();
    StartInMode(2);
    EXPECT_EQ(Positions(), kCallFirst);
    EXPECT_EQ(Checks(), "-2-");
    program.reset();
    StartInMode(3);
    EXPECT_EQ(Positions(), kExchangeOrder);
    EXPECT_EQ(Checks(), "--3");
}

TEST_F(TabModeTest, ChoosingAnEntrySetsModeOrderFocusFileAndCheck) {
    struct Case {
        MenuEntry Form1::*entry;
        const char* stored;
        std::vector<int> positions;
        const char* focus;
        const char* checks;
    };
    const Case cases[] = {
        {&Form1::callopt, "2", kCallFirst, "txtCall", "-2-"},
        {&Form1::numopt, "1", kExchangeOrder, "txtNum", "1--"},
        {&Form1::mnuCallTwice, "3", kExchangeOrder, "txtCall", "--3"},
        {&Form1::callopt, "2", kCallFirst, "txtCall", "-2-"},
        {&Form1::callopt, "2", kCallFirst, "txtCall", "-2-"},
    };
    StartInMode(1);
    for (const Case& one : cases) {
        Focus(Main().txtSec);
        ChooseMenu(Main().*one.entry);
        EXPECT_EQ(std::to_string(program->preferences.gTabMode), one.stored);
        EXPECT_EQ(StoredMode(), one.stored);
        EXPECT_EQ(Positions(), one.positions) << one.stored;
        EXPECT_EQ(FocusedField(), one.focus) << one.stored;
        EXPECT_EQ(Checks(), one.checks);
    }
}

TEST_F(TabModeTest, ChoosingMode3BeginsANewRound) {
    StartInMode(3);
    program->fields.gPassedCallTwice = true;
    ChooseMenu(Main().numopt);
    EXPECT_TRUE(program->fields.gPassedCallTwice);
    ChooseMenu(Main().mnuCallTwice);
    EXPECT_FALSE(program->fields.gPassedCallTwice);
}

TEST_F(TabModeTest, ChoosingAnEntryKeepsWhatIsTyped) {
    StartOnTime(1);
    Type("88aW1XX");
    ChooseMenu(Main().callopt);
    EXPECT_EQ(Fields(), "88|A|W1XX||");
}

TEST_F(TabModeTest, OnlyTheFiveFieldsAreTabStops) {
    Start();
    EXPECT_EQ(Main().TabStops(),
              (std::vector<Control*>{&Main().txtNum, &Main().txtPre, &Main().txtCall, &Main().txtCK, &Main().txtSec}));
}

TEST_F(TabModeTest, ModeThatIsNoneCountsAsTheFirst) {
    for (const int none : {0, 4, 255}) {
        StartInMode(none);
        EXPECT_EQ(Positions(), kExchangeOrder) << none;
        EXPECT_EQ(Checks(), "1--") << none;
        EXPECT_EQ(FocusedField(), "txtNum") << none;
        EXPECT_EQ(program->preferences.gTabMode, none);
        program->time.gTimeOn = 1;
        Type("88aW1XX72mdc");
        EXPECT_EQ(Fields(), "88|A|W1XX|72|MDC") << none;
        program.reset();
    }
}

TEST_F(TabModeTest, MenuOpensByItsAccessKey) {
    StartInMode(1);
    Press("Alt+T");
    EXPECT_EQ(TheDesk().OpenMenu(), &Main().mnuTabOrder);
    Press("Down");
    Press("Down");
    Press("Enter");
    EXPECT_EQ(program->preferences.gTabMode, 2);
    EXPECT_EQ(program->log.gContactCount(), 0);
}

TEST_F(TabModeTest, SettingsThatCannotBeWrittenAreToldAndTheContestGoesOn) {
    StartInMode(1);
    const std::string before = files.contents.at(kPreferencesPath);
    files.FailAt(1, "No space left on device");
    ChooseMenu(Main().callopt);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes[0].find("/contest/nspref.txt: No space left on device"), std::string::npos)
        << dialogs.boxes[0];
    EXPECT_EQ(files.contents.at(kPreferencesPath), before);
}

}  // namespace
}  // namespace tallyhut
