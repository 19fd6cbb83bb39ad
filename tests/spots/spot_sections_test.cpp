#include "spots/section_spots.h"
#include "spots/spot_line.h"
#include "tests/spots/spots_fixture.h"

namespace tallyhut {
namespace {

constexpr Colour kGreen = 49152;
constexpr const char* kList = R"("NS","Nova Scotia","Canada","VE1 VA1","","NS",1,"2023","",""
"TER","Territories","Canada","VE8","","",1,"2023","",""
"NT","North Texas","5","","","TX",291,"","","")";

struct SpotSectionsTest : SpotsFixture {
    void StartOnList() {
        files.Put("/contest/Sections.txt", kList);
        StartColouring();
    }
};

TEST(SpotSections, PrefixesAreThoseOfTheList) {
    const SectionList list = ReadSectionList(kList);
    EXPECT_EQ(SectionOfPrefix("VE1AA", list), " NS ");
    EXPECT_EQ(SectionOfPrefix("VE8AA", list), " TER ");
    for (const char* call : {"VY2AA", "KH6XX", "VE4AA", "W1AW", "VE", ""}) {
        EXPECT_EQ(SectionOfPrefix(call, list), "") << call;
    }
}

TEST(SpotSections, OntarioStandsForItselfUnlessTheListSaysASection) {
    EXPECT_EQ(SectionOfPrefix("VE3AA", ReadSectionList(kList)), " ON ");
    EXPECT_EQ(SectionOfPrefix("VA3AA", ReadSectionList(kList)), " ON ");
    const SectionList ontario = ReadSectionList(R"("GH","Golden Horseshoe","Canada","VE3","","ON",1,"","","")");
    EXPECT_EQ(SectionOfPrefix("VE3AA", ontario), " GH ");
}

TEST_F(SpotSectionsTest, APostLightsTheSectionOfTheList) {
    StartOnList();
    Post("VE1AA", "CW");
    EXPECT_EQ(Section("NS").State().foreColor, kGreen);
    EXPECT_EQ(table.Newest().SpotText, " CW                              NS  ");
    Post("VE3AA", "CW");
    EXPECT_EQ(Section("TER").State().foreColor, stored.gColorNeeded);
}

TEST_F(SpotSectionsTest, TheCountsOfASectionAreThoseOfTheList) {
    PutLog({Worked("W1XX", "NT"), Worked("W2XX", "CT")});
    StartOnList();
    EXPECT_EQ(SectionCounts(program->logPart.contest, 3),
              "  North Texas   Total = 1\r\n  160 = 0   80 = 0   40 = 1   20 = 0   15 = 0   10 = 0");
}

}  // namespace
}  // namespace tallyhut
