#include "spots/cluster_text.h"

#include <gtest/gtest.h>

#include <vector>

namespace tallyhut {
namespace {

using namespace std::string_literals;

/// What comes of the bytes, each piece taken at once: the lines, and behind them what is unfinished.
std::vector<std::string> TextsOf(const std::vector<std::string>& pieces) {
    ClusterText text;
    std::vector<std::string> texts;
    for (const std::string& piece : pieces) {
        text.Add(piece);
        for (std::string line; text.Take(line);) {
            texts.push_back(line);
        }
    }
    texts.push_back(text.Unfinished());
    return texts;
}

using Texts = std::vector<std::string>;

TEST(ClusterText, LinesEndWithEitherCharacterOrBoth) {
    EXPECT_EQ(TextsOf({"one\r\ntwo\nthree\rfour\r\r\nfive"}), (Texts{"one", "two", "three", "four", "", "five"}));
}

TEST(ClusterText, ProtocolsCommandsAndNulAreNoText) {
    EXPECT_EQ(TextsOf({"\xFF\xFB\x01log\xFF\xFD\x18in\xFF\xFA\x18\x01\r\n\xFF\xFFx\xFF\xF0: \xFF\xF1\r\0x"s}),
              (Texts{"login: ", "x"}));
    EXPECT_EQ(TextsOf({"\xFF\xFF"}), Texts{"\xFF"}) << "twice it is a byte of the text";
}

TEST(ClusterText, SubnegotiationWithoutEndDoesNotSwallowAllThatFollows) {
    EXPECT_EQ(TextsOf({"\xFF\xFA" + std::string(512, 'x') + "login: "}), Texts{"login: "});
}

TEST(ClusterText, CutsChangeNothing) {
    const std::string all =
        "\xFF\xFB\x01\xFF\xFB\x03Welcome\r\n\xFF\xFA\x18\x01\xFF\xFF\xFF\xF0login: \xFF\xFC\x01W1AW\r\0\nDX de \xFF\xFF\a\r\n>"s;
    const Texts whole = TextsOf({all});
    for (std::size_t cut = 0; cut <= all.size(); ++cut) {
        EXPECT_EQ(TextsOf({all.substr(0, cut), all.substr(cut)}), whole) << cut;
    }
    Texts bytes;
    for (const char byte : all) {
        bytes.emplace_back(1, byte);
    }
    EXPECT_EQ(TextsOf(bytes), whole);
}

TEST(ClusterText, LineThatIsTooLongIsAnEmptyOne) {
    const std::string longest(ClusterText::kLongestLine, 'x');
    EXPECT_EQ(TextsOf({longest + "\r\n" + longest + "y\r\nz"}), (Texts{longest, "", "z"}));
    EXPECT_EQ(TextsOf({longest, "y"}), Texts{""});
}

TEST(ClusterText, OfALineWithoutEndNothingGrows) {
    ClusterText text;
    for (int i = 0; i < 1'000; ++i) {
        text.Add(std::string(8'192, 'x'));
    }
    EXPECT_TRUE(text.Unfinished().empty());
    EXPECT_FALSE(text.HasLine());
}

struct PromptCase {
    std::string text;
    std::optional<ClusterPrompt> prompt;
};

TEST(ClusterPrompts, AreTheEndOfAnUnfinishedLine) {
    const std::vector<PromptCase> cases{
        {"login: ", ClusterPrompt::Login},
        {"LOGIN:", ClusterPrompt::Login},
        {"password: ", ClusterPrompt::Password},
        {"W1AW's Password:  ", ClusterPrompt::Password},
        {"Please enter your call: ", ClusterPrompt::Call},
        {"Please enter your callsign:", ClusterPrompt::Callsign},
        {"login: W1AW", std::nullopt},
        {"Last login: ", std::nullopt},
        {"login", std::nullopt},
        {":", std::nullopt},
        {"", std::nullopt},
        {"DX de W1CALL:", std::nullopt},
        {std::string(100, '-') + " login:", ClusterPrompt::Login},
        {std::string(100, '-') + " Last login:", std::nullopt},
    };
    for (const PromptCase& one : cases) {
        EXPECT_EQ(PromptIn(one.text), one.prompt) << one.text;
    }
}

TEST(ClusterPrompts, WhoIsInsideSeesALineThatEndsInAnArrow) {
    for (const char* prompt : {"W1XX de K1TTT-2 21-Nov-2026 0926Z dxspider >", "W1XX de N1XX arc > ", ">",
                               "W1XX de VE7CC-1 21-Nov 0926Z   CCC >"}) {
        EXPECT_TRUE(EndsInside(prompt)) << prompt;
    }
    for (const char* line : {"", "<K1TTT> is here", "login: "}) {
        EXPECT_FALSE(EndsInside(line)) << line;
    }
}

TEST(WithoutSecretText, HasStarsForIt) {
    EXPECT_EQ(WithoutSecret("a hush b hushhush", "hush", true), "a **** b ********");
    EXPECT_EQ(WithoutSecret("plain", "", true), "plain");
    EXPECT_EQ(WithoutSecret("hus", "hush", true), "hus");
    EXPECT_EQ(WithoutSecret("hush \a", "", false), "hush \a");
}

TEST(WithoutSecretText, HasStarsForItInAnyCaseAndWithBellsWithin) {
    EXPECT_EQ(WithoutSecret("HUSH Hu\asH h\a\au\ash \ahush\a hu sh", "huSh", true), "**** **** **** \a****\a hu sh");
    EXPECT_EQ(WithoutSecret("a HU\a", "hush", false), "a ");
}

TEST(WithoutSecretText, NothingOfItIsShownOfALineThatComesInPieces) {
    for (const std::string secret : {"hush", "aba", "aa", "x", "a\aB"}) {
        const std::string line = "xaba" + secret + secret + " ab" + secret + "a";
        const std::string whole = WithoutSecret(line, secret, true);
        EXPECT_EQ(whole.find(secret), std::string::npos);
        for (std::size_t cut = 0; cut <= line.size(); ++cut) {
            EXPECT_TRUE(whole.starts_with(WithoutSecret(line.substr(0, cut), secret, false))) << secret << ' ' << cut;
        }
    }
}

}  // namespace
}  // namespace tallyhut
