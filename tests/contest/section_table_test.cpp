#include "contest/section_table.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

TEST(SectionCount, TheFirstContactOfASectionIsToldFromTheOthers) {
    SectionTable sections;
    EXPECT_TRUE(sections.Count(16));
    EXPECT_FALSE(sections.Count(16));
    EXPECT_TRUE(sections.Count(83));
    EXPECT_EQ(sections.SectionQsos.at(16), 2);
    EXPECT_EQ(sections.SectionQsos.at(83), 1);
    EXPECT_EQ(sections.gSectionsWorked, 2);
}

TEST(SectionCount, ClearForgetsTheContactsAndKeepsTheSections) {
    SectionTable sections;
    sections.Fill();
    sections.Count(16);
    sections.Clear();
    EXPECT_EQ(sections.SectionQsos.at(16), 0);
    EXPECT_EQ(sections.gSectionsWorked, 0);
    EXPECT_EQ(sections.gSectionCount, 83);
    EXPECT_TRUE(sections.Count(16));
}

TEST(SectionCount, ACodeIsFoundExactlyAndOnlyInAFilledTable) {
    SectionTable sections;
    EXPECT_EQ(sections.Find("MDC"), 0);
    sections.Fill();
    EXPECT_EQ(sections.Find("MDC"), 16);
    EXPECT_EQ(sections.Find("GTA"), 83);
    for (const std::string_view none : {"", "mdc", "MD", "MDCX", " MDC"}) {
        EXPECT_EQ(sections.Find(none), 0) << none;
    }
}

TEST(PlaceOfSection, IsTheTablesTheFormerTablesOrTheCodeItself) {
    EXPECT_EQ(PlaceOfSection("WCF").state, "FL");
    EXPECT_EQ(PlaceOfSection("PAC").dxcc, kHawaii);
    EXPECT_EQ(PlaceOfSection("PR").state, "");
    EXPECT_EQ(PlaceOfSection("NWT").dxcc, kCanada);
    EXPECT_EQ(PlaceOfSection("ZZZ").state, "ZZZ");
    EXPECT_EQ(PlaceOfSection("ZZZ").dxcc, kUnitedStates);
}

}  // namespace
}  // namespace tallyhut
