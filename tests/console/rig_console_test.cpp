#include <gtest/gtest.h>

#include <algorithm>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

struct RigConsoleTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path(), {"--clock", ConsoleDriver::kStart, "--port", "1=sim"}};

    /// The events of a kind among what a command printed.
    static Lines Events(const Lines& printed, const std::string& kind) {
        Lines events;
        std::ranges::copy_if(printed, std::back_inserter(events), [&kind](const std::string& line) {
            return line.starts_with("{\"event\":\"" + kind + "\"");
        });
        return events;
    }
    void PollKenwood() {
        program.Do("key Ctrl+R");
        program.Do("pick List1 4");
        program.Do("click cmdDone");
    }
};

TEST_F(RigConsoleTest, BandAndContactFollowTheRadio) {
    PollKenwood();
    program.Do("rx 1 464130303031343230303030303B4D44333B");
    program.Do("advance 250");
    EXPECT_EQ(program.Get("$RigFrequency"), "14.2");
    EXPECT_EQ(program.Get("$RigMode"), R"("CW")");
    EXPECT_EQ(program.Get("Label30"), R"("20")");
    program.LogContact("88aw1xx72mdc");
    EXPECT_EQ(folder.Read("Log.txt"),
              "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"20\",\"14.200\"\r\n");
}

TEST_F(RigConsoleTest, TestOpensThePortAndAsksAtOnce) {
    program.Do("key Ctrl+R");
    program.Do("pick List1 4");
    const Lines printed = program.Do("click Command1");
    EXPECT_EQ(Events(printed, "port"), Lines{R"({"event":"port","port":1,"state":"open","settings":"4800,N,8,2",)"
                                             R"("handshake":"none","at":"2026-11-07T21:04:33.000"})"});
    EXPECT_EQ(Events(printed, "tx"),
              (Lines{R"({"event":"tx","port":1,"hex":"46413B","at":"2026-11-07T21:04:33.000"})",
                     R"({"event":"tx","port":1,"hex":"4D443B","at":"2026-11-07T21:04:33.000"})"}));
    EXPECT_EQ(program.Get("RigControlfrm.lblFreq"), R"("No Response")");
}

TEST_F(RigConsoleTest, AnsweringRadioIsReadAgainAndAgain) {
    program.Do("reply 1 46413B 464130303032313330303030303B 30");
    PollKenwood();
    program.Do("advance 1000");
    EXPECT_EQ(program.Get("$gFrq"), R"("21.300")");
    EXPECT_EQ(program.Get("$gBand"), R"("15")");
}

TEST_F(RigConsoleTest, CommandIsDoneBeforeTheNextReadyAndItsPausesTakeKeys) {
    folder.Write("BandPlan.txt", "\"now\"\r\n\"20\",\"E\",\"PH\",14.15,14.35\r\n");
    PollKenwood();
    program.Do("key Ctrl+G");
    program.Do("at 150 get RigControlfrm.tmrGetData.enabled");
    const Lines printed = program.Do("click cmdBand(5)");
    EXPECT_EQ(
        Events(printed, "tx"),
        (Lines{R"({"event":"tx","port":1,"hex":"4D44323B","at":"2026-11-07T21:04:33.099"})",
               R"({"event":"tx","port":1,"hex":"464130303031343137353030303B","at":"2026-11-07T21:04:33.304"})"}));
    EXPECT_NE(std::ranges::find(printed, R"({"value":false})"), printed.end());
    EXPECT_EQ(program.Get("$clock"), R"("2026-11-07T21:04:33.304")");
}

TEST_F(RigConsoleTest, ScanWaitsForTheClockOfTheDriver) {
    PollKenwood();
    program.Do("key Ctrl+G");
    program.Do("set txtFreq 7.03");
    program.Do("set txtFrom 7");
    program.Do("set txtTo 7.1");
    program.Do("click chkScan");
    program.Do("advance 299");
    EXPECT_EQ(program.Get("$clock"), R"("2026-11-07T21:04:33.299")");
    EXPECT_EQ(Events(program.Do("advance 1000"), "tx").size(), 6U);  // three modes, three frequencies
}

