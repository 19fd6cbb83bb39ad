#include "contest/section_list.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "contest/told_sections.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

using std::string_literals::operator""s;

std::string FileBytes(const std::string& name) {
    std::ifstream file{std::string{TALLYHUT_DATA_FOLDER} + "/sections/" + name, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

const std::string kMaryland = R"("MDC","Maryland-DC","3","","MD DC","MD",291,"","","")";
const std::string kPuertoRico = R"("PR","Puerto Rico","4","KP3 KP4","","",202,"","","")";

/// What the reader says of a damaged list; empty for one that it takes.
std::string Complaint(std::string_view text) try {
    ReadSectionList(text);
    return "";
} catch (const ValueError& error) {
    return error.what();
}

/// A line with another text in one of its fields, which count from 1.
std::string WithField(int field, const std::string& text) {
    const std::vector<std::string> fields{
        R"("MDC")", R"("Maryland-DC")", R"("3")", R"("")", R"("")", R"("MD")", "291", R"("")", R"("")", R"("")"};
    std::string line;
    for (int i = 1; i <= 10; ++i) {
        line += (i == 1 ? "" : ",") + (i == field ? text : fields.at(static_cast<std::size_t>(i - 1)));
    }
    return line;
}

std::string Sections(int count) {
    std::string text;
    for (int i = 1; i <= count; ++i) {
        text += '"' + std::to_string(i) + R"(","Name","1","","","",0,"","","")" + "\r\n";
    }
    return text;
}

TEST(SectionList, EveryFieldHasItsPlaceInTheLine) {
    const SectionList list =
        ReadSectionList(R"("AB1","A name","Canada","VE6 VA6","ALTA 1","AB",1,"2012","2022","some notes")");
    ASSERT_EQ(list.Count(), 1);
    const ListedSection& section = list.Section(1);
    EXPECT_EQ(section.code, "AB1");
    EXPECT_EQ(section.name, "A name");
    EXPECT_EQ(section.heading, 10U);
    EXPECT_EQ(section.prefixes, (std::vector{"VE6"s, "VA6"s}));
    EXPECT_EQ(section.aliases, (std::vector{"ALTA"s, "1"s}));
    EXPECT_EQ(section.state, "AB");
    EXPECT_EQ(section.dxcc, 1);
    EXPECT_EQ(section.since, "2012");
    EXPECT_EQ(section.until, "2022");
}

TEST(SectionList, CommentsAndEmptyLinesAreNoSections) {
    const std::string text = "# a list, with \"quotes\n\r\n  # another\r\n" + kMaryland + "\r\n\r\n#\r\n   \r\n" +
                             kPuertoRico + "\n# the end \"\r\n\r\n";
    const SectionList list = ReadSectionList(text);
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Find("MDC"), 1);
    EXPECT_EQ(list.Find("PR"), 2);
}

TEST(SectionList, AnyLineEndWillDo) {
    const SectionList list = ReadSectionList(kMaryland + "\r\n" + kPuertoRico);
    EXPECT_EQ(ReadSectionList(kMaryland + "\n" + kPuertoRico + "\n"), list);
    EXPECT_EQ(ReadSectionList("#\r" + kMaryland + "\r" + kPuertoRico + "\r"), list);
}

