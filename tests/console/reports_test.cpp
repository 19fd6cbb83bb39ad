#include <gtest/gtest.h>

#include <algorithm>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

struct ReportsTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path()};

    void SetUp() override {
        program.LogContact("88aw1xx72mdc");
        program.LogContact("12bk1ab63ct");
    }

    std::string At(const std::string& name) const { return '"' + folder.Path() + '/' + name + '"'; }
    static long Count(const std::vector<std::string>& lines, const std::string& part) {
        return std::ranges::count_if(lines,
                                     [&part](const std::string& line) { return line.find(part) != std::string::npos; });
    }
};

TEST_F(ReportsTest, CabrilloEntryIsWrittenFromTheForm) {
    program.Do("menu mnuCabrillo");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"Form2","focus":"Option11"})");
    program.Do("click Option13");
    program.Do(R"(set Text5 "Pat")");
    program.Do("click Command4");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"answer","dialog":"savefile"})");
    program.Do("answer " + At("entry.log"));
    program.Do("answer OK");
    program.Do("answer OK");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"Form2","focus":"Command3"})");
    const std::string entry = folder.Read("entry.log");
    EXPECT_TRUE(entry.starts_with("START-OF-LOG: 3.0\r\nCREATED-BY: Q7ZZQ's Tallyhut Log 4.7\r\n"));
    EXPECT_NE(entry.find("\r\nCATEGORY-OPERATOR: MULTI-OP\r\n"), std::string::npos);
    EXPECT_NE(entry.find("\r\nCLAIMED-SCORE: 8\r\n"), std::string::npos);
    EXPECT_NE(entry.find("\r\nNAME: Pat\r\n"), std::string::npos);
    program.Do("key Enter");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
    program.Do("menu mnuSummary");
    EXPECT_EQ(program.Get("Text5"), R"("Pat")");
}

TEST_F(ReportsTest, AdifExportAsksInItsOrder) {
    program.Do("menu expADIF");
    program.Do(R"(answer "100")");
    program.Do(R"(answer "")");
    program.Do("answer " + At("out.adi"));
    program.Do("answer OK");
    EXPECT_TRUE(folder.Read("out.adi").ends_with("<Cont:2>NA <eor>\r\n\r\n"));
}

TEST_F(ReportsTest, PrintedDupeSheetIsLinesAndAPage) {
    program.Do("menu mnuPrintDupe");
    const std::vector<std::string> events = program.Do("answer OK");
    EXPECT_EQ(Count(events, R"("event":"print")"), 12);
    EXPECT_EQ(Count(events, R"({"event":"print","line":"    K1AB")"), 1);
    EXPECT_EQ(Count(events, R"("event":"page")"), 1);
}

TEST_F(ReportsTest, WrittenReportsStandInTheFolder) {
    for (const char* entry : {"mnuWriteLog", "mnuWriteDupe", "mnuExport"}) {
        program.Do(std::string{"menu "} + entry);
        program.Do("answer OK");
    }
    EXPECT_NE(folder.Read("ASCIILog.txt").find("Logged ON"), std::string::npos);
    EXPECT_EQ(folder.Read("ASCIIDup.txt"),
              "K1AB\r\nW1XX\r\n\r\nTotal Contacts 2   Total Sections 2  Total Score 8\r\n");
    EXPECT_TRUE(folder.Read("LogExp.txt").starts_with("\"W1XX\",\"2026/11/07\",\"40\",\"CW\",,"));
}

}  // namespace
}  // namespace tallyhut
