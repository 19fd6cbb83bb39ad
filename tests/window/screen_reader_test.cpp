#include "tests/window/screen_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <regex>

#include "spots/spot_record.h"
#include "tests/platform/loopback_server.h"
#include "tests/window/window_fixture.h"

namespace tallyhut {
namespace {

using Words = std::vector<std::string>;
using std::chrono::microseconds;

/// What comes later than this after a key is taken for an answer to the next one.
constexpr std::chrono::milliseconds kSoon{300};

/// The program with a screen reader beside it.
struct ScreenReaderTest : testing::Test {
    /// @param prepare  puts files into the folder before the program starts there
    explicit ScreenReaderTest(const std::function<void(const std::string& folder)>& prepare = [](const auto&) {})
        : folder{MakeFolder()}, window{(prepare(folder), folder), "1280x800", [this](const std::string& display) {
                                           reader.emplace(folder + "/.reader", display);
                                           return reader->ForProgram();
                                       }} {
        LetItSpeak();
    }
    ~ScreenReaderTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string folder;
    std::optional<ScreenReader> reader;
    WindowDriver window;

    void LetItSpeak() { EXPECT_TRUE(reader->LetSpeak(" for [label | UTC ")); }
    void Type(const std::string& text) {
        window.Type(text);
        LetItSpeak();
    }
    /// All that is spoken of these keys, at least once.
    Words HeardOf(const std::string& keys) {
        return HeardOf([this, &keys] { window.Press(keys); });
    }
    Words HeardOf(const std::function<void()>& event) {
        const std::size_t length = reader->LogLength();
        const microseconds pressed = ScreenReader::OfDay(ScreenReader::Clock::now());
        event();
        EXPECT_TRUE(Eventually([&] { return !reader->SpokenSince(length).empty(); }));
        LetItSpeak();
        Words words;
        for (const ScreenReader::Utterance& utterance : reader->SpokenSince(length)) {
            words.push_back(utterance.words);
            last = (utterance.ofDay - pressed + std::chrono::hours{24}) % std::chrono::hours{24};
        }
        return words;
    }

    microseconds last{};  ///< from the keys to the last words that HeardOf returned
};

TEST_F(ScreenReaderTest, TimeOnIsSpokenOnceAndSoon) {
    EXPECT_EQ(HeardOf("alt+l"), Words{"notification Time On."});
    EXPECT_LE(last, kSoon);
}

TEST_F(ScreenReaderTest, TimeOffIsSpokenOnceAndSoon) {
    HeardOf("alt+l");
    const Words heard = HeardOf("alt+l");
    EXPECT_LE(last, kSoon);
    ASSERT_EQ(heard.size(), 1U) << testing::PrintToString(heard);
    const std::regex wanted{R"(notification Logged Off at [\d/]+ \d\d:\d\d:\d\d Log On after \d\d:\d\d:\d\d\.)"};
    EXPECT_TRUE(std::regex_match(heard.front(), wanted)) << heard.front();
}

TEST_F(ScreenReaderTest, ADuplicateIsSpokenOnceAndSoon) {
    Type("88aw1xx72mdc");
    window.Press("Return");
    Type("5bw1xx");
    const Words heard = HeardOf("7");
    EXPECT_LE(last, kSoon);
    const std::regex wanted{
        R"(notification Duplicate W1XX MDC \d\d/\d\d \d\d:\d\d:\d\d ON 40 Rec# 1 Serial Rcvd: 88\.)"};
    const auto isWanted = [&wanted](const std::string& words) { return std::regex_match(words, wanted); };
    EXPECT_EQ(std::ranges::count_if(heard, isWanted), 1) << testing::PrintToString(heard);
    EXPECT_EQ(heard.size(), 1U) << testing::PrintToString(heard);
}

TEST_F(ScreenReaderTest, AnIncompleteContactIsSpokenOnceAndSoon) {
    HeardOf("alt+l");
    Type("88a");
    window.Press("Tab Tab");
    Type("mdc");
    EXPECT_EQ(HeardOf("Return"), (Words{"Call text.", "notification Need Call Sign!"}));
    EXPECT_LE(last, kSoon);
}

TEST_F(ScreenReaderTest, ABadSectionIsSpokenOnceAndSoon) {
    HeardOf("alt+l");
    Type("88aw1xx72mdx");
    EXPECT_EQ(HeardOf("Return"), Words{"notification Invalid Section."});
    EXPECT_LE(last, kSoon);
}

TEST_F(ScreenReaderTest, EachFieldSaysItsNameAndWhatStandsInIt) {
    HeardOf("alt+l");  // with the clock running, nothing reminds of it
    Type("88aw1xx72mdc");
    EXPECT_EQ(HeardOf("shift+Tab"), (Words{"Check text.", "72."}));
    EXPECT_EQ(HeardOf("shift+Tab"), (Words{"Call text.", "W1XX."}));
    EXPECT_EQ(HeardOf("shift+Tab"), (Words{"Precedence text.", "A."}));
    EXPECT_EQ(HeardOf("shift+Tab"), (Words{"Number text.", "88."}));
    EXPECT_EQ(HeardOf("shift+Tab"), (Words{"Section text.", "MDC."}));
}

TEST_F(ScreenReaderTest, AnOptionIsSpokenOfAsARadioButton) {
    window.Press("alt+f w");
    window.AnswerWindow("Summary Sheet Information", "");
    LetItSpeak();
    EXPECT_EQ(HeardOf("Tab"), (Words{"Power Category: Low.", "selected radio button"}));
}

TEST_F(ScreenReaderTest, AKeyThatIsTypedIsOneChangeOfTheText) {
    HeardOf("alt+l");
    Type("88aw1x");
    const std::size_t length = reader->LogLength();
    window.Press("x");
    LetItSpeak();
    const Words changes = reader->LinesSince(length, "EVENT MANAGER: object:text-changed");
    ASSERT_EQ(changes.size(), 1U) << testing::PrintToString(changes);
    EXPECT_NE(
        changes.front().find("object:text-changed:insert for [text | Call] in [application | tallyhut] (3, 1, X)"),
        std::string::npos)
        << changes.front();
}

/// Before the program starts, and of another base than its driver: both are there before the test itself is.
struct WithCluster {
    LoopbackServer cluster;

