#include "values/text_file.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <random>
#include <vector>

#include "values/value_error.h"

namespace tallyhut {
namespace {

using std::string_literals::operator""s;
using std::string_view_literals::operator""sv;

std::string MessageOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const ValueError& error) {
        return error.what();
    }
    return "nothing was refused";
}

std::vector<std::string> AllFields(std::string_view text) {
    FieldReader fields{text};
    std::vector<std::string> all;
    while (!fields.AtEnd()) {
        all.push_back(fields.Take());
    }
    return all;
}

struct FieldsCase {
    std::string_view text;
    std::vector<std::string> fields;
};

TEST(FieldReader, TakesFieldsAndNotLines) {
    const FieldsCase cases[] = {
        {"", {}},
        {"\r\n", {}},
        {"  \r\n \n\r", {}},
        {R"("137","88")", {"137", "88"}},
        {"\"137\",\"88\"\r\n\"138\",\"89\"\r\n", {"137", "88", "138", "89"}},
        {"1\r\n2\n3\r4", {"1", "2", "3", "4"}},
        {"1\n\r2", {"1", "", "2"}},
        {"\"a\"\r\n5\r\n\"b\"\r\n", {"a", "5", "b"}},
        {"1,\"x\",2.5", {"1", "x", "2.5"}},
        {"  137  , W1XX ,\"88\"", {"137", "W1XX", "88"}},
        {"  \"137\"  ,  \"88\"  \r\n", {"137", "88"}},
        {R"(" 137 ","  ")", {" 137 ", "  "}},
        {R"("4800,N,8,2",1)", {"4800,N,8,2", "1"}},
        {R"("")", {""}},
        {R"("","")", {"", ""}},
        {",", {"", ""}},
        {"1,,2", {"1", "", "2"}},
        {"1,", {"1", ""}},
        {"1,\r\n", {"1", ""}},
        {"1,  \r\n\r\n", {"1", ""}},
        {"1,\r\n2,\r\n", {"1", "", "2", ""}},
        {"0,\"11/7/2026\",\"21:00:04\",\r\n1,\"11/7/2026\",\"21:30:04\",\"00:00:00\"\r\n",
         {"0", "11/7/2026", "21:00:04", "", "1", "11/7/2026", "21:30:04", "00:00:00"}},
        {"1\r\n\r\n2\r\n\r\n\r\n", {"1", "", "2"}},
        {"\r\n1", {"", "1"}},
        {"\"a\"\r\n\r\n", {"a"}},
        {"1\r\n   \r\n2", {"1", "", "2"}},
        {"CQ TEST", {"CQ TEST"}},
        {"it's #5", {"it's #5"}},
        {"\xE9\xFF,\"\xE9\xFF\"", {"\xE9\xFF", "\xE9\xFF"}},
        {"\t5\t", {"\t5\t"}},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(AllFields(row.text), row.fields) << '[' << row.text << ']';
    }
}

struct RefusedCase {
    std::string_view text;
    std::string_view message;
};

TEST(FieldReader, RefusesDamagedFields) {
    const RefusedCase cases[] = {
        {"", "line 1: no field is left"},
        {"\r\n\r\n", "line 1: no field is left"},
        {"  ", "line 1: no field is left"},
        {"\"", "line 1: a quote is not closed"},
        {"\"\r\n\"", "line 1: a quote is not closed"},
        {"\"137,88", "line 1: a quote is not closed"},
        {"\"137\n88\"", "line 1: a quote is not closed"},
        {"\"137\r88\"", "line 1: a quote is not closed"},
        {"\"1\"37\",\"88\"", "line 1: text stands behind a closing quote"},
        {"\"1\"37", "line 1: text stands behind a closing quote"},
        {"\"1\" 37", "line 1: text stands behind a closing quote"},
        {"\"137\"\"88\"", "line 1: text stands behind a closing quote"},
        {"\"137\";\"88\"", "line 1: text stands behind a closing quote"},
        {"\"\"\"", "line 1: text stands behind a closing quote"},
        {"\"137\"\t,", "line 1: text stands behind a closing quote"},
        {"\"137\"\0"sv, "line 1: text stands behind a closing quote"},
        {"1\"37\"", "line 1: a quote stands in a bare field"},
        {"137\"", "line 1: a quote stands in a bare field"},
        {"137 \"x\"", "line 1: a quote stands in a bare field"},
        {"\t\"137\"", "line 1: a quote stands in a bare field"},
        {"\0"sv, "line 1: a NUL byte stands in a field"},
        {"13\0007"sv, "line 1: a NUL byte stands in a field"},
        {"\"13\0007\""sv, "line 1: a NUL byte stands in a field"},
    };
    for (const auto& row : cases) {
        FieldReader fields{row.text};
        EXPECT_EQ(MessageOf([&] { fields.Take(); }), row.message) << '[' << row.text << ']';
    }
}