TEST_F(RigConsoleTest, CableThatIsPulledAndPluggedInIsFoundAgain) {
    PollKenwood();
    program.Do("rx 1 464130303031343230303030303B4D44333B");
    program.Do("advance 250");
    program.Do("unplug 1");
    Lines printed = program.Do("advance 5000");
    EXPECT_EQ(Events(printed, "port"), Lines{R"({"event":"port","port":1,"state":"closed","settings":"4800,N,8,2",)"
                                             R"("handshake":"none","at":"2026-11-07T21:04:33.500"})"});
    EXPECT_EQ(Events(printed, "msgbox"), Lines{});
    EXPECT_EQ(program.Get("lblRig"), R"("Radio: no answer")");
    EXPECT_EQ(program.Get("$gFrq"), R"("14.200")");
    program.Do("plug 1");
    program.Do("reply 1 46413B 464130303032313330303030303B 30");
    printed = program.Do("advance 5000");
    EXPECT_EQ(Events(printed, "port"), Lines{R"({"event":"port","port":1,"state":"open","settings":"4800,N,8,2",)"
                                             R"("handshake":"none","at":"2026-11-07T21:04:41.500"})"});
    EXPECT_EQ(program.Get("lblRig"), R"("21.3000")");
    EXPECT_EQ(program.Get("Label30"), R"("15")");
}

TEST_F(RigConsoleTest, TuningWithoutACableIsOneBoxAndIsNotDeliveredLater) {
    PollKenwood();
    program.Do("unplug 1");
    program.Do("key Ctrl+G");
    program.Do("set txtFreq 7.03");
    for (const char* text : {"Serial port 1: Input/output error", "The radio does not answer."}) {
        const Lines boxes = Events(program.Do("click Command1"), "msgbox");
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_NE(boxes.front().find(text), std::string::npos) << boxes.front();
        EXPECT_EQ(program.Do("answer OK"), Lines{});
    }
    program.Do("plug 1");
    const Lines sent = Events(program.Do("advance 2000"), "tx");
    EXPECT_FALSE(sent.empty());
    for (const std::string& line : sent) {
        EXPECT_TRUE(line.find("46413B") != std::string::npos || line.find("4D443B") != std::string::npos) << line;
    }
}

TEST_F(RigConsoleTest, NineDigitRadioThatIsLostStampsNoContact) {
    program.Do("key Ctrl+R");
    program.Do("pick List1 19");
    program.Do("click cmdDone");
    program.Do("rx 1 46413031343230303030303B");
    program.Do("advance 250");
    EXPECT_EQ(program.Get("$gFrq"), R"("14.200")");
    program.Do("advance 4999");
    EXPECT_EQ(program.Get("$gFrq"), R"("14.200")");
    program.Do("advance 1");
    EXPECT_EQ(program.Get("$gFrq"), R"("")");
    EXPECT_EQ(program.Get("$RigFrequency"), "14.2");
    program.LogContact("88aw1xx72mdc");
    EXPECT_EQ(folder.Read("Log.txt"),
              "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:38\",\"20\",\"\"\r\n");
}

TEST_F(RigConsoleTest, ServerTakesThePlaceOfThePort) {
    program.Do("key Ctrl+R");
    program.Do("pick List1 20");
    EXPECT_EQ(program.Get("txtRigHost"), R"("127.0.0.1")");
    EXPECT_EQ(program.Get("txtRigPort"), R"("4532")");
    EXPECT_EQ(program.Get("lblRigLink"), R"("Closed")");
    EXPECT_EQ(program.Get("fraPort.visible"), "false");
    EXPECT_EQ(program.Get("optBaud48.visible"), "false");
    program.Do("pick List1 21");
    EXPECT_EQ(program.Get("txtRigPort"), R"("12345")");
    program.Do("pick List1 4");
    EXPECT_EQ(program.Get("txtRigPort.visible"), "false");
    EXPECT_EQ(program.Get("optBaud48.visible"), "true");
}

TEST_F(RigConsoleTest, ClosingTheWindowTellsTheRadio) {
    program.Do("key Ctrl+R");
    program.Do("pick List1 10");
    program.Do("click Command1");
    const Lines sent = Events(program.Do("close Form1"), "tx");
    EXPECT_EQ(sent, Lines{R"({"event":"tx","port":1,"hex":"0000000080","at":"2026-11-07T21:04:33.000"})"});
    EXPECT_EQ(program.Wait(), 0);
}

}  // namespace
}  // namespace tallyhut
