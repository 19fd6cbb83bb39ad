#include <gtest/gtest.h>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

/// The value of each target, a line each.
Lines Values(ConsoleDriver& program, const std::vector<std::string>& targets) {
    Lines values;
    for (const std::string& target : targets) {
        values.push_back(program.Get(target));
    }
    return values;
}

TEST(Appearance, WithoutAScreenFormsAreAsDesigned) {
    const ContestFolder folder;
    ConsoleDriver program{folder.Path()};
    EXPECT_EQ(Values(program, {"Form1.left", "Form1.top", "Form1.width", "Form1.height", "txtCall.left",
                               "txtCall.fontSize", "Label10(1).top"}),
              (Lines{"0", "0", "9600", "7200", "1575", "18", "3050"}));
}

TEST(Appearance, FormsFillTheScreenThatIsGiven) {
    const ContestFolder folder;
    ConsoleDriver program{folder.Path(), {"--clock", ConsoleDriver::kStart, "--screen", "1280x960,1280x900"}};
    EXPECT_EQ(Values(program, {"Form1.width", "Form1.height", "txtCall.left", "txtCall.fontSize", "Label10(1).top"}),
              (Lines{"19200", "14400", "3150", "27", "6100"}));
    program.Do("menu mnuTaskbar");
    EXPECT_EQ(Values(program, {"Form1.width", "Form1.height", "mnuTaskbar.checked", "$gTaskbar"}),
              (Lines{"19200", "13500", "true", "1"}));
    program.LogContact("88aw1xx72mdc");
    program.Do("rclick ListView1 0");
    EXPECT_EQ(Values(program, {"frmEditCon.left", "frmEditCon.top", "frmEditCon.width", "frmEditCon.height",
                               "frmEditCon.txtEditCall.left", "frmEditCon.txtEditCall.fontSize"}),
              (Lines{"5040", "2530", "9120", "9000", "2880", "16.5"}));
}

TEST(Appearance, FormSizeIsTakenByTheNextStart) {
    const ContestFolder folder;
    {
        ConsoleDriver program{folder.Path()};
        EXPECT_NE(program.Do("menu mnuFormSize").at(0).find(R"("default":"100")"), std::string::npos);
        program.Do(R"(answer "20")");
        program.Do("answer OK");
        EXPECT_EQ(Values(program, {"$gFormScale", "Form1.width"}), (Lines{"30", "9600"}));
        program.Do("menu mnuTaskbar");
        EXPECT_EQ(program.LastTurn(), R"({"ready":"answer","dialog":"msgbox"})");
        program.Do("answer OK");
        EXPECT_EQ(program.Get("$gTaskbar"), "0");
        program.Do("close");
    }
    ConsoleDriver program{folder.Path()};
    EXPECT_EQ(Values(program, {"Form1.width", "Form1.left", "txtNum.left"}), (Lines{"2880", "3360", "54"}));
}

TEST(Appearance, ColoursReachTheGridWhenTheirFormIsClosed) {
    const ContestFolder folder;
    ConsoleDriver program{folder.Path()};
    program.LogContact("88aw1xx72mdc");
    program.Do("menu mnuColors");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"Form6","focus":"Command3"})");
    EXPECT_EQ(program.Do("click Command3"),
              Lines{R"({"event":"colour","current":16711680,"at":"2026-11-07T21:04:33.000"})"});
    program.Do("answer 32768");
    EXPECT_EQ(Values(program, {"Label1.foreColor", "Label2.foreColor", "$gColorWorked", "Form1.Label10(16).foreColor"}),
              (Lines{"32768", "128", "32768", "16711680"}));
    program.Do("click Command6");
    EXPECT_EQ(Values(program, {"Label10(16).foreColor", "Label10(1).foreColor"}), (Lines{"32768", "128"}));
    EXPECT_NE(folder.Read("nspref.txt").find("\r\n32768\r\n128\r\n"), std::string::npos);
}

TEST(Appearance, HelpPageShowsAndCopiesTheHelpText) {
    const ContestFolder folder;
    ConsoleDriver program{folder.Path()};
    folder.Write("readns.txt", "Click \"Time On\".\r\nLog.");
    program.Do("menu mnuHelp");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"Form5","focus":"Text1"})");
    EXPECT_EQ(program.Get("Text1"), R"("Click \"Time On\".\r\nLog.")");
    program.Do("click Command2");
    EXPECT_EQ(folder.Read("HelpSB.txt"), "\"Click Time On.Log.\"\r\n");
    program.Do("click Command1");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
}

TEST(ChooseDirectory, ChosenFolderIsRememberedForTheNextStart) {
    const ContestFolder home;
    std::string offer;
    for (const std::string& answer : Lines{"answer \"" + home.Path() + "/cw\"", "answer OK"}) {
        ConsoleDriver program{home.Path(), {"--clock", ConsoleDriver::kStart, "--choose-directory"}};
        EXPECT_EQ(program.LastTurn(), R"({"ready":"answer","dialog":"folder"})");
        offer = program.Greeting().at(0);
        const bool isNew = !home.Has("cw/Log.txt");
        program.Do(answer);
        if (isNew) {  // its sections are chosen first
            EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"frmSections","focus":"lstSections"})");
            program.Do("click cmdDone");
        }
        EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"frmStationID","focus":"Text1"})");
        EXPECT_EQ(program.Get("$WorkingDirectory"), '"' + home.Path() + "/cw\"");
        program.Do("quit");
    }
    EXPECT_EQ(offer, R"({"event":"folder","title":"Choose the folder of the contest","filter":"","folder":")" +
                         home.Path() + R"(","name":")" + home.Path() +
                         R"(/cw","overwritePrompt":false,"at":"2026-11-07T21:04:33.000"})");
    EXPECT_TRUE(home.Has("cw/nspref.txt"));
    EXPECT_FALSE(home.Has("nspref.txt"));
}

TEST(ChooseDirectory, CancelEndsQuietly) {
    const ContestFolder home;
    ConsoleDriver program{home.Path(), {"--clock", ConsoleDriver::kStart, "--choose-directory"}};
    EXPECT_EQ(program.Do("answer Cancel"), Lines{R"({"event":"exit","status":0,"at":"2026-11-07T21:04:33.000"})"});
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_FALSE(home.Has("nspref.txt"));
}

TEST(ChooseDirectory, EndOfInputIsACancel) {
    const ContestFolder home;
    ConsoleDriver program{home.Path(), {"--choose-directory"}};
    program.CloseInput();
    EXPECT_EQ(program.Wait(), 0);
}

}  // namespace
}  // namespace tallyhut
