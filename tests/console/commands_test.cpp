#include <gtest/gtest.h>

#include <csignal>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

struct CommandsTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path()};
};

TEST_F(CommandsTest, StartAsksForTheStationFirst) {
    EXPECT_EQ(program.Greeting(), (Lines{R"({"event":"show","form":"frmQ7ZZQLogo","at":"2026-11-07T21:04:33.000"})",
                                         R"({"event":"modal","form":"frmStationID","at":"2026-11-07T21:04:33.000"})"}));
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
}

TEST_F(CommandsTest, TypedTextGoesToTheFieldWithTheFocus) {
    program.Do(R"(type "88")");
    EXPECT_EQ(program.Get("txtNum"), R"("88")");
    EXPECT_EQ(program.Get("Form1.txtNum.selStart"), "2");
}

TEST_F(CommandsTest, AWordWithoutBlanksNeedsNoQuotes) {
    program.Do("type 88");
    EXPECT_EQ(program.Get("txtNum"), R"("88")");
}

TEST_F(CommandsTest, NamedKeysArePressed) {
    program.Do("key 8 8 Left Backspace Tab");
    EXPECT_EQ(program.Get("txtNum"), R"("8")");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtPre"})");
    program.Do("key Shift+Tab");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
}

TEST_F(CommandsTest, AltAndItsLetterClickTheButton) {
    program.Do("type 88");
    program.Do("key Alt+C");
    EXPECT_EQ(program.Get("txtNum"), R"("")");
}

TEST_F(CommandsTest, AMenuOpensByItsKeyAndItsEntriesByTheirs) {
    program.Do("key Alt+T");
    program.Do("type b");  // both entries begin with it: the first is taken
    EXPECT_EQ(program.Get("$gTabMode"), "1");
    program.Do("key Alt+F X");
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(CommandsTest, PropertiesOfControlsAreToldUnderTheirNames) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"txtCall.maxLength", "12"},
        {"txtCall.tabIndex", "3"},
        {"txtNum.focused", "true"},
        {"txtCall.focused", "false"},
        {"cmdClear", R"("&Clear")"},
        {"cmdClear.toolTip", R"("Click to clear entry fields or press ALT C")"},
        {"Label10(16)", R"("MDC")"},
        {"Label10(16).toolTip", R"("Maryland-DC")"},
        {"lblDialog.backColor", "12632064"},
        {"lblDupe.backColor", "-2147483633"},
        {"ListView1.selected", "-1"},
        {"Timer1.interval", "60000"},
        {"numopt.checked", "true"},
        {"Form1.visible", "true"},
        {"Form1.state", R"("normal")"},
        {"$gBand", R"("40")"},
        {"$gSectionCount", "83"},
        {"$SectionCode(80)", R"("WCF")"},
        {"$clock", R"("2026-11-07T21:04:33.000")"},
        {"$WorkingDirectory", '"' + folder.Path() + '"'},
    };
    for (const auto& [target, value] : cases) {
        EXPECT_EQ(program.Get(target), value) << target;
    }
}

TEST_F(CommandsTest, EachToldNameHasAValue) {
    program.LogContact("88aw1xx72mdc");
    for (const char* name : {"$gContactCount",
                             "$gSavedCount",
                             "$gFrq",
                             "$gSectionCount",
                             "$gSectionsWorked",
                             "$gCarryKey",
                             "$gCarryFrom",
                             "$gPassedCallTwice",
                             "$gIncomplete",
                             "$gBadSection",
                             "$gCtrlKeyTaken",
                             "$gListAll",
                             "$gIsDupe",
                             "$gPartialOn",
                             "$gDupeAt",
                             "$gTimeOn",
                             "$gOpSeconds",
                             "$gOpSecondsNow",
                             "$gLogOnAt",
                             "$gBandOnAt",
                             "$gOwnCall",
                             "$gOwnPrec",
                             "$gOwnCheck",
                             "$gOwnSection",
                             "$gUtcOffset",
                             "$gContestMode",
                             "$gTabMode",
                             "$gStationSet",
                             "$gBand",
                             "$gColorWorked",
                             "$gColorNeeded",
                             "$gFormScale",
                             "$gVoiceNav",
                             "$gRigName",
                             "$gTaskbar",
                             "$gColorNeededSpots",
                             "$gAudioAlert",
                             "$RigFrequency",
                             "$RigMode",
                             "$RxBuffer",
                             "$ReadPhase",
                             "$ModeTurn",
                             "$VfoDigit",
                             "$FormLoading",
                             "$WorkingDirectory",
                             "$DataDirectory",
                             "$SharedDirectory",
                             "$SharedXmlPath",
                             "$SharedXmlText",
                             "$Ns(1)",
                             "$Nr(1)",
                             "$P(1)",
                             "$Call(1)",
                             "$Ck(1)",
                             "$Sec(1)",
                             "$Date(1)",
                             "$Time(1)",
                             "$Bnd(1)",
                             "$Frq(1)",
                             "$SectionCode(1)",
                             "$SectionName(1)",
                             "$SectionQsos(1)"}) {
        const Lines lines = program.Do(std::string{"get "} + name);
        ASSERT_EQ(lines.size(), 1U) << name;
        EXPECT_EQ(lines[0].substr(0, 9), R"({"value":)") << name;
    }
}