TEST(FieldReader, RefusesAnExtraQuoteWhereverItStands) {
    const std::string line = R"("137","88","A")";
    for (std::size_t place = 0; place <= line.size(); ++place) {
        std::string damaged = line;
        damaged.insert(place, 1, '"');
        EXPECT_THROW(AllFields(damaged), ValueError) << damaged;
    }
}

TEST(FieldReader, RefusalNamesTheLineOfTheField) {
    FieldReader fields{"1\r\n2\r\n\"3\"\"4\"\r\nx\r\n"};
    fields.Take();
    EXPECT_EQ(fields.Line(), 2U);
    fields.Take();
    EXPECT_EQ(MessageOf([&] { fields.Take(); }), "line 3: text stands behind a closing quote");
    EXPECT_EQ(MessageOf([&] { fields.TakeNumber(); }), "line 4: \"x\" is not numeric");
    EXPECT_EQ(MessageOf([&] { fields.Take(); }), "line 4: no field is left");
}

TEST(FieldReader, PassesOverTheRestOfADamagedLine) {
    FieldReader fields{"\"a\r\n5\r\n\"b\"x,\"c\"\r\n6,7"};
    EXPECT_THROW(fields.Take(), ValueError);
    EXPECT_EQ(fields.Take(), "5");
    EXPECT_THROW(fields.Take(), ValueError);
    EXPECT_EQ(fields.Take(), "6");
    EXPECT_FALSE(fields.AtLineStart());
    EXPECT_EQ(fields.Take(), "7");
    EXPECT_TRUE(fields.AtEnd());
    EXPECT_THROW(fields.Take(), ValueError);
    EXPECT_TRUE(fields.AtEnd());
}

TEST(FieldReader, KnowsWhereALineBegins) {
    FieldReader fields{"1,2\r\n3,\r\n"};
    std::string starts;
    while (!fields.AtEnd()) {
        starts += fields.AtLineStart() ? '^' : ',';
        starts += fields.Take();
    }
    EXPECT_EQ(starts, "^1,2^3,");
}

TEST(FieldReader, TakesFieldsUpToTheLongest) {
    const std::string longest(kLongestField, 'x');
    EXPECT_EQ(AllFields(longest + "," + QuotedItem(longest)), (std::vector{longest, longest}));
    for (const std::string& text : {longest + "x", "\"" + longest + "x\""}) {
        FieldReader fields{text};
        EXPECT_EQ(MessageOf([&] { fields.Take(); }), "line 1: a field is longer than 32767 bytes");
    }
    EXPECT_EQ(AllFields(std::string(50'000, ' ') + longest + std::string(50'000, ' ') + ",1").size(), 2U);
}

TEST(FieldReader, TakesNumbersOfEveryType) {
    FieldReader fields{"255, -32768 ,\"16711680\"\r\n-5.5,14.2,2.5,3.5,&H378,1E3\r\n"};
    EXPECT_EQ(fields.TakeByte(), 255);
    EXPECT_EQ(fields.TakeInt16(), -32768);
    EXPECT_EQ(fields.TakeInt32(), 16711680);
    EXPECT_EQ(fields.TakeNumber(), -5.5);
    EXPECT_EQ(fields.TakeFloat(), 14.2F);
    EXPECT_EQ(fields.TakeByte(), 2);
    EXPECT_EQ(fields.TakeInt16(), 4);
    EXPECT_EQ(fields.TakeInt32(), 888);
    EXPECT_EQ(fields.TakeNumber(), 1000);
    EXPECT_TRUE(fields.AtEnd());
}

struct RefusedNumber {
    std::string_view text;
    std::function<void(FieldReader&)> take;
    std::string_view message;
};