TEST(SectionList, HeadingsAreTheCallAreasAndCanada) {
    const std::vector<std::string> headings{"1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "Canada"};
    for (std::size_t i = 0; i < headings.size(); ++i) {
        EXPECT_EQ(ReadSectionList(WithField(3, '"' + headings.at(i) + '"')).Section(1).heading, i);
    }
}

TEST(SectionList, NamesOfAnyEditorAreLatin1) {
    EXPECT_EQ(ReadSectionList("\xEF\xBB\xBF" + WithField(2,
                                                         "\"Qu\xC3\xA9"
                                                         "bec\""))
                  .Section(1)
                  .name,
              "Qu\xE9"
              "bec");
    EXPECT_EQ(ReadSectionList(WithField(2,
                                        "\"Qu\xE9"
                                        "bec\""))
                  .Section(1)
                  .name,
              "Qu\xE9"
              "bec");
    EXPECT_EQ(ReadSectionList(WithField(2, "\"a \xE2\x80\x93 b\"")).Section(1).name, "a ? b");
}

TEST(SectionList, DamagedListsAreRefusedWithLineAndReason) {
    const std::vector<std::pair<std::string, std::string>> damaged{
        {"", "line 1: no section stands in the list"},
        {"# nothing\r\n\r\n", "line 1: no section stands in the list"},
        {kMaryland + "\r\n" + kMaryland, "line 2: the code MDC stands in line 1 already"},
        {kMaryland + "\r\n#\r\n" + R"("EMA","x","1","","DC","",0,"","","")",
         "line 3: the alias DC stands in line 1 already"},
        {WithField(5, R"("MD MD")"), "line 1: the alias MD stands in line 1 already"},
        {kPuertoRico + "\r\n" + kMaryland + "\r\n" + R"("MD","x","1","","","",0,"","","")",
         "line 2: the alias MD is a code"},
        {WithField(5, R"("MDC")"), "line 1: the alias MDC is a code"},
        {kPuertoRico + "\r\n" + WithField(4, R"("KP5 KP4")"), "line 2: the prefix KP4 stands in line 1 already"},
        {"\"MDC\"", "line 1: the name is missing"},
        {kPuertoRico + "\r\n" + R"("MDC","Maryland-DC","3","","MD DC","MD",291,"","")" + "\r\n" + kPuertoRico,
         "line 2: the notes field is missing"},
        {kMaryland + ",\"\"", "line 1: more than ten fields"},
        {kMaryland + ",", "line 1: more than ten fields"},
        {WithField(1, R"("")"), "line 1: \"\" is no code: 1 to 4 of A-Z and 0-9"},
        {WithField(1, R"("mdc")"), "line 1: \"mdc\" is no code: 1 to 4 of A-Z and 0-9"},
        {WithField(1, R"("MDCXX")"), "line 1: \"MDCXX\" is no code: 1 to 4 of A-Z and 0-9"},
        {WithField(1, R"("M C")"), "line 1: \"M C\" is no code: 1 to 4 of A-Z and 0-9"},
        {WithField(1, "\"M\xC3\x89\""), "line 1: \"M\xC9\" is no code: 1 to 4 of A-Z and 0-9"},
        {WithField(2, R"("  ")"), "line 1: \"  \" is no name: 1 to 60 characters"},
        {WithField(2, '"' + std::string(61, 'x') + '"'),
         "line 1: \"xxxxxxxxxxxxxxxxxxxx...\" is no name: 1 to 60 characters"},
        {WithField(2, "\"a\tb\""), "line 1: \"a\tb\" is no name: 1 to 60 characters"},
        {WithField(3, R"("10")"), "line 1: \"10\" is no heading: 1 to 9, 0 or Canada"},
        {WithField(3, R"("")"), "line 1: \"\" is no heading: 1 to 9, 0 or Canada"},
        {WithField(4, R"("KP4 ve*")"), "line 1: \"ve*\" is no prefix: 1 to 6 of A-Z and 0-9"},
        {WithField(4, R"("KP4KP44")"), "line 1: \"KP4KP44\" is no prefix: 1 to 6 of A-Z and 0-9"},
        {WithField(5, R"("ALTAX")"), "line 1: \"ALTAX\" is no alias: 1 to 4 of A-Z and 0-9"},
        {WithField(6, R"("MD DC")"), "line 1: \"MD DC\" is no state: nothing, or 1 to 4 of A-Z and 0-9"},
        {WithField(7, "1000"), "line 1: \"1000\" is no DXCC number: 0 to 999"},
        {WithField(7, "-1"), "line 1: \"-1\" is no DXCC number: 0 to 999"},
        {WithField(7, ""), "line 1: \"\" is no DXCC number: 0 to 999"},
        {WithField(8, R"("23")"), "line 1: \"23\" is no year: nothing, or four digits"},
        {WithField(9, R"("now!")"), "line 1: \"now!\" is no year: nothing, or four digits"},
        {WithField(10, R"("open)"), "line 1: a quote is not closed"},
        {Sections(101), "line 101: more than 100 sections"},
    };
    for (const auto& [text, complaint] : damaged) {
        EXPECT_EQ(Complaint(text), complaint) << text.substr(0, 200);
    }
}

TEST(SectionList, OneToAHundredSectionsWillDo) {
    EXPECT_EQ(ReadSectionList(Sections(1)).Count(), 1);
    EXPECT_EQ(ReadSectionList(Sections(100)).Count(), 100);
}

TEST(SectionList, APrefixStandsOnceAlsoInItsOwnSection) {
    EXPECT_EQ(Complaint(WithField(4, R"("KP4 KP4")")), "line 1: the prefix KP4 stands in line 1 already");
}

TEST(SectionList, BytesOfAnyKindAreTakenOrRefused) {
    const std::vector<std::string> hostile{
        std::string(1'000'000, '\0'), std::string(1'000'000, 'x'),
        std::string(1'000'000, ','),  std::string(1'000'000, '"'),
        std::string(1'000'000, '\n'), std::string(1'000'000, ' '),
        "\xFF\xFE\"\0C\0T\0\"\0"s,    "\xEF\xBB\xBF",
        "\x1F\x8B\x08\x00zip"s,       kMaryland + std::string(100, '\0'),
        "\"MDC\0\",\"x\""s,
    };
    for (const std::string& bytes : hostile) {
        EXPECT_TRUE(Complaint(bytes).starts_with("line ")) << bytes.substr(0, 20) << Complaint(bytes);
    }
}

TEST(SectionList, ATornOrMixedUpFileNeverPassesForMoreThanAList) {
    const std::string file = FileBytes("2023.txt");
    std::mt19937 random{18};
    for (int round = 0; round < 3000; ++round) {
        std::string bytes = file.substr(0, random() % file.size());
        for (int change = 0; change < 3 && !bytes.empty(); ++change) {
            bytes.at(random() % bytes.size()) = static_cast<char>(random() % 256);
        }
        try {
            const SectionList list = ReadSectionList(bytes);
            EXPECT_TRUE(list.Count() >= 1 && list.Count() <= 100);
        } catch (const ValueError& error) {
            EXPECT_TRUE(std::string_view{error.what()}.starts_with("line ")) << error.what();
        }
    }
}

TEST(SectionList, AnAliasStandsForItsCodeAndAllElseForItself) {
    const SectionList list = ReadSectionList(kMaryland + "\r\n" + kPuertoRico);
    EXPECT_EQ(list.CodeOf("MD"), "MDC");
    EXPECT_EQ(list.CodeOf("DC"), "MDC");
    for (const std::string_view other : {"MDC", "PR", "md", "XX", "", "MD DC"}) {
        EXPECT_EQ(list.CodeOf(other), other);
    }
}

TEST(SectionList, TheLongestPrefixSaysTheSection) {
    const SectionList list = ReadSectionList(R"("PAC","Pacific","6","KH","","",0,"","",""
"HI","Hawaii","6","KH6 KH7","","",0,"","",""
"KURE","Kure","6","KH7K","","",0,"","","")");
    EXPECT_EQ(list.OfCall("KH2AA"), 1);
    EXPECT_EQ(list.OfCall("KH6XX"), 2);
    EXPECT_EQ(list.OfCall("KH7AA"), 2);
    EXPECT_EQ(list.OfCall("KH7KA"), 3);
    EXPECT_EQ(list.OfCall("K1ABC"), 0);
    EXPECT_EQ(list.OfCall("K"), 0);
    EXPECT_EQ(list.OfCall(""), 0);
}

TEST(ShippedLists, The2014FileHoldsTheToldSectionsRowForRow) {
    EXPECT_EQ(ReadSectionList(FileBytes("2014.txt")), ToldSections());
    EXPECT_EQ(ToldSections().Count(), 83);
}

TEST(ShippedLists, The2014ListHasNoAliases) {
    for (const ListedSection& section : ToldSections().sections) {
        EXPECT_TRUE(section.aliases.empty()) << section.code;
    }
}

TEST(ShippedLists, The2023FileHasTheSectionsOfToday) {
    const SectionList today = ReadSectionList(FileBytes("2023.txt"));
    EXPECT_EQ(today.Count(), 85);
    for (const std::string_view begun : {"NB", "NS", "PE", "GH", "TER"}) {
        EXPECT_NE(today.Find(begun), 0) << begun;
        EXPECT_EQ(ToldSections().Find(begun), 0) << begun;
    }
    for (const ListedSection& told : ToldSections().sections) {
        const bool ended = told.until == "2022";
        EXPECT_EQ(today.Find(told.code) == 0, ended) << told.code;
        EXPECT_EQ(ended, told.code == "MAR" || told.code == "GTA" || told.code == "NT") << told.code;
    }
}

TEST(ShippedLists, TodaysSectionsHaveTheirHabitsOfTyping) {
    const SectionList today = ReadSectionList(FileBytes("2023.txt"));
    const std::vector<std::pair<std::string, std::string>> habits{{"MD", "MDC"}, {"DC", "MDC"}, {"PEI", "PE"},
                                                                  {"HI", "PAC"}, {"PQ", "QC"},  {"SAS", "SK"}};
    for (const auto& [typed, code] : habits) {
        EXPECT_EQ(today.CodeOf(typed), code);
    }
    for (const std::string_view ended : {"MAR", "GTA", "NT"}) {
        EXPECT_EQ(today.CodeOf(ended), ended) << "is told to have ended, and no habit";
    }
}

TEST(ShippedLists, TodaysCanadianPrefixesSayTheirSections) {
    const SectionList today = ReadSectionList(FileBytes("2023.txt"));
    const std::vector<std::pair<std::string, std::string>> calls{
        {"VE1AA", "NS"}, {"VA1AA", "NS"},  {"CY9AA", "NS"},  {"CY0AA", "NS"},  {"VE9AA", "NB"},
        {"VY2AA", "PE"}, {"VE8AA", "TER"}, {"VY0AA", "TER"}, {"VY1AA", "TER"}, {"VO2AA", "NL"}};
    for (const auto& [call, code] : calls) {
        EXPECT_EQ(today.OfCall(call), today.Find(code)) << call;
    }
    EXPECT_EQ(today.OfCall("VE3AA"), 0);
}

TEST(ShippedLists, TodaysSectionsHaveYearsDxccAndStates) {
    const SectionList today = ReadSectionList(FileBytes("2023.txt"));
    EXPECT_EQ(today.Section(today.Find("NS")).since, "2023");
    EXPECT_EQ(today.Section(today.Find("PE")).since, "2020");
    for (const ListedSection& section : today.sections) {
        if (section.heading == 10) {
            EXPECT_EQ(section.dxcc, kCanada) << section.code;
        }
    }
    EXPECT_EQ(today.Section(today.Find("GH")).state, "ON");
}

}  // namespace
}  // namespace tallyhut
