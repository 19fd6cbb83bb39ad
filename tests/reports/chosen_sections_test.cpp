#include <gtest/gtest.h>

#include <algorithm>

#include "reports/adif.h"
#include "reports/merged_log.h"
#include "reports/stationbook.h"
#include "reports/summary_sheet.h"

namespace tallyhut {
namespace {

const SectionList kList = ReadSectionList(R"("NS","Nova Scotia","Canada","VE1","","NS",1,"2023","",""
"PR","Puerto Rico","4","KP4","","",202,"","",""
"AIR","In the air","0","","","",0,"","","")");

Contact From(const std::string& section) {
    return {.Ns = "1",
            .Nr = "88",
            .P = "A",
            .Call = "W1XX",
            .Ck = "72",
            .Sec = section,
            .Date = "2026/11/07",
            .Time = "21:04:33",
            .Bnd = "40",
            .Frq = ""};
}

ContactLog LogOf(const Contact& contact) {
    ContactLog log;
    log.Add(contact);
    return log;
}

SectionTable TableOf(const SectionList& list) {
    SectionTable table;
    table.Choose(list);
    return table;
}

TEST(ChosenSections, AdifTellsThePlacesOfTheList) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"NS", "<DXCC:1>1 <State:2>NS <Cont"},     {"PR", "<DXCC:3>202 <Cont"}, {"AIR", "2104 <Cont"},
        {"ONN", "<DXCC:1>1 <State:2>ON <Cont"},    {"MAR", "<DXCC:1>1 <Cont"},  {"OS", "<DXCC:1>1 <State:2>ON <Cont"},
        {"XYZ", "<DXCC:3>291 <State:3>XYZ <Cont"},
    };
    for (const auto& [section, fields] : rows) {
        const AdifExport details{
            .title = "", .exportedAt = "", .power = "100", .comment = "", .phone = false, .sections = &kList};
        const std::string text = AdifText(details, LogOf(From(section)), 2026);
        EXPECT_NE(text.find(fields), std::string::npos) << section << '\n' << text;
    }
}

TEST(ChosenSections, StationbookTellsTheStateOfTheList) {
    EXPECT_NE(StationbookText(LogOf(From("NS")), false, &kList).find(R"("USA","NS",)"), std::string::npos);
    EXPECT_NE(StationbookText(LogOf(From("MAR")), false).find(R"("USA","MAR",)"), std::string::npos);
}

TEST(ChosenSections, TheMergedLogCountsTheSectionsOfTheList) {
    const std::string log = WriteRecord(From("NS")) + WriteRecord(From("MDC"));
    EXPECT_EQ(MergeLog(log, "", kList.Count(), kList).sections.gSectionsWorked, 1);
    EXPECT_EQ(MergeLog(log, "", 83).sections.gSectionsWorked, 1);
    EXPECT_EQ(MergeLog(log, "", kList.Count(), kList).sections.SectionQsos.at(1), 1);
}

TEST(ChosenSections, TheSummarySheetListsTheSectionsOfTheList) {
    SectionTable table = TableOf(kList);
    table.Count(1);
    const std::vector<std::string> lines = SummarySheet({}, {}, table, 1, {});
    const auto heading = std::ranges::find(lines, "Sections not worked:");
    ASSERT_NE(heading, lines.end());
    EXPECT_EQ(*(heading + 1), "PR AIR ");
}

}  // namespace
}  // namespace tallyhut
