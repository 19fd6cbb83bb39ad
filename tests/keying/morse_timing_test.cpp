#include "keying/morse_timing.h"

#include <gtest/gtest.h>

#include <string>

#include "values/value_error.h"

namespace tallyhut {
namespace {

TEST(MorseTiming, UnitKeepsItsFraction) {
    EXPECT_DOUBLE_EQ(UnitMs("20"), 60);
    EXPECT_NEAR(UnitMs("13"), 92.307692, 1e-6);
    EXPECT_DOUBLE_EQ(UnitMs("1000"), 1.2);
    EXPECT_DOUBLE_EQ(UnitMs("7.5"), 160);
    EXPECT_DOUBLE_EQ(UnitMs("-5"), -240);
}

TEST(MorseTiming, ThereIsNoUnitWithoutASpeed) {
    for (const char* wpm : {"0", "", " ", "fast", "1,000", "0.00", "0.019", "1E-300", ":"}) {
        EXPECT_THROW(UnitMs(wpm), ValueError) << wpm;
    }
    for (const char* wpm : {"0", "", "fast"}) {
        EXPECT_THROW(UnitRounds(1000, wpm), ValueError) << wpm;
    }
}

TEST(MorseTiming, AtTwentyWordsTheCountIsTheCalibrated) {
    EXPECT_DOUBLE_EQ(UnitRounds(123'456, "20"), 123'456);
    EXPECT_DOUBLE_EQ(UnitRounds(123'456, "40"), 61'728);
    EXPECT_DOUBLE_EQ(UnitRounds(0, "13"), 0);
}

TEST(MorseTiming, WordSpaceCountsForTheBlankAlone) {
    struct Case {
        const char* wordSpace;
        double units;
    };
    for (const Case& one : {Case{"0", 8},
                            {"3", 11},
                            {"2.9", 10},
                            {"0.5", 8},
                            {"-1", 7},
                            {"-8", 0},
                            {"-0.5", 8},
                            {"-1.5", 6},
                            {"-2.5", 6},
                            {"-9", 0},
                            {"-1000", 0},
                            {"none", 8},
                            {"", 8},
                            {"1E9", 1e9 + 8}}) {
        const Keying keying = KeyingOf(' ', one.wordSpace);
        EXPECT_EQ(static_cast<double>(keying.elements.size()) + keying.silence, one.units) << one.wordSpace;
        EXPECT_EQ(keying.elements.find('1'), std::string_view::npos);
    }
    EXPECT_EQ(KeyingOf('E', "3").elements, "1000");
    EXPECT_EQ(KeyingOf('E', "3").silence, 0);
}

}  // namespace
}  // namespace tallyhut
