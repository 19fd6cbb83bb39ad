#include "app/options.h"

#include <gtest/gtest.h>

#include "values/value_error.h"

namespace tallyhut {
namespace {

using Arguments = std::vector<std::string>;

std::string RefusalOf(const Arguments& arguments) {
    try {
        ParseOptions(arguments);
    } catch (const ValueError& refusal) {
        return refusal.what();
    }
    return "nothing was refused";
}

TEST(Options, NoneAskForTheWindowHere) {
    const Options options = ParseOptions({});
    EXPECT_FALSE(options.console);
    EXPECT_FALSE(options.help);
    EXPECT_FALSE(options.version);
    EXPECT_EQ(options.directory, std::nullopt);
    EXPECT_FALSE(options.chooseDirectory);
    EXPECT_EQ(options.clock, std::nullopt);
    EXPECT_EQ(options.utcOffset, 0);
    EXPECT_EQ(options.screen, std::nullopt);
    EXPECT_EQ(options.workArea, std::nullopt);
    EXPECT_TRUE(options.ports.empty());
}

TEST(Options, FlagsStandAlone) {
    EXPECT_TRUE(ParseOptions({"--console"}).console);
    EXPECT_TRUE(ParseOptions({"--choose-directory"}).chooseDirectory);
    EXPECT_TRUE(ParseOptions({"--help"}).help);
    EXPECT_TRUE(ParseOptions({"--version"}).version);
}

TEST(Options, ValueStandsBehindABlankOrAnEqualsSign) {
    EXPECT_EQ(ParseOptions({"--directory", "/contest"}).directory, "/contest");
    EXPECT_EQ(ParseOptions({"--directory=/contest"}).directory, "/contest");
    EXPECT_EQ(ParseOptions({"--directory", "/a=b"}).directory, "/a=b");
    EXPECT_EQ(ParseOptions({"--directory=/a=b"}).directory, "/a=b");
    EXPECT_EQ(ParseOptions({"--directory", "--console"}).directory, "--console");
}

TEST(Options, WholeConsoleLine) {
    const Options options = ParseOptions({"--console",
                                          "--directory",
                                          "/tmp/x",
                                          "--clock",
                                          "2026-11-07T21:04:33",
                                          "--utc-offset",
                                          "-3.5",
                                          "--port",
                                          "1=sim",
                                          "--port=2=/dev/ttyUSB0",
                                          "--parallel",
                                          "sim",
                                          "--sound",
                                          "sim",
                                          "--agw",
                                          "127.0.0.1:8000",
                                          "--screen",
                                          "1280x800,1280x760",
                                          "--seed",
                                          "7"});
    EXPECT_TRUE(options.console);
    EXPECT_EQ(options.directory, "/tmp/x");
    EXPECT_EQ(options.clock, (DateTime{2026, 11, 7, 21, 4, 33}));
    EXPECT_EQ(options.utcOffset, -3.5);
    EXPECT_TRUE(options.simulatesParallel);
    EXPECT_TRUE(options.simulatesSound);
    EXPECT_EQ(options.agwEngine, "127.0.0.1:8000");
    EXPECT_EQ(options.ports, (std::map<int, std::string>{{1, "sim"}, {2, "/dev/ttyUSB0"}}));
    ASSERT_TRUE(options.screen && options.workArea);
    EXPECT_EQ(options.screen->width, 1280);
    EXPECT_EQ(options.screen->height, 800);
    EXPECT_EQ(options.workArea->width, 1280);
    EXPECT_EQ(options.workArea->height, 760);
}

TEST(Options, ClockMayLeaveOutTheTime) {
    EXPECT_EQ(ParseOptions({"--clock", "2026-11-07"}).clock, (DateTime{2026, 11, 7, 0, 0, 0}));
    EXPECT_EQ(ParseOptions({"--clock", "2026-11-07 21:04:33"}).clock, (DateTime{2026, 11, 7, 21, 4, 33}));
}

TEST(Options, ScreenWithoutTaskbarsIsAllWorkArea) {
    const Options options = ParseOptions({"--screen", "640x480"});
    ASSERT_TRUE(options.workArea);
    EXPECT_EQ(options.workArea->height, 480);
}

TEST(Options, RefusedArgumentsAreNamed) {
    struct Case {
        Arguments arguments;
        const char* told;
    };
    const Case cases[] = {
        {{"--nonsense"}, "unknown argument --nonsense"},
        {{"contest"}, "unknown argument contest"},
        {{""}, "unknown argument "},
        {{"-h"}, "unknown argument -h"},
        {{"--console=yes"}, "unknown argument --console=yes"},
        {{"--nonsense=1"}, "unknown argument --nonsense=1"},
        {{"--directory"}, "--directory wants a value"},
        {{"--console", "--clock"}, "--clock wants a value"},
        {{"--clock", "noon"}, "--clock wants a time such as 2026-11-07T21:04:33, not noon"},
        {{"--clock", "21:04:33"}, "--clock wants a time such as 2026-11-07T21:04:33, not 21:04:33"},
        {{"--clock", "2026-13-07T21:04:33"},
         "--clock wants a time such as 2026-11-07T21:04:33, not 2026-13-07T21:04:33"},
        {{"--clock="}, "--clock wants a time such as 2026-11-07T21:04:33, not "},
        {{"--utc-offset", "five"}, "--utc-offset wants hours, not five"},
        {{"--utc-offset", "24.1"}, "--utc-offset wants hours, not 24.1"},
        {{"--utc-offset", "-25"}, "--utc-offset wants hours, not -25"},
        {{"--agw", "shack"}, "--agw wants HOST:PORT, not shack"},
        {{"--agw", ":8000"}, "--agw wants HOST:PORT, not :8000"},
        {{"--agw", "shack:"}, "--agw wants HOST:PORT, not shack:"},
        {{"--agw", "shack:0"}, "--agw wants HOST:PORT, not shack:0"},
        {{"--agw", "shack:65536"}, "--agw wants HOST:PORT, not shack:65536"},
        {{"--screen", "1280"}, "--screen wants a size such as 1280x800, not 1280"},
        {{"--screen", "x800"}, "--screen wants a size such as 1280x800, not x800"},
        {{"--screen", "0x800"}, "--screen wants a size such as 1280x800, not 0x800"},
        {{"--screen", "1280x800,"}, "--screen wants a size such as 1280x800, not "},
        {{"--port", "1"}, "--port wants N=DEVICE with N from 1 to 10, not 1"},
        {{"--port", "1="}, "--port wants N=DEVICE with N from 1 to 10, not 1="},
        {{"--port", "0=sim"}, "--port wants N=DEVICE with N from 1 to 10, not 0=sim"},
        {{"--port", "11=sim"}, "--port wants N=DEVICE with N from 1 to 10, not 11=sim"},
        {{"--port", "1.5=sim"}, "--port wants N=DEVICE with N from 1 to 10, not 1.5=sim"},
        {{"--parallel", "0x378"}, "--parallel wants sim, not 0x378"},
        {{"--sound", "off"}, "--sound wants sim, not off"},
        {{"--port", "COM1=sim"}, "--port wants N=DEVICE with N from 1 to 10, not COM1=sim"},
    };
    for (const auto& [arguments, told] : cases) {
        EXPECT_EQ(RefusalOf(arguments), told);
    }
}

TEST(Options, HelpIsWholeLinesAndNamesEveryOption) {
    const std::string_view usage = UsageText();
    EXPECT_TRUE(usage.starts_with("usage: tallyhut "));
    EXPECT_TRUE(usage.ends_with('\n'));
    for (const std::string_view name :
         {"--directory", "--choose-directory", "--console", "--clock", "--utc-offset", "--screen", "--port",
          "--parallel", "--sound", "--agw", "--seed", "--help", "--version"}) {
        EXPECT_NE(usage.find(name), std::string_view::npos) << name;
    }
}

}  // namespace
}  // namespace tallyhut
