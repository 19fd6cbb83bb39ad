#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

/// The program with a keyer on a simulated port, as a script sees it.
struct WinKeyConsoleTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path(),
                          {"--clock", ConsoleDriver::kStart, "--port", "1=sim", "--port", "2=sim", "--seed", "7"}};

    /// F1 sends TEST through the keyer on port 1.
    void ChooseWinKey() {
        program.Do("key Ctrl+S");
        program.Do("set Text1 \"TEST\"");
        program.Do("set Text11 20");
        program.Do("click Option5");
        program.Do("click cmdConfWinkey");
        program.Do("set txtWKComPort 1");
        program.Do("focus txtWeight");
        program.Do("click cmdDone");
        program.Do("click Command1");
    }
    void Connect() {
        program.Do("reply 1 000455 55 20");
        program.Do("reply 1 0002 17 20");
        program.Do("reply 1 15 C0 20");
    }
    /// What went to the device, without the questions for its status.
    static std::string Sent(const Lines& printed) {
        std::string sent;
        for (const std::string& line : printed) {
            const auto event = nlohmann::json::parse(line);
            if (event.value("event", "") == "tx" && event["hex"] != "15") {
                sent += event["hex"].get<std::string>() + ' ';
            }
        }
        return sent;
    }
    static Lines Boxes(const Lines& printed) {
        Lines boxes;
        std::ranges::copy_if(printed, std::back_inserter(boxes),
                             [](const std::string& line) { return line.starts_with(R"({"event":"msgbox")"); });
        return boxes;
    }
};

TEST_F(WinKeyConsoleTest, FirstFunctionKeyOpensSetsAndSendsInOrder) {
    ChooseWinKey();
    Connect();
    const Lines printed = program.Do("key F1");
    EXPECT_EQ(Sent(printed), "131313130003 000455 0002 0214 0332 040000 1732 0906 0E00 54 45 53 54 ");
    EXPECT_EQ(Boxes(printed), Lines{});
    EXPECT_EQ(program.Get("$gWKVersion"), "23");
    EXPECT_EQ(program.Get("frmWinKey.lblVersion"), R"("Version # 23")");
    EXPECT_EQ(Sent(program.Do("key Up")), "0215 ");
    EXPECT_EQ(Sent(program.Do("key F1")), "54 45 53 54 ") << "it is open";
}

TEST_F(WinKeyConsoleTest, AbsentDeviceIsABoxForEachKeyAndNoText) {
    ChooseWinKey();
    for (int press = 0; press < 2; ++press) {
        const Lines printed = program.Do("key F1");
        EXPECT_EQ(Sent(printed), "131313130003 000455 ");
        ASSERT_EQ(Boxes(printed).size(), 1U);
        EXPECT_NE(Boxes(printed)[0].find("Unable to establish connection with WinKey on com port 1.  Please"),
                  std::string::npos);
        EXPECT_EQ(Sent(program.Do("answer OK")), "");
        EXPECT_EQ(program.Get("$gCWBuffer"), R"("")");
        EXPECT_EQ(program.Get("$gWKVersion"), "0");
    }
}

TEST_F(WinKeyConsoleTest, DeviceIsClosedAtTheEnd) {
    ChooseWinKey();
    Connect();
    program.Do("key F1");
    EXPECT_EQ(Sent(program.Do("close Form1")), "0003 ");
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(WinKeyConsoleTest, TenThousandCharactersOfPracticeAreMadeAndGoOut) {
    program.Do("key Ctrl+S");
    program.Do("click Command7");
    program.Do("set Text3 2000");
    program.Do("set Text4 5");
    program.Do("click Command2");
    const std::string text = program.Get("Text1");
    EXPECT_EQ(text.size(), 12'000U + 2) << "with the quotes";
    program.Do("click Command3");
    EXPECT_EQ(program.Get("Text2"), text);
    program.Do("click Command2");
    EXPECT_EQ(program.Get("Text1"), text) << "the seed is the same";
}

}  // namespace
}  // namespace tallyhut
