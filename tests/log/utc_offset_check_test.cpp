#include "log/utc_offset_check.h"

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

/// The whole prompt; the times are those of the fixture's clock.
std::string PromptLine(const std::string& systemTime, const std::string& current, const std::string& recommended) {
    return "input \"Update the Local Time / UTC Offset?\" \"Would you like to adjust the UTC offset for your local "
           "time setting?\r\n\r\nCurrent System Time: " +
           systemTime + "\r\n\r\nCurrent Local Time: 21:04\r\n\r\nCurrent Offset: " + current +
           "\r\n\r\nRecommended Offset: " + recommended +
           "\r\n\r\nPlease click OK to accept the recommended change or Cancel to keep the current setting.\" \"" +
           recommended + '"';
}

struct UtcOffsetCheckTest : ProgramFixture {
    /// A program that runs on a machine whose offset is the stored one; then either changes.
    void StartAt(float offset) {
        stored.gUtcOffset = offset;
        clock.minutesToUtc = static_cast<int>(offset * 60);
        Start();
    }
    float OffsetOnDisk() const {
        Preferences read;
        ReadPreferences(files.contents.at(kPreferencesPath), read);
        return read.gUtcOffset;
    }
    void Check() { program->utcOffset.CheckUtcOffset(); }
};

TEST_F(UtcOffsetCheckTest, MachineThatAgreesAsksNothing) {
    StartAt(5);
    Check();
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{});
    EXPECT_EQ(Operations(), 0);
}

TEST_F(UtcOffsetCheckTest, MachineThatAgreesAsksNothingAtTheStart) {
    stored.gUtcOffset = 5;
    clock.minutesToUtc = 300;
    int inputs = 0;
    dialogs.onShow = [&] { inputs += dialogs.boxes.back().starts_with("input") ? 1 : 0; };
    Start();
    EXPECT_EQ(inputs, 0);
}

TEST_F(UtcOffsetCheckTest, MachineAheadOfUtcIsOfferedWithTheWholePrompt) {
    StartAt(5);
    clock.minutesToUtc = -210;
    Check();
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{PromptLine("17:34", "5", "-3.5")});
}

TEST_F(UtcOffsetCheckTest, PromptComesBeforeTheStationAtTheStart) {
    stored.gUtcOffset = 5;
    clock.minutesToUtc = 360;
    dialogs.inputs.push_back("6");
    std::vector<std::string> shown;
    bool stationWaits = false;
    dialogs.onShow = [&] {
        shown.push_back(dialogs.boxes.back());
        stationWaits = stationWaits || (shown.size() == 1 && program->stationForm.IsVisible());
    };
    Start();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0], PromptLine("03:04", "5", "6"));
    EXPECT_FALSE(stationWaits);
    EXPECT_TRUE(shown[1].starts_with("message \"Open existing log?\"")) << shown[1];
    EXPECT_EQ(program->preferences.gUtcOffset, 6);
    EXPECT_EQ(OffsetOnDisk(), 6);
}

TEST_F(UtcOffsetCheckTest, AnyNumberTypedIsStoredAndSaved) {
    struct Case {
        const char* typed;
        float offset;
    };
    for (const Case& one : {Case{"6", 6}, Case{"-3.5", -3.5F}, Case{" 4 ", 4}, Case{"0", 0}}) {
        StartAt(5);
        clock.minutesToUtc = 360;
        dialogs.inputs.push_back(one.typed);
        Check();
        EXPECT_EQ(program->preferences.gUtcOffset, one.offset) << one.typed;
        EXPECT_EQ(OffsetOnDisk(), one.offset) << one.typed;
        EXPECT_EQ(Operations(), 1) << one.typed;
    }
}

TEST_F(UtcOffsetCheckTest, CancelAndTextsKeepTheOldOffset) {
    for (const char* typed : {"", " ", "abc", "five", "6h", "--6"}) {
        StartAt(5);
        clock.minutesToUtc = 360;
        dialogs.inputs.push_back(typed);
        Check();
        EXPECT_EQ(program->preferences.gUtcOffset, 5) << typed;
        EXPECT_EQ(Operations(), 0) << typed;
        EXPECT_EQ(dialogs.boxes.size(), 1U) << "no second box: " << typed;
    }
}

TEST_F(UtcOffsetCheckTest, AnotherOffsetThanTheRecommendedOneIsAskedForAgain) {
    StartAt(5);
    clock.minutesToUtc = 360;
    dialogs.inputs = {"4", ""};
    Check();
    Check();
    EXPECT_EQ(dialogs.boxes, (std::vector<std::string>{PromptLine("03:04", "5", "6"), PromptLine("03:04", "4", "6")}));
}

TEST_F(UtcOffsetCheckTest, OffsetThatCannotBeSavedIsToldAndEndsTheQuestionAlone) {
    StartAt(5);
    clock.minutesToUtc = 360;
    dialogs.inputs.push_back("6");
    files.FailAt(1, "No space left on device");
    Check();
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"Error.\" \"/contest/nspref.txt: No space left on device\" OK Exclamation");
    EXPECT_EQ(OffsetOnDisk(), 5);
}

TEST(RecommendedOffset, IsTheHoursToUtcWithTwoDecimals) {
    struct Case {
        int minutes;
        float hours;
    };
    for (const Case& one : {Case{0, 0.0F}, Case{300, 5.0F}, Case{-210, -3.5F}, Case{-345, -5.75F}, Case{20, 0.33F},
                            Case{-40, -0.67F}, Case{50, 0.83F}, Case{-840, -14.0F}}) {
        const DateTime local{2026, 12, 31, 21, 4, 33};  // UTC may be in the next year
        EXPECT_EQ(RecommendedOffset(local, AddMinutes(local, one.minutes)), one.hours) << one.minutes;
    }
}

TEST(RecommendedOffset, LeavesSecondsOut) {
    const DateTime local{2026, 11, 7, 21, 4, 33};
    EXPECT_EQ(RecommendedOffset(local, {2026, 11, 8, 2, 4, 34}), 5);
    EXPECT_EQ(RecommendedOffset(local, {2026, 11, 8, 2, 5, 32}), 5);
}

TEST_F(UtcOffsetCheckTest, StoredOffsetOfTwoDecimalsAgreesWithTheMachine) {
    stored.gUtcOffset = 0.33F;
    clock.minutesToUtc = 20;
    Start();
    Check();
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{});
}

}  // namespace
}  // namespace tallyhut
