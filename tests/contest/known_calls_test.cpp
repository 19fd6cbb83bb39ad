#include "contest/known_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tallyhut {
namespace {

KnownCalls Known(const std::vector<std::string>& calls) {
    std::vector<CallKey> keys;
    for (const std::string& call : calls) {
        keys.push_back(KeyOfCall(call).value());
    }
    return KnownCalls{std::move(keys)};
}

std::string Near(const KnownCalls& known, std::string_view call) {
    return known.OneLetterAway(call).value_or("none");
}

TEST(CallKey, EveryCallComesBackFromItsKey) {
    for (const std::string call : {"W", "W1XX", "VE3/K1ABC/P", "ZZZZZZZZZZZZ", "////////////", "0", "9A1A"}) {
        ASSERT_TRUE(KeyOfCall(call)) << call;
        EXPECT_EQ(CallOfKey(*KeyOfCall(call)), call);
    }
}

TEST(CallKey, WhatNoCallIsHasNone) {
    for (const std::string_view text : {"", "w1xx", "W1 XX", "W1-X", "W1:X", "W1@X", "W1[X",
                                        "\xD6"
                                        "E1A",
                                        "VE3/K1ABC/QRP"}) {
        EXPECT_FALSE(KeyOfCall(text)) << text;
    }
}

TEST(CallKey, KeysHaveTheOrderOfTheTexts) {
    const std::vector<std::string> calls{"/",  "0A",           "1",  "9Z",   "A",     "A/",
                                         "A0", "A00000000000", "AA", "W1XX", "W1XXX", "ZZZZZZZZZZZZ"};
    ASSERT_TRUE(std::ranges::is_sorted(calls));
    for (std::size_t i = 1; i < calls.size(); ++i) {
        EXPECT_LT(KeyOfCall(calls[i - 1]), KeyOfCall(calls[i])) << calls[i];
    }
}

TEST(KnownCalls, ACallIsKnownToTheLetter) {
    const KnownCalls known = Known({"W1XX", "K2A", "VE3/K1ABC/P", "K2A"});
    for (const std::string_view call : {"W1XX", "K2A", "VE3/K1ABC/P"}) {
        EXPECT_TRUE(known.Knows(call)) << call;
    }
    for (const std::string_view call : {"W1X", "W1XXX", "w1xx", "", "K2B", "VE3/K1ABC/PP"}) {
        EXPECT_FALSE(known.Knows(call)) << call;
    }
}

TEST(KnownCalls, WithoutCallsNothingIsKnownAndNothingNear) {
    const KnownCalls none{{}};
    EXPECT_TRUE(none.IsEmpty());
    EXPECT_FALSE(none.Knows("W1XX"));
    EXPECT_EQ(Near(none, "W1XX"), "none");
}

TEST(KnownCalls, OneLetterReplacedSwappedMissingOrAddedIsTold) {
    const KnownCalls known = Known({"W1ABC", "ZZZZZZZZZZZZ"});
    for (const std::string_view call : {"K1ABC", "W2ABC", "W1/BC", "W1ABZ", "1WABC", "WA1BC", "W1ACB", "1ABC", "W1BC",
                                        "W1AB", "0W1ABC", "W1ABCZ", "W1AABC", "WW1ABC"}) {
        EXPECT_EQ(Near(known, call), "W1ABC") << call;
    }
    for (const std::string_view call : {"W1ABC", "W1A", "K2ABC", "1WACB", "W1CBA", "W1ABCDE", "KW1ABD", "", "w1abd"}) {
        EXPECT_EQ(Near(known, call), "none") << call;
    }
    for (const std::string_view call : {"ZZZZZZZZZZZ", "ZZZZZZZZZZZA", "AZZZZZZZZZZZ"}) {
        EXPECT_EQ(Near(known, call), "ZZZZZZZZZZZZ") << call;
    }
}

TEST(KnownCalls, OfSeveralTheOneWithALetterReplacedIsTold) {
    EXPECT_EQ(Near(Known({"W1AB", "W1ABCD", "W1ACB", "W1AXC"}), "W1ABC"), "W1AXC");
    EXPECT_EQ(Near(Known({"W1AB", "W1ABCD", "W1ACB"}), "W1ABC"), "W1ACB");
    EXPECT_EQ(Near(Known({"W1AB", "W1ABCD"}), "W1ABC"), "W1ABCD");
    EXPECT_EQ(Near(Known({"W1AB"}), "W1ABC"), "W1AB");
}

/// Differs by one step of the four, found by trying each.
bool IsOneAway(std::string call, const std::string& other) {
    if (call.size() == other.size()) {
        const std::size_t at = static_cast<std::size_t>(std::ranges::mismatch(call, other).in1 - call.begin());
        if (at == call.size()) {
            return false;
        }
        std::string swapped = call;
        if (at + 1 < call.size()) {
            std::swap(swapped[at], swapped[at + 1]);
        }
        call[at] = other[at];
        return call == other || swapped == other;
    }
    const std::string& longer = call.size() > other.size() ? call : other;
    const std::string& shorter = call.size() > other.size() ? other : call;
    for (std::size_t i = 0; i < longer.size(); ++i) {
        if (longer.size() == shorter.size() + 1 && longer.substr(0, i) + longer.substr(i + 1) == shorter) {
            return true;
        }
    }
    return false;
}

TEST(KnownCalls, AmongManyCallsEveryAnswerIsOneLetterAwayAndNoneIsMissed) {
    const std::string letters = "/0129AKWZ";
    std::set<std::string> calls;
    std::uint32_t chance = 1;
    const auto next = [&chance](std::size_t limit) {
        chance = chance * 1'664'525 + 1'013'904'223;
        return chance / 65'536 % limit;
    };
    const auto anyCall = [&] {
        std::string call;
        for (std::size_t length = 3 + next(3); call.size() < length;) {
            call += letters.at(next(letters.size()));
        }
        return call;
    };
    while (calls.size() < 500) {
        calls.insert(anyCall());
    }
    const KnownCalls known = Known({calls.begin(), calls.end()});
    for (int i = 0; i < 2'000; ++i) {
        const std::string call = anyCall();
        const auto near = known.OneLetterAway(call);
        if (near) {
            EXPECT_TRUE(calls.contains(*near) && IsOneAway(call, *near)) << call << ' ' << *near;
        } else {
            EXPECT_TRUE(calls.contains(call) ||
                        std::ranges::none_of(calls, [&](const auto& other) { return IsOneAway(call, other); }))
                << call;
        }
    }
}

}  // namespace
}  // namespace tallyhut
