#include <gtest/gtest.h>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

/// The program with a log of eight contacts a minute apart.
struct ViewsConsoleTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path(), {"--clock", ConsoleDriver::kStart, "--seed", "7"}};

    /// The middle of a label of the map, from the corner of the picture.
    std::string SeedOf(const std::string& county) {
        const auto number = [this](const std::string& target) { return std::stod(program.Get(target)); };
        const std::string label = "lblCounty(" + county + ").";
        const double x = number(label + "left") + number(label + "width") / 2 - number("Picture1.left");
        const double y = number(label + "top") + number(label + "height") / 2 - number("Picture1.top");
        return std::to_string(x) + ',' + std::to_string(y);
    }
    void SetUp() override {
        program.Do("menu mnu40");
        program.Do("click cmdLogOn");
        for (int n = 1; n <= 8; ++n) {
            const std::string number = std::to_string(n);
            program.LogContact(number + "aw" + number + "xx72ct");
            program.Do("advance 60000");
        }
    }
};

TEST_F(ViewsConsoleTest, TheSeriesOfTheGraphAndItsPixelsAreRead) {
    program.Do("menu mnuGraph");
    EXPECT_EQ(program.Get("$RateRaw(1500)"), "48");
    EXPECT_EQ(program.Get("$RateRaw(1)"), "6");
    EXPECT_EQ(program.Get("$RateColor(1500)"), "255");
    EXPECT_EQ(program.Get("$RateSmooth(2)"), "0");
    EXPECT_EQ(program.Get("$RateMin"), "0");
    EXPECT_EQ(program.Get("picGraph.pixel(10,10)"), "-2147483643") << "the ground of fields";
    program.Do("click Command1");
    EXPECT_EQ(program.Get("picGraph.pixel(10,10)"), "0");
}

TEST_F(ViewsConsoleTest, ThePointerIsMovedOverThePicture) {
    program.Do("menu mnuGraph");
    program.Do("hover picGraph 9000 3000");
    EXPECT_EQ(program.Get("lblHover"), R"("11/07  21:11   39.0 QSOs per hour   40 m")");
    EXPECT_TRUE(program.Do("hover picGraph 9000").front().starts_with(R"({"error")"));
    EXPECT_TRUE(program.Do("hover Command1 1 2").front().starts_with(R"({"error")"));
}

TEST_F(ViewsConsoleTest, WorkedSectionsArePaintedOnTheMap) {
    program.Do("menu mnuMap");
    const std::string at = "Picture1.pixel(" + SeedOf("1") + ')';
    EXPECT_EQ(program.Get(at), "16777215");
    program.Do("advance 100");
    EXPECT_NE(program.Get(at), "16777215");
    EXPECT_EQ(program.Get("Picture1.pixel(" + SeedOf("2") + ')'), "16777215");
    EXPECT_EQ(program.Get("lblWorked"), R"("Worked 1")");
    EXPECT_EQ(program.Get("lblCounty(1).toolTip"), R"("CT")");
}

TEST_F(ViewsConsoleTest, ThePlanOfAFreshFolderIsShown) {
    program.Do("key Ctrl+F");
    EXPECT_EQ(program.Get("blbl(0)"), R"("160  1.800 - 2.000")");
    program.Do("click Command1");
    EXPECT_EQ(program.Get("Label2"), R"("Novice Frequency Privileges")");
    EXPECT_EQ(program.Get("blbl(0)"), R"("80  3.500 - 4.000")");
}

TEST_F(ViewsConsoleTest, BandsAreCounted) {
    program.Do("menu mnuBandStats");
    EXPECT_EQ(program.Get("lblcon(2)"), R"("8")");
    EXPECT_EQ(program.Get("lblcon(8)"), R"("100")");
    EXPECT_EQ(program.Get("lblcon(12)"), R"("8")");
}

}  // namespace
}  // namespace tallyhut
