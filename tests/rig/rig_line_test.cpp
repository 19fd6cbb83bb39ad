#include <gtest/gtest.h>

#include "tests/rig/rig_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kReply = "FA00014200000;MD3;";
constexpr const char* kNoAnswer = "Radio: no answer";

struct RigLineTest : RigFixture {
    std::string Told() { return Main().lblRig.Caption(); }
    /// One poll asks at one tick and reads at the next.
    void MissPolls(int polls) { NextTick(2 * polls); }
};

TEST_F(RigLineTest, SaysNothingWithoutARadio) {
    Start();
    PassTime(10'000);
    EXPECT_EQ(Told(), "");
}

TEST_F(RigLineTest, SaysTheFrequencyOnceItWasDecoded) {
    StartPolling("Kenwood");
    EXPECT_EQ(Told(), "");
    ReplyAndRead(kReply);
    EXPECT_EQ(Told(), "14.2000");
}

TEST_F(RigLineTest, SaysAfterFiveSecondsWithoutAReplyThatTheRadioDoesNotAnswer) {
    StartPolling("Kenwood");
    ReplyAndRead(kReply);
    MissPolls(9);
    EXPECT_EQ(Told(), "14.2000");
    MissPolls(1);
    EXPECT_EQ(Told(), kNoAnswer);
    NextTick();
    ReplyAndRead(kReply);
    EXPECT_EQ(Told(), "14.2000");
}

TEST_F(RigLineTest, ALostRadioIsAnnouncedOnceEachTime) {
    StartPolling("Kenwood");
    std::vector<std::string> announced;
    Main().desk.outlets.announced = [&announced](std::string_view words) { announced.emplace_back(words); };
    ReplyAndRead(kReply);
    MissPolls(9);
    EXPECT_EQ(announced, std::vector<std::string>{});
    MissPolls(5);
    EXPECT_EQ(announced, std::vector<std::string>{kNoAnswer});
    NextTick();
    ReplyAndRead(kReply);
    MissPolls(10);
    EXPECT_EQ(announced, (std::vector<std::string>{kNoAnswer, kNoAnswer}));
    Main().desk.outlets.announced = {};
}

TEST_F(RigLineTest, ARadioThatNeverAnsweredIsToldTooAndShowsNoOldFrequency) {
    StartPolling("Kenwood");
    ReplyAndRead(kReply);
    Click(Rig().Command2);
    EXPECT_EQ(Told(), "") << "nothing is polled";
    Click(Rig().Command1);
    MissPolls(9);
    EXPECT_EQ(Told(), "");
    MissPolls(1);
    EXPECT_EQ(Told(), kNoAnswer);
}

TEST_F(RigLineTest, GarbageIsNoReply) {
    StartPolling("Kenwood");
    for (int poll = 0; poll < 10; ++poll) {
        ReplyAndRead("garbage;;");
        NextTick();
    }
    EXPECT_EQ(Told(), kNoAnswer);
}

TEST_F(RigLineTest, APulledCableIsNoAnswer) {
    StartPolling("Kenwood");
    ReplyAndRead(kReply);
    Line().Unplug();
    LetTimeGoBy(4'999);
    EXPECT_EQ(Told(), "14.2000");
    LetTimeGoBy(1);
    EXPECT_EQ(Told(), kNoAnswer);
}

TEST_F(RigLineTest, AReplyOfARadioThatNobodyCanDecodeIsNotWaitedFor) {
    StartPolling("Other");
    MissPolls(50);
    EXPECT_EQ(Told(), "");
}

TEST_F(RigLineTest, IsEmptyWhenACommandThatCannotBeMadeHasEndedThePoll) {
    StartPolling("Icom");
    ReplyAndRead(HexToBytes("FEFEE064030000201400FD"));
    EXPECT_EQ(Told(), "14.2000");
    AskFrequency(14.1F);
    Rig().txtFreq.SetText("FE FE xx");
    FinishCommands();
    EXPECT_EQ(Told(), "");
}

}  // namespace
}  // namespace tallyhut
