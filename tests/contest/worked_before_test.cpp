#include "contest/worked_before.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyhut {
namespace {

ContactLog LogOfCalls(const std::vector<std::string>& calls) {
    ContactLog log;
    for (const std::string& call : calls) {
        Contact contact;
        contact.Call = call;
        log.Add(contact);
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

TEST(PartialCalls, OldestOfManyAreListed) {
    std::vector<std::string> calls;
    for (int n = 0; n < 1'000; ++n) {
        calls.push_back((n % 2 == 0 ? "W1" : "K1") + std::to_string(n));
    }
    const std::string list = PartialCalls(LogOfCalls(calls), "K1");
    EXPECT_TRUE(list.ends_with("K15 K13 K11 ")) << list;
    EXPECT_GT(list.size(), 125U);
    EXPECT_LE(list.size() - list.find(' ') - 1, 125U);
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
