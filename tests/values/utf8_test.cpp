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

TEST(Utf8, PlainBytesAreThoseBehindTheMark) {
    std::string room;
    EXPECT_EQ(PlainBytesOf("K1ABC", room), "K1ABC");
    EXPECT_EQ(PlainBytesOf("\xEF\xBB\xBFK1ABC,Qu\xC3\xA9", room), "K1ABC,Qu\xC3\xA9");
    EXPECT_EQ(PlainBytesOf("\xE9K1", room), "\xE9K1");
    EXPECT_EQ(PlainBytesOf("", room), "");
}

TEST(Utf8, PlainBytesOfUtf16AreItsCharacters) {
    std::string room;
    EXPECT_EQ(PlainBytesOf("\xFF\xFEK\0001\0\xE9\0\xAC\x20"s, room), "K1\xE9?");
    EXPECT_EQ(PlainBytesOf("\xFE\xFF\0K\0001\0\xE9\x20\xAC"s, room), "K1\xE9?");
    EXPECT_EQ(PlainBytesOf("\xFF\xFEK\0001"s, room), "K");
    EXPECT_EQ(PlainBytesOf("\xFF\xFE"s, room), "");
}

}  // namespace
}  // namespace tallyhut
