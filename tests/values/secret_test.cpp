#include "values/secret.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

TEST(Secrets, OverwritingLeavesZerosFromThereOnAndTheMemoryInItsPlace) {
    std::string text = "a text that is too long to lie in the object";
    const char* memory = text.data();
    const std::size_t room = text.capacity();
    OverwriteFrom(text, 6);
    EXPECT_EQ(text, "a text");
    EXPECT_EQ(text.data(), memory);
    EXPECT_EQ(text.capacity(), room);
    text.resize(room);
    EXPECT_EQ(text.find_first_not_of('\0', 6), std::string::npos);
}

TEST(Secrets, OverwritingBehindATextLeavesItAsItIs) {
    std::string text = "a text that is too long to lie in the object";
    const std::string whole = text;
    OverwriteFrom(text, text.size());
    EXPECT_EQ(text, whole);
}

}  // namespace
}  // namespace tallyhut
