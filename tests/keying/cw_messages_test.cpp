#include "tests/keying/keying_fixture.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

struct CwMessagesTest : KeyingFixture {
    /// What a key sends, seen as elements.
    std::string SentBy(std::string_view key) {
        Listen();
        Press(key);
        return Keyed();
    }
    void NumberMessages() {
        int n = 0;
        for (TextBox* message : {&Cw().Text1, &Cw().Text2, &Cw().Text3, &Cw().Text4, &Cw().Text5, &Cw().Text6,
                                 &Cw().Text7, &Cw().Text8, &Cw().Text9, &Cw().Text12, &Cw().Text13}) {
            message->SetText(std::string(1, static_cast<char>('A' + n++)));
        }
    }
    void Repeat(const char* seconds) {
        Cw().txtCWLoop.SetText(seconds);
        program->keyingPart.setup.txtCWLoop_LostFocus();
    }
    bool Repeats() { return Cw().tmrRepeat.Enabled(); }
};

TEST_F(CwMessagesTest, EachKeySendsItsMessage) {
    StartKeying();
    NumberMessages();
    for (int n = 0; n < 11; ++n) {
        EXPECT_EQ(SentBy("F" + std::to_string(n + 1)), Elements(std::string(1, static_cast<char>('A' + n)))) << n + 1;
    }
}

TEST_F(CwMessagesTest, CodesBetweenSelectNothing) {
    StartKeying();
    NumberMessages();
    Listen();
    for (const int code : {121, 123, 111, 125, 65, 0}) {
        Messages().FKeyCW(code);
        EXPECT_EQ(UnitsPassed(), 0) << code;
    }
    Messages().FKeyCW(124);
    EXPECT_EQ(Keyed(), Elements("J"));
}

TEST_F(CwMessagesTest, CallIsPutInWithoutItsBlanks) {
    StartKeying();
    Fill(Main().txtCall, "W9XYZ ");
    Cw().Text1.SetText("CQ $ *");
    EXPECT_EQ(SentBy("F1"), Elements("CQ W9XYZ 5NN"));
    EXPECT_EQ(Messages().gCWRst, "5NN");
}

TEST_F(CwMessagesTest, SerialNumberIsThatOfTheMainForm) {
    PutLog(ManyContacts(11));
    StartKeying();
    Cw().Text1.SetText("$ #");
    EXPECT_EQ(Messages().gCWNumber, " 12");
    EXPECT_EQ(SentBy("F1"), Elements(" 12"));
}

TEST_F(CwMessagesTest, CallFollowsTheFieldAsItIsTyped) {
    StartKeying();
    Focus(Main().txtCall);
    Type("w1");
    EXPECT_EQ(Messages().gCWCall, "W1");
    Press("Backspace");
    EXPECT_EQ(Messages().gCWCall, "W");
    Press("Esc");
    EXPECT_EQ(Messages().gCWCall, "");
}

TEST_F(CwMessagesTest, SecondOfTwoWildcardsSideBySideIsDroppedWhenItIsSent) {
    StartKeying();
    Cw().Text1.SetText("A$$N");
    EXPECT_EQ(SentBy("F1"), Elements("AN"));
}

TEST_F(CwMessagesTest, WithoutAnOutputNoKeyIsTheKeyers) {
    StartKeying();
    NumberMessages();
    Choose(Cw().Option4);
    program->logPart.panel.message.Write("as it was");
    for (const char* key : {"F1", "F10", "F11", "F12", "Up", "Down"}) {
        EXPECT_EQ(SentBy(key), "") << key;
        EXPECT_EQ(Dialog(), "as it was") << key;
    }
    EXPECT_EQ(Cw().Text11.Text(), "20");
    EXPECT_EQ(Sender().gKeyboardCW, 0);
    Sender().gCWBuffer = "REST";
    Messages().FKeyCW(112);
    EXPECT_EQ(Sender().gCWBuffer, "");
}

