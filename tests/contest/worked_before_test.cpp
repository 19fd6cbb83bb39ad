#include "contest/worked_before.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyhut {
namespace {

ContactLog LogOfCalls(const std::vector<std::string>& calls) {
    ContactLog log;
    for (const std::string& call : calls) {
        log.Row(++log.gContactCount).Call = call;
    }
    return log;
}

TEST(WorkedBefore, AnswerIsTheFirstRowOfTheCallOrNone) {
    const ContactLog log = LogOfCalls({"W1XX", "K2A", "W1XX", ""});
    EXPECT_EQ(WorkedBefore(log, "W1XX"), 1);
    EXPECT_EQ(WorkedBefore(log, "K2A"), 2);
    EXPECT_EQ(WorkedBefore(log, ""), 4);
    for (const char* call : {"W1X", "W1XXX", "w1xx", " W1XX", "W1XX ", "K2"}) {
        EXPECT_FALSE(WorkedBefore(log, call)) << call;
    }
    EXPECT_FALSE(WorkedBefore({}, ""));
}

TEST(WorkedBefore, RowBehindTheLastContactDoesNotCount) {
    ContactLog log = LogOfCalls({"W1XX", "K2A"});
    log.gContactCount = 1;
    EXPECT_FALSE(WorkedBefore(log, "K2A"));
}

TEST(WorkedBefore, AmongAFewCallsEachIsToldToTheLetter) {
    const ContactLog log = LogOfCalls({"W1XX", "K2A", "W1XX", "", "N0A"});
    EXPECT_EQ(WorkedAmong(log, {"K2A", "W1X", "W1XX", "N0B", "", "N0A", "K2"}),
              (std::vector<bool>{true, false, true, false, true, true, false}));
    EXPECT_EQ(WorkedAmong(log, {}), std::vector<bool>{});
    EXPECT_EQ(WorkedAmong({}, {"K2A", ""}), (std::vector<bool>{false, false}));
}

TEST(PartialCalls, NewestStandsFirst) {
    EXPECT_EQ(PartialCalls(LogOfCalls({"W1A", "K1A", "W1B", "W2"}), "W1"), "W1B W1A ");
    EXPECT_EQ(PartialCalls(LogOfCalls({"W1A"}), "W2"), "");
    EXPECT_EQ(PartialCalls(LogOfCalls({"W1A"}), "W1A"), "W1A ");
    EXPECT_EQ(PartialCalls(LogOfCalls({"W1A"}), "W1AB"), "");
}

TEST(PartialCalls, ListEndsWithTheCallThatMakesItTooLong) {
    const std::vector<std::string> calls(40, "W1XX");
    EXPECT_EQ(PartialCalls(LogOfCalls(calls), "W").size(), 130U);  // 125 are not yet too many
}

TEST(CallAreaDigit, IsTheSecondOrThirdCharacter) {
    for (const char* call : {"W1X", "VE3", "K/1", "9A1", "A1B"}) {
        EXPECT_TRUE(HasCallAreaDigit(call)) << call;
    }
    for (const char* call : {"ABC", "1AB", "W.X", "W:X"}) {
        EXPECT_FALSE(HasCallAreaDigit(call)) << call;
    }
}

}  // namespace
}  // namespace tallyhut
