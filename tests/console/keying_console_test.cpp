#include <gtest/gtest.h>

#include <algorithm>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

/// The program with the key on a simulated port, as a script sees it.
struct KeyingConsoleTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path(), {"--clock", ConsoleDriver::kStart, "--port", "1=sim", "--parallel", "sim"}};

    static Lines Events(const Lines& printed, const std::string& kind) {
        Lines events;
        std::ranges::copy_if(printed, std::back_inserter(events), [&kind](const std::string& line) {
            return line.starts_with("{\"event\":\"" + kind + "\"");
        });
        return events;
    }
    void KeyOn(const std::string& option) {
        program.Do("key Ctrl+S");
        program.Do("click " + option);
        program.Do("set Text10 1");
        program.Do("set Text11 20");
        program.Do("set Text1 \"TEST\"");
        program.Do("set Text2 \"E\"");
        program.Do("click Command1");
    }
};

TEST_F(KeyingConsoleTest, KeyIsHeardWithItsMoments) {
    KeyOn("Option1");
    EXPECT_EQ(Events(program.Do("key F2"), "line"),
              (Lines{R"({"event":"line","port":1,"line":"DTR","on":false,"at":"2026-11-07T21:04:33.000"})",
                     R"({"event":"line","port":1,"line":"RTS","on":false,"at":"2026-11-07T21:04:33.000"})",
                     R"({"event":"line","port":1,"line":"RTS","on":true,"at":"2026-11-07T21:04:33.000"})",
                     R"({"event":"line","port":1,"line":"RTS","on":false,"at":"2026-11-07T21:04:33.060"})"}));
    EXPECT_EQ(program.Get("$clock"), R"("2026-11-07T21:04:33.240")");
}

TEST_F(KeyingConsoleTest, ParallelPortIsHeardToo) {
    KeyOn("Option3");
    const Lines out = Events(program.Do("key F2"), "out");
    ASSERT_EQ(out.size(), 4U);
    EXPECT_EQ(out[0], R"({"event":"out","address":890,"value":3,"at":"2026-11-07T21:04:33.000"})");
    EXPECT_EQ(out[1], R"({"event":"out","address":890,"value":2,"at":"2026-11-07T21:04:33.060"})");
}

TEST_F(KeyingConsoleTest, EscOnTheWayEndsTheMessage) {
    KeyOn("Option1");
    program.Do("at 100 key Esc");
    program.Do("at 100 get $gCWBuffer");
    const Lines printed = program.Do("key F1");
    EXPECT_NE(std::ranges::find(printed, R"({"value":"EST"})"), printed.end());
    EXPECT_EQ(program.Get("$clock"), R"("2026-11-07T21:04:33.360")") << "behind the T";
    EXPECT_EQ(program.Get("$gCWSending"), "0");
}

TEST_F(KeyingConsoleTest, MessagesComeBackAtTheNextStart) {
    KeyOn("Option2");
    EXPECT_EQ(folder.Read("CW.txt"),
              "\"TEST\"\r\n\"E\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"1\"\r\n\"20\"\r\n\"\"\r\n"
              "\"\"\r\n\"0\"\r\n2\r\n\"&H378\"\r\n0\r\n\"0\"\r\n");
    program.CloseInput();
    EXPECT_EQ(program.Wait(), 0);
    ConsoleDriver again{folder.Path()};
    EXPECT_EQ(again.Get("CWFrm.Text1"), R"("TEST")");
    EXPECT_EQ(again.Get("CWFrm.Text9"), R"("VVV DE ")");
    EXPECT_EQ(again.Get("$gCWKeying"), "2");
    EXPECT_EQ(again.Get("CWFrm.Option2.value"), "1");
}

TEST_F(KeyingConsoleTest, CloseBoxWhileSendingIsRefused) {
    KeyOn("Option1");
    program.Do("at 100 close Form1");
    const Lines printed = program.Do("key F1");
    EXPECT_EQ(Events(printed, "refused").size(), 1U);
    EXPECT_EQ(program.Get("$clock"), R"("2026-11-07T21:04:33.360")");
    program.Do("close Form1");
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(KeyingConsoleTest, RadioAndKeyShareACable) {
    KeyOn("Option2");
    program.Do("key Ctrl+R");
    program.Do("pick List1 4");
    program.Do("click cmdDone");
    const Lines printed = program.Do("key F2");
    EXPECT_EQ(Events(printed, "msgbox"), Lines{});
    EXPECT_EQ(Events(printed, "line").size(), 2U);
    EXPECT_NE(Events(program.Do("advance 1000"), "tx"), Lines{});
}

}  // namespace
}  // namespace tallyhut
