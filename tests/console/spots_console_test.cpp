#include <gtest/gtest.h>

#include "tests/console/console_driver.h"
#include "tests/platform/loopback_server.h"

namespace tallyhut {
namespace {

constexpr const char* kPost = "DX de K3LR:      14175.0  W1AW         CW CT                          2104Z FN31\r\n";

/// The program with a cluster on a real socket, and time that only commands move.
struct SpotsConsoleTest : testing::Test {
    LoopbackServer cluster;
    ContestFolder folder;
    ConsoleDriver program{folder.Path(), {"--clock", ConsoleDriver::kStart, "--port", "1=sim", "--agw", "rack:9000"}};

    void OpenCluster() {
        program.Do("key Ctrl+D");
        program.Do("pick List1 2");
        program.Do(R"(set txtTelnetHost "127.0.0.1")");
        program.Do("set txtTelnetPort \"" + std::to_string(cluster.Port()) + '"');
        program.Do("click cmdDone");
        cluster.Accept();
        program.Do("menu mnu20");
    }
    std::string Terminal() { return program.Get("PacketSpotfrm.txtUnProcessed"); }
};

TEST_F(SpotsConsoleTest, PostOfAClusterIsOnTheMapAndInTheTable) {
    OpenCluster();
    cluster.Write(kPost);
    program.Do("settle 200");
    EXPECT_EQ(program.Get("$SpotCall(49)"), R"("W1AW")");
    EXPECT_EQ(program.Get("$SpotFreq(49)"), "14.175");
    EXPECT_EQ(program.Get("$SpotTime(49)"), R"("2026-11-07T21:04:33")");
    EXPECT_EQ(program.Get("lblDXSpot(49).visible"), "true");
    EXPECT_EQ(program.Get("lblDXSpot(49)"), R"("W1")");
    program.Do("click lblDXSpot(49) right");
    EXPECT_EQ(program.Get("txtCall"), R"("W1AW")");
}

TEST_F(SpotsConsoleTest, SourceThatWasStoredIsOpenedByTheNextStart) {
    OpenCluster();
    program.Do("quit");
    ConsoleDriver again{folder.Path()};
    cluster.Accept();
    cluster.Write(kPost);
    again.Do("settle 200");
    EXPECT_EQ(again.Get("$SpotCall(49)"), R"("W1AW")");
    EXPECT_EQ(again.Get("lblDX.visible"), "true");
}

TEST_F(SpotsConsoleTest, FailureOfTheConnectionIsToldAndClosesIt) {
    OpenCluster();
    const std::vector<std::string> printed = program.Do("neterror 10054");
    ASSERT_EQ(printed.size(), 1U);
    EXPECT_TRUE(printed[0].starts_with(R"({"event":"beep")")) << printed[0];
    EXPECT_NE(Terminal().find("ERROR: The connection is reset by remote side.!"), std::string::npos) << Terminal();
    EXPECT_EQ(program.Get("PacketSpotfrm.Label4.visible"), "false");
}

TEST_F(SpotsConsoleTest, WhatIsNoNumberIsNoFailure) {
    EXPECT_EQ(program.Do("neterror").at(0), R"({"error":"number is missing"})");
    EXPECT_EQ(program.Do("neterror reset").at(0), R"({"error":"number is no whole number: reset"})");
    EXPECT_EQ(program.Do("neterror 7 8").at(0), R"({"error":"too many words: 8"})");
}

TEST_F(SpotsConsoleTest, TncOnASimulatedPortIsPolled) {
    program.Do("key Ctrl+D");
    program.Do("pick List1 1");
    program.Do("click cmdDone");
    program.Do("menu mnu20");
    program.Do(
        "rx 1 4458206465204B334C523A202020202020"  // DX de K3LR:
        "31343137352E302020"                       // 14175.0
        "573141572020202020202020200D0A");         // W1AW
    EXPECT_EQ(program.Get("$SpotCall(49)"), R"("")");
    program.Do("advance 333");
    EXPECT_EQ(program.Get("$SpotFreq(49)"), "14.175");
    EXPECT_EQ(program.Get("$SpotPrefix(49)"), R"("W1")");
}

TEST_F(SpotsConsoleTest, EngineOfTheCommandLineStandsInTheForm) {
    EXPECT_EQ(program.Get("PacketSpotfrm.txtEngine"), R"("rack:9000")");
}

TEST_F(SpotsConsoleTest, LoginAndItsPausesRunOnTheProgramsClock) {
    program.Do("key Ctrl+D");
    program.Do("pick List1 2");
    program.Do(R"(set txtTelnetHost "127.0.0.1")");
    program.Do("set txtTelnetPort \"" + std::to_string(cluster.Port()) + '"');
    program.Do("click chkLogin");
    program.Do(R"(set txtLogin "W1AW-2")");
    program.Do(R"(set txtLoginSend "one\ntwo")");
    program.Do("click Command1");
    cluster.Accept();
    cluster.Write("login: ");
    program.Do("settle 200");
    EXPECT_EQ(cluster.Read(8), "W1AW-2\r\n");
    cluster.Write("W1AW de Q7ZZQ >\r\n");
    program.Do("settle 200");
    program.Do("advance 4000");
    EXPECT_EQ(cluster.Read(10), "one\r\ntwo\r\n");
    cluster.HangUp();
    program.Do("settle 200");
    EXPECT_EQ(program.Get("PacketSpotfrm.Label4.visible"), "true");
    program.Do("advance 4999");
    EXPECT_TRUE(Terminal().ends_with(R"(Trying again in 5 seconds.\r\n")")) << Terminal();
    program.Do("advance 1");
    program.Do("settle 200");
    cluster.Accept();
    cluster.Write("login: ");
    program.Do("settle 200");
    EXPECT_EQ(cluster.Read(8), "W1AW-2\r\n");
    EXPECT_TRUE(program.Do("neterror 10054").empty()) << "no beep";
    program.Do("click PacketSpotfrm.Command2");
    program.Do("advance 86400000");
    EXPECT_EQ(program.Get("PacketSpotfrm.Label4.visible"), "false");
}

TEST_F(SpotsConsoleTest, SecretTextIsGivenToNoScript) {
    program.Do("key Ctrl+D");
    program.Do("pick List1 2");
    program.Do(R"(set txtPassword "hush")");
    for (const char* property : {"", ".text", ".caption", ".value"}) {
        EXPECT_EQ(program.Get(std::string{"PacketSpotfrm.txtPassword"} + property), R"("****")");
    }
    program.Do("focus txtPassword");
    program.Do("key End");
    EXPECT_EQ(program.Get("PacketSpotfrm.txtPassword.selStart"), "0") << "nor its length";
    program.Do("key Shift+Home");
    EXPECT_EQ(program.Get("PacketSpotfrm.txtPassword.selLength"), "0");
    const std::vector<std::string> dumped = program.Do("dump PacketSpotfrm");
    ASSERT_EQ(dumped.size(), 1U);
    EXPECT_EQ(dumped[0].find("hush"), std::string::npos);
    EXPECT_NE(dumped[0].find("txtPassword"), std::string::npos);
    EXPECT_EQ(program.Do(R"(set txtPassword "")"), std::vector<std::string>{});
    EXPECT_EQ(program.Get("PacketSpotfrm.txtPassword"), R"("")");
}

}  // namespace
}  // namespace tallyhut
