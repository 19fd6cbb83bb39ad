#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct PostContestTest : ProgramFixture {
    void Enter(std::string_view time, std::string_view date) {
        ChooseMenu(Main().mnuPostContest);
        FillAll("88", "A", "W1XX", "72", "MDC");
        Fill(Main().txtPostConTime, time);
        Fill(Main().txtPostConDate, date);
        Press("Enter");
    }
};

TEST_F(PostContestTest, TheMenuEntryShowsTheFieldsAndHidesThemAgain) {
    Start();
    EXPECT_FALSE(Main().txtPostConDate.IsShown());
    ChooseMenu(Main().mnuPostContest);
    EXPECT_TRUE(Main().mnuPostContest.Checked());
    for (const Control* control :
         {static_cast<Control*>(&Main().txtPostConTime), static_cast<Control*>(&Main().lblPostConTime),
          static_cast<Control*>(&Main().txtPostConDate), static_cast<Control*>(&Main().lblPostConDate)}) {
        EXPECT_TRUE(control->IsShown()) << control->name;
    }
    ChooseMenu(Main().mnuPostContest);
    EXPECT_FALSE(Main().mnuPostContest.Checked());
    EXPECT_FALSE(Main().txtPostConTime.IsShown());
}

TEST_F(PostContestTest, TimesAreBroughtIntoTheLogsForm) {
    for (const auto& [typed, logged] : std::vector<std::pair<std::string, std::string>>{
             {"915", "09:15"}, {"2130", "21:30"}, {"9:15", "09:15"}, {"21:30", "21:30"}, {"0000", "00:00"}}) {
        files.contents.erase(kLogPath);
        Start();
        Enter(typed, "2026/11/7");
        EXPECT_EQ(program->log.Row(1).Time, logged) << typed;
        EXPECT_EQ(program->log.Row(1).Date, "2026/11/07");
        EXPECT_EQ(Main().txtPostConDate.Text(), "2026/11/07") << "stays for the next contact";
    }
}

TEST_F(PostContestTest, ATimeThatIsNoneIsToldAndLeavesTheEntryAsItWas) {
    for (const char* typed : {"25:00", "2500", "12", "", "1:5"}) {
        files.contents.erase(kLogPath);
        Start();
        const int beeps = dialogs.beeps;
        Enter(typed, "2026/11/07");
        EXPECT_EQ(Dialog(), "Invalid time format!") << typed;
        EXPECT_EQ(Fields(), "88|A|W1XX|72|MDC");
        EXPECT_EQ(program->log.gContactCount(), 0);
        EXPECT_EQ(program->time.gTimeOn, 1) << "the time has been started before";
        EXPECT_GT(dialogs.beeps, beeps);
    }
}

TEST_F(PostContestTest, ADateThatIsNoneIsToldBeforeTheTimeIsLookedAt) {
    Start();
    Enter("915", "2026/13/07");
    EXPECT_EQ(Dialog(), "Invalid date format!");
    EXPECT_EQ(Main().txtPostConTime.Text(), "915");
}

TEST_F(PostContestTest, AnEmptyDateIsFilledWithTheLocalOneWhenItGetsTheFocus) {
    clock.minutesToUtc = 300;
    stored.gUtcOffset = 5;
    clock.SetNow({2026, 11, 7, 22, 0, 0});
    Start();
    ChooseMenu(Main().mnuPostContest);
    Focus(Main().txtPostConDate);
    EXPECT_EQ(Main().txtPostConDate.Text(), "2026/11/07");
    EXPECT_EQ(Main().txtPostConDate.SelectedText(), "2026/11/07");
}

TEST_F(PostContestTest, TheWholeTimeIsSelectedWhenItGetsTheFocus) {
    Start();
    ChooseMenu(Main().mnuPostContest);
    Fill(Main().txtPostConTime, "21:30");
    Focus(Main().txtPostConTime);
    EXPECT_EQ(Main().txtPostConTime.SelectedText(), "21:30");
}

TEST_F(PostContestTest, SpaceGoesOnAndOnlyWhatATimeOrDateHasIsTyped) {
    Start();
    ChooseMenu(Main().mnuPostContest);
    Focus(Main().txtPostConTime);
    Type("9a:/1-5");
    EXPECT_EQ(Main().txtPostConTime.Text(), "9:15");
    Type(" ");
    EXPECT_EQ(FocusedField(), "txtPostConDate");
    Type("2:026/x1");
    EXPECT_EQ(Main().txtPostConDate.Text(), "2026/1");
}

TEST_F(PostContestTest, EnterInTheTimeCommitsAndSectionsTabLeadsToIt) {
    Start();
    ChooseMenu(Main().mnuPostContest);
    FillAll("88", "A", "W1XX", "72", "MDC");
    Fill(Main().txtPostConDate, "11/7/2026");
    Focus(Main().txtSec);
    Press("Tab");
    EXPECT_EQ(FocusedField(), "txtPostConTime");
    Type("2104\r");
    EXPECT_EQ(LogOnDisk(), "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04\",\"40\",\"\"\r\n");
}

TEST_F(PostContestTest, ARefusedTimeOrDateIsMarkedUntilItIsChanged) {
    Start();
    Enter("25:00", "2026/11/07");
    EXPECT_TRUE(Main().txtPostConTime.State().refused);
    EXPECT_FALSE(Main().txtPostConDate.State().refused);
    EXPECT_TRUE(Main().lblDialog.State().refused);
    Fill(Main().txtPostConTime, "21:00");
    EXPECT_FALSE(Main().txtPostConTime.State().refused);
    Fill(Main().txtPostConDate, "2026/13/07");
    Press("Enter");
    EXPECT_TRUE(Main().txtPostConDate.State().refused);
    EXPECT_EQ(Main().lblDialog.Caption(), "Invalid date format!");
}

}  // namespace
}  // namespace tallyhut
