#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct EntryFocusTest : ProgramFixture {
    std::string prompts;  ///< spoken since the last look

    void Listen() {
        program->prompts.BlindKeyPhone = [this](std::string_view prompt) { prompts += std::string{prompt} + ' '; };
    }
    std::string Spoken() { return std::exchange(prompts, ""); }
};

TEST_F(EntryFocusTest, StartFocusesTheModesFirstField) {
    for (const auto& [mode, field] : {std::pair{1, "txtNum"}, {2, "txtCall"}, {3, "txtCall"}}) {
        StartInMode(mode);
        EXPECT_EQ(FocusedField(), field) << mode;
        program.reset();
    }
}

TEST_F(EntryFocusTest, NumberPassesTheFocusOnAtItsFirstTimeInMode3Only) {
    StartInMode(3);
    Focus(Main().txtNum);
    EXPECT_EQ(FocusedField(), "txtNum");
}

TEST_F(EntryFocusTest, FirstTimeIsUsedUpInWhicheverMode) {
    StartInMode(1);
    ChooseMenu(Main().mnuCallTwice);
    ASSERT_EQ(FocusedField(), "txtCall");
    Focus(Main().txtNum);
    EXPECT_EQ(FocusedField(), "txtNum");
}

TEST_F(EntryFocusTest, FirstTimeMayComeLater) {
    StartInMode(2);
    ChooseMenu(Main().mnuCallTwice);
    Focus(Main().txtNum);
    EXPECT_EQ(FocusedField(), "txtCall");
    Focus(Main().txtNum);
    EXPECT_EQ(FocusedField(), "txtNum");
}

TEST_F(EntryFocusTest, CheckSendsTheOperatorRoundOnceInMode3) {
    StartOnTime(3);
    Type("W1XX ");
    EXPECT_EQ(FocusedField(), "txtNum");
    EXPECT_TRUE(program->fields.gPassedCallTwice);
    Type("88a");
    EXPECT_EQ(FocusedField(), "txtPre");
    Type(" ");
    EXPECT_EQ(FocusedField(), "txtCall");
    Type(" ");
    EXPECT_EQ(FocusedField(), "txtCK");
    Type("72mdc");
    EXPECT_EQ(Fields(), "88|A|W1XX|72|MDC");
    Press("Enter");
    EXPECT_EQ(program->log.gContactCount(), 1);
    EXPECT_FALSE(program->fields.gPassedCallTwice);
    EXPECT_EQ(FocusedField(), "txtCall");
}

TEST_F(EntryFocusTest, CheckKeepsTheFocusInModes1And2) {
    for (const int mode : {1, 2}) {
        StartOnTime(mode);
        Focus(Main().txtCK);
        EXPECT_EQ(FocusedField(), "txtCK") << mode;
        program.reset();
    }
}

TEST_F(EntryFocusTest, ClickOnTheCheckBouncesToo) {
    StartOnTime(3);
    Click(Main().txtCK);
    EXPECT_EQ(FocusedField(), "txtNum");
    Click(Main().txtCK);
    EXPECT_EQ(FocusedField(), "txtCK");
}

TEST_F(EntryFocusTest, CheckThatHasLostTheFocusAgainDoesNotBounce) {
    StartOnTime(3);
    Main().txtCK.SetFocus();
    Main().txtSec.SetFocus();
    TheDesk().RunPending();
    EXPECT_EQ(FocusedField(), "txtSec");
    EXPECT_FALSE(program->fields.gPassedCallTwice);
}

TEST_F(EntryFocusTest, DuplicateDoesNotBounce) {
    StartWith({Worked("W1XX")}, 3);
    Type("W1XX ");
    EXPECT_EQ(program->duplicates.gIsDupe, 1);
    EXPECT_EQ(FocusedField(), "txtCall");
    EXPECT_FALSE(program->fields.gPassedCallTwice);
    Focus(Main().txtCK);
    EXPECT_EQ(FocusedField(), "txtCK");
}