TEST_F(CommandsTest, MomentsOfTheContestAreToldAsTextAndAreEmptyBeforeTheyCome) {
    for (const char* moment : {"$gLogOnAt", "$gBandOnAt", "$gDupeAt"}) {
        EXPECT_EQ(program.Get(moment), R"("")") << moment;
    }
    EXPECT_EQ(program.Get("$gOpSecondsNow"), "0");
    program.Do("click cmdLogOn");
    program.Do("advance 61000");
    program.Do("menu mnu20");
    program.Do("advance 9000");
    program.LogContact("88aw1xx72mdc");
    program.Do(R"(type "89aw1xx7")");
    EXPECT_EQ(program.Get("$gLogOnAt"), R"("2026-11-07T21:04:33")");
    EXPECT_EQ(program.Get("$gBandOnAt"), R"("2026-11-07T21:05:34")");
    EXPECT_EQ(program.Get("$gDupeAt"), R"("2026-11-07T21:05:43")");
    EXPECT_EQ(program.Get("$gOpSecondsNow"), "70");
}

TEST_F(CommandsTest, TheSharedPreferencesAreToldAsTheyStandInTheirFile) {
    program.Do("menu mnuSetup");
    program.Do(R"(set Text1 "W1AW")");
    program.Do("click Command1");
    const std::string path = program.Get("$SharedXmlPath");
    EXPECT_EQ(path, program.Get("$SharedDirectory").substr(0, path.rfind('/')) + R"(/SharedUserPreferences.xml")");
    EXPECT_NE(program.Get("$SharedXmlText").find("<OWN_CALL>W1AW</OWN_CALL>"), std::string::npos);
}

TEST_F(CommandsTest, WhatCannotBeTakenIsAnErrorAndChangesNothing) {
    const std::string before = program.Do("dump Form1").at(0);
    for (const char* command : {
             "nonsense",
             "type",
             R"(type "abc)",
             "key Nokey",
             "key 1 Nokey",
             "click nothing",
             "click Form1",
             "click cmdClear upwards",
             "click mnuOpen",
             "focus lblDialog",
             "get txtNum.nothing",
             "get $nothing",
             "get $SectionCode(84)",
             "get $Call(1)",
             "get Form2",
             "rows txtNum",
             "dump Form2",
             "pick ListView1 0",
             "pick ListView1 x",
             "rclick txtNum 0",
             "column ListView1 0",
             "column ListView1 11",
             "column ListView1 12",
             "menu nothing",
             "menu mnuFile",
             "set ListView1 x",
             "set txtNum",
             "caret txtNum x",
             "caret cmdClear 1",
             "close Form2",
             "answer OK",
             "advance -1",
             "advance x",
             "at 5",
             "at 5 nonsense",
             "at 5 advance 5",
             "settle x",
             "hover nothing",
             "activate Form2",
             "forms now",
         }) {
        const Lines lines = program.Do(command);
        ASSERT_EQ(lines.size(), 1U) << command;
        EXPECT_EQ(lines[0].substr(0, 10), R"({"error":")") << command;
    }
    EXPECT_EQ(program.Do("dump Form1").at(0), before);
}

TEST_F(CommandsTest, AnEmptyLineIsNothing) {
    EXPECT_EQ(program.Do(""), Lines{});
}

TEST_F(CommandsTest, SetPastesOverTheTextAndLeavesTheFocus) {
    program.Do(R"(set txtCall "w1\"aw\nverylongcall")");
    EXPECT_EQ(program.Get("txtCall"), R"("w1awverylong")");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
    program.Do(R"(set txtCall "")");
    EXPECT_EQ(program.Get("txtCall"), R"("")");
}

