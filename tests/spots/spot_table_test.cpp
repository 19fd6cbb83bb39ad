#include "spots/spot_table.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace tallyhut {
namespace {

void Push(SpotTable& table, const std::string& call, const std::string& text = "") {
    table.Shift();
    table.Newest().SpotCall = call;
    table.Newest().SpotText = text;
}

TEST(SpotTable, NewestPostStandsInRow49) {
    SpotTable table;
    Push(table, "K1AA");
    Push(table, "K2AA");
    EXPECT_EQ(table.Row(49).SpotCall, "K2AA");
    EXPECT_EQ(table.Row(48).SpotCall, "K1AA");
    EXPECT_EQ(table.Row(47).SpotCall, "");
}

TEST(SpotTable, FiftyFirstPostPushesTheFirstOut) {
    SpotTable table;
    for (int n = 1; n <= 50; ++n) {
        Push(table, "K" + std::to_string(n));
    }
    EXPECT_EQ(table.Row(0).SpotCall, "K1");
    Push(table, "K51");
    EXPECT_EQ(table.Row(0).SpotCall, "K2");
    EXPECT_EQ(table.Row(49).SpotCall, "K51");
}

TEST(SpotTable, LastTwoRowsAreNeverTouched) {
    SpotTable table;
    for (int n = 1; n <= 60; ++n) {
        Push(table, "K1AA", " MDC  ");
    }
    for (const int row : {50, 51}) {
        EXPECT_EQ(table.Row(row).SpotCall, "");
        EXPECT_EQ(table.Row(row).SpotFreq, 0);
    }
}

TEST(SpotTable, StatusDoesNotMoveOn) {
    SpotTable table;
    table.SpotStatus = "Needed!";
    table.Shift();
    EXPECT_EQ(table.SpotStatus, "Needed!");
}

TEST(SpotTable, NewestRowWithAWordIsFound) {
    SpotTable table;
    Push(table, "K1AA", " MDC QRP  ");
    Push(table, "K2AA", " EMA MDC  ");
    Push(table, "K3AA", " CQ  ");
    EXPECT_EQ(table.NewestRowWith("MDC"), 48);
    EXPECT_EQ(table.NewestRowWith("QRP"), 47);
    EXPECT_EQ(table.NewestRowWith("CT"), std::nullopt);
}

TEST(SpotTable, WordStandsBetweenBlanks) {
    SpotTable table;
    Push(table, "K1AA", " MDC. EMAX  ");
    EXPECT_EQ(table.NewestRowWith("MDC"), std::nullopt);
    EXPECT_EQ(table.NewestRowWith("EMA"), std::nullopt);
    EXPECT_EQ(table.NewestRowWith("mdc."), std::nullopt) << "letters count as they are";
}

TEST(SpotTable, OnePassFindsTheNewestRowsThatSearchesFind) {
    const std::vector<std::string> words{"MDC", "EMA", "CT", "CQ", "", "MDC.", "E"};
    std::mt19937 random{1};
    SpotTable table;
    for (int n = 0; n < 200; ++n) {
        std::string text = n % 7 == 0 ? "" : " ";
        for (std::size_t left = random() % 6; left > 0; --left) {
            text += words.at(random() % words.size()) + (random() % 9 == 0 ? "" : " ");
        }
        Push(table, "K1AA", text + (n % 5 == 0 ? "" : "  "));
        const std::unordered_map<std::string, int> rows = table.NewestRows();
        for (const std::string& word : words) {
            if (!word.empty()) {
                const auto found = rows.find(word);
                EXPECT_EQ(found == rows.end() ? std::nullopt : std::optional{found->second}, table.NewestRowWith(word))
                    << word;
            }
        }
    }
}

}  // namespace
}  // namespace tallyhut
