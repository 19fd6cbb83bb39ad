#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

/// Logs of other programs brought in by the real one, with real files.
struct ImportTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path()};

    std::string Path(const std::string& name) const { return folder.Path() + '/' + name; }
    std::string At(const std::string& name) const { return "answer \"" + Path(name) + '"'; }
    static bool Holds(const std::vector<std::string>& lines, const std::string& part) {
        return std::ranges::any_of(lines,
                                   [&part](const std::string& line) { return line.find(part) != std::string::npos; });
    }
};

TEST_F(ImportTest, TheEntryOfThisProgramComesBackAsAContestOfItsOwn) {
    program.Do("menu mnuSetup");
    for (const char* field : {"Text1 \"W9ZZZ\"", "Text3 \"A\"", "Text4 \"72\"", "Text5 \"IL\""}) {
        program.Do(std::string{"set "} + field);
    }
    program.Do("click Command1");
    program.LogContact("88aw1xx72mdc");
    program.LogContact("12bk1ab63ct");
    program.Do("menu mnuCabrillo");
    program.Do("click chkCabrillo3");
    program.Do("click Command4");
    program.Do(At("entry.log"));
    program.Do("answer OK");
    program.Do("answer OK");
    program.Do("key Enter");
    EXPECT_NE(folder.Read("entry.log").find("\r\nLOCATION: "), std::string::npos);
    program.Do("menu mnuImport");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"answer","dialog":"openfile"})");
    program.Do(At("entry.log"));
    EXPECT_EQ(program.LastTurn(), R"({"ready":"answer","dialog":"folder"})");
    program.Do(At("copy"));
    EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"frmImport","focus":"lstReport"})");
    EXPECT_EQ(program.Get("lblReport"),
              "\"2 contacts, 2 sections, score 8, now in " + Path("copy") + ". 0 lines were not imported.\"");
    program.Do("key Enter");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
    EXPECT_TRUE(folder.Read("copy/Log.txt").starts_with("\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\","));
    EXPECT_FALSE(folder.Read("copy/nspref.txt").empty());
}

TEST_F(ImportTest, RowsOfTheReportTellLineAndReason) {
    folder.Write("other.log",
                 "START-OF-LOG: 3.0\nQSO: x\nQSO: 7000 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\n");
    program.Do("menu mnuImport");
    program.Do(At("other.log"));
    program.Do(At("new"));
    EXPECT_TRUE(Holds(program.Do("rows lstReport"), R"(["2","Not understood: a contact has 14 words","QSO: x"])"));
    program.Do("click cmdDone");
}

TEST_F(ImportTest, FilesOfManyMegabytesAreTakenOrRefused) {
    folder.Write("nuls.log", std::string(50'000'000, '\0'));
    folder.Write("line.log", "QSO: " + std::string(50'000'000, 'x'));
    program.Do("menu mnuImport");
    EXPECT_TRUE(Holds(program.Do(At("nuls.log")), "It holds neither Cabrillo nor ADIF"));
    program.Do("answer OK");
    program.Do("menu mnuImport");
    program.Do(At("line.log"));
    EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"frmImport","focus":"lstReport"})");
    program.Do("key Esc");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
}

TEST_F(ImportTest, AFileLongerThanAnyLogIsRefusedUnread) {
    folder.Write("long.log", "");
    std::filesystem::resize_file(Path("long.log"), 200'000'001);
    program.Do("menu mnuImport");
    EXPECT_TRUE(Holds(program.Do(At("long.log")), "long.log: It is longer than 200 MB, which no log is."));
    program.Do("answer OK");
}

TEST_F(ImportTest, AHistoryOfTheOpenLogIsMade) {
    program.LogContact("88aw1xx72mdc");
    program.Do("menu mnuMakeHistory");
    program.Do(At("Log.txt"));
    program.Do("answer Cancel");
    program.Do(At("history.txt"));
    program.Do("answer OK");
    EXPECT_TRUE(folder.Read("history.txt").starts_with("!!Order!!,Call,Sect,CK\r\n# Calls of 1 log, "));
    EXPECT_TRUE(folder.Read("history.txt").ends_with("\r\nW1XX,MDC,72\r\n"));
}

}  // namespace
}  // namespace tallyhut
