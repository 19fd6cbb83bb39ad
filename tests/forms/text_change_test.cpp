#include "forms/qt/text_change.h"

#include <gtest/gtest.h>

#include <vector>

namespace tallyhut {
namespace {

struct Case {
    QString from;
    QString to;
    TextChange change;
};

TEST(TextChangeTest, OnlyWhatDiffersGoesAndComes) {
    for (const Case& row : std::vector<Case>{{"", "", {0, 0, ""}},
                                             {"", "W", {0, 0, "W"}},
                                             {"W1", "W1X", {2, 0, "X"}},
                                             {"W1X", "W1", {2, 1, ""}},
                                             {"WX", "W1X", {1, 0, "1"}},
                                             {"W1XX", "W1X", {3, 1, ""}},
                                             {"K1AB", "K2AB", {1, 1, "2"}},
                                             {"W1XX", "K9ZO", {0, 4, "K9ZO"}},
                                             {"ABAB", "AB", {2, 2, ""}},
                                             {"same", "same", {4, 0, ""}}}) {
        EXPECT_EQ(ChangeBetween(row.from, row.to), row.change) << row.from.toStdString() << '>' << row.to.toStdString();
    }
}

}  // namespace
}  // namespace tallyhut