TEST(FieldReader, RefusesNumbersThatDoNotFit) {
    const auto takeNumber = [](FieldReader& fields) { fields.TakeNumber(); };
    const auto takeFloat = [](FieldReader& fields) { fields.TakeFloat(); };
    const auto takeByte = [](FieldReader& fields) { fields.TakeByte(); };
    const auto takeInt16 = [](FieldReader& fields) { fields.TakeInt16(); };
    const auto takeInt32 = [](FieldReader& fields) { fields.TakeInt32(); };
    const auto takeTruth = [](FieldReader& fields) { fields.TakeTruth(); };
    const RefusedNumber cases[] = {
        {"x,9", takeNumber, "line 1: \"x\" is not numeric"},
        {",9", takeNumber, "line 1: \"\" is not numeric"},
        {"\"\",9", takeByte, "line 1: \"\" is not numeric"},
        {"1E400,9", takeNumber, "line 1: \"1E400\" is not numeric"},
        {"1E39,9", takeFloat, "line 1: 1E+39 is beyond the range of a float"},
        {"-1E39,9", takeFloat, "line 1: -1E+39 is beyond the range of a float"},
        {"256,9", takeByte, "line 1: 256 is no whole number from 0 to 255"},
        {"-1,9", takeByte, "line 1: -1 is no whole number from 0 to 255"},
        {"255.5,9", takeByte, "line 1: 255.5 is no whole number from 0 to 255"},
        {"32768,9", takeInt16, "line 1: 32768 is no whole number from -32768 to 32767"},
        {"2147483648,9", takeInt32, "line 1: 2147483648 is no whole number from -2147483648 to 2147483647"},
        {"TRUE,9", takeTruth, "line 1: \"TRUE\" is no truth value"},
        {"1,9", takeTruth, "line 1: \"1\" is no truth value"},
        {",9", takeTruth, "line 1: \"\" is no truth value"},
    };
    for (const auto& row : cases) {
        FieldReader fields{row.text};
        EXPECT_EQ(MessageOf([&] { row.take(fields); }), row.message);
        EXPECT_EQ(fields.Take(), "9") << "the refused value is taken: " << row.text;
    }
}

TEST(FieldReader, TakesTruthValues) {
    FieldReader fields{"#TRUE#,#FALSE#\r\n#true#,\"#False#\""};
    EXPECT_TRUE(fields.TakeTruth());
    EXPECT_FALSE(fields.TakeTruth());
    EXPECT_TRUE(fields.TakeTruth());
    EXPECT_FALSE(fields.TakeTruth());
}

