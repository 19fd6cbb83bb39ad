#include "app/main_form_keys.h"

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct MainFormKeysTest : ProgramFixture {
    void StartInContest(int contestMode, int tabMode = 1) {
        stored.gContestMode = static_cast<std::uint8_t>(contestMode);
        StartOnTime(tabMode);
    }
    /// A character that an input method has composed: it comes without a key.
    void Compose(unsigned char character) {
        TheDesk().PostKey({.code = 0, .shift = 0, .character = character});
        TheDesk().RunPending();
    }
};

constexpr int kCw = 0;
constexpr int kPhone = 1;

TEST_F(MainFormKeysTest, CtrlKeyTypesNothingInAnyField) {
    StartInContest(kCw);
    for (TextBox* field : {&Main().txtNum, &Main().txtPre, &Main().txtCall, &Main().txtCK, &Main().txtSec}) {
        Focus(*field);
        Press("Ctrl+K");
        EXPECT_EQ(Fields(), "||||") << field->FullName();
        EXPECT_EQ(FocusedField(), field->FullName());
    }
}

TEST_F(MainFormKeysTest, CtrlKeyReachesNoFieldHandler) {
    StartInContest(kCw);
    Type("88aw1xx72mdc");
    Press("Ctrl+M");  // the character of Enter, and no commit
    EXPECT_EQ(Fields(), "88|A|W1XX|72|MDC");
    EXPECT_EQ(LogOnDisk(), "");
    Press("Ctrl+H");  // the character of Backspace
    EXPECT_EQ(Fields(), "88|A|W1XX|72|MDC");
}

TEST_F(MainFormKeysTest, CtrlKeyThatTypesSwallowsItsOwnCharacterAlone) {
    StartInContest(kCw);
    Press("Ctrl+K");
    EXPECT_FALSE(program->keys.gCtrlKeyTaken);
    Type("8");
    EXPECT_EQ(Fields(), "8||||");
}

TEST_F(MainFormKeysTest, CtrlKeyThatTypesNothingSwallowsNoLaterCharacter) {
    StartInContest(kCw);
    Focus(Main().txtCall);
    std::string typed;
    for (const std::string_view name :
         {"Ctrl+F5", "Ctrl+1", "Ctrl+Home", "Ctrl+Insert", "Ctrl+PageDown", "Ctrl+Space"}) {
        Press(name);
        EXPECT_EQ(Fields(), "||" + typed + "||") << name;
        Main().txtCall.SetCaret(static_cast<int>(typed.size()));
        Type("k");
        typed += 'K';
        EXPECT_EQ(Fields(), "||" + typed + "||") << name;
    }
}

TEST_F(MainFormKeysTest, CtrlKeyThatTypesNothingSwallowsNoComposedCharacter) {
    StartInContest(kCw);
    Focus(Main().txtSec);
    Press("Ctrl+F5");
    Compose(0xE9);
    EXPECT_EQ(Main().txtSec.Text(), "\xE9");
}

TEST_F(MainFormKeysTest, CtrlKeyThatTypesNothingSwallowsNoEnter) {
    StartInContest(kCw);
    Type("88aw1xx72mdc");
    Press("Ctrl+F5");
    Press("Enter");
    EXPECT_EQ(LogLines().size(), 1U);
}

TEST_F(MainFormKeysTest, KeysTypedAheadOfACtrlKeyAndBehindItAreAllTyped) {
    StartInContest(kCw);
    Post("88");
    PostNamed("Ctrl+K");
    PostNamed("Ctrl+F5");
    Post("7a");
    TheDesk().RunPending();
    EXPECT_EQ(Fields(), "887|A|||");
}

TEST_F(MainFormKeysTest, AKeyIsTheProgramsWithItsOwnShiftStateAlone) {
    StartInContest(kCw);
    for (const std::string_view name : {"Shift+G", "Ctrl+Shift+G", "Ctrl+Alt+G", "Ctrl+Shift+R", "Alt+R"}) {
        Press(name);
        EXPECT_FALSE(program->tuneForm.IsVisible()) << name;
        EXPECT_FALSE(program->rigForm.IsVisible()) << name;
    }
}

TEST_F(MainFormKeysTest, CtrlGIsUsedUpAndTheFieldSeesCtrlR) {
    for (const int contest : {kCw, kPhone}) {
        StartInContest(contest);
        std::string seen;
        Main().txtNum.KeyDown = [&seen](int& KeyCode, int /*Shift*/) { seen += static_cast<char>(KeyCode); };
        Press("Ctrl+G");
        EXPECT_TRUE(program->tuneForm.IsVisible()) << "contest " << contest;
        program->tuneForm.Hide();
        Press("Ctrl+R");
        EXPECT_TRUE(program->rigForm.IsVisible()) << "contest " << contest;
        EXPECT_EQ(seen, "R") << "contest " << contest;
    }
}

TEST_F(MainFormKeysTest, EscClearsTheEntryInACwContest) {
    PutLog({Worked("W1AB")});
    StartInContest(kCw, 2);
    Type("w1a");
    ASSERT_EQ(Partials(), "W1AB ");
    Focus(Main().txtCK);
    Press("Esc");
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(Partials(), "");
    EXPECT_EQ(Dialog(), " ");
    EXPECT_EQ(DialogGround(), kDialogNormal);
    EXPECT_EQ(FocusedField(), "txtCall");
}

TEST_F(MainFormKeysTest, EscClearsTheEntryInAPhoneContestWhereNothingPlays) {
    StartInContest(kPhone);
    Type("88aw1xx72mdc");
    Press("Esc");
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(FocusedField(), "txtNum");
}

TEST_F(MainFormKeysTest, EscTypesNoCharacterInEitherContest) {
    for (const int contest : {kCw, kPhone}) {
        StartInContest(contest);
        for (TextBox* field : {&Main().txtCall, &Main().txtSec}) {
            Focus(*field);
            Press("Esc");
            EXPECT_EQ(Fields(), "||||") << field->FullName() << ", contest " << contest;
        }
        Focus(Main().txtNum);
        Type("8");
        EXPECT_EQ(Main().txtNum.Text(), "8");
    }
}

TEST_F(MainFormKeysTest, EscWithCtrlIsACtrlKeyAndClearsNothing) {
    StartInContest(kCw);
    Type("88a");
    Press("Ctrl+Esc");
    EXPECT_EQ(Fields(), "88|A|||");
}

TEST_F(MainFormKeysTest, FunctionKeysTypeNothing) {
    for (const int contest : {kCw, kPhone}) {
        StartInContest(contest);
        Type("88");
        const std::string line = Dialog();
        for (const std::string_view name : {"F1", "F10", "F11", "F12"}) {
            Press(name);
            EXPECT_EQ(Fields(), "88||||") << name;
            EXPECT_EQ(Dialog(), line) << name;
        }
    }
}

}  // namespace
}  // namespace tallyhut
