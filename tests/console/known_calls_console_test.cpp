#include <gtest/gtest.h>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

struct KnownCallsConsoleTest : testing::Test {
    ContestFolder folder;
    KnownCallsConsoleTest() {
        folder.Write("MASTER.SCP", "AK1A\r\nK1AB\r\nW1XX\r\n");
        folder.Write("history.txt", "!!Order!!,Call,Sect,CK\r\nK1AB,CT,72\r\n");
    }
};

TEST_F(KnownCallsConsoleTest, AChosenHistoryFillsInAndIsKnownToTheNextStart) {
    {
        ConsoleDriver program{folder.Path()};
        EXPECT_TRUE(program.Do("menu mnuKnownCalls").at(0).starts_with(R"({"event":"modal","form":"frmKnownCalls")"));
        EXPECT_EQ(program.Get("lblScpCount"), R"("3 calls")");
        EXPECT_EQ(program.Get("chkScp"), "1");
        program.Do(R"(set txtHistory "history.txt")");
        program.Do("click cmdDone");
        EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
        program.Do(R"(type "88ak1ab ")");
        EXPECT_EQ(program.Get("txtCK"), R"("72")");
        EXPECT_EQ(program.Get("txtCK.foreColor"), "8421504");
        EXPECT_EQ(program.Get("txtSec"), R"("CT")");
        EXPECT_EQ(program.Get("lblScp"), R"("K1AB")");
        program.Do(R"(set txtSec "CT")");
        EXPECT_NE(program.Get("txtSec.foreColor"), "8421504");
        program.Do("key Enter");
        EXPECT_NE(folder.Read("Log.txt").find(R"("88","A","K1AB","72","CT")"), std::string::npos);
        program.Do("quit");
    }
    ConsoleDriver again{folder.Path()};
    again.Do("focus txtCall");
    again.Do(R"(type "K1")");
    EXPECT_EQ(again.Get("lblScp"), R"("[K1AB] AK1A")");
    again.Do("menu mnuKnownCalls");
    EXPECT_EQ(again.Get("lblHistory"), R"("1 calls")");
    EXPECT_EQ(again.Get("chkHistory"), "1");
}

}  // namespace
}  // namespace tallyhut
