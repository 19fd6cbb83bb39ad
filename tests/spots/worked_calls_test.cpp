#include "spots/worked_calls.h"

#include <gtest/gtest.h>

#include "contest/worked_before.h"

namespace tallyhut {
namespace {

void Log(ContactLog& log, const std::string& call) {
    log.Row(++log.gContactCount).Call = call;
}

TEST(WorkedCalls, AnswersAreThoseOfTheLog) {
    ContactLog log;
    for (const char* call : {"W1AW", "K1ABC", "W1AW", "VE3XX"}) {
        Log(log, call);
    }
    WorkedCalls worked;
    const std::vector<std::string_view> asked{"K1ABC", "w1aw", "W1AW", "W1", "K1ABC", ""};
    worked.Learn(log, asked);
    for (const std::string_view call : asked) {
        EXPECT_EQ(worked.Has(call), WorkedBefore(log, call).has_value()) << call;
    }
    EXPECT_FALSE(worked.Has("VE3XX")) << "nobody asked";
}

TEST(WorkedCalls, ChangesOfTheLogAreNoticed) {
    ContactLog log;
    WorkedCalls worked;
    const auto isWorked = [&](std::string_view call) {
        worked.Learn(log, {"K1ABC", "W1AW"});
        return worked.Has(call);
    };
    EXPECT_FALSE(isWorked("W1AW"));
    Log(log, "W1AW");
    EXPECT_TRUE(isWorked("W1AW"));
    log.Row(1).Call = "K1ABC";
    EXPECT_FALSE(isWorked("W1AW"));
    EXPECT_TRUE(isWorked("K1ABC"));
    log.gContactCount = 0;
    EXPECT_FALSE(isWorked("K1ABC"));
}

}  // namespace
}  // namespace tallyhut