TEST_F(CommandsTest, FocusRunsTheHandlersOfAClickIntoTheField) {
    program.Do("focus txtCall");
    program.Do("type Q7ZZQ");
    program.Do("focus txtNum");
    EXPECT_EQ(program.Get("lblDialog"), R"("Q7ZZQ, Alden, wrote this software!  Please say hi!")");
}

TEST_F(CommandsTest, CaretPlacesCaretAndSelection) {
    program.Do("type 12345");
    program.Do("caret txtNum 1 2");
    EXPECT_EQ(program.Get("txtNum.selLength"), "2");
    program.Do("type 9");
    EXPECT_EQ(program.Get("txtNum"), R"("1945")");
}

TEST_F(CommandsTest, PasteTakesTheClipboardWithoutWhatTheFieldRefuses) {
    program.Do(R"(clipboard "k1\"ab\r\n")");
    program.Do("focus txtCall");
    program.Do("key Shift+Insert");
    EXPECT_EQ(program.Get("txtCall"), R"("k1ab")");
    program.Do("key Shift+Home");
    EXPECT_EQ(program.Do("key Ctrl+Insert"),
              Lines{R"({"event":"clipboard","text":"k1ab","at":"2026-11-07T21:04:33.000"})"});
}

TEST_F(CommandsTest, CtrlVIsACtrlKeyOfTheMainFormAndPastesNothing) {
    program.Do("clipboard k1ab");
    program.Do("focus txtCall");
    program.Do("key Ctrl+V");
    EXPECT_EQ(program.Get("txtCall"), R"("")");
    program.Do("type w1");
    EXPECT_EQ(program.Get("txtCall"), R"("W1")");
}

TEST_F(CommandsTest, CharactersBeyondLatin1AreDropped) {
    program.Do("focus txtSec");
    program.Do(R"(type "m\u20ac\u00e9")");
    EXPECT_EQ(program.Get("txtSec"), R"("Mé")");
}

TEST_F(CommandsTest, ListsAreToldTopFirstAndSortedByAClickedColumn) {
    program.LogContact("1aw1aa70ct");
    program.LogContact("2aw1ab71em");  // no section: stays in the fields
    program.Do("key Alt+C");
    program.LogContact("2ak1ab71ema");
    EXPECT_EQ(program.Do("rows ListView1").at(0),
              R"({"rows":[["2","2","2","A","K1AB","71","EMA","11/07","21:04","40"],)"
              R"(["1","1","1","A","W1AA","70","CT","11/07","21:04","40"]]})");
    program.Do("column ListView1 5");
    EXPECT_EQ(program.Do("rows ListView1").at(0).substr(0, 24), R"({"rows":[["2","2","2","A)");
    program.Do("column ListView1 1");
    EXPECT_EQ(program.Do("rows ListView1").at(0).substr(0, 24), R"({"rows":[["1","1","1","A)");
}

TEST_F(CommandsTest, FormsTellTheStateOfEach) {
    EXPECT_EQ(program.Do("forms").at(0).substr(0, 84),
              R"({"forms":[{"name":"Form1","visible":true,"minimised":false,"modal":false,"active":tr)");
}

TEST_F(CommandsTest, AdvanceRunsTheTimersThatComeDue) {
    program.LogContact("1aw1aa70ct");
    EXPECT_EQ(program.Get("lblAQSO20"), R"("3")");
    program.Do("advance 1260000");
    EXPECT_EQ(program.Get("lblAQSO20"), R"("0")");
    EXPECT_EQ(program.Get("lblAQSO60"), R"("1")");
    EXPECT_EQ(program.Get("$clock"), R"("2026-11-07T21:25:33.000")");
}

TEST_F(CommandsTest, ACommandPutAtAMomentIsDeliveredThen) {
    program.Do(R"(at 2000 type "77")");
    program.Do("at 1000 get $clock");
    EXPECT_EQ(program.Get("txtNum"), R"("")");
    EXPECT_EQ(program.Do("advance 1500"), Lines{R"({"value":"2026-11-07T21:04:34.000"})"});
    EXPECT_EQ(program.Get("txtNum"), R"("")");
    program.Do("advance 500");
    EXPECT_EQ(program.Get("txtNum"), R"("77")");
}

