#include "log/duplicates.h"

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kW1XXIsDupe = "Duplicate W1XX MDC 11/07 21:04:33 ON 40  Rec#  1  Serial Rcvd: 88";
constexpr const char* kNoDigit = "The second or third character is not numeric!";

struct DuplicatesTest : ProgramFixture {
    /// A log of these calls, the operating time on, the call field with the focus.
    void StartWithCalls(const std::vector<std::string>& calls, int mode = 2) {
        std::vector<Contact> contacts;
        for (const std::string& call : calls) {
            contacts.push_back(Worked(call));
        }
        StartWith(contacts, mode);
        program->time.gTimeOn = 1;
        Focus(Main().txtCall);
        dialogs.beeps = 0;
    }
    /// In mode 2: types the call and leaves it.
    void Leave(std::string_view call) {
        Type(call);
        Press("Space");
    }
    bool IsDupe() { return program->duplicates.gIsDupe == 1; }
};

TEST_F(DuplicatesTest, EmptyLogHasNoneAndListsNone) {
    StartWithCalls({});
    Type("K1AB");
    EXPECT_EQ(Partials(), "");
    Press("Space");
    EXPECT_FALSE(IsDupe());
    EXPECT_EQ(Fields(), "||K1AB||");
    EXPECT_EQ(FocusedField(), "txtNum");
}

TEST_F(DuplicatesTest, LeavingTheCallFindsItAndThrowsTheEntryAway) {
    StartWithCalls({"W1XX"});
    FillAll("88", "A", "", "72", "MDC");
    Leave("W1XX");
    EXPECT_TRUE(IsDupe());
    EXPECT_EQ(Dialog(), kW1XXIsDupe);
    EXPECT_EQ(DialogGround(), 0x0000FF);
    EXPECT_EQ(Partials(), "");
    EXPECT_EQ(Main().lblDupe.State().backColor, kButtonFace);
    EXPECT_EQ(dialogs.beeps, 1);
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(FocusedField(), "txtCall");
    EXPECT_EQ(program->log.gContactCount(), 1);
    EXPECT_EQ(Operations(), 0);
}

TEST_F(DuplicatesTest, FocusGoesToTheModesFirstField) {
    for (const auto& [mode, field] : {std::pair{1, "txtNum"}, {2, "txtCall"}, {3, "txtCall"}}) {
        StartWithCalls({"W1XX"}, mode);
        Type("W1XX");
        Press("Tab");
        EXPECT_TRUE(IsDupe()) << mode;
        EXPECT_EQ(FocusedField(), field) << mode;
        EXPECT_EQ(Fields(), "||||") << mode;
        program.reset();
    }
}

TEST_F(DuplicatesTest, KeyHandedOverWithTheCallGoesWithTheEntry) {
    for (const int mode : {1, 2, 3}) {
        StartWithCalls({"W1XX"}, mode);
        Type("W1XX7");
        EXPECT_TRUE(IsDupe()) << mode;
        EXPECT_EQ(Fields(), "||||") << mode;
        EXPECT_EQ(FocusedField(), mode == 1 ? "txtNum" : "txtCall") << mode;
        program.reset();
    }
}

TEST_F(DuplicatesTest, BandAndDateMakeNoDifference) {
    Contact old = Worked("W1XX");
    old.Bnd = "80";
    old.Date = "2025/11/01";
    old.Time = "23:59";
    stored.gBand = "20";
    StartWith({old}, 2);
    Leave("W1XX");
    EXPECT_EQ(Dialog(), "Duplicate W1XX MDC 11/01 23:59 ON 80  Rec#  1  Serial Rcvd: 88");
}

TEST_F(DuplicatesTest, OldestOfSeveralIsTold) {
    StartWithCalls({"K1AB", "W1XX", "W1XX"});
    Leave("W1XX");
    EXPECT_EQ(Dialog(), "Duplicate W1XX MDC 11/07 21:04:33 ON 40  Rec#  2  Serial Rcvd: 88");
}

