#include "contest/score.h"

#include <gtest/gtest.h>

#include "values/value_error.h"

namespace tallyhut {
namespace {

TEST(Score, IsSectionsTimesContactsTimes2) {
    EXPECT_EQ(Score(0, 0), 0);
    EXPECT_EQ(Score(0, 500), 0);
    EXPECT_EQ(Score(1, 2), 4);
    EXPECT_EQ(Score(83, 11'000), 1'826'000);
}

TEST(Score, ClaimBeyond32BitsIsRefused) {
    EXPECT_EQ(ClaimedScore(11'000, 83), 1'826'000);
    EXPECT_EQ(ClaimedScore(1'073'741'823, 1), 2'147'483'646);
    EXPECT_THROW(ClaimedScore(1'073'741'824, 1), ValueError);
}

}  // namespace
}  // namespace tallyhut
