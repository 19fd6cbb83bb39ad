#include "tests/log/editing_fixture.h"

namespace tallyhut {
namespace {

struct EntryRefusalTest : EditingFixture {
    /// Enter in the call field; the time begins with it, which moves the focus away from the call.
    void EnterInTheCall() {
        Focus(Main().txtCall);
        Press("Enter");
    }
    void AskForDateAndTime(const char* date, const char* time) {
        ChooseMenu(Main().mnuPostContest);
        Fill(Main().txtPostConDate, date);
        Fill(Main().txtPostConTime, time);
    }
};

TEST_F(EntryRefusalTest, RefusedSectionKeepsItsMessageAndTheEntryOfAStationWorkedBefore) {
    StartOnDesk({Worked("W1XX")});
    FillAll("88", "A", "W1", "72", "MD");
    EnterInTheCall();
    EXPECT_EQ(Dialog(), "Invalid Section");
    EXPECT_EQ(Fields(), "88|A|W1|72|MD");
}

TEST_F(EntryRefusalTest, RefusedSectionGreetsNobody) {
    StartOnDesk();
    FillAll("88", "A", "Q7ZZQ", "72", "MD");
    EnterInTheCall();
    EXPECT_EQ(Dialog(), "Invalid Section");
    EXPECT_EQ(dialogs.beeps, 0);
    EXPECT_EQ(Fields(), "88|A|Q7ZZQ|72|MD");
}

TEST_F(EntryRefusalTest, MissingNumberKeepsItsMessageAndGreetsNobody) {
    StartOnDesk();
    FillAll("", "A", "Q7YYRT", "72", "MDC");
    EnterInTheCall();
    EXPECT_EQ(Dialog(), "Need Contact Number!");
    EXPECT_EQ(FocusedField(), "txtNum");
    EXPECT_EQ(Fields(), "|A|Q7YYRT|72|MDC");
}

TEST_F(EntryRefusalTest, InvalidDateOrTimeKeepsItsMessageAndTheEntryOfAStationWorkedBefore) {
    struct Case {
        const char* date;
        const char* time;
        const char* message;
    };
    for (const Case& c :
         {Case{"yesterday", "21:04", "Invalid date format!"}, Case{"2026/11/07", "2561", "Invalid time format!"}}) {
        for (const char* call : {"W1XX", "Q7ZZQ"}) {
            StartOnDesk({Worked("W1XX")});
            AskForDateAndTime(c.date, c.time);
            FillAll("88", "A", call, "72", "MDC");
            dialogs.beeps = 0;
            EnterInTheCall();
            EXPECT_EQ(Dialog(), c.message) << call;
            EXPECT_EQ(Fields(), std::string{"88|A|"} + call + "|72|MDC");
            EXPECT_EQ(dialogs.beeps, 1) << "of the message alone: " << call;
        }
    }
}

TEST_F(EntryRefusalTest, CallThatIsLeftLaterIsLookedUpAndGreetedAsEver) {
    StartOnDesk({Worked("W1XX")});
    FillAll("88", "A", "Q7ZZQ", "72", "MD");
    EnterInTheCall();
    Focus(Main().txtCall);
    Focus(Main().txtSec);
    EXPECT_TRUE(Dialog().starts_with("Q7ZZQ, Alden")) << Dialog();
    Fill(Main().txtCall, "W1XX");
    Focus(Main().txtCall);
    Focus(Main().txtSec);
    EXPECT_TRUE(Dialog().starts_with("Duplicate W1XX")) << Dialog();
    EXPECT_EQ(Fields(), "||||");
}

TEST_F(EntryRefusalTest, LoggedContactOfAnAuthorIsGreetedAsEver) {
    StartOnDesk();
    program->time.gTimeOn = 1;
    FillAll("88", "A", "Q7ZZQ", "72", "MDC");
    Focus(Main().txtCall);
    Focus(Main().txtSec);
    EXPECT_TRUE(Dialog().starts_with("Q7ZZQ, Alden")) << Dialog();
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 1);
}

TEST_F(EntryRefusalTest, FirstContactBehindAChangeToTheSecondLookLosesNoDigit) {
    StartInMode(2);
    program->time.gTimeOn = 1;
    ChooseMenu(Main().mnuCallTwice);
    Type("k2aa12a72ct");
    EXPECT_EQ(Fields(), "12|A|K2AA|72|CT");
    Press("Enter");
    ASSERT_EQ(program->log.gContactCount(), 1);
    EXPECT_EQ(program->log.Row(1).Nr, "12");
}

TEST_F(EntryRefusalTest, SameContactTypedAheadLosesNoDigit) {
    StartInMode(2);
    program->time.gTimeOn = 1;
    ChooseMenu(Main().mnuCallTwice);
    Post("k2aa12a72ct\r");
    TheDesk().RunPending();
    ASSERT_EQ(program->log.gContactCount(), 1);
    EXPECT_EQ(program->log.Row(1).Nr, "12");
}

TEST_F(EntryRefusalTest, QuotePastedIntoAnyFieldOfTheEntryIsRefused) {
    StartOnDesk();
    struct Case {
        TextBox Form1::*field;
        const char* pasted;
        const char* taken;
    };
    for (const Case& c : {Case{&Form1::txtNum, "\"1\"2", "12"}, Case{&Form1::txtPre, "\"A\"", "A"},
                          Case{&Form1::txtCall, "W1\"XX", "W1XX"}, Case{&Form1::txtCK, "\"7\"2", "72"},
                          Case{&Form1::txtSec, "M\"DC\"", "MDC"}}) {
        TextBox& field = Main().*c.field;
        Focus(field);
        field.ReplaceByPaste(c.pasted);
        EXPECT_EQ(field.Text(), c.taken) << field.FullName();
    }
    Focus(Main().txtSec);
    Press("Enter");
    EXPECT_EQ(LogLines().size(), 1U);
    ChooseMenu(Main().mnuOpen);
    EXPECT_EQ(program->log.gContactCount(), 1) << "the line can be read";
}

}  // namespace
}  // namespace tallyhut
