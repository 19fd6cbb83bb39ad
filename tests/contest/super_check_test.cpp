#include "contest/super_check.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "values/value_error.h"

namespace tallyhut {
namespace {

using namespace std::string_literals;

ContactLog LogOfCalls(const std::vector<std::string>& calls) {
    ContactLog log;
    for (const std::string& call : calls) {
        Contact contact;
        contact.Call = call;
        log.Add(contact);
    }
    return log;
}

std::string LineOf(std::string_view file, std::string_view typed, const std::vector<std::string>& worked = {}) {
    return SuperCheckLine(ReadSuperCheck(file), typed, LogOfCalls(worked));
}

std::string Calls(std::string_view file) {
    const SuperCheck check = ReadSuperCheck(file);
    std::string calls;
    for (const CallKey call : check.Calls()) {
        calls += CallOfKey(call) + ' ';
    }
    return calls;
}

TEST(SuperCheck, CallsThatBeginWithWhatIsTypedStandFirst) {
    const std::string_view file = "W1XX\nK1W\nAK1W\nK1WA\nWK1\nN0K1W\nK1\nK2W\n";
    EXPECT_EQ(LineOf(file, "K1W"), "K1W K1WA AK1W N0K1W");
    EXPECT_EQ(LineOf(file, "K1"), "K1W K1WA AK1W N0K1W WK1");
    EXPECT_EQ(LineOf(file, "XX"), "W1XX");
}

TEST(SuperCheck, NothingStandsThereForLessThanTwoCharacters) {
    for (const std::string_view typed : {"", "K", "1"}) {
        EXPECT_EQ(LineOf("K1W\n", typed), "") << typed;
    }
}

TEST(SuperCheck, WhatNoCallHoldsShowsNothing) {
    for (const std::string_view typed : {"ZZ", "K1WW", "1K", "k1", "K1 ", "\xC4K1", "K1WK1WK1WK1WK1W", "-K1W"}) {
        EXPECT_EQ(LineOf("K1W\nK1A\n", typed), "") << typed;
    }
    EXPECT_EQ(SuperCheckLine({}, "K1", {}), "");
}

TEST(SuperCheck, ACallThatHoldsItTwiceStandsThereOnce) {
    EXPECT_EQ(LineOf("AK1K1\nBK1/K1\n", "K1"), "AK1K1 BK1/K1");
}

TEST(SuperCheck, WorkedCallsStandInBrackets) {
    EXPECT_EQ(LineOf("K1A\nK1B\nK1C\nAK1\n", "K1", {"K1B", "AK1", "K1", "K1AA"}), "K1A [K1B] K1C [AK1]");
}

TEST(SuperCheck, TheLineHoldsWholeCallsAndAtMost125Characters) {
    std::string file;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        file += std::string{"K1"} + letter + '\n' + "AK1" + letter + '\n';
    }
    const std::string line = LineOf(file, "K1");
    EXPECT_EQ(line.size(), 26 * 4 - 1 + 4 * 5);
    EXPECT_TRUE(line.ends_with("K1Z AK1A AK1B AK1C AK1D"));
    const std::string worked = LineOf(file, "K1", {"K1A"});
    EXPECT_EQ(worked.size(), 125U);
    EXPECT_TRUE(worked.starts_with("[K1A] K1B"));
    EXPECT_TRUE(LineOf(file, "K1", {"K1A", "K1B"}).ends_with(" AK1C"));
}

TEST(SuperCheck, EveryCallIsFoundByEachOfItsParts) {
    const std::vector<std::string> calls{"K1A", "W1AW", "VE3/K1ABC/P", "4U1WRC", "ZZ9ZZ", "N0AX", "AA0AA"};
    std::string file;
    for (const std::string& call : calls) {
        file += call + '\n';
    }
    const SuperCheck check = ReadSuperCheck(file);
    for (const std::string& call : calls) {
        for (std::size_t at = 0; at + 1 < call.size(); ++at) {
            for (std::size_t length = 2; at + length <= call.size(); ++length) {
                const auto found = check.Holding(call.substr(at, length), 42);
                EXPECT_EQ(std::ranges::count(found, call), 1) << call.substr(at, length);
            }
        }
    }
}

TEST(SuperCheck, AListIsReadLineByLine) {
    EXPECT_EQ(Calls("# VER20261101\r\nVER20261101\r\nK1A\r\n\r\n w1aw "
                    "\r\n#K2A\r\nK1A\r\nNOCALL\r\n73\r\nTHIS1ISTOOLONG\r\nK1\r\nVE3XYZ"),
              "K1A VE3XYZ W1AW ");
    EXPECT_EQ(Calls("\xEF\xBB\xBFK1A\nW1AW\n"), "K1A W1AW ");
    EXPECT_EQ(Calls("\xFF\xFEK\0001\0A\0\n\0W\0001\0A\0W\0"s), "K1A W1AW ");
}

TEST(SuperCheck, AFileWithoutACallIsRefused) {
    for (const std::string& file : {""s, "# VER20261101\n"s, "VER20261101"s, "NOCALL\n73\n"s,
                                    std::string(100'000, '\0'), std::string(100'000, 'K'), "\xFF\xFE"s}) {
        try {
            ReadSuperCheck(file);
            ADD_FAILURE() << file.substr(0, 20);
        } catch (const ValueError& damage) {
            EXPECT_STREQ(damage.what(), "It is no list of calls: no line of it holds a call.");
        }
    }
}

}  // namespace
}  // namespace tallyhut