TEST_F(DuplicatesTest, RecordNumberHasItsBlank) {
    std::vector<std::string> calls;
    for (int n = 1; n < 12; ++n) {
        calls.push_back("K" + std::to_string(n) + "XX");
    }
    calls.emplace_back("W1XX");
    StartWithCalls(calls);
    Leave("W1XX");
    EXPECT_EQ(Dialog(), "Duplicate W1XX MDC 11/07 21:04:33 ON 40  Rec#  12  Serial Rcvd: 88");
}

TEST_F(DuplicatesTest, OnlyTheWholeCallIsOne) {
    for (const std::string_view call : {"W1XX/3", "W1X", "W1XXX", "VE3/W1XX"}) {
        StartWithCalls({"W1XX"});
        Leave(call);
        EXPECT_FALSE(IsDupe()) << call;
        EXPECT_EQ(Main().txtCall.Text(), call);
        program.reset();
    }
}

TEST_F(DuplicatesTest, CaseCounts) {
    StartWithCalls({"w1xx"});
    Leave("W1XX");
    EXPECT_FALSE(IsDupe());
}

TEST_F(DuplicatesTest, EmptyCallIsNotLookedFor) {
    StartWithCalls({""});
    Press("Tab");
    EXPECT_FALSE(IsDupe());
    EXPECT_EQ(dialogs.beeps, 0);
}

TEST_F(DuplicatesTest, DateThatIsNoneIsToldAsItIs) {
    Contact odd = Worked("W1XX");
    odd.Date = "Sunday";
    StartWith({odd}, 2);
    Leave("W1XX");
    EXPECT_EQ(Dialog(), "Duplicate W1XX MDC Sunday 21:04:33 ON 40  Rec#  1  Serial Rcvd: 88");
}

