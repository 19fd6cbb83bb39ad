#include "values/secret.h"

#include <gtest/gtest.h>

#include <utility>

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

TEST(Secrets, TextThatGrowsLeavesNothingWhereItWas) {
    std::string text = "a text that is too long to lie in the object";
    text.shrink_to_fit();
    std::string whole = text;
    for (int i = 0; i < 100; ++i) {
        AppendSecret(text, "more");
        whole += "more";
    }
    EXPECT_EQ(text, whole);
    std::string brief = "hush";
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the bytes of the object itself
    const std::string_view object{reinterpret_cast<const char*>(&brief), sizeof brief};
    ASSERT_NE(object.find("hush"), std::string_view::npos);
    AppendSecret(brief, std::string(100, 'x'));
    EXPECT_EQ(brief, "hush" + std::string(100, 'x'));
    EXPECT_EQ(object.find("ush"), std::string_view::npos);
}

TEST(Secrets, TextThatIsTakenOverIsLeftNowhere) {
    std::string given = "hush";
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the bytes of the object itself
    const std::string_view object{reinterpret_cast<const char*>(&given), sizeof given};
    ASSERT_NE(object.find("hush"), std::string_view::npos);
    const Secret secret{std::move(given)};
    EXPECT_EQ(secret.text, "hush");
    EXPECT_EQ(object.find("ush"), std::string_view::npos);
}

}  // namespace
}  // namespace tallyhut