TEST_F(CommandsTest, CommandsPutAtAMomentNestTenDeepAndNoDeeper) {
    const auto nested = [](int depth, const std::string& command) {
        std::string line;
        for (int i = 0; i < depth; ++i) {
            line += "at 1 ";
        }
        return line + command;
    };
    EXPECT_EQ(program.Do(nested(10, "type 7")), Lines{});
    for (const int depth : {11, 20'000}) {
        EXPECT_EQ(program.Do(nested(depth, "type 8")), Lines{R"({"error":"at is nested deeper than 10"})"}) << depth;
    }
    EXPECT_EQ(program.Do("at 1 at x type 8"), Lines{R"({"error":"milliseconds is no whole number: x"})"});
    EXPECT_EQ(program.Do("at 1 at 1 nonsense"), Lines{R"({"error":"unknown command nonsense"})"});
    EXPECT_EQ(program.Do("at 1 at 1 advance 5"), Lines{R"({"error":"advance cannot be put at a moment"})"});
    program.Do("advance 9");
    EXPECT_EQ(program.Get("txtNum"), R"("")");
    program.Do("advance 1");
    EXPECT_EQ(program.Get("txtNum"), R"("7")");
}

TEST_F(CommandsTest, TheEndOfInputIsNoticedWhileTimeSettles) {
    program.Send("settle 86400000");
    program.CloseInput();
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(CommandsTest, SettleLetsRealTimePassAndNoOther) {
    program.Do("settle 20");
    EXPECT_EQ(program.Get("$clock"), R"("2026-11-07T21:04:33.000")");
}

TEST_F(CommandsTest, ADamagedLogAsksForOneAnswerAndEndsTheProgram) {
    folder.Write("Log.txt", "\"1\"2\",\"\"\r\n");
    const Lines box = program.Do("menu mnuOpen");
    ASSERT_EQ(box.size(), 1U);
    EXPECT_EQ(box[0].substr(0, 60), R"({"event":"msgbox","title":"File Error","text":"Error opening)");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"answer","dialog":"msgbox"})");
    EXPECT_EQ(program.Do("type 1").at(0), R"({"error":"a dialog waits for its answer"})");
    EXPECT_EQ(program.Do("answer Yes").at(0), R"({"error":"the answer does not fit: Yes"})");
    EXPECT_EQ(program.Get("$gBand"), R"("40")");
    program.Do("answer OK");
    EXPECT_EQ(program.LastTurn().substr(0, 27), R"({"event":"exit","status":1,)");
    EXPECT_EQ(program.Wait(), 1);
}

TEST_F(CommandsTest, TheCloseBoxEndsTheProgram) {
    program.Do("close");
    EXPECT_EQ(program.LastTurn(), R"({"event":"exit","status":0,"at":"2026-11-07T21:04:33.000"})");
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(CommandsTest, TheEndOfInputClosesTheMainWindow) {
    program.CloseInput();
    EXPECT_EQ(program.LastTurn(), R"({"event":"exit","status":0,"at":"2026-11-07T21:04:33.000"})");
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(CommandsTest, ASignalToTerminateIsTheCloseBox) {
    kill(program.Process(), SIGTERM);
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(CommandsTest, QuitEndsAtOnce) {
    program.Do("quit");
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(CommandsTest, ASettingIsKeptForTheNextRun) {
    EXPECT_EQ(program.Do(R"(setting UserCallSign "W1XX")"), Lines{});
    EXPECT_NE(folder.Read(".config/Q7ZZQ_Software/tallyhut.ini").find("UserCallSign=W1XX"), std::string::npos);
}

TEST(CommandsWithRealTime, EventsBearNoMomentAndTheClockIsTheMachines) {
    const ContestFolder folder;
    ConsoleDriver program{folder.Path(), {}};
    EXPECT_EQ(program.Greeting().at(0), R"({"event":"show","form":"frmQ7ZZQLogo"})");
    EXPECT_EQ(program.Do("advance 5").at(0).substr(0, 10), R"({"error":")");
    program.Do("close");
    EXPECT_EQ(program.LastTurn(), R"({"event":"exit","status":0})");
}

TEST(CommandsOfTwoPrograms, TheSecondOnAFolderSaysSoAndEnds) {
    const ContestFolder folder;
    const ConsoleDriver first{folder.Path()};
    ConsoleDriver second{folder.Path()};
    EXPECT_EQ(second.LastTurn(), R"({"ready":"answer","dialog":"msgbox"})");
    second.Do("answer OK");
    EXPECT_EQ(second.Wait(), 1);
}

}  // namespace
}  // namespace tallyhut
