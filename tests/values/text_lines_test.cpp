#include "values/text_lines.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyhut {
namespace {

std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> taken;
    for (TextLines lines{text}; !lines.AtEnd();) {
        taken.emplace_back(lines.Take());
    }
    return taken;
}

TEST(TextLines, EndAsAnyEditorEndsThem) {
    const std::vector<std::string> expected{"K1ABC", "", "W2 B"};
    for (const std::string_view text :
         {"K1ABC\r\n\r\n W2 B\t\r\n", "K1ABC\n\nW2 B", "K1ABC\r\rW2 B \r", "\tK1ABC \n \nW2 B\r\n"}) {
        EXPECT_EQ(LinesOf(text), expected) << text;
    }
}

TEST(TextLines, EveryKindOfEndEndsALineAndEachIsCounted) {
    std::string all;
    for (TextLines lines{"a\r\nb\nc\r\rd\n\re\r\n"}; !lines.AtEnd();) {
        all += std::to_string(lines.At()) + ':';
        all += lines.Take();
        all += std::to_string(lines.Number()) + ' ';
    }
    EXPECT_EQ(all, "0:a1 3:b2 5:c3 7:4 8:d5 10:6 11:e7 ");
}

TEST(TextLines, OfNoTextThereIsNone) {
    EXPECT_EQ(LinesOf(""), std::vector<std::string>{});
    EXPECT_EQ(LinesOf("\n"), std::vector<std::string>{""});
}

TEST(TextLines, AnEndlessLineIsOne) {
    EXPECT_EQ(LinesOf(std::string(100'000, 'A')).size(), 1U);
    EXPECT_EQ(LinesOf(std::string(100'000, '\0')).size(), 1U);
}

TEST(TextLines, BareIsWithoutWhatIsAround) {
    EXPECT_EQ(Bare(" \t a b\t\r\n"), "a b");
    EXPECT_EQ(Bare(" \t\r\n "), "");
    EXPECT_EQ(Bare(""), "");
}

}  // namespace
}  // namespace tallyhut
