#include "contest/call_history.h"

#include <gtest/gtest.h>

#include "values/value_error.h"

namespace tallyhut {
namespace {

using namespace std::string_literals;

constexpr std::string_view kRefusedWithoutOrder =
    "It is no call history: no line begins with !!Order!! and names its columns.";

/// "72 MDC" as the history knows the call; "none" where it does not.
std::string Known(std::string_view file, std::string_view call) {
    const std::optional<KnownExchange> known = ReadCallHistory(file).Find(call);
    return known ? known->check + ' ' + known->section : "none";
}

std::string Refusal(std::string_view file) {
    try {
        ReadCallHistory(file);
    } catch (const ValueError& damage) {
        return damage.what();
    }
    return "none";
}

TEST(CallHistory, RowsAreReadByTheColumnsThatTheirFileNames) {
    const std::string file =
        "# by somebody\r\n"
        "!!Order!!,Call,Name,Sect,CK,UserText\r\n"
        "\r\n"
        "K9ZO,Jim,IL,69,\r\n"
        "# VE3XX,,ONE,11\r\n"
        "VE3XYZ, Ann , GH , 88 ,Toronto, the city\r\n";
    EXPECT_EQ(Known(file, "K9ZO"), "69 IL");
    EXPECT_EQ(Known(file, "VE3XYZ"), "88 GH");
    EXPECT_EQ(Known(file, "VE3XX"), "none");
    EXPECT_EQ(ReadCallHistory(file).Count(), 2U);
}

TEST(CallHistory, FilesOfOtherMannersAreReadAlike) {
    for (const std::string& file : {
             "!!order!!,CALL,SECT,Ck\nK9ZO,IL,69"s,
             "  !!Order!! , Call , Sect , CK \nK9ZO\t,\tIL\t,\t69\t\n"s,
             "!!Order!!;Call;Sect;CK\nK9ZO;IL;69;a, b\n"s,
             "\xEF\xBB\xBF!!Order!!,Call,Sect,CK\nK9ZO,IL,69\n"s,
             "!!Order!!,CK,Sect,Call\r69,IL,K9ZO\r"s,
             "!!Order!!,Call,Sect,CK\nk9zo,il,1969\n"s,
             "\n\n!!Unknown!!\n# c\n!!Order!!,Call,Sect,CK,\n!!Other!!,K9ZO,CT,11\nK9ZO,IL,69,,,,\n"s,
         }) {
        EXPECT_EQ(Known(file, "K9ZO"), "69 IL") << file;
    }
}

TEST(CallHistory, Utf16IsReadAsItsCharacters) {
    std::string little = "\xFF\xFE";
    std::string big = "\xFE\xFF";
    for (const char character : "!!Order!!,Call,Sect,CK\r\nK9ZO,IL,69"s) {
        little += {character, '\0'};
        big += {'\0', character};
    }
    EXPECT_EQ(Known(little, "K9ZO"), "69 IL");
    EXPECT_EQ(Known(big, "K9ZO"), "69 IL");
}

TEST(CallHistory, ShorterRowsAndEmptyFieldsLeaveOutWhatTheyLack) {
    const std::string file = "!!Order!!,Call,Sect,CK\nK1A\nK2A,CT\nK3A,,72\n,CT,72\nK4A,,\n";
    EXPECT_EQ(Known(file, "K1A"), " ");
    EXPECT_EQ(Known(file, "K2A"), " CT");
    EXPECT_EQ(Known(file, "K3A"), "72 ");
    EXPECT_EQ(Known(file, "K4A"), " ");
    EXPECT_EQ(ReadCallHistory(file).Count(), 4U);
}

TEST(CallHistory, WhatIsNoCheckAndNoSectionStaysAway) {
    for (const std::string check : {"7", "172", "ab", "7a", "-1", "1872", "19721", "7 2", "''"}) {
        EXPECT_EQ(Known("!!Order!!,Call,CK\nK9ZO," + check, "K9ZO"), " ") << check;
    }
    for (const std::string section : {"TOOLONG", "A-B", "\xC4", "C T"}) {
        EXPECT_EQ(Known("!!Order!!,Call,Sect\nK9ZO," + section, "K9ZO"), " ") << section;
    }
    EXPECT_EQ(Known("!!Order!!,Call,CK\nK9ZO,2004", "K9ZO"), "04 ");
}

TEST(CallHistory, OfACallThatStandsTwiceTheLastRowCounts) {
    const std::string file = "!!Order!!,Call,Sect,CK\nK9ZO,IL,69\nA1A,CT,11\nK9ZO,WI,\n";
    EXPECT_EQ(Known(file, "K9ZO"), " WI");
    EXPECT_EQ(ReadCallHistory(file).Count(), 2U);
    EXPECT_EQ(ReadCallHistory(file).Calls(), (std::vector{*KeyOfCall("A1A"), *KeyOfCall("K9ZO")}));
}

TEST(CallHistory, ANewOrderCountsFromItsLineOn) {
    const std::string file = "K0A,CT,11\n!!Order!!,Call,Sect,CK\nK1A,CT,11\n!!Order!!,CK,Call,Sect\n22,K2A,NH\n";
    EXPECT_EQ(Known(file, "K0A"), "none");
    EXPECT_EQ(Known(file, "K1A"), "11 CT");
    EXPECT_EQ(Known(file, "K2A"), "22 NH");
}

TEST(CallHistory, AStateIsTheSectionOnlyWhereTheFileSaysSo) {
    const std::string rows = "!!Order!!,Call,Sect,State\nK1A,,NH\nK2A,NNY,NY\n";
    EXPECT_EQ(Known(rows, "K1A"), " ");
    EXPECT_EQ(Known("!!MapStateToSect!!\n" + rows, "K1A"), " NH");
    EXPECT_EQ(Known("!!MapStateToSect!!\n" + rows, "K2A"), " NNY");
}

TEST(CallHistory, ACallIsFoundToTheLetter) {
    const std::string file = "!!Order!!,Call,Sect\nK9ZO,IL\nVE3/K1ABC/P,ON\nK9Z,CT\nNOCALL,CT\n123,CT\n";
    EXPECT_EQ(Known(file, "VE3/K1ABC/P"), " ON");
    for (const std::string_view call : {"K9ZO/P", "k9zo", "K9", "", "K9ZOO", "NOCALL", "123", "\xC4"}) {
        EXPECT_EQ(Known(file, call), "none") << call;
    }
}

TEST(CallHistory, AFileThatNamesNoColumnsIsRefused) {
    for (const std::string& file :
         {""s, "K9ZO,IL,69\n"s, "# !!Order!!,Call\nK9ZO\n"s, "Call,!!Order!!,Sect\n"s, std::string(100'000, '\0'),
          std::string(100'000, '!'), "\xFF\xFE!\0!\0"s, "%PDF-1.4\n\x01\x02\n"s}) {
        EXPECT_EQ(Refusal(file), kRefusedWithoutOrder) << file.substr(0, 20);
    }
    EXPECT_EQ(Refusal("!!Order!!,Name,Sect\n"), "It is no call history: its line !!Order!! names no column Call.");
    EXPECT_EQ(Refusal("!!Order!!"), "It is no call history: its line !!Order!! names no column Call.");
}

TEST(CallHistory, AnEndlessLineIsARowLikeAnyOther) {
    EXPECT_EQ(Known("!!Order!!,Call,Sect\nK9ZO,IL," + std::string(1'000'000, ','), "K9ZO"), " IL");
    EXPECT_EQ(ReadCallHistory("!!Order!!,Call\n" + std::string(1'000'000, 'K')).Count(), 0U);
}

}  // namespace
}  // namespace tallyhut
