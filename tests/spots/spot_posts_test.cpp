#include "spots/spot_posts.h"

#include "tests/spots/spots_fixture.h"

namespace tallyhut {
namespace {

constexpr Colour kGreen = 49152;
constexpr Colour kWhite = 0xFFFFFF;

struct SpotPostsTest : SpotsFixture {
    std::string Calls() {
        std::string calls;
        for (int i = SpotTable::kNewest; i >= 0 && !table.Row(i).SpotCall.empty(); --i) {
            calls += (calls.empty() ? "" : " ") + table.Row(i).SpotCall;
        }
        return calls;
    }
};

TEST_F(SpotPostsTest, PostIsKept) {
    StartSpots();
    Post("K1ABC", "CW MDC");
    const Spot& spot = table.Newest();
    EXPECT_EQ(spot.SpotCall, "K1ABC");
    EXPECT_FLOAT_EQ(spot.SpotFreq, 14.0253F);
    EXPECT_EQ(spot.SpotTime, (DateTime{2026, 11, 7, 21, 4, 33}));
    EXPECT_EQ(spot.SpotPrefix, "K1");
    EXPECT_EQ(spot.SpotText, " CW MDC  ");
    EXPECT_EQ(table.SpotStatus, "");
}

TEST_F(SpotPostsTest, OwnCallIsToldAndKept) {
    stored.gOwnCall = "W1AW";
    StartSpots();
    Post("W1AW", "loud in MD");
    EXPECT_EQ(dialogs.beeps, 1);
    EXPECT_EQ(Dialog(), "You've been spotted! ");
    EXPECT_EQ(DialogGround(), kWhite);
    EXPECT_EQ(Partials(), "You've been spotted!  " + Comment("14025.3", "W1AW", "loud in MD"));
    EXPECT_EQ(Main().lblDupe.State().backColor, kWhite);
    EXPECT_EQ(Calls(), "W1AW");
}

TEST_F(SpotPostsTest, OwnCallIsToldWithoutAFrequency) {
    stored.gOwnCall = "W1AW";
    StartSpots();
    Post("W1AW", "", "on air");
    EXPECT_EQ(Dialog(), "You've been spotted! ");
    EXPECT_EQ(Calls(), "");
}

TEST_F(SpotPostsTest, OwnCallIsComparedToTheLetter) {
    stored.gOwnCall = "W1AW";
    StartSpots();
    Post("W1AW/3");
    EXPECT_NE(Dialog(), "You've been spotted! ");
}

TEST_F(SpotPostsTest, WithoutAFrequencyThereIsNoPost) {
    StartSpots();
    for (const char* frequency : {"", "14025.3.1", "kHz", "1E999"}) {
        Post("K1ABC", "", frequency);
    }
    EXPECT_EQ(Calls(), "");
    EXPECT_TRUE(posts->listed.empty());
}

TEST_F(SpotPostsTest, RequestsAreDropped) {
    StartSpots();
    Post("K1ABC", "PLS NEED MD");
    Post("K2ABC", "needed");
    Post("K3ABC", "pse qsy");
    posts->BandMapSpots("K4ABC", "14025", "de NEEDY: 14025 K4ABC");
    EXPECT_EQ(Calls(), "");
}

TEST_F(SpotPostsTest, CallsOfOtherCountriesAreDroppedByTheirFirstLetter) {
    StartSpots();
    for (const char* call : {"JA1ABC", "VK2ABC", "XE1ABC", "G3XX", ""}) {
        Post(call);
    }
    EXPECT_EQ(Calls(), "XE1ABC VK2ABC");
    EXPECT_EQ(table.Newest().SpotText, "   ") << "no section";
}

TEST_F(SpotPostsTest, PrefixGivesTheSection) {
    StartSpots();
    Post("KL7ABC", "CW");
    EXPECT_NE(table.Newest().SpotText.find(" AK "), std::string::npos);
    Post("KH6XX", "CW");
    EXPECT_NE(table.Newest().SpotText.find(" PAC "), std::string::npos);
}

TEST_F(SpotPostsTest, CommentEndsAtTheFirstCarriageReturn) {
    StartSpots();
    posts->BandMapSpots("K1ABC", "14025", Comment("14025", "K1ABC", "EMA") + "\r\nDX de K9XX: MDC more and more of it");
    EXPECT_EQ(table.Newest().SpotText, " EMA  ");
}

TEST_F(SpotPostsTest, RequestBehindTheCarriageReturnCounts) {
    StartSpots();
    posts->BandMapSpots("K1ABC", "14025", Comment("14025", "K1ABC", "EMA") + "\r\nhi PSE qsl");
    EXPECT_EQ(Calls(), "");
}

TEST_F(SpotPostsTest, FrequencyBeyondAFloatEndsSilentlyAndMovesNoRow) {
    StartSpots();
    Post("K1ABC", "", "14025");
    Post("K2ABC", "", "1E99");
    EXPECT_EQ(table.Newest().SpotCall, "K1ABC");
    EXPECT_FLOAT_EQ(table.Newest().SpotFreq, 14.025F);
    EXPECT_EQ(posts->listed.size(), 1U);
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(SpotPostsTest, FiftyFirstPostPushesTheFirstOut) {
    StartSpots();
    for (int n = 1; n <= 51; ++n) {
        Post("K" + std::to_string(n) + "A");
    }
    EXPECT_EQ(table.Row(0).SpotCall, "K2A");
    EXPECT_EQ(table.Newest().SpotCall, "K51A");
}

TEST_F(SpotPostsTest, ListHoldsTwoHundredPostsTheNewestOnTop) {
    StartSpots();
    for (int n = 1; n <= 201; ++n) {
        Post("K" + std::to_string(n) + "A");
    }
    ASSERT_EQ(posts->listed.size(), 200U);
    EXPECT_EQ(posts->listed.front().row[0], "K201A");
    EXPECT_EQ(posts->listed.back().row[0], "K2A");
}

TEST_F(SpotPostsTest, RowOfTheListShowsThePost) {
    StartColouring();
    Post("KH6XX", "loud MDC", "21303.3");
    EXPECT_EQ(posts->listed.front().row,
              (SpotListRow{"KH6XX", "21.3033", "Needed!", "Section", "DE K3LR:    LOUD MDC PAC ", "", "2104", "FN3"}));
}

TEST_F(SpotPostsTest, CallThatBeginsWithAQIsNoneOfTheContest) {
    StartColouring();
    posts->BandMapSpots("Q7ZZQ", "21303.3",
                        "de Q7YYRT:     21083.2  Q7ZZQ        MDC                         MD 1308Z G");
    EXPECT_EQ(Calls(), "") << "no call of the contest begins with a Q";
}

TEST_F(SpotPostsTest, NeededSectionTurnsGreenAndUnderlined) {
    StartColouring();
    Post("K1ABC", "CW MDC");
    EXPECT_EQ(Section("MDC").State().foreColor, kGreen);
    EXPECT_TRUE(Section("MDC").State().underlined);
    EXPECT_TRUE(Section("MDC").State().bold);
    EXPECT_EQ(table.SpotStatus, "Needed!");
    EXPECT_EQ(Section("EMA").State().foreColor, stored.gColorNeeded);
}

TEST_F(SpotPostsTest, WordThatIsNotBlankDelimitedOffersNothing) {
    StartColouring();
    Post("K1ABC", "MDC.");
    EXPECT_EQ(Section("MDC").State().foreColor, stored.gColorNeeded);
    EXPECT_EQ(table.SpotStatus, "");
}

TEST_F(SpotPostsTest, WorkedSectionStaysWorked) {
    PutLog({Worked("W1XX", "MDC")});
    StartColouring();
    Post("K1ABC", "MDC");
    EXPECT_EQ(Section("MDC").State().foreColor, stored.gColorWorked);
    EXPECT_EQ(table.SpotStatus, "");
}

TEST_F(SpotPostsTest, MarkStaysUntilThePostFallsOffTheTable) {
    StartColouring();
    Post("K1ABC", "MDC");
    for (int n = 1; n <= 49; ++n) {
        Post("K2ABC", "CQ");
    }
    EXPECT_EQ(Section("MDC").State().foreColor, kGreen);
    EXPECT_EQ(table.SpotStatus, "") << "only the newest post has one";
    Post("K2ABC", "CQ");
    EXPECT_EQ(Section("MDC").State().foreColor, stored.gColorNeeded);
    EXPECT_FALSE(Section("MDC").State().underlined);
}

TEST_F(SpotPostsTest, TwoNeededSectionsInOnePostArePromptedEach) {
    stored.gAudioAlert = 1;
    StartColouring();
    Post("K1ABC", "MDC EMA");
    EXPECT_EQ(Section("MDC").State().foreColor, kGreen);
    EXPECT_EQ(Section("EMA").State().foreColor, kGreen);
    EXPECT_EQ(prompts, (std::vector<std::string>{"Needspot", "Needspot"}));
}

TEST_F(SpotPostsTest, OnlyTheNewestPostIsPrompted) {
    stored.gAudioAlert = 1;
    StartColouring();
    Post("K1ABC", "MDC");
    Post("K2ABC", "CQ");
    EXPECT_EQ(prompts.size(), 1U);
}

TEST_F(SpotPostsTest, NothingIsPromptedWithTheAlertOff) {
    StartColouring();
    Post("K1ABC", "MDC");
    EXPECT_TRUE(prompts.empty());
}

TEST_F(SpotPostsTest, WithTheOptionOffNothingIsMarked) {
    StartSpots();
    table.SpotStatus = "Needed!";
    Post("K1ABC", "MDC");
    EXPECT_EQ(Section("MDC").State().foreColor, stored.gColorNeeded);
    EXPECT_EQ(table.SpotStatus, "Needed!");
}

TEST_F(SpotPostsTest, NeededSpotIsAnnounced) {
    StartColouring();
    std::vector<std::string> words;
    TheDesk().outlets.announced = [&words](std::string_view text) { words.emplace_back(text); };
    Post("K1ABC", "MDC EMA");
    Post("K2ABC", "CQ");
    EXPECT_EQ(words, std::vector<std::string>{"Needed: EMA, MDC, K1ABC on 14.025"});
}

TEST_F(SpotPostsTest, MapsAreDrawnBeforeSectionsAreMarkedAndTheListComesLast) {
    StartColouring();
    std::string order;
    posts->drawMaps = [this, &order] { order += "maps " + table.Newest().SpotCall + table.SpotStatus + ' '; };
    posts->listChanged = [this, &order] { order += "list " + table.SpotStatus; };
    Post("K1ABC", "MDC");
    EXPECT_EQ(order, "maps K1ABC list Needed!");
}

TEST_F(SpotPostsTest, EventsRunOnceBeforeTheMarks) {
    StartColouring();
    TheDesk().PostAction([this] { EXPECT_NE(Section("MDC").State().foreColor, kGreen); });
    Post("K1ABC", "MDC");
    EXPECT_EQ(Section("MDC").State().foreColor, kGreen);
}

}  // namespace
}  // namespace tallyhut
