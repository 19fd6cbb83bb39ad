#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/window/window_driver.h"

namespace tallyhut {
namespace {

std::string MakeFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tallyhut-XXXXXX").string();
    return mkdtemp(name.data()) == nullptr ? "" : name;
}

struct EntryWindowTest : testing::Test {
    std::string folder = MakeFolder();
    WindowDriver window{folder};

    ~EntryWindowTest() override {
        if (HasFailure()) {
            window.KeepScreenshot(testing::UnitTest::GetInstance()->current_test_info()->name());
        }
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string Log() const {
        std::ifstream in{folder + "/Log.txt", std::ios::binary};
        std::ostringstream content;
        content << in.rdbuf();
        return content.str();
    }
    /// The exchanges of the log without their moments: "88 A W1XX 72 MDC".
    bool LogHolds(const std::string& fields) const { return Log().find(fields) != std::string::npos; }
};

TEST_F(EntryWindowTest, KeysFindTheirFieldsAndEnterLogsTheContact) {
    window.Type("88aw1xx72mdc");
    EXPECT_EQ(Log(), "");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
    window.Type("89bk1ab73ct");
    window.Press("KP_Enter");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("2","89","B","K1AB","73","CT",)"); })) << Log();
}

TEST_F(EntryWindowTest, ADuplicateTurnsTheMessageLineRed) {
    window.Type("88aw1xx72mdc");
    window.Press("Return");
    EXPECT_LT(window.CountPixels("#ff0000"), 1000);
    window.Type("5bw1xx7");
    EXPECT_TRUE(Eventually([this] { return window.CountPixels("#ff0000") > 10'000; }));
}

TEST_F(EntryWindowTest, TheTabOrderMenuOpensByKeyboard) {
    window.Press("alt+t");
    window.Press("Down Down Return");
    window.Type("w1xx88a72mdc");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
}

TEST_F(EntryWindowTest, AltCClearsTheFields) {
    window.Type("88aw1x");
    window.Press("alt+c");
    window.Type("89bk1ab73ct");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","89","B","K1AB","73","CT",)"); })) << Log();
}

TEST_F(EntryWindowTest, CutAndPasteByKeysFollowTheFields) {
    window.Type("88aw1xx");
    window.Press("shift+Home shift+Delete");
    window.Press("shift+Insert");
    window.Type("72mdc");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
}

TEST_F(EntryWindowTest, ASignalToTerminateClosesTheProgram) {
    window.Signal(SIGTERM);
    EXPECT_EQ(window.Wait(), 0);
}

}  // namespace
}  // namespace tallyhut
