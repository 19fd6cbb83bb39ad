#include "contest/call_order.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallyhut {
namespace {

struct Ordered {
    explicit Ordered(const std::vector<std::string>& calls) {
        for (const std::string& call : calls) {
            rows.emplace_back().Call = call;
        }
        order.Extend(rows);
    }

    /// The calls that begin so, with their rows, "K1A1 K1AB3 ".
    std::string Beginning(std::string_view begin) const { return Text(order.Beginning(rows, begin)); }
    std::string Of(std::string_view call) const { return Text(order.Of(rows, call)); }
    std::string Text(std::span<const CallOrder::Place> places) const {
        std::string text;
        for (const CallOrder::Place& place : places) {
            text += rows[static_cast<std::size_t>(place.row - 1)].Call + ':' + std::to_string(place.row) + ' ';
        }
        return text;
    }

    std::vector<Contact> rows;
    CallOrder order;
};

TEST(CallOrder, CallsThatBeginAlikeStandTogetherTheShorterFirst) {
    const Ordered calls{{"W1AB", "K1A", "W1A", "W2A", "W1", "K1"}};
    EXPECT_EQ(calls.Beginning("W1"), "W1:5 W1A:3 W1AB:1 ");
    EXPECT_EQ(calls.Beginning("W1A"), "W1A:3 W1AB:1 ");
    EXPECT_EQ(calls.Beginning("K"), "K1:6 K1A:2 ");
    EXPECT_EQ(calls.Beginning("N"), "");
    EXPECT_EQ(calls.Beginning("W1ABC"), "");
    EXPECT_EQ(calls.Beginning("").size(), std::string{"K1:6 K1A:2 W1:5 W1A:3 W1AB:1 W2A:4 "}.size());
}

TEST(CallOrder, OfOneCallTheOldestIsFirst) {
    const Ordered calls{{"K2A", "W1XX", "K2A", "", "K2AB", "K2A"}};
    EXPECT_EQ(calls.Of("K2A"), "K2A:1 K2A:3 K2A:6 ");
    EXPECT_EQ(calls.Of(""), ":4 ");
    EXPECT_EQ(calls.Of("K2"), "");
    EXPECT_EQ(calls.Of("k2a"), "");
}

TEST(CallOrder, LongCallsAreToldByAllTheirCharacters) {
    const Ordered calls{{"W1ABCD/KH67", "W1ABCD/K", "W1ABCD/KH6", "W1ABCD/KL7", "W1ABCD/", "W1ABCD/KH6"}};
    EXPECT_EQ(calls.Of("W1ABCD/KH6"), "W1ABCD/KH6:3 W1ABCD/KH6:6 ");
    EXPECT_EQ(calls.Of("W1ABCD/K"), "W1ABCD/K:2 ");
    EXPECT_EQ(calls.Beginning("W1ABCD/KH"), "W1ABCD/KH6:3 W1ABCD/KH6:6 W1ABCD/KH67:1 ");
    EXPECT_EQ(calls.Beginning("W1ABCD/K"), "W1ABCD/K:2 W1ABCD/KH6:3 W1ABCD/KH6:6 W1ABCD/KH67:1 W1ABCD/KL7:4 ");
}

TEST(CallOrder, AnyCharacterHasItsPlace) {
    const Ordered calls{
        {"\xC4"
         "1A",
         "w1a", "W1A", " "}};
    EXPECT_EQ(calls.Beginning("\xC4"),
              "\xC4"
              "1A:1 ");
    EXPECT_EQ(calls.Of("w1a"), "w1a:2 ");
    EXPECT_EQ(calls.Of(" "), " :4 ");
    EXPECT_EQ(calls.Beginning("\xFF"), "");
}

TEST(CallOrder, ARowThatGoesLeavesTheOthersInOrder) {
    Ordered calls{{"W1A", "W1B", "W1A", "W1C"}};
    calls.order.Drop(calls.rows, 1);
    calls.order.CloseUp(1);
    calls.rows.erase(calls.rows.begin());
    EXPECT_EQ(calls.Beginning("W1"), "W1A:2 W1B:1 W1C:3 ");
}

}  // namespace
}  // namespace tallyhut
