#include "console/command_words.h"

#include <gtest/gtest.h>

#include "console/console_error.h"

namespace tallyhut {
namespace {

TEST(CommandWords, AreSeparatedByBlanks) {
    CommandWords words{"  click  cmdClear\tleft "};
    EXPECT_EQ(words.Take("word").text, "click");
    EXPECT_EQ(words.Take("word").text, "cmdClear");
    EXPECT_EQ(words.Take("word").text, "left");
    EXPECT_TRUE(words.AtEnd());
}

TEST(CommandWords, AJsonStringIsOneWordWithItsEscapes) {
    CommandWords words{R"(type "a \"b\" \u00e9 c")"};
    EXPECT_FALSE(words.Take("word").quoted);
    const CommandWord& text = words.Take("word");
    EXPECT_TRUE(text.quoted);
    EXPECT_EQ(text.text, "a \"b\" \xC3\xA9 c");
}

TEST(CommandWords, RefusesWhatIsNoJsonString) {
    for (const char* line : {R"(type "abc)", R"(type "a\)", R"(type "\x")", "type \"\x01\""}) {
        EXPECT_THROW(CommandWords{line}, ConsoleError) << line;
    }
}

TEST(CommandWords, SayWhichWordIsMissing) {
    CommandWords words{""};
    try {
        words.Take("target");
        FAIL() << "nothing to take";
    } catch (const ConsoleError& error) {
        EXPECT_STREQ(error.what(), "target is missing");
    }
}

TEST(CommandWords, RefuseTextsThatAreNoWholeNumber) {
    for (const char* text : {"x", "1.5", "", "99999999999", "1e99"}) {
        CommandWords words{std::string{"\""} + text + '"'};
        EXPECT_THROW(words.TakeNumber("row"), ConsoleError) << text;
    }
    CommandWords words{"-3"};
    EXPECT_EQ(words.TakeNumber("row"), -3);
}

TEST(CommandWords, RestIsTheLineBehindTheWordsTaken) {
    CommandWords words{R"(at 100 type "a  b")"};
    words.Take("command");
    words.TakeNumber("milliseconds");
    EXPECT_EQ(words.Rest(), R"( type "a  b")");
}

}  // namespace
}  // namespace tallyhut
