#include "spots/spot_line.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tallyhut {
namespace {

const std::string kLine = "DX de K3LR:      14025.3  W1AW         CW CT                          2104Z FN31\r\n";

TEST(SpotLine, PostBeginsWithDxInEitherCase) {
    for (const char* line : {"DX de K3LR:", "dx de K3LR:", "Dx", "DXCC is open"}) {
        EXPECT_TRUE(BeginsPost(line)) << line;
    }
    for (const char* line : {"", "D", " DX de K3LR:", "To ALL de K3LR: DX", "\r\nDX"}) {
        EXPECT_FALSE(BeginsPost(line)) << line;
    }
}

TEST(SpotLine, FrequencyAndCallStandInTheirColumns) {
    const PostColumns columns = ColumnsOf(kLine);
    EXPECT_EQ(columns.frequency, "14025.3");
    EXPECT_EQ(columns.call, "W1AW");
}

TEST(SpotLine, ColumnsAreCutToTheCharacter) {
    const PostColumns columns = ColumnsOf("DX.............F23456789..C234567890123..");
    EXPECT_EQ(columns.frequency, "F23456789");
    EXPECT_EQ(columns.call, "C234567890123");
}

TEST(SpotLine, LongCallsAndSkimmersKeepTheirColumns) {
    const PostColumns columns =
        ColumnsOf("DX de VE7CC-#:    7012.0  K1ABC/VE3    24 DB  28 WPM  CQ              2105Z");
    EXPECT_EQ(columns.frequency, "7012.0");
    EXPECT_EQ(columns.call, "K1ABC/VE3");
}

TEST(SpotLine, LineWithoutTheColumnsHasNone) {
    for (const char* line : {"", "DX", "DX de K3LR:   "}) {
        EXPECT_EQ(ColumnsOf(line).frequency, "") << line;
        EXPECT_EQ(ColumnsOf(line).call, "") << line;
    }
}

TEST(SpotLine, ShortLineLeavesItsEndInTheCall) {
    EXPECT_EQ(ColumnsOf("DX de K3LR:      14025.3  W1AW\r\n").call, "W1AW\r\n");
}

TEST(SpotLine, PostIsTheLineFromItsSpotterOn) {
    EXPECT_EQ(PostOf("DX de K3LR:  14025.3  "), "de K3LR:  14025.3");
    EXPECT_EQ(PostOf("DX"), "");
    EXPECT_EQ(PostOf("DX de K3LR:\r\n"), "de K3LR:\r\n") << "a line end is no blank";
}

TEST(SpotLine, RepeatIsFoundInEitherCase) {
    EXPECT_TRUE(IsRepeat("dx de k3lr: W1AW\r\n", "hello\r\nDX de K3LR: w1aw\r\nmore"));
    EXPECT_FALSE(IsRepeat("DX de K3LR: W1AX\r\n", "hello\r\nDX de K3LR: W1AW\r\nmore"));
    EXPECT_FALSE(IsRepeat("DX de K3LR: W1AW\r\n", ""));
}

TEST(SpotLine, RepeatIsLookedForAtTheEndOfTheTerminalOnly) {
    const std::string line = "DX de K3LR: W1AW\n";
    const std::string filler(801 - line.size(), '.');
    EXPECT_TRUE(IsRepeat(line, "before" + line + filler));
    EXPECT_FALSE(IsRepeat(line, "before" + line + filler + '.'));
}

TEST(SpotLine, LongerLineThanTheSearchedEndIsNoRepeat) {
    const std::string line(900, 'x');
    EXPECT_FALSE(IsRepeat(line, line));
}

TEST(SpotLine, RequestsAreNoSpots) {
    for (const char* post : {"DE K1XX: 14000 W1AW PLS NEED MD", "DE K1XX: 14000 W1AW NEEDED", "DE K1XX: PSE QSL",
                             "DE K1XX: SPOT ME", "DE K1XX: A POST FOR", "DE K1XX: PLEASE LISTEN"}) {
        EXPECT_TRUE(IsRequest(post)) << post;
    }
    for (const char* post : {"DE K1XX: 14000 W1AW MDC", "DE K1XX: UNNEEDED", "DE K1XX: SPOTTER", "DE K1XX: PSE",
                             "DE K1XX: please listen", "NEED MD", ""}) {
        EXPECT_FALSE(IsRequest(post)) << post;
    }
}

TEST(SpotLine, FirstLetterDecidesWhetherACallMayBeOfTheContest) {
    for (const char* call : {"K1ABC", "A", "N6TR", "W1AW", "VK2ABC", "CT1XX", "XE1ABC"}) {
        EXPECT_TRUE(MayBeOfTheContest(call)) << call;
    }
    for (const char* call : {"JA1ABC", "G3XX", "k1abc", " K1ABC", "9A1A", ""}) {
        EXPECT_FALSE(MayBeOfTheContest(call)) << call;
    }
}

TEST(SpotLine, SomePrefixesSayTheSection) {
    const std::vector<std::pair<std::string, std::string>> sections{
        {"VE1AA", " MAR "}, {"VE9AA", " MAR "}, {"VA1AA", " MAR "}, {"CY9AA", " MAR "}, {"CY0AA", " MAR "},
        {"VY2AA", " MAR "}, {"VE2AA", " QC "},  {"VA2AA", " QC "},  {"VE3AA", " ON "},  {"VA3AA", " ON "},
        {"VE4AA", " MB "},  {"VA4AA", " MB "},  {"VE5AA", " SK "},  {"VA5AA", " SK "},  {"VE6AA", " AB "},
        {"VA6AA", " AB "},  {"VE7AA", " BC "},  {"VA7AA", " BC "},  {"VE8AA", " NT "},  {"VY1AA", " NT "},
        {"VY0AA", " NT "},  {"VO1AA", " NL "},  {"VO2AA", " NL "},  {"AH6AA", " PAC "}, {"KH6XX", " PAC "},
        {"NH6AA", " PAC "}, {"WH6AA", " PAC "}, {"AH7AA", " PAC "}, {"KH7AA", " PAC "}, {"NH7AA", " PAC "},
        {"WH7AA", " PAC "}, {"KP3AA", " PR "},  {"KP4AA", " PR "},  {"NP3AA", " PR "},  {"NP4AA", " PR "},
        {"WP3AA", " PR "},  {"WP4AA", " PR "},  {"KP2AA", " VI "},  {"NP2AA", " VI "},  {"WP2AA", " VI "},
        {"AL7AA", " AK "},  {"KL7ABC", " AK "}, {"NL7AA", " AK "},  {"WL7AA", " AK "},
    };
    for (const auto& [call, section] : sections) {
        EXPECT_EQ(SectionOfPrefix(call), section) << call;
    }
}

TEST(SpotLine, OtherPrefixesSayNoSection) {
    for (const char* call : {"W1AW", "K1ABC", "VK2ABC", "XE1ABC", "KH8AA", "NP1AA", "VE0AA", "VE", "K", "", "kl7abc"}) {
        EXPECT_EQ(SectionOfPrefix(call), "") << call;
    }
}

TEST(SpotLine, SpotTextIsTheCommentWithTheSectionBetweenBlanks) {
    EXPECT_EQ(SpotTextOf("DE K3LR:      14025.3  W1AW         CW CT                          2104Z FN31", ""),
              " CW CT  ");
    EXPECT_EQ(SpotTextOf("DE K3LR:       3802.5  KH6XX        LOUD                           0312Z BK29", " PAC "),
              " LOUD                            PAC  ");
}

TEST(SpotLine, SectionIsLostInAShortPost) {
    EXPECT_EQ(SpotTextOf("DE K1XX: MDC", " PAC "), " DE K1XX: MDC  ") << "12 characters";
    EXPECT_EQ(SpotTextOf("DE K1XX: MDCX", " PAC "), " D   PAC  ") << "13 characters";
    EXPECT_EQ(SpotTextOf("", " PAC "), "   ");
}

TEST(SpotLine, FirstThirtyFiveCharactersAreNoComment) {
    const std::string front(35, 'F');
    EXPECT_EQ(SpotTextOf(front, ""), ' ' + std::string(23, 'F') + "  ") << "35 characters are kept whole";
    EXPECT_EQ(SpotTextOf(front + "X", ""), " X  ");
}

TEST(SpotLine, PrefixOfAPlainCallEndsWithItsLastDigit) {
    const std::vector<std::pair<std::string, std::string>> prefixes{
        {"K1ABC", "K1"}, {"VE3XYZ", "VE3"}, {"W100AW", "W100"}, {"KABC", "KABC"},
        {"K1", ""},      {"", ""},          {"K1A2", "K1A2"},
    };
    for (const auto& [call, prefix] : prefixes) {
        EXPECT_EQ(CallPrefix(call), prefix) << call;
    }
}

TEST(SpotLine, PrefixOfACallWithAStrokeSaysWhereItIs) {
    const std::vector<std::pair<std::string, std::string>> prefixes{
        {"VE3/K1ABC", "VE3"},   {"K1ABC/VE3", "VE3"}, {"W1AW/3", "W3"},     {"K1A/VE3", "K1A"},
        {"W1AW/P", "P"},        {"K1ABC/", ""},       {"/K1ABC", ""},       {"N6/W1AW/3", "N3"},
        {"AB/CD", "AB"},        {"ABC/D", "D"},       {"W1AW/1.5", "W1.5"}, {"ABCDE/&HA", "ABCDE/&HA&HA"},
        {"KABC/10", "KABC/10"},
    };
    for (const auto& [call, prefix] : prefixes) {
        EXPECT_EQ(CallPrefix(call), prefix) << call;
    }
}

TEST(SpotLine, ListShowsThePostByItsColumns) {
    const PostTexts texts =
        PostTextsOf("DE K3LR:      14025.3  W1AW         CW CT                          2104Z FN31", "");
    EXPECT_EQ(texts.comment, "DE K3LR:    CW CT");
    EXPECT_EQ(texts.behind, "");
    EXPECT_EQ(texts.time, "2104");
    EXPECT_EQ(texts.locator, "FN3");
}

TEST(SpotLine, ListCountsColumnsInThePostWithItsSection) {
    std::string post;
    for (int i = 1; i <= 80; ++i) {
        post += static_cast<char>('A' + i % 26);
    }
    const PostTexts texts = PostTextsOf(post, " PAC ");
    EXPECT_EQ(texts.comment, post.substr(0, 11) + "    " + post.substr(34, 25) + " PAC ");
    EXPECT_EQ(texts.behind, post.substr(61, 5));
    EXPECT_EQ(texts.time, post.substr(67, 4));
    EXPECT_EQ(texts.locator, post.substr(72, 4));
}

TEST(SpotLine, SectionBehindAShortPostIsInItsColumns) {
    const PostTexts texts = PostTextsOf(std::string(66, 'X'), " PAC ");
    EXPECT_EQ(texts.behind, "XXXXX");
    EXPECT_EQ(texts.time, "PAC ");
    EXPECT_EQ(PostTextsOf("", "").comment, "    ");
}

}  // namespace
}  // namespace tallyhut
