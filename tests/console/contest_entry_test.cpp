#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

struct ContestEntryTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path()};
};

TEST_F(ContestEntryTest, AnExchangeTypedWithoutAnyNavigationIsLogged) {
    program.Do(R"(type "88aw1xx72mdc")");
    EXPECT_EQ(program.Get("txtNum"), R"("88")");
    EXPECT_EQ(program.Get("txtPre"), R"("A")");
    EXPECT_EQ(program.Get("txtCall"), R"("W1XX")");
    EXPECT_EQ(program.Get("txtCK"), R"("72")");
    EXPECT_EQ(program.Get("txtSec"), R"("MDC")");
    EXPECT_EQ(folder.Read("Log.txt"), "");
    program.Do("key Enter");
    EXPECT_EQ(folder.Read("Log.txt"),
              "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n");
    EXPECT_EQ(program.Get("txtNum"), R"("")");
    EXPECT_EQ(program.Get("lblNumCurCon"), R"("  2")");
    EXPECT_EQ(program.Get("lblTotScore"), R"("2")");
    EXPECT_EQ(program.Get("Label10(16).foreColor"), program.Get("$gColorWorked"));
}

/// A first start that stands at the question for the log.
struct FirstStartTest : testing::Test {
    void AskForTheLog() { program.Do("click Command1"); }

    ContestFolder folder;
    ConsoleDriver program{folder.Path(), {"--clock", ConsoleDriver::kStart}, ConsoleDriver::Questions::Open};
};

TEST_F(FirstStartTest, YesOpensTheEmptyLogOfAFreshFolder) {
    AskForTheLog();
    EXPECT_EQ(folder.Read("Log.txt"), "");
    program.Do("answer Yes");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
    program.LogContact("88aw1xx72mdc");
    EXPECT_EQ(program.Get("lblTotScore"), R"("2")");
}

TEST_F(FirstStartTest, NoBeginsAnEmptyLogToo) {
    AskForTheLog();
    program.Do("answer No");
    program.Do(R"(answer "YES")");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
    EXPECT_EQ(folder.Read("Log.txt"), "");
}

TEST_F(FirstStartTest, WhatTheLogOfAFreshFolderHoldsIsKept) {
    const std::string record = "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n";
    const ContestFolder other;
    other.Write("Log.txt", record);
    ConsoleDriver second{other.Path()};
    EXPECT_EQ(second.Get("lblTotCon"), R"("  1")");
    EXPECT_EQ(other.Read("Log.txt"), record);
}

TEST_F(FirstStartTest, ALogMissingFromAKnownFolderIsNotMade) {
    program.Do("quit");
    ASSERT_EQ(unlink((folder.Path() + "/Log.txt").c_str()), 0);
    ConsoleDriver second{folder.Path(), {"--clock", ConsoleDriver::kStart}, ConsoleDriver::Questions::Open};
    second.Do("click Command1");
    EXPECT_NE(second.Do("answer Yes").at(0).find(R"("title":"File Error")"), std::string::npos);
    second.Do("answer OK");
    EXPECT_EQ(second.Wait(), 1);
    EXPECT_FALSE(std::filesystem::exists(folder.Path() + "/Log.txt"));
}

TEST_F(ContestEntryTest, TheCallFirstModeRoutesTheSameKeys) {
    program.Do("menu callopt");
    program.LogContact("w1xx88a72mdc");
    EXPECT_EQ(folder.Read("Log.txt"),
              "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtCall"})");
}

TEST_F(ContestEntryTest, TheThirdModePassesThroughTheCallAgain) {
    program.Do("menu mnuCallTwice");
    program.Do("type w1xx");
    program.Do("type 8");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
    program.Do(R"(type "8a")");
    program.Do("key Space");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtCall"})");
    program.Do("key Space");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtCK"})");
    program.LogContact("72mdc");
    EXPECT_EQ(folder.Read("Log.txt"),
              "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n");
}

TEST_F(ContestEntryTest, ADuplicateIsToldInRedAndThrownAway) {
    program.LogContact("88aw1xx72mdc");
    program.Do(R"(type "5bw1xx7")");
    EXPECT_EQ(program.Get("lblDialog"), R"("Duplicate W1XX MDC 11/07 21:04:33 ON 40  Rec#  1  Serial Rcvd: 88")");
    EXPECT_EQ(program.Get("lblDialog.backColor"), "255");
    EXPECT_EQ(program.Get("txtCall"), R"("")");
    program.Do("type 9");  // held back until the red line has had its three seconds
    EXPECT_EQ(program.Get("txtNum"), R"("9")");
    EXPECT_EQ(program.Get("$clock"), R"("2026-11-07T21:04:36.000")");
}

TEST_F(ContestEntryTest, KeysTypedAheadOfTheCommitBelongToTheNextContact) {
    program.Do(R"(type "88aw1xx72mdc\r89bk1ab73ct\r90")");
    EXPECT_EQ(folder.Read("Log.txt"),
              "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n"
              "\"2\",\"89\",\"B\",\"K1AB\",\"73\",\"CT\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n");
    EXPECT_EQ(program.Get("txtNum"), R"("90")");
}

TEST_F(ContestEntryTest, ARestartGoesOnWhereTheLogEnded) {
    program.LogContact("88aw1xx72mdc");
    program.Do("close");
    program.Wait();
    ConsoleDriver again{folder.Path()};
    EXPECT_EQ(again.Get("lblTotCon"), R"("  1")");
    EXPECT_EQ(again.Get("lblTotScore"), R"("  2")");
    EXPECT_EQ(again.Get("lblsectogo"), R"("  82")");
    again.LogContact("89bk1ab73ct");
    EXPECT_EQ(again.Get("$Ns(2)"), R"("2")");
}

TEST_F(ContestEntryTest, ALastLineWithoutALineEndStaysALineOfItsOwn) {
    program.Do("close");
    program.Wait();
    const std::string first = R"("7","88","A","W1XX","72","MDC","2026/11/07","21:04:33","40","")";
    folder.Write("Log.txt", first);
    ConsoleDriver again{folder.Path()};
    again.LogContact("89bk1ab73ct");
    EXPECT_EQ(folder.Read("Log.txt"),
              first + "\r\n\"8\",\"89\",\"B\",\"K1AB\",\"73\",\"CT\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n");
}

}  // namespace
}  // namespace tallyhut