TEST_F(CwMessagesTest, InAPhoneContestNoKeyIsTheKeyers) {
    stored.gContestMode = 1;
    StartKeying();
    NumberMessages();
    for (const char* key : {"F1", "F10", "F12", "Up"}) {
        EXPECT_EQ(SentBy(key), "") << key;
    }
    EXPECT_EQ(Sender().gKeyboardCW, 0);
    EXPECT_EQ(Cw().Text11.Text(), "20");
}

TEST_F(CwMessagesTest, KeysWithCtrlSendNothing) {
    StartKeying();
    NumberMessages();
    EXPECT_EQ(SentBy("Ctrl+F1"), "");
    EXPECT_EQ(SentBy("Shift+F2"), Elements("B"));
}

// The speed.

TEST_F(CwMessagesTest, ArrowsChangeTheSpeedAndShowIt) {
    StartKeying();
    Cw().Text11.SetText("13");
    Press("Up");
    EXPECT_EQ(Cw().Text11.Text(), "14");
    EXPECT_EQ(Dialog(), "14 WPM");
    Press("Down");
    Press("Down");
    EXPECT_EQ(Dialog(), "12 WPM");
}

TEST_F(CwMessagesTest, SpeedHasNoBounds) {
    StartKeying();
    Cw().Text11.SetText("1");
    Press("Down");
    EXPECT_EQ(Dialog(), "0 WPM");
    Press("Down");
    EXPECT_EQ(Dialog(), "-1 WPM");
    Cw().Text11.SetText("99");
    Press("Up");
    EXPECT_EQ(Dialog(), "100 WPM");
    Cw().Text11.SetText("fast");
    Press("Up");
    EXPECT_EQ(Dialog(), "1 WPM");
}

TEST_F(CwMessagesTest, ArrowsAreUsedUp) {
    StartKeying();
    std::string seen;
    Main().txtNum.KeyDown = [&seen](int& KeyCode, int) { seen += std::to_string(KeyCode) + ' '; };
    Focus(Main().txtNum);
    Press("Up");
    Press("F10");
    Press("F2");
    EXPECT_EQ(seen, "124 113 ");
    EXPECT_EQ(TheDesk().OpenMenu(), nullptr) << "F10 is no menu's";
}

// The repeat.

