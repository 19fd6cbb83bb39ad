#include <gtest/gtest.h>

#include "platform/sim/keyring.h"

namespace tallyhut {
namespace {

using Kind = KeyringAnswer::Kind;

struct SimKeyringTest : testing::Test {
    sim::Clock clock{DateTime{}};
    sim::EventPump pump{clock};
    sim::Keyring keyring{pump};

    bool HasSomething() const { return pump.readable.contains(keyring.EventDescriptor()); }
};

TEST_F(SimKeyringTest, GivesBackWhatItKeepsByItsPlace) {
    keyring.Keep("one:1", "hush");
    keyring.Fetch("one:1");
    keyring.Fetch("two:2");
    EXPECT_TRUE(HasSomething());
    EXPECT_EQ(keyring.Take(), (KeyringAnswer{.kind = Kind::Secret, .place = "one:1", .text = "hush"}));
    EXPECT_EQ(keyring.Take(), (KeyringAnswer{.kind = Kind::Secret, .place = "two:2"}));
    EXPECT_FALSE(HasSomething());
    EXPECT_EQ(keyring.Take(), KeyringAnswer{});
    keyring.Forget("one:1");
    EXPECT_TRUE(keyring.kept.empty());
}

TEST_F(SimKeyringTest, SlowOneAnswersWhenItIsUnlocked) {
    keyring.isSlow = true;
    keyring.Look();
    EXPECT_FALSE(HasSomething());
    EXPECT_EQ(keyring.Take(), KeyringAnswer{});
    keyring.Unlock();
    EXPECT_TRUE(HasSomething());
    EXPECT_EQ(keyring.Take().kind, Kind::There);
}

TEST_F(SimKeyringTest, AbsentOneAndOneThatRefusesSayWhy) {
    keyring.refusal = "No.";
    keyring.Look();
    keyring.Keep("one:1", "hush");
    EXPECT_EQ(keyring.Take().kind, Kind::There);
    EXPECT_EQ(keyring.Take(), (KeyringAnswer{.kind = Kind::Failed, .place = "one:1", .text = "No."}));
    EXPECT_TRUE(keyring.kept.empty());
    keyring.absence = "There is none.";
    keyring.Look();
    keyring.Fetch("one:1");
    EXPECT_EQ(keyring.Take(), (KeyringAnswer{.kind = Kind::Absent, .text = "There is none."}));
    EXPECT_EQ(keyring.Take().kind, Kind::Failed);
}

}  // namespace
}  // namespace tallyhut
