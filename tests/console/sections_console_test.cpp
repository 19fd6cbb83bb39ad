#include <gtest/gtest.h>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

TEST(SectionsConsole, TheSectionsOfTodayAreGivenAtTheStartAndTakenBackInTheDialog) {
    const ContestFolder folder;
    ConsoleDriver program{folder.Path(), {"--clock", ConsoleDriver::kStart, "--sections", "2023"}};
    EXPECT_EQ(program.Get("$gSectionCount"), "85");
    program.LogContact("1ave1xx72ns");
    program.LogContact("2ave3xx72gta");
    EXPECT_EQ(program.Get("lblHint"), R"("GTA: a section until 2022. Settings, Sections.")");
    EXPECT_EQ(program.Get("$gContactCount"), "1");
    program.Do("menu mnuSections");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"frmSections","focus":"lstSections"})");
    EXPECT_EQ(program.Get("lblSections"), R"("2023, 85 sections")");
    program.Do("pick lstSections 1");
    const std::string box = program.Do("click cmdUse").front();
    EXPECT_NE(box.find("1  NS"), std::string::npos) << box;
    program.Do("answer OK");
    EXPECT_EQ(program.Get("lblSections"), R"("2014, 83 sections")");
    program.Do("click cmdDone");
    EXPECT_EQ(program.Get("$gSectionCount"), "83");
    EXPECT_EQ(program.Get("$gSectionsWorked"), "0");
    EXPECT_FALSE(folder.Has("Sections.txt"));
    EXPECT_NE(folder.Read("Log.txt").find(R"("NS",)"), std::string::npos);
}

TEST(SectionsConsole, WhatIsNoListEndsTheStartBeforeAnythingIsWritten) {
    const ContestFolder folder;
    ConsoleDriver program{
        folder.Path(), {"--clock", ConsoleDriver::kStart, "--sections", "1999"}, ConsoleDriver::Questions::Open};
    EXPECT_EQ(program.LastTurn(), "");
    EXPECT_EQ(program.Wait(), 2);
    EXPECT_FALSE(folder.Has("nspref.txt"));
    EXPECT_FALSE(folder.Has("Log.txt"));
}

}  // namespace
}  // namespace tallyhut
