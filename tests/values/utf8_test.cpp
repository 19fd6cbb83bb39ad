#include "values/utf8.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

using std::string_literals::operator""s;

TEST(Utf8, CharactersOfLatin1BecomeTheirBytes) {
    EXPECT_EQ(Latin1Of("Qu\xC3\xA9"
                       "bec"),
              "Qu\xE9"
              "bec");
    EXPECT_EQ(Latin1Of("Quebec"), "Quebec");
}

TEST(Utf8, AMarkAtTheBeginningIsNoText) {
    EXPECT_EQ(Latin1Of("\xEF\xBB\xBF"
                       "Qu\xC3\xA9"
                       "bec"),
              "Qu\xE9"
              "bec");
    EXPECT_EQ(Latin1Of("\xEF\xBB\xBF"
                       "CT"),
              "CT");
    EXPECT_EQ(Latin1Of("CT\xEF\xBB\xBF"), "CT?");
    EXPECT_EQ(Latin1Of("\xEF\xBB\xBF"), "");
}

TEST(Utf8, WhatLatin1DoesNotHoldIsAQuestionMark) {
    EXPECT_EQ(Latin1Of("a\xE2\x82\xAC"
                       "b\xF0\x9F\x98\x80"),
              "a?b?");
}

TEST(Utf8, TextThatIsNoUtf8StandsAsItIs) {
    for (const std::string& text : {"Qu\xE9"
                                    "bec"s,
                                    "\xC3"s, "\xC0\x80"s, "\xED\xA0\x80"s,
                                    "\xFF\xFE"
                                    "C\0T\0"s,
                                    ""s, "\xC3\xA9\xFF"s}) {
        EXPECT_EQ(Latin1Of(text), text);
    }
}

}  // namespace
}  // namespace tallyhut
