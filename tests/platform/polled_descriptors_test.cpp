#include "platform/real/polled_descriptors.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <optional>
#include <string>

#include "tests/platform/pipe.h"

namespace tallyhut {
namespace {

struct PolledDescriptorsTest : testing::Test {
    PolledDescriptors descriptors;
    Pipe one;
    Pipe two;
    std::string told;
    std::unique_ptr<DescriptorWatch> onOne = descriptors.Watch(one.ReadEnd(), [this] { told += '1'; });
    std::unique_ptr<DescriptorWatch> onTwo = descriptors.Watch(two.ReadEnd(), [this] { told += '2'; });

    std::string Told() {
        descriptors.Look(0);
        return std::exchange(told, {});
    }
};

TEST_F(PolledDescriptorsTest, TellsWhatHasSomethingToReadAndNothingElse) {
    EXPECT_FALSE(descriptors.Look(0));
    two.Write("x");
    EXPECT_TRUE(descriptors.Look(-1));
    EXPECT_EQ(told, "2");
}

TEST_F(PolledDescriptorsTest, TellsOnceUntilItIsRearmed) {
    one.Write("x");
    EXPECT_EQ(Told(), "1");
    EXPECT_EQ(Told(), "");
    one.Write("y");
    EXPECT_EQ(Told(), "");
    onOne->Rearm();
    onOne->Rearm();
    EXPECT_EQ(Told(), "1");
    one.Read();
    onOne->Rearm();
    EXPECT_EQ(Told(), "");
}

TEST_F(PolledDescriptorsTest, EndOfWhatComesIsSomethingToRead) {
    one.CloseWriteEnd();
    EXPECT_EQ(Told(), "1");
    EXPECT_EQ(one.Read(), "");
}

TEST_F(PolledDescriptorsTest, WatchThatIsGoneIsNotTold) {
    one.Write("x");
    two.Write("x");
    onOne.reset();
    EXPECT_EQ(Told(), "2");
}

TEST_F(PolledDescriptorsTest, MoreThanOneMayWatchADescriptor) {
    const auto also = descriptors.Watch(one.ReadEnd(), [this] { told += '+'; });
    one.Write("x");
    EXPECT_EQ(Told(), "1+");
}

TEST_F(PolledDescriptorsTest, OneThatIsRearmedWhileItIsToldIsToldTheNextTime) {
    std::unique_ptr<DescriptorWatch> eager;
    eager = descriptors.Watch(one.ReadEnd(), [&] {
        told += 'e';
        eager->Rearm();
    });
    one.Write("x");
    EXPECT_EQ(Told(), "1e");
    EXPECT_EQ(Told(), "e");
}

}  // namespace
}  // namespace tallyhut
