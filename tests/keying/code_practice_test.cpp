#include "keying/code_practice.h"

#include "forms/text_lengths.h"
#include "tests/keying/keying_fixture.h"

namespace tallyhut {
namespace {

TEST(PracticeGroups, EachHasABlankBehindIt) {
    double next = 0;
    const auto random = [&next] {
        next += 0.04;
        return next;
    };
    EXPECT_EQ(PracticeGroups(2, 3, 26, random), "BCD EFG ");
    EXPECT_EQ(PracticeGroups(0, 3, 26, random), "");
    EXPECT_EQ(PracticeGroups(2, 0, 26, random), "  ");
    EXPECT_EQ(PracticeGroups(-1, 5, 26, random), "");
}

TEST(PracticeGroups, TheFirstAndTheLastCharacterAreReached) {
    EXPECT_EQ(PracticeGroups(1, 1, 41, [] { return 0.0; }), "A ");
    EXPECT_EQ(PracticeGroups(1, 1, 41, [] { return 0.99999; }), "- ");
    EXPECT_EQ(PracticeGroups(1, 1, 26, [] { return 0.99999; }), "Z ");
    EXPECT_EQ(PracticeGroups(1, 1, 41, [] { return 26.5 / 41; }), "0 ");
}

TEST(PracticeGroups, NumbersBeyondAllReasonEndWithTheField) {
    for (const double many : {1e9, 1e300}) {
        EXPECT_LE(PracticeGroups(many, many, 41, [] { return 0.5; }).size(), static_cast<std::size_t>(kLongestPage));
        EXPECT_LE(PracticeGroups(many, 0, 41, [] { return 0.5; }).size(), static_cast<std::size_t>(kLongestPage));
    }
}

struct CodePracticeTest : KeyingFixture {
    frmCodePractice& Practice() { return program->keyingPart.practiceForm; }
    CodePractice& Unit() { return program->keyingPart.practice; }

