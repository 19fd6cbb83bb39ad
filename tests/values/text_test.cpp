#include "values/text.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

struct TrimCase {
    std::string_view text;
    std::string_view trimmed;
    std::string_view endTrimmed;
};

constexpr TrimCase kTrimCases[] = {
    {"", "", ""},
    {" ", "", ""},
    {"    ", "", ""},
    {"W1XX", "W1XX", "W1XX"},
    {" 137", "137", " 137"},
    {"137  ", "137", "137"},
    {"  CQ TEST  ", "CQ TEST", "  CQ TEST"},
    {"\t5 ", "\t5", "\t5"},
    {"\r\n", "\r\n", "\r\n"},
};

TEST(Text, TrimTakesBlanksOffBothEndsAndNothingElse) {
    for (const auto& row : kTrimCases) {
        EXPECT_EQ(Trim(row.text), row.trimmed) << '[' << row.text << ']';
    }
}

TEST(Text, TrimEndLeavesTheBlanksInFront) {
    for (const auto& row : kTrimCases) {
        EXPECT_EQ(TrimEnd(row.text), row.endTrimmed) << '[' << row.text << ']';
    }
}

TEST(Text, UpperCaseChangesTheLettersAToZOnly) {
    EXPECT_EQ(UpperCase("w1xx/ve3 q?"), "W1XX/VE3 Q?");
    for (int code = 0; code < 256; ++code) {
        const char character = static_cast<char>(code);
        const char expected = code >= 97 && code <= 122 ? static_cast<char>(code - 32) : character;
        EXPECT_EQ(UpperCase(std::string(1, character)), std::string(1, expected)) << code;
    }
}

TEST(Text, PadRightFillsWithBlanksAndNeverCuts) {
    EXPECT_EQ(PadRight("4800", 5), "4800 ");
    EXPECT_EQ(PadRight("", 3), "   ");
    EXPECT_EQ(PadRight("19200", 5), "19200");
    EXPECT_EQ(PadRight("115200", 5), "115200");
    EXPECT_EQ(PadRight("", 0), "");
}

}  // namespace
}  // namespace tallyhut
