#include "spots/terminal_text.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

using std::string_literals::operator""s;

constexpr std::string_view kHead = " 1:Fm Q7ZZQ-3 To DX <UI pid=F0 Len=66 PF=0 >[09:28:19]\r";

TEST(ShownText, ControlCharactersAreBlanksAndLineEndsStay) {
    EXPECT_EQ(ShownText("a\0b\a\tc\x1B\x7F\x85z\r\n"s), "a b  c   z\r\n");
    EXPECT_EQ(ShownText("caf\xE9 <b>"), "caf\xE9 <b>");
}

TEST(WithText, TerminalStaysBetweenNineAndTenThousandCharacters) {
    const std::string full(9'999, 'a');
    EXPECT_EQ(WithText(full, "b"), full + 'b');
    const std::string cut = WithText(full, "bc");
    EXPECT_EQ(cut, std::string(8'998, 'a') + "bc");
    EXPECT_EQ(WithText("", std::string(1'000'000, 'x')).size(), 9'000U);
}

struct ReceivedLinesTest : testing::Test {
    ReceivedLines lines;

    std::string Next() {
        std::string line;
        return lines.Take(line) ? line : "none";
    }
};

TEST_F(ReceivedLinesTest, FirstLineNeedsNoLineFeedBeforeIt) {
    lines.Add("DX de X: ...\r");
    EXPECT_EQ(Next(), "none");
    lines.Add("\nDX de");
    EXPECT_EQ(Next(), "DX de X: ...\r\n");
    EXPECT_EQ(Next(), "none");
    lines.Add(" Y\n\nZ\n");
    EXPECT_EQ(Next(), "DX de Y\n");
    EXPECT_EQ(Next(), "\n");
    EXPECT_EQ(Next(), "Z\n");
    EXPECT_EQ(Next(), "none");
}

TEST_F(ReceivedLinesTest, CutsDoNotMatter) {
    const std::string text = "one\r\ntwo\r\n";
    for (const char byte : text) {
        lines.Add({&byte, 1});
    }
    EXPECT_EQ(Next(), "one\r\n");
    EXPECT_EQ(Next(), "two\r\n");
}

TEST_F(ReceivedLinesTest, EndlessLineTakesNoMemory) {
    for (int i = 0; i < 1'000; ++i) {
        lines.Add(std::string(1'000, 'x'));
    }
    lines.Add("\nnext\n");
    EXPECT_EQ(Next(), std::string(65'536, 'x') + '\n');
    EXPECT_EQ(Next(), "next\n");
}

TEST_F(ReceivedLinesTest, ForgettingLeavesTheBeginning) {
    lines.Add("half");
    lines.Forget();
    lines.Add("whole\n");
    EXPECT_EQ(Next(), "whole\n");
}

TEST(TextsOf, HeardTextLosesTheEnginesLine) {
    const FrameTexts texts = TextsOf('U', "Q7ZZQ-3", std::string{kHead} + "DX de Q2ABC:  14025.0\r", true);
    EXPECT_EQ(texts.plain, "DX de Q2ABC:  14025.0\r\n");
    EXPECT_EQ(texts.full,
              "UQ7ZZQ-3  1:Fm Q7ZZQ-3 To DX <UI pid=F0 Len=66 PF=0 >[09:28:19]\r\nDX de Q2ABC:  14025.0\r\n");
}

TEST(TextsOf, DoubledLineEndIsOneAndATripleIsTwo) {
    EXPECT_EQ(TextsOf('U', "Q1A", std::string{kHead} + "hello\r\r", true).plain, "hello\r\n");
    EXPECT_EQ(TextsOf('U', "Q1A", std::string{kHead} + "hello\r\n\r", true).plain, "hello\r\n\r\n");
}

TEST(TextsOf, FrameWithoutInformationHasNoPlainText) {
    EXPECT_EQ(TextsOf('S', "Q7ZZQ", kHead, true).plain, "");
    EXPECT_EQ(TextsOf('D', "Q7ZZQ", "\r", false).plain, "");
    EXPECT_EQ(TextsOf('D', "Q7ZZQ", "\r\r", false).plain, "\r\n\r\n");  // too short to be a doubled end
}

TEST(TextsOf, DataOfAConnectedStationStayWhole) {
    const FrameTexts texts = TextsOf('D', "Q7ZZQ", "one\rtwo\r", false);
    EXPECT_EQ(texts.plain, "one\r\ntwo\r\n");
    EXPECT_EQ(texts.full, "DQ7ZZQ one\r\ntwo\r\n");
}

}  // namespace
}  // namespace tallyhut