TEST(FieldReader, AlwaysComesToAnEnd) {
    std::mt19937 random{1899};
    constexpr std::string_view kLikely = "\"\",,\r\n  15aW#\0"sv;
    int refused = 0;
    int taken = 0;
    for (int round = 0; round < 30'000; ++round) {
        std::string text;
        for (std::size_t size = random() % 60; text.size() < size;) {
            text += random() % 8 == 0 ? static_cast<char>(random() % 256) : kLikely[random() % kLikely.size()];
        }
        FieldReader fields{text};
        std::size_t takes = 0;
        while (!fields.AtEnd()) {
            ASSERT_LE(++takes, text.size() + 1);
            try {
                const std::string field = fields.Take();
                ASSERT_EQ(field.find_first_of("\"\r\n\0"sv), std::string::npos);
                ++taken;
            } catch (const ValueError&) {
                ++refused;
            }
        }
        ASSERT_THROW(fields.Take(), ValueError);
        ASSERT_TRUE(fields.AtEnd());
    }
    EXPECT_GT(taken, 10'000);  // both kinds come up
    EXPECT_GT(refused, 10'000);
}

TEST(FieldReader, WhatWasTakenIsTakenAgainWhenWritten) {
    std::mt19937 random{137};
    constexpr std::string_view kLikely = "\",\r\n 15aW#.-";
    int accepted = 0;
    for (int round = 0; round < 30'000; ++round) {
        std::string text;
        for (std::size_t size = random() % 16; text.size() < size;) {
            text += kLikely[random() % kLikely.size()];
        }
        std::vector<std::string> fields;
        try {
            fields = AllFields(text);
        } catch (const ValueError&) {
            continue;  // only texts that are taken whole count here
        }
        RecordWriter writer;
        for (const std::string& field : fields) {
            writer.Text(field).EndLine();
        }
        ASSERT_EQ(AllFields(writer.Result()), fields) << '[' << text << ']';
        ++accepted;
    }
    EXPECT_GT(accepted, 5'000);
}

TEST(QuotedItem, LeavesOutWhatAReaderWouldRefuse) {
    const std::pair<std::string, std::string> cases[] = {
        {"", R"("")"},
        {"W1XX", R"("W1XX")"},
        {" 4800 ", R"(" 4800 ")"},
        {"a,b", R"("a,b")"},
        {R"(say "CQ")", R"("say CQ")"},
        {R"("")", R"("")"},
        {"one\r\ntwo\nthree\rfour", R"("onetwothreefour")"},
        {"1\0002"s, R"("12")"},
        {"\t\x01\xFF", "\"\t\x01\xFF\""},
    };
    for (const auto& [text, item] : cases) {
        EXPECT_EQ(QuotedItem(text), item);
    }
}

TEST(QuotedItem, IsCutToTheLongestField) {
    const std::string longest(kLongestField, 'x');
    EXPECT_EQ(QuotedItem("\"\r\n" + longest), "\"" + longest + "\"");
    EXPECT_EQ(QuotedItem(longest + "y"), "\"" + longest + "\"");
}

TEST(RecordWriter, WritesRecordsWithCommasBetweenTheItems) {
    RecordWriter writer;
    writer.Text("137").Text("88").Text("").EndLine();
    writer.Number(1).Text("11/7/2026").Text("21:00:04").Empty().EndLine();
    writer.Text("W1XX").Empty().Empty().Text("USA").EndLine();
    EXPECT_EQ(writer.Result(),
              "\"137\",\"88\",\"\"\r\n"
              "1,\"11/7/2026\",\"21:00:04\",\r\n"
              "\"W1XX\",,,\"USA\"\r\n");
}

TEST(RecordWriter, WritesOneValueALine) {
    RecordWriter writer;
    writer.Text("W1XX").EndLine().Number(std::uint8_t{1}).EndLine();
    writer.Number(-5.5F).EndLine().Truth(true).EndLine().Truth(false).EndLine();
    EXPECT_EQ(writer.Result(), "\"W1XX\"\r\n1\r\n-5.5\r\n#TRUE#\r\n#FALSE#\r\n");
}

TEST(RecordWriter, WritesNumbersInPlainText) {
    RecordWriter writer;
    writer.Number(0).Number(-3).Number(16711680).Number(14.2F).Number(14.2).Number(std::int64_t{1} << 40U);
    EXPECT_EQ(writer.Result(), "0,-3,16711680,14.2,14.2,1099511627776");
}

TEST(RecordWriter, WritesNothingOfARefusedNumber) {
    RecordWriter writer;
    writer.Number(1);
    EXPECT_THROW(writer.Number(std::numeric_limits<float>::infinity()), ValueError);
    EXPECT_THROW(writer.Number(std::numeric_limits<double>::quiet_NaN()), ValueError);
    EXPECT_EQ(writer.Number(2).Result(), "1,2");
}

TEST(RecordWriter, StartsEmpty) {
    EXPECT_EQ(RecordWriter{}.Result(), "");
}

TEST(RecordWriter, EveryTextComesBackFromTheReader) {
    const std::string awkward[] = {"",         " ",     "  x  ",      ",",    ",,,",  "#TRUE#",
                                   "1E400",    "&H378", "it's",       "a\tb", "\x1A", "\xEF\xBB\xBF",
                                   "\xE9\xFF", "CQ CQ", "4800,N,8,2", "\\",   "''",   "[,\\]"};
    RecordWriter oneALine;
    RecordWriter oneRecord;
    for (const std::string& text : awkward) {
        oneALine.Text(text).EndLine();
        oneRecord.Text(text);
    }
    const std::vector<std::string> expected{std::begin(awkward), std::end(awkward)};
    EXPECT_EQ(AllFields(oneALine.Result()), expected);
    EXPECT_EQ(AllFields(oneRecord.Result()), expected);
}

TEST(RecordWriter, NoWriterProducesWhatItsReaderRefuses) {
    std::mt19937 random{2026};
    constexpr std::string_view kLeftOut = "\"\r\n\0"sv;
    for (int round = 0; round < 10'000; ++round) {
        std::string text;
        for (std::size_t size = random() % 40; text.size() < size;) {
            text += random() % 3 == 0 ? kLeftOut[random() % kLeftOut.size()] : static_cast<char>(random() % 256);
        }
        std::string kept = text;
        std::erase_if(kept, [&](char character) { return kLeftOut.find(character) != std::string_view::npos; });
        RecordWriter writer;
        writer.Number(round).Text(text).Empty().Text(text).EndLine();
        ASSERT_EQ(AllFields(writer.Result()), (std::vector<std::string>{PlainText(round), kept, "", kept}));
    }
}

}  // namespace
}  // namespace tallyhut
