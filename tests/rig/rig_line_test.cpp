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

TEST_F(RigLineTest, SaysAfterThreePollsWithoutAReplyThatTheRadioDoesNotAnswer) {
    StartPolling("Kenwood");
    ReplyAndRead(kReply);
    MissPolls(2);
    EXPECT_EQ(Told(), "14.2000");
    MissPolls(1);
    EXPECT_EQ(Told(), kNoAnswer);
    NextTick();
    ReplyAndRead(kReply);
    EXPECT_EQ(Told(), "14.2000");
}

TEST_F(RigLineTest, ARadioThatNeverAnsweredIsToldTooAndShowsNoOldFrequency) {
    StartPolling("Kenwood");
    ReplyAndRead(kReply);
    Click(Rig().Command2);
    EXPECT_EQ(Told(), "") << "nothing is polled";
    Click(Rig().Command1);
    MissPolls(2);
    EXPECT_EQ(Told(), "");
    MissPolls(1);
    EXPECT_EQ(Told(), kNoAnswer);
}

TEST_F(RigLineTest, GarbageIsNoReply) {
    StartPolling("Kenwood");
    for (int poll = 0; poll < 3; ++poll) {
        ReplyAndRead("garbage;;");
        NextTick();
    }
    EXPECT_EQ(Told(), kNoAnswer);
}

TEST_F(RigLineTest, APulledCableIsNoAnswer) {
    StartPolling("Kenwood");
    ReplyAndRead(kReply);
    Line().Unplug();
    NextTick(4);
    EXPECT_EQ(Told(), kNoAnswer);
}

TEST_F(RigLineTest, AReplyOfARadioThatNobodyCanDecodeIsNotWaitedFor) {
    StartPolling("Other");
    MissPolls(5);
    EXPECT_EQ(Told(), "");
}

TEST_F(RigLineTest, IsEmptyWhenACommandThatFailedHasEndedThePoll) {
    StartPolling("Kenwood");
    ReplyAndRead(kReply);
    Line().Unplug();
    ChangeFrequency(14.1F);
    EXPECT_EQ(Told(), "");
}

}  // namespace
}  // namespace tallyhut