TEST_F(DuplicatesTest, EnterAfterADuplicateReportsTheMissingFields) {
    StartWithCalls({"W1XX"});
    Leave("W1XX");
    clock.Advance(3'000);
    Press("Enter");
    EXPECT_EQ(Dialog(), "Invalid Section");
    EXPECT_EQ(FocusedField(), "txtNum");
    EXPECT_FALSE(IsDupe());
    EXPECT_EQ(program->log.gContactCount(), 1);
}

TEST_F(DuplicatesTest, CommitFindsItWhenTheCallIsNotLeft) {
    StartWithCalls({"W1XX"}, 1);
    FillAll("88", "A", "W1XX", "72", "MDC");
    Press("Enter");
    EXPECT_EQ(Dialog(), kW1XXIsDupe);
    EXPECT_EQ(DialogGround(), 0x0000FF);
    EXPECT_EQ(dialogs.beeps, 1);
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(FocusedField(), "txtNum");
    EXPECT_EQ(LogLines().size(), 1U);
}

TEST_F(DuplicatesTest, VoiceTellsItAndIsAwaited) {
    struct Case {
        int level;
        const char* told;
    };
    for (const auto& [level, told] : {Case{0, "Dupe."}, Case{1, "Dupe.waited."}, Case{2, "Dupe.waited."}}) {
        StartWithCalls({"W1XX"});
        Type("W1XX");
        program->preferences.gVoiceNav = static_cast<std::uint8_t>(level);
        std::string said;
        program->prompts.BlindKeyPhone = [&](std::string_view prompt) {
            if (prompt == "Dupe") {
                EXPECT_EQ(dialogs.beeps, 1);
                EXPECT_EQ(DialogGround(), 0x0000FF);
                EXPECT_EQ(Fields(), "||W1XX||");
                said += "Dupe.";
            }
        };
        program->prompts.AwaitEnd = [&] {
            EXPECT_FALSE(IsDupe());
            said += "waited.";
            clock.Advance(5'000);
        };
        program->duplicates.dupcheck();
        EXPECT_EQ(said, told);
        EXPECT_EQ(program->duplicates.gDupeAt, clock.Now());
        program.reset();
    }
}

// The red line stays for three seconds: the first key in the number or the call field waits.

TEST_F(DuplicatesTest, KeyTypedAtOnceShowsAfterThreeSeconds) {
    StartWithCalls({"W1XX"});
    Leave("W1XX");
    clock.Advance(500);
    Type("K1");
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(Dialog(), kW1XXIsDupe);
    PassTime(2'499);
    EXPECT_EQ(Fields(), "||||");
    EXPECT_TRUE(IsDupe());
    PassTime(1);
    EXPECT_EQ(Fields(), "||K1||");
    EXPECT_FALSE(IsDupe());
    EXPECT_NE(DialogGround(), 0x0000FF);
}

TEST_F(DuplicatesTest, KeyTypedFourSecondsLaterDoesNotWait) {
    StartWithCalls({"W1XX"});
    Leave("W1XX");
    clock.Advance(4'000);
    Type("K");
    EXPECT_EQ(Fields(), "||K||");
    EXPECT_FALSE(IsDupe());
}

TEST_F(DuplicatesTest, NextKeyAfterTheWaitDoesNotWaitAgain) {
    StartWithCalls({"W1XX"});
    Leave("W1XX");
    Type("K");
    PassTime(3'000);
    Type("1AB");
    EXPECT_EQ(Fields(), "||K1AB||");
}

TEST_F(DuplicatesTest, NumberFieldWaitsToo) {
    StartWithCalls({"W1XX"}, 1);
    Type("W1XX");
    Press("Space");
    ASSERT_EQ(FocusedField(), "txtNum");
    Type("88A");
    EXPECT_EQ(Fields(), "||||");
    PassTime(3'000);
    EXPECT_EQ(Fields(), "88|A|||");
    EXPECT_EQ(FocusedField(), "txtPre");
    EXPECT_FALSE(IsDupe());
}

TEST_F(DuplicatesTest, WaitJumpsToItsEndWhereTheProgramWaits) {
    StartWithCalls({"W1XX"});
    Leave("W1XX");
    Post("K1AB");
    TheDesk().RunUntil([&] { return Main().txtCall.Text() == "K1AB"; });
    EXPECT_EQ(clock.TickMs(), 3'000U);
}

TEST_F(DuplicatesTest, WhatIsTypedDuringTheWaitLosesNoKeyAndNoOrder) {
    StartWithCalls({"W1XX"});
    Leave("W1XX");
    Type("K1AB88a72ct");
    Press("Enter");
    Type("K2AB");
    PassTime(3'000);
    EXPECT_EQ(program->log.gContactCount(), 2);
    EXPECT_EQ(program->log.Row(2).Call, "K1AB");
    EXPECT_EQ(program->log.Row(2).Nr, "88");
    EXPECT_EQ(Fields(), "||K2AB||");
}

TEST_F(DuplicatesTest, EnterWaitsAsEveryKeyOfTheFieldDoes) {
    StartWithCalls({"W1XX"});
    Leave("W1XX");
    Press("Enter");
    EXPECT_EQ(Dialog(), kW1XXIsDupe);
    PassTime(3'000);
    EXPECT_EQ(Dialog(), "Invalid Section");
}

TEST_F(DuplicatesTest, KeysOutsideOfTheFieldActAtOnce) {
    StartWithCalls({"W1XX"});
    Leave("W1XX");
    Press("Tab");
    EXPECT_EQ(FocusedField(), "txtNum");
    Press("Tab");
    EXPECT_EQ(FocusedField(), "txtPre");
    Type("B");
    EXPECT_EQ(Fields(), "|B|||");
    EXPECT_TRUE(IsDupe());
    EXPECT_EQ(clock.TickMs(), 0U);
}

TEST_F(DuplicatesTest, EscCtrlAndFunctionKeysDoNotWait) {
    StartWithCalls({"W1XX"});
    for (const std::string_view name : {"Esc", "Ctrl+K", "Ctrl+F", "F1", "F12", "Alt+C", "Left", "Home"}) {
        const std::optional<Key> key = KeyByName(name);
        ASSERT_TRUE(key) << name;
        Leave("W1XX");
        ASSERT_TRUE(IsDupe()) << name;
        TheDesk().PostKey(*key);
        EXPECT_EQ(TheDesk().HeldUntil(), std::nullopt) << name;
        TheDesk().RunPending();
        clock.Advance(3'000);
    }
}

TEST_F(DuplicatesTest, MouseActsDuringTheWait) {
    StartWithCalls({"W1XX"});
    Leave("W1XX");
    Type("K1AB");
    Click(Main().cmdClear);
    EXPECT_EQ(Dialog(), " ");
    EXPECT_EQ(DialogGround(), 0xC0C000);
}

TEST_F(DuplicatesTest, TimersRunDuringTheWait) {
    StartWithCalls({"W1XX"});
    clock.Advance(58'000);
    Leave("W1XX");
    Type("K");
    program->log.Change(1, [](Contact& contact) { contact.Time = "01:00:00"; });
    ASSERT_EQ(Main().lblAQSO60.Caption(), "1");
    PassTime(2'000);
    EXPECT_EQ(Main().lblAQSO60.Caption(), "0");
    EXPECT_EQ(Fields(), "||||");
}

TEST_F(DuplicatesTest, DateAndTimeSetByHandDoNotLengthenTheWait) {
    StartWithCalls({"W1XX"});
    Leave("W1XX");
    clock.SetNow({2020, 1, 1, 0, 0, 0});
    Type("K");
    PassTime(3'000);
    EXPECT_EQ(Fields(), "||K||");
}

// The calls that begin with what has been typed.

TEST_F(DuplicatesTest, PartialListShowsTheNewestFirst) {
    StartWithCalls({"W1XX", "K1AB", "W1YY", "W1XXA"});
    Type("W1");
    EXPECT_EQ(Partials(), "W1XXA W1YY W1XX ");
    EXPECT_EQ(Main().lblDupe.State().backColor, 0xC0C000);
    Type("X");
    EXPECT_EQ(Partials(), "W1XXA W1XX ");
    Type("Z");
    EXPECT_EQ(Partials(), "");
    EXPECT_EQ(Main().lblDupe.State().backColor, kButtonFace);
}

TEST_F(DuplicatesTest, CallIsListedWhileItIsTypedAndNoLongerWithASlash) {
    StartWithCalls({"W1XX"});
    Type("W1XX");
    EXPECT_EQ(Partials(), "W1XX ");
    Type("/");
    EXPECT_EQ(Partials(), "");
    Type("3");
    EXPECT_EQ(Partials(), "");
}

TEST_F(DuplicatesTest, SmallLettersAreCapitalsHere) {
    StartWithCalls({"W1XX"});
    Type("w1xx");
    EXPECT_EQ(Fields(), "||W1XX||");
    EXPECT_EQ(Partials(), "W1XX ");
}

TEST_F(DuplicatesTest, ListStopsJustOver125Characters) {
    std::vector<std::string> calls;
    for (int n = 100; n < 300; ++n) {
        calls.push_back("K1" + std::to_string(n));  // six characters with the blank
    }
    StartWithCalls(calls);
    Type("K1");
    EXPECT_EQ(Partials().size(), 126U);
    EXPECT_TRUE(Partials().starts_with("K1120 K1119 ")) << Partials();
    EXPECT_TRUE(Partials().ends_with("K1101 K1100 ")) << Partials();
}

TEST_F(DuplicatesTest, BackspaceBlanksTheListUntilTheNextCharacter) {
    StartWithCalls({"W1XX"});
    Type("W1XY");
    Press("Backspace");
    EXPECT_EQ(Fields(), "||W1X||");
    EXPECT_EQ(Partials(), "");
    Type("X");
    EXPECT_EQ(Partials(), "W1XX ");
}

TEST_F(DuplicatesTest, OnlyKeysOfCallsBuildAList) {
    const std::string first = "W1XX";
    for (const char key : std::string{"[]_!*-,+'\xE9{~"}) {
        StartWithCalls({first + key});
        Type(first);
        ASSERT_NE(Partials(), "");
        Type({&key, 1});
        EXPECT_EQ(Main().txtCall.Text(), first + key);
        EXPECT_EQ(Partials(), "") << key;
        program.reset();
    }
    for (const char key : std::string{"./0:;=?@AZ"}) {
        StartWithCalls({"W1X/" + std::string(1, key)});
        Type("W1X/");
        Type({&key, 1});
        EXPECT_NE(Partials(), "") << key;
        program.reset();
    }
}

TEST_F(DuplicatesTest, BlankBuildsNoList) {
    StartWithCalls({"W1XX"});
    Type("W1 ");
    EXPECT_EQ(Partials(), "");
}

TEST_F(DuplicatesTest, PossibleDuplicateIsToldFromTheFourthCharacterOn) {
    StartWithCalls({"W1XX"});
    Type("W1");
    EXPECT_EQ(Dialog(), " ");
    Type("X");
    EXPECT_EQ(Dialog(), " ");  // at three characters the call area has the last word
    Type("X");
    EXPECT_EQ(Dialog(), "Possible Duplicate!");
    EXPECT_EQ(DialogGround(), 0xC0C000);
    Type("Y");
    EXPECT_EQ(Dialog(), " ");
}

TEST_F(DuplicatesTest, ListNeedsNotBeOfTheDuplicateOnly) {
    StartWithCalls({"W1XXA"});
    Type("W1XX");
    EXPECT_EQ(Dialog(), "Possible Duplicate!");
}

TEST_F(DuplicatesTest, ThirdCharacterWithoutACallAreaIsTold) {
    struct Case {
        std::string_view typed;
        bool told;
    };
    for (const auto& [typed, told] : {Case{"ABC", true}, Case{"A/C", false}, Case{"AB/", false}, Case{"W1X", false},
                                      Case{"WA1", false}, Case{"1AB", true}, Case{"A.B", true}, Case{"A:B", true},
                                      Case{"abc", true}, Case{"A9C", false}, Case{"A0C", false}}) {
        StartWithCalls({});
        Type(typed.substr(0, 2));
        EXPECT_EQ(dialogs.beeps, 0) << typed;
        Type(typed.substr(2));
        EXPECT_EQ(Dialog(), told ? kNoDigit : " ") << typed;
        EXPECT_EQ(dialogs.beeps, told ? 1 : 0) << typed;
        Type("X");
        EXPECT_EQ(Dialog(), " ") << typed;
        program.reset();
    }
}

TEST_F(DuplicatesTest, ThirdCharacterThatIsNoneOfACallIsNotLookedAt) {
    StartWithCalls({});
    Type("AB-");
    EXPECT_EQ(dialogs.beeps, 0);
    EXPECT_EQ(Dialog(), " ");
}

TEST_F(DuplicatesTest, ReminderOfTheTimeStaysUnlessTheCallIsSpokenOf) {
    StartWithCalls({"W1XX"});
    program->time.gTimeOn = 0;
    Type("W1");
    EXPECT_EQ(Dialog(), "Click Log \"Time On\"!");
    EXPECT_EQ(dialogs.beeps, 2);
    Type("X");
    EXPECT_EQ(Dialog(), " ");
    Type("X");
    EXPECT_EQ(Dialog(), "Possible Duplicate!");
    Type("Y");
    EXPECT_EQ(Dialog(), "Click Log \"Time On\"!");
    EXPECT_EQ(dialogs.beeps, 5);
}

TEST_F(DuplicatesTest, KeyGoesBehindTheTextForTheListWhereverTheCaretIs) {
    StartWithCalls({"W1XX"});
    Type("1X");
    Press("Home");
    Type("W");
    EXPECT_EQ(Fields(), "||W1X||");
    EXPECT_EQ(Partials(), "");
}

TEST_F(DuplicatesTest, ButtonTurnsTheListOffAndOn) {
    StartWithCalls({"W1XX"});
    EXPECT_EQ(program->duplicates.gPartialOn, 1);
    EXPECT_EQ(Main().cmdDup.Caption(), "On");
    EXPECT_EQ(Main().cmdDup.State().toolTip, "Displaying partial dupes slows the program on older pc's.");
    EXPECT_EQ(Main().lblPossDup.Caption(), "               Possible Duplicates");
    Click(Main().cmdDup);
    EXPECT_EQ(Main().cmdDup.Caption(), "Off");
    EXPECT_EQ(FocusedField(), "txtCall");
    Type("W1XX");
    EXPECT_EQ(Partials(), "");
    EXPECT_EQ(Dialog(), " ");
    Press("Space");
    EXPECT_TRUE(IsDupe());  // the whole call is looked for all the same
    clock.Advance(3'000);
    Click(Main().cmdDup);
    EXPECT_EQ(Main().cmdDup.Caption(), "On");
    Type("W1X");
    EXPECT_EQ(Partials(), "W1XX ");
}

TEST_F(DuplicatesTest, ButtonGivesTheListItsPlainGroundAndLeavesItsText) {
    StartWithCalls({"W1XX"});
    Type("W1");
    Click(Main().cmdDup);
    EXPECT_EQ(Main().lblDupe.State().backColor, kButtonFace);
    EXPECT_EQ(Partials(), "W1XX ");
}

TEST_F(DuplicatesTest, ListIsOnAgainInTheNextRun) {
    StartWithCalls({"W1XX"});
    Click(Main().cmdDup);
    program.reset();
    StartWithCalls({"W1XX"});
    EXPECT_EQ(program->duplicates.gPartialOn, 1);
    EXPECT_EQ(Main().cmdDup.Caption(), "On");
}

TEST_F(DuplicatesTest, NumberFieldAndCommitBlankTheList) {
    StartWithCalls({"W1XX"}, 2);
    Type("W1X");
    ASSERT_NE(Partials(), "");
    Press("Tab");
    EXPECT_NE(Partials(), "");
    Type("8");
    EXPECT_EQ(Partials(), "");
    EXPECT_EQ(Main().lblDupe.State().backColor, kButtonFace);
    Main().txtCall.SetText("");
    Focus(Main().txtCall);
    Type("W1");
    ASSERT_NE(Partials(), "");
    Press("Enter");
    EXPECT_EQ(Partials(), "");
    EXPECT_EQ(Main().lblDupe.State().backColor, kButtonFace);
}

TEST_F(DuplicatesTest, EscInAPhoneContestEndsTheRedLineToo) {
    stored.gContestMode = 1;
    StartWith({Worked("W1XX")});
    program->time.gTimeOn = 1;
    Fill(Main().txtCall, "W1XX");
    Focus(Main().txtCall);
    Focus(Main().txtSec);
    ASSERT_EQ(program->duplicates.gIsDupe, 1);
    Press("Esc");
    EXPECT_EQ(DialogGround(), kDialogNormal);
}

TEST_F(DuplicatesTest, AKeyThatThePrecedenceHandsToTheCallIsHeldToo) {
    StartWith({Worked("W1XX")});
    program->time.gTimeOn = 1;
    Fill(Main().txtCall, "W1XX");
    Focus(Main().txtCall);
    Focus(Main().txtSec);
    Click(Main().txtPre);
    Type("ak");
    EXPECT_EQ(Main().txtCall.Text(), "");
    EXPECT_EQ(DialogGround(), 0x0000FF);
    PassTime(3'000);
    EXPECT_EQ(Main().txtCall.Text(), "K");
}

TEST_F(DuplicatesTest, KeysOfAnOpenMenuAreNotHeld) {
    StartWith({Worked("W1XX")});
    Fill(Main().txtCall, "W1XX");
    Focus(Main().txtCall);
    Focus(Main().txtSec);
    ASSERT_EQ(program->duplicates.gIsDupe, 1);
    Press("Alt+B");
    Press("Down");
    Press("Enter");
    EXPECT_EQ(program->preferences.gBand, "160");
}

}  // namespace
}  // namespace tallyhut
