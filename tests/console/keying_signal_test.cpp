#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <thread>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

TEST(KeyingSignalTest, SignalToTerminateEndsTheMessageBehindItsCharacter) {
    const ContestFolder folder;
    ConsoleDriver program{folder.Path(), {"--port", "1=sim"}};
    for (const char* command : {"key Ctrl+S", "click Option1", "set Text10 1", "set Text11 40",
                                "set Text1 \"TTTTTTTTTT TTTTTTTTTT TTTTTTTTTT\"", "click Command1"}) {
        program.Do(command);
    }
    program.Send("key F1");
    std::this_thread::sleep_for(std::chrono::milliseconds{500});
    kill(program.Process(), SIGTERM);
    const std::vector<std::string> printed = program.CloseInput();
    EXPECT_EQ(program.Wait(), 0);
    const std::string down = R"({"event":"line","port":1,"line":"RTS","on":true})";
    const std::string up = R"({"event":"line","port":1,"line":"RTS","on":false})";
    const auto dashes = std::ranges::count(printed, down);
    EXPECT_GE(dashes, 1);
    EXPECT_LT(dashes, 30) << "the message was cut";
    EXPECT_EQ(std::ranges::count(printed, up), dashes + 1) << "at the opening, and behind each dash";
}

}  // namespace
}  // namespace tallyhut
