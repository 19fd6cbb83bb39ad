#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/window/window_driver.h"

namespace tallyhut {

inline std::string ContentOf(const std::filesystem::path& file) {
    std::ifstream in{file, std::ios::binary};
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

inline std::string MakeFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tallyhut-XXXXXX").string();
    return mkdtemp(name.data()) == nullptr ? "" : name;
}

/// The program in its window, started for the first time in an empty folder. A failure leaves a picture of the screen.
struct WindowTest : testing::Test {
    std::string folder = MakeFolder();
    WindowDriver window{folder};

    ~WindowTest() override {
        if (HasFailure()) {
            window.KeepScreenshot(testing::UnitTest::GetInstance()->current_test_info()->name());
        }
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string Log() const { return ContentOf(folder + "/Log.txt"); }
    /// The exchanges of the log without their moments: "88 A W1XX 72 MDC".
    bool LogHolds(const std::string& fields) const { return Log().find(fields) != std::string::npos; }
};

}  // namespace tallyhut