TEST_F(EntryFocusTest, CheckBeforeTheRoundTakesItsKeyAndBounces) {
    StartOnTime(3);
    Focus(Main().txtNum);
    Type("88a7");
    EXPECT_EQ(Fields(), "88|A||7|");
    EXPECT_EQ(FocusedField(), "txtNum");
}

struct PromptCase {
    int level;
    std::string_view num, pre, call, ck, sec;
};

TEST_F(EntryFocusTest, FieldsArePromptedByTheVoiceLevel) {
    const PromptCase cases[] = {
        {0, "", "", "", "", ""},
        {1, "", "", "Call ", "", ""},
        {2, "Number ", "Prec ", "Call ", "Check ", "Section "},
        {3, "Number ", "Prec ", "Call ", "Check ", "Section "},
        {255, "Number ", "Prec ", "Call ", "Check ", "Section "},
    };
    for (const PromptCase& one : cases) {
        stored.gVoiceNav = static_cast<std::uint8_t>(one.level);
        StartInMode(1);
        Listen();
        Focus(Main().txtPre);
        EXPECT_EQ(Spoken(), one.pre) << one.level;
        Focus(Main().txtCall);
        EXPECT_EQ(Spoken(), one.call) << one.level;
        Focus(Main().txtCK);
        EXPECT_EQ(Spoken(), one.ck) << one.level;
        Focus(Main().txtSec);
        EXPECT_EQ(Spoken(), one.sec) << one.level;
        Focus(Main().txtNum);
        EXPECT_EQ(Spoken(), one.num) << one.level;
        program.reset();
    }
}

TEST_F(EntryFocusTest, PromptsFollowTheOperatorThroughTheExchange) {
    stored.gVoiceNav = 2;
    StartOnTime(2);
    Listen();
    Type("W1XX88a72mdc");
    EXPECT_EQ(Spoken(), "Number Prec Check Section ");
}

TEST_F(EntryFocusTest, DuplicateIsSpokenWhenTheCallIsLeft) {
    stored.gVoiceNav = 1;
    StartWith({Worked("W1XX")}, 2);
    Listen();
    Type("W1XX ");
    EXPECT_EQ(Spoken(), "Dupe Call ");
}

TEST_F(EntryFocusTest, AuthorsAreGreeted) {
    struct Case {
        std::string_view call;
        std::string_view greeting;
    };
    for (const auto& [call, greeting] :
         {Case{"Q7ZZQ", "Q7ZZQ, Alden, wrote this software!  Please say hi!"},
          Case{"Q7YYRT", "Q7YYRT, Maren, helped write this software!  Please say hi!"}}) {
        StartOnTime(2);
        Type(call);
        EXPECT_EQ(dialogs.beeps, 0);
        Press("Tab");
        EXPECT_EQ(Dialog(), greeting);
        EXPECT_EQ(DialogGround(), 0xFFFFC0);
        EXPECT_EQ(dialogs.beeps, 1);
        EXPECT_EQ(Main().txtCall.Text(), call);
        dialogs.beeps = 0;
        program.reset();
    }
}

TEST_F(EntryFocusTest, OnlyTheAuthorsExactCallsAreGreeted) {
    for (const std::string_view call : {"Q7ZZ", "Q7ZZQQ", "Q7ZZQ/3", "Q7YYR", "W1XX", "q7zzq"}) {
        StartOnTime(2);
        Fill(Main().txtCall, call);
        Press("Tab");
        EXPECT_EQ(dialogs.beeps, 0) << call;
        EXPECT_EQ(DialogGround(), 0xC0C000) << call;
        program.reset();
    }
}

TEST_F(EntryFocusTest, GreetingComesBeforeTheDuplicate) {
    StartWith({Worked("Q7ZZQ")}, 2);
    program->time.gTimeOn = 1;
    Type("Q7ZZQ");
    Press("Tab");
    EXPECT_EQ(dialogs.beeps, 2);
    EXPECT_TRUE(Dialog().starts_with("Duplicate Q7ZZQ ")) << Dialog();
    EXPECT_EQ(DialogGround(), 0x0000FF);
}

}  // namespace
}  // namespace tallyhut