TEST_F(CwMessagesTest, FirstMessageIsRepeatedUntilAKeyIsPressed) {
    StartKeying();
    Cw().Text1.SetText("E");
    Repeat("5");
    EXPECT_EQ(SentBy("F1"), "1000");
    EXPECT_EQ(Sender().gCWRepeat, 1);
    PassTime(4'999);
    EXPECT_TRUE(Repeats());
    Listen();
    PassTime(1);
    EXPECT_EQ(Keyed(), "1000");
    Listen();
    PassTime(5'000);
    EXPECT_EQ(UnitsPassed(), 5'000 / 60.0 + 4);
    Type("8");
    EXPECT_EQ(Main().txtNum.Text(), "8") << "the key goes on";
    EXPECT_EQ(Sender().gCWRepeat, 0);
    EXPECT_FALSE(Repeats());
    Listen();
    PassTime(60'000);
    EXPECT_TRUE(edges.empty());
}

TEST_F(CwMessagesTest, KeyThatOpensAMenuEndsTheRepeatToo) {
    for (const char* key : {"Alt+F", "Ctrl+R", "Menu", "Shift+Tab"}) {
        StartKeying();
        Cw().Text1.SetText("E");
        Repeat("5");
        Press("F1");
        ASSERT_TRUE(Repeats()) << key;
        Press(key);
        EXPECT_FALSE(Repeats()) << key;
        EXPECT_EQ(Sender().gCWRepeat, 0) << key;
    }
}

TEST_F(CwMessagesTest, KeyThatEndsTheRepeatMayBeginAnotherMessage) {
    StartKeying();
    Cw().Text1.SetText("E");
    Cw().Text2.SetText("T");
    Repeat("5");
    Press("F1");
    EXPECT_EQ(SentBy("F2"), "111000");
    EXPECT_FALSE(Repeats());
    Press("F1");
    EXPECT_EQ(SentBy("F1"), "1000");
    EXPECT_TRUE(Repeats());
}

TEST_F(CwMessagesTest, OnlyTheFirstMessageIsRepeated) {
    StartKeying();
    Cw().Text2.SetText("E");
    Repeat("5");
    Press("F2");
    EXPECT_EQ(Sender().gCWRepeat, 0);
    EXPECT_FALSE(Repeats());
}

TEST_F(CwMessagesTest, KeyDuringARepeatedMessageEndsMessageAndRepeat) {
    StartKeying();
    Cw().Text1.SetText("TEST");
    Repeat("5");
    Behind(2, [this] { PostNamed("Esc"); });
    EXPECT_EQ(SentBy("F1"), Elements("TE"));
    EXPECT_FALSE(Repeats());
}

TEST_F(CwMessagesTest, CtrlKeyEndsTheRepeatToo) {
    StartKeying();
    Cw().Text1.SetText("E");
    Repeat("5");
    Press("F1");
    Press("Ctrl+R");
    EXPECT_FALSE(Repeats());
}

TEST_F(CwMessagesTest, IntervalBeyondTheLimitRepeatsNothing) {
    StartKeying();
    Cw().Text1.SetText("E");
    for (const char* seconds : {"60", "61", "-1", "five", ""}) {
        Repeat(seconds);
        EXPECT_EQ(Cw().txtCWLoop.Text(), "0") << seconds;
        EXPECT_EQ(Cw().tmrRepeat.Interval(), 0) << seconds;
        Press("F1");
        EXPECT_EQ(Sender().gCWRepeat, 0) << seconds;
    }
    Repeat("59.5");
    EXPECT_EQ(Cw().tmrRepeat.Interval(), 59'500);
}

TEST_F(CwMessagesTest, RepeatWithWinKeyBeginsWhenTheTextIsHandedOver) {
    StartKeying();
    Cw().Text1.SetText("E");
    Repeat("5");
    Choose(Cw().Option5);
    int cleared = 0;
    Messages().wk_clearbuf = [&] { ++cleared; };
    Messages().gWKVersion = 23;
    Press("F1");
    EXPECT_TRUE(Repeats());
    Type("8");
    EXPECT_EQ(cleared, 1);
    EXPECT_FALSE(Repeats());
}

// The keyboard mode.

TEST_F(CwMessagesTest, F12TogglesTheKeyboard) {
    StartKeying();
    Press("F12");
    EXPECT_EQ(Sender().gKeyboardCW, 1);
    EXPECT_EQ(Dialog(), "Keyboard CW mode is ON!  Press F12 to exit keyboard CW mode.");
    EXPECT_EQ(DialogGround(), 0xC0FFFF);
    Press("F12");
    EXPECT_EQ(Sender().gKeyboardCW, 0);
    EXPECT_EQ(Dialog(), "");
    EXPECT_EQ(DialogGround(), 0xC0C000);
}

TEST_F(CwMessagesTest, InKeyboardModeEveryKeyIsSentAndNoneTyped) {
    StartKeying();
    Press("F12");
    Focus(Main().txtCall);
    Listen();
    Type("w1 a!");
    EXPECT_EQ(Keyed(), Elements("W1 A"));
    EXPECT_EQ(Fields(), "||||");
    Press("Enter");
    Press("Backspace");
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(LogOnDisk(), "");
    EXPECT_EQ(SentBy("Esc"), "");
    EXPECT_EQ(Sender().gKeyboardCW, 1);
}

TEST_F(CwMessagesTest, InKeyboardModeBlankAndEnterPressNoButton) {
    StartKeying();
    Fill(Main().txtCall, "W1AW");
    Main().cmdClear.SetFocus();
    Press("F12");
    Listen();
    Type("e e");
    Press("Enter");
    EXPECT_EQ(Keyed(), Elements("E E"));
    EXPECT_EQ(Fields(), "||W1AW||");
    Press("F12");
    Press("Space");
    EXPECT_EQ(Fields(), "||||");
}

TEST_F(CwMessagesTest, InKeyboardModeTheRedLineHoldsNoKeyBack) {
    PutLog(ManyContacts(1));
    StartKeying();
    Focus(Main().txtCall);
    Type("w1x ");
    ASSERT_EQ(program->logPart.duplicates.gIsDupe, 1);
    Press("F12");
    Focus(Main().txtCall);
    Listen();
    Type("e");
    EXPECT_EQ(Keyed(), "1000");
    Press("F12");
    Listen();
    Type("e");
    EXPECT_EQ(Main().txtCall.Text(), "") << "the field's keys are held";
    clock.Advance(3'000);
    TheDesk().RunPending();
    EXPECT_EQ(Main().txtCall.Text(), "E");
}

TEST_F(CwMessagesTest, ChoosingNoOutputEndsTheKeyboardMode) {
    StartKeying();
    Press("F12");
    Choose(Cw().Option4);
    EXPECT_EQ(Sender().gKeyboardCW, 0);
    EXPECT_EQ(DialogGround(), 0xC0C000);
    Focus(Main().txtCall);
    Type("w1");
    EXPECT_EQ(Fields(), "||W1||");
}

TEST_F(CwMessagesTest, EscStopsAMessageThatReachesIntoAPhoneContest) {
    StartKeying();
    Cw().Text1.SetText("TEST");
    Behind(2, [this] {
        program->preferences.gContestMode = 1;
        PostNamed("Esc");
    });
    EXPECT_EQ(SentBy("F1"), Elements("TE"));
}

TEST_F(CwMessagesTest, TypedKeysQueueBehindTheRunningText) {
    StartKeying();
    Press("F12");
    Cw().Text1.SetText("TE");
    Behind(1, [this] { Post("st"); });
    EXPECT_EQ(SentBy("F1"), Elements("TEST"));
}

TEST_F(CwMessagesTest, BackspaceTakesTheLastQueuedCharacter) {
    StartKeying();
    Press("F12");
    Cw().Text1.SetText("TEN");
    Behind(1, [this] {
        PostNamed("Backspace");
        Post("s");
    });
    EXPECT_EQ(SentBy("F1"), Elements("TES"));
}

TEST_F(CwMessagesTest, FunctionKeysWorkInKeyboardMode) {
    StartKeying();
    Press("F12");
    Cw().Text1.SetText("E");
    EXPECT_EQ(SentBy("F1"), "1000");
    Messages().FKeyCW('e');
    EXPECT_EQ(Keyed(), "10001000");
}

TEST_F(CwMessagesTest, WinKeyInKeyboardModeTakesBackspaceWhileItIsBusy) {
    StartKeying();
    Choose(Cw().Option5);
    Press("F12");
    Messages().gWKVersion = 23;
    std::string done;
    Messages().wk_getstatus = [&] { return 5; };
    Messages().wk_backspace = [&] { done += 'b'; };
    Messages().wk_clearbuf = [&] { done += 'c'; };
    Press("Backspace");
    EXPECT_EQ(done, "b");
    FillAll("88", "A", "W1XX", "72", "MDC");
    Press("Esc");
    EXPECT_EQ(done, "bc");
    EXPECT_EQ(Fields(), "88|A|W1XX|72|MDC");
    Messages().wk_getstatus = [] { return 0; };
    Press("Esc");
    EXPECT_EQ(Fields(), "||||");
}

// Names under which scripts know the state.

TEST_F(CwMessagesTest, StateIsTold) {
    StartKeying();
    Cw().Text1.SetText("E");
    Press("F12");
    for (const char* name : {"gCWBuffer", "gCWSending", "gCWKeying", "gCWRepeat", "gCWCall", "gCWNumber", "gCWRst",
                             "gLoopsPer60ms", "gWKVersion", "gWKStatus"}) {
        EXPECT_TRUE(program->told.Find(name)) << name;
    }
    EXPECT_EQ(program->told.Find("gKeyboardCW"), ToldNames::Value{1.0});
    EXPECT_EQ(program->told.Find("gKeyboardCw"), ToldNames::Value{1.0});
    EXPECT_EQ(program->told.Find("gCWKeying"), ToldNames::Value{1.0});
}

}  // namespace
}  // namespace tallyhut
