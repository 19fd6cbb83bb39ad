#include "reports/column_writer.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

TEST(ColumnWriter, FillsTheGapBeforeAColumnWithBlanks) {
    EXPECT_EQ(ColumnWriter{}.At(3, "ab").At(7, "c").EndLine().Lines(), (Lines{"  ab  c"}));
}

TEST(ColumnWriter, TextRightBeforeAColumnLeavesNoGap) {
    EXPECT_EQ(ColumnWriter{}.Text("ab").At(3, "c").EndLine().Lines(), (Lines{"abc"}));
}

TEST(ColumnWriter, ColumnThatTheLineHasPassedIsThatColumnOfTheNextLine) {
    EXPECT_EQ(ColumnWriter{}.Text("abc").At(3, "d").EndLine().Lines(), (Lines{"abc", "  d"}));
    EXPECT_EQ(ColumnWriter{}.Text("abc").At(1, "d").EndLine().Lines(), (Lines{"abc", "d"}));
}

TEST(ColumnWriter, ColumnBeforeTheFirstIsTheFirst) {
    EXPECT_EQ(ColumnWriter{}.At(-4, "a").EndLine().Lines(), (Lines{"a"}));
    EXPECT_EQ(ColumnWriter{}.EndingAt(3, "abcde").EndLine().Lines(), (Lines{"abcde"}));
}

TEST(ColumnWriter, RightAlignedTextEndsAtItsColumn) {
    EXPECT_EQ(ColumnWriter{}.Text("a").EndingAt(6, "bc").EndLine().Lines(), (Lines{"a   bc"}));
}

TEST(ColumnWriter, EmptyTextAtAColumnStillMovesThere) {
    EXPECT_EQ(ColumnWriter{}.At(3, "").EndLine().Lines(), (Lines{"  "}));
}

TEST(ColumnWriter, FileLinesEndWithCarriageReturnAndLineFeed) {
    EXPECT_EQ(FileText({"a", "", "b"}), "a\r\n\r\nb\r\n");
    EXPECT_EQ(FileText({}), "");
}

}  // namespace
}  // namespace tallyhut
