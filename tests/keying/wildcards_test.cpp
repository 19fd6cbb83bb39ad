#include "keying/wildcards.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

struct Case {
    std::string_view message;
    MessageData data;
    std::string_view sent;
};

TEST(Wildcards, StandForTheContactsData) {
    const Case cases[] = {
        {"CQ $ *", {"W9XYZ ", " 12", "5NN"}, "CQ W9XYZ 5NN"},
        {"$ #", {"", " 12", "5NN"}, " 12"},
        {"# $ #", {"K1A", " 137", "5NN"}, "137 K1A 137"},
        {"TU", {"K1A", "1", "5NN"}, "TU"},
        {"", {"K1A", "1", "5NN"}, ""},
        {"$$", {"K1A", "1", "5NN"}, "K1AK1A"},
        // Of two side by side with nothing to put in the second stays.
        {"$$", {"", "1", "5NN"}, "$"},
        {"$$$", {"", "1", "5NN"}, "$"},
        {"$$$$", {"", "1", "5NN"}, "$$"},
        {"##A", {"K1A", " ", "5NN"}, "#A"},
        {"**", {"K1A", "1", ""}, "*"},
        {"$", {"", "1", "5NN"}, ""},
        {"$A$", {"", "1", "5NN"}, "A"},
        {"$#*", {"", "", ""}, ""},
        // What looks like one inside of the data is none.
        {"$ # *", {"K$1#*A", "1$2", "5*9"}, "K1A 12 59"},
        {"$", {"$", "1", "5NN"}, ""},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(ReplaceWildcards(one.message, one.data), one.sent) << one.message << " with " << one.data.call;
    }
}

TEST(Wildcards, PassesEndWhateverTheDataHold) {
    const std::string marks(10'000, '$');
    EXPECT_EQ(ReplaceWildcards(marks, {.call = "$$$", .number = "#", .report = "*"}), std::string(5'000, '$'));
    EXPECT_EQ(ReplaceWildcards(marks, {.call = "$A", .number = "", .report = ""}), std::string(10'000, 'A'));
}

TEST(Wildcards, EveryByteOfAMessageIsKept) {
    std::string message;
    for (int code = 0; code <= 0xFF; ++code) {
        message += static_cast<char>(code);
    }
    std::string expected = message;
    expected.replace(expected.find('$'), 1, "D");
    expected.replace(expected.find('#'), 1, "N");
    expected.replace(expected.find('*'), 1, "R");
    EXPECT_EQ(ReplaceWildcards(message, {.call = "D", .number = "N", .report = "R"}), expected);
}

TEST(Wildcards, ReportIsAlwaysFiveNineNine) {
    EXPECT_EQ(SentReport(""), "5NN");
    EXPECT_EQ(SentReport("599"), "5NN");
    EXPECT_EQ(SentReport("5NN"), "5NN");
}

}  // namespace
}  // namespace tallyhut