    /// In the open form, which is closed behind the steps.
    void InForm(const std::function<void()>& steps) {
        StartKeying();
        InOpenForm(steps);
    }
    void InOpenForm(const std::function<void()>& steps) {
        pump.OnWait([this, steps] {
            steps();
            for (int tries = 0; Practice().IsLoaded() && tries < 3; ++tries) {
                Practice().RequestClose();
                TheDesk().RunPending();
            }
        });
        Unit().Open();
        EXPECT_FALSE(Practice().IsLoaded());
    }
};

TEST_F(CodePracticeTest, LettersOnlyMakesGroupsOfCapitals) {
    InForm([this] {
        Practice().Text3.SetText("2");
        Practice().Text4.SetText("3");
        Choose(Practice().Option1);
        Click(Practice().Command2);
        const std::string text = Practice().Text1.Text();
        ASSERT_EQ(text.size(), 8U);
        for (std::size_t i = 0; i < text.size(); ++i) {
            EXPECT_EQ(i % 4 == 3, text[i] == ' ') << text;
            EXPECT_TRUE(text[i] == ' ' || (text[i] >= 'A' && text[i] <= 'Z')) << text;
        }
    });
}

TEST_F(CodePracticeTest, CountsThatAreNoNumbersComeBack) {
    InForm([this] {
        Practice().Text3.SetText("many");
        Practice().Text4.SetText("");
        Click(Practice().Command2);
        EXPECT_EQ(Practice().Text3.Text(), "10");
        EXPECT_EQ(Practice().Text4.Text(), "5");
        EXPECT_EQ(Practice().Text1.Text().size(), 60U);
    });
}

TEST_F(CodePracticeTest, TheSameSeedMakesTheSameGroups) {
    InForm([this] {
        Unit().seed = 7;
        Click(Practice().Command2);
        const std::string first = Practice().Text1.Text();
        Click(Practice().Command2);
        EXPECT_EQ(Practice().Text1.Text(), first);
        Unit().seed = 8;
        Click(Practice().Command2);
        EXPECT_NE(Practice().Text1.Text(), first);
    });
}

TEST_F(CodePracticeTest, SendKeysTheTextAndShowsItsPlace) {
    InForm([this] {
        Practice().Text1.SetText("AB");
        Listen();
        Click(Practice().Command3);
        EXPECT_EQ(Keyed(), Elements("AB"));
        EXPECT_EQ(Practice().Text2.Text(), "AB");
        EXPECT_EQ(Practice().Text2.SelStart(), 1);
        EXPECT_EQ(Practice().Text1.SelStart(), 2);
        EXPECT_TRUE(Practice().Text1.HasFocus());
    });
}

TEST_F(CodePracticeTest, TextShortenedDuringASendEndsTheSend) {
    InForm([this] {
        Practice().Text1.SetText("ABCDEF");
        Behind(2, [this] { Practice().Text1.SetText("AB"); });
        Click(Practice().Command3);
        EXPECT_TRUE(Practice().Text2.Text().starts_with("AB"));
        EXPECT_LE(Practice().Text2.Text().size(), 3U);
    });
}

TEST_F(CodePracticeTest, StopEndsTheSendBehindTheCharacter) {
    InForm([this] {
        Practice().Text1.SetText("ABCDEF");
        Behind(3, [this] { TheDesk().PostClick(Practice().Command4, kLeftButton); });
        Click(Practice().Command3);
        EXPECT_LT(Practice().Text2.Text().size(), 5U);
        EXPECT_EQ(Sender().gCWBuffer, "");
    });
}

TEST_F(CodePracticeTest, SecondSendDuringASendDoesNothing) {
    InForm([this] {
        Practice().Text1.SetText("ABCD");
        Behind(2, [this] { TheDesk().PostClick(Practice().Command3, kLeftButton); });
        Listen();
        Click(Practice().Command3);
        EXPECT_EQ(Practice().Text2.Text(), "ABCD");
        EXPECT_EQ(Keyed(), Elements("ABCD"));
    });
}

TEST_F(CodePracticeTest, WithoutAnOutputEverythingRunsAtOnce) {
    InForm([this] {
        Choose(Cw().Option4);
        Practice().Text1.SetText(std::string(10'000, 'E'));
        Listen();
        Click(Practice().Command3);
        EXPECT_EQ(Practice().Text2.Text().size(), 10'000U);
        EXPECT_EQ(clock.TickUs(), from);
    });
}

TEST_F(CodePracticeTest, NothingInTheTextIsAWildcard) {
    InForm([this] {
        Main().txtCall.SetText("W1XX");
        Practice().Text1.SetText("$");
        Listen();
        Click(Practice().Command3);
        EXPECT_EQ(UnitsPassed(), 0);
        EXPECT_EQ(Practice().Text2.Text(), "$");
    });
}

TEST_F(CodePracticeTest, KeysTypedAreSentAndTheFieldStaysEmpty) {
    InForm([this] {
        Focus(Practice().Text5);
        Listen();
        Type("k1");
        EXPECT_EQ(Practice().Text5.Text(), "");
        EXPECT_EQ(Practice().Text2.Text(), "K1");
        EXPECT_EQ(Keyed(), Elements("K1"));
    });
}

TEST_F(CodePracticeTest, KeysTypedFastQueueAndBackspaceTakesTheLastBack) {
    InForm([this] {
        Focus(Practice().Text5);
        Listen();
        Behind(1, [this] {
            Post("bc");
            PostNamed("Backspace");
        });
        Type("a");
        EXPECT_EQ(Practice().Text2.Text(), "AB");
        EXPECT_EQ(Keyed(), Elements("AB"));
    });
}

TEST_F(CodePracticeTest, TextToSendIsTypedInCapitals) {
    InForm([this] {
        Focus(Practice().Text1);
        Type("ab1");
        EXPECT_EQ(Practice().Text1.Text(), "AB1");
    });
}

TEST_F(CodePracticeTest, PasteAndTheTwoClears) {
    clipboard.SetText("from elsewhere");
    InForm([this] {
        Click(Practice().Command1);
        EXPECT_EQ(Practice().Text1.Text(), "from elsewhere");
        Practice().Text2.SetText("SENT");
        Click(Practice().Command6);
        EXPECT_EQ(Practice().Text1.Text(), "");
        EXPECT_EQ(Practice().Text2.Text(), "SENT");
        Click(Practice().Command5);
        EXPECT_EQ(Practice().Text2.Text(), "");
    });
}

TEST_F(CodePracticeTest, SpeedIsThatOfTheMessages) {
    InForm([this] {
        EXPECT_EQ(Practice().Label8.Caption(), "20");
        Click(Practice().Command7);
        EXPECT_EQ(Cw().Text11.Text(), "21");
        EXPECT_EQ(Practice().Label8.Caption(), "21");
        Click(Practice().Command8);
        Click(Practice().Command8);
        EXPECT_EQ(Practice().Label8.Caption(), "19");
    });
}

TEST_F(CodePracticeTest, CloseIsRefusedWhileACharacterIsOnItsWayAndTakesASecondTry) {
    InForm([this] {
        Practice().Text1.SetText("ABCDEF");
        bool stayed = false;
        Behind(3, [this, &stayed] {
            Practice().RequestClose();
            stayed = Practice().IsLoaded();
        });
        Click(Practice().Command3);
        EXPECT_TRUE(stayed);
        EXPECT_LT(Practice().Text2.Text().size(), 5U) << "what waited is not sent any more";
        Practice().RequestClose();
        EXPECT_FALSE(Practice().IsLoaded());
    });
    EXPECT_FALSE(IsKeyDown());
}

TEST_F(CodePracticeTest, OpensFromTheMessagesAndEmptiesTheQueueBehind) {
    StartKeying();
    Cw().Show();
    pump.OnWait([this] {
        EXPECT_TRUE(Practice().IsModal());
        Practice().RequestClose();
    });
    Click(Cw().Command7);
    EXPECT_EQ(Sender().gCWBuffer, "");
}

}  // namespace
}  // namespace tallyhut
