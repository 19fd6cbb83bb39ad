#include "console/text_encoding.h"

#include <gtest/gtest.h>

#include "values/text.h"
#include "values/utf8.h"

namespace tallyhut {
namespace {

TEST(TextEncoding, Latin1BecomesUtf8AndBack) {
    EXPECT_EQ(ToUtf8("J\xF6rg"), "J\xC3\xB6rg");
    EXPECT_EQ(FromUtf8("J\xC3\xB6rg"), "J\xF6rg");
    for (int byte = 1; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(FromUtf8(ToUtf8(text)), text) << byte;
    }
}

TEST(TextEncoding, APathThatIsUtf8IsShownAsItStands) {
    EXPECT_EQ(ToUtf8("/home/j\xC3\xB6rg"), "/home/j\xC3\xB6rg");
}

TEST(TextEncoding, WhatOtherProgramsGetIsNeverTakenForUtf8) {
    EXPECT_EQ(Latin1ToUtf8("j\xC3\xB6rg\r\n"), "j\xC3\x83\xC2\xB6rg\r\n");
}

TEST(TextEncoding, WhatIsBeyondLatin1OrNoUtf8IsDropped) {
    for (const char* text :
         {"a\xE2\x82\xAC", "a\xF0\x9F\x98\x80", "a\xFF", "a\xC3", "a\xC0\x80", "a\xED\xA0\x80", "a\xE2\x82"}) {
        EXPECT_EQ(FromUtf8(text), "a") << text;
    }
}

}  // namespace
}  // namespace tallyhut