    auto SourcePutter() const {
        return [port = cluster.Port()](const std::string& place) {
            std::ofstream{place + "/PackSpot.txt"}
                << WriteSpotRecord({.type = "Telnet", .telnetPort = std::to_string(port), .telnetHost = "127.0.0.1"});
        };
    }
};

/// The same with a cluster that sends spots.
struct SpokenSpotsTest : WithCluster, ScreenReaderTest {
    SpokenSpotsTest() : ScreenReaderTest{SourcePutter()} {
        cluster.Accept();
        HeardOf("alt+l");
    }
    void Post(std::string_view line) const { cluster.Write(std::string{line} + "\r\n"); }
};

constexpr std::string_view kMaryland =
    "DX de K3LR:       7012.4  K3EL         CQ SS MDC                      2104Z FN31";

TEST_F(SpokenSpotsTest, ANeededSpotIsSpokenOnceAndSoon) {
    window.Press("alt+a n");
    LetItSpeak();
    EXPECT_EQ(HeardOf([this] { Post(kMaryland); }), Words{"notification Needed: MDC, K3EL on 7.012."});
    EXPECT_LE(last, kSoon);
}

TEST_F(SpokenSpotsTest, TheMapIsReachedAndWalkedByKeyboard) {
    Post(kMaryland);
    LetItSpeak();  // what arrives together is taken for one post
    Post("DX de K3LR:       7018.0  W7RN         CQ SS NV                       2104Z FN31");
    Words heard;
    const auto isTheMap = [&heard] {
        return std::ranges::any_of(heard, [](const std::string& words) { return words.starts_with("Band map"); });
    };
    for (int steps = 0; steps < 20 && !isTheMap(); ++steps) {
        heard = HeardOf("ctrl+Tab");
    }
    ASSERT_TRUE(isTheMap());
    heard = HeardOf("Right");
    ASSERT_EQ(heard.size(), 1U) << testing::PrintToString(heard);
    EXPECT_TRUE(std::regex_match(heard.front(), std::regex{R"(notification W7RN 7\.018 \d\d:\d\d:\d\d\.)"}))
        << heard.front();
    window.Press("Return");
    LetItSpeak();
    EXPECT_EQ(HeardOf("shift+Tab").back(), "W7RN.");
}

}  // namespace
}  // namespace tallyhut
