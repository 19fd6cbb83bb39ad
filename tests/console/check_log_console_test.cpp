#include <gtest/gtest.h>

#include <algorithm>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

struct CheckLogConsoleTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path()};

    std::string Rows() { return program.Do("rows lstFindings").front(); }
    static long Beeps(const std::vector<std::string>& events) {
        return std::ranges::count_if(
            events, [](const std::string& event) { return event.find(R"("event":"beep")") != std::string::npos; });
    }
};

TEST_F(CheckLogConsoleTest, AFindingIsCorrectedFromTheList) {
    program.LogContact("88aw1xx72qc");
    program.LogContact("12bk1ab63ct");
    program.Do("menu mnuCheckLog");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"frmCheckLog","focus":"lstFindings"})");
    EXPECT_EQ(program.Get("lblFindings"), R"("1 findings")");
    EXPECT_EQ(Rows(), R"({"rows":[["1","W1XX","Sec","\"QC\": a section of Canada, the call is of the mainland"]]})");
    program.Do("dblclick lstFindings 0");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"frmEditCon","focus":"txtEditNumSent"})");
    program.Do(R"(set txtEditSec "CT")");
    program.Do("click cmdDone");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"modal","form":"frmCheckLog","focus":"lstFindings"})");
    EXPECT_EQ(Rows(), R"({"rows":[]})");
    program.Do("click cmdDone");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
    EXPECT_NE(folder.Read("Log.txt").find(R"("W1XX","72","CT")"), std::string::npos);
}

TEST_F(CheckLogConsoleTest, TheEntryThatWasWrittenIsHeldAgainstTheLog) {
    folder.Write("YourCall.log", "START-OF-LOG: 3.0\r\nCATEGORY-MODE: PH\r\nCLAIMED-SCORE: 2\r\nQSO: 1\r\n");
    program.LogContact("88aw1xx72ct");
    program.LogContact("12bk1ab63ct");
    program.Do("menu mnuCheckLog");
    EXPECT_EQ(Rows(), R"({"rows":[["","","CATEGORY-MODE","\"PH\" is in no list of Cabrillo 3"],)"
                      R"(["","","CLAIMED-SCORE","the score of the log is 4"]]})");
}

TEST_F(CheckLogConsoleTest, TheOffTimeClockFollowsTheVirtualClock) {
    EXPECT_EQ(program.Get("lblLeft.visible"), "false");
    program.Do("menu mnuOffTime");
    program.LogContact("88aw1xx72ct");
    EXPECT_EQ(program.Get("lblLeft"), R"("23:59")");
    EXPECT_EQ(program.Get("lblOff"), R"("")");
    EXPECT_EQ(program.Get("mnuOffTime.checked"), "true");
    program.Do("advance 1740000");
    EXPECT_EQ(program.Get("lblOff"), R"("00:28")");
    EXPECT_EQ(program.Get("lblLeft"), R"("23:31")");
    EXPECT_EQ(program.Get("lblOffCaption"), R"("Silence, off at 21:35")");
    EXPECT_EQ(Beeps(program.Do("advance 120000")), 0);
    EXPECT_EQ(program.Get("lblLeft"), R"("23:59")");
    EXPECT_EQ(program.Get("lblOffCaption"), R"("Off time")");
}

TEST_F(CheckLogConsoleTest, TheOffTimeClockWarnsByABeepInALongContest) {
    program.Do("menu mnuOffTime");
    program.Do("click cmdLogOn");
    for (int i = 0; i < 58; ++i) {  // 25 minutes from contact to contact
        std::string call = "88ak1a";
        call += static_cast<char>('a' + i % 26);
        call += static_cast<char>('a' + i / 26);
        program.LogContact(call + "72ct");
        EXPECT_EQ(Beeps(program.Do("advance 1500000")), i >= 56 ? 1 : 0) << i;
    }
    EXPECT_EQ(program.Get("lblLeft.foreColor"), "255");
}

}  // namespace
}  // namespace tallyhut
