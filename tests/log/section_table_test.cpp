#include "contest/section_table.h"

#include <set>

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct ToldSection {
    std::string_view code;
    std::string_view name;
    std::string_view heading;
};

/// The sections in the order of their labels.
constexpr std::array<ToldSection, 83> kTold{{
    {"CT", "Connecticut", "1"},
    {"EMA", "East Massachusetts", "1"},
    {"ME", "Maine", "1"},
    {"NH", "New Hampshire", "1"},
    {"RI", "Rhode Island", "1"},
    {"VT", "Vermont", "1"},
    {"WMA", "West Massachusetts", "1"},
    {"NNY", "North New York", "2"},
    {"ENY", "East New York", "2"},
    {"NLI", "NY Long Island", "2"},
    {"NNJ", "North New Jersey", "2"},
    {"SNJ", "South New Jersey", "2"},
    {"WNY", "West New York", "2"},
    {"DE", "Delaware", "3"},
    {"EPA", "East Pennsylvania", "3"},
    {"MDC", "Maryland-DC", "3"},
    {"WPA", "West Pennsylvania", "3"},
    {"AL", "Alabama", "4"},
    {"GA", "Georgia", "4"},
    {"KY", "Kentucky", "4"},
    {"NC", "North Carolina", "4"},
    {"NFL", "North Florida", "4"},
    {"SC", "South Carolina", "4"},
    {"SFL", "South Florida", "4"},
    {"TN", "Tennessee", "4"},
    {"VA", "Virginia", "4"},
    {"PR", "Puerto Rico", "4"},
    {"VI", "Virgin Islands", "4"},
    {"AR", "Arkansas", "5"},
    {"LA", "Louisiana", "5"},
    {"MS", "Mississippi", "5"},
    {"NM", "New Mexico", "5"},
    {"NTX", "North Texas", "5"},
    {"OK", "Oklahoma", "5"},
    {"STX", "South Texas", "5"},
    {"WTX", "West Texas", "5"},
    {"EB", "East Bay", "6"},
    {"LAX", "Los Angeles", "6"},
    {"ORG", "Orange", "6"},
    {"SB", "Santa Barbara", "6"},
    {"SCV", "Santa Clara Valley", "6"},
    {"SDG", "San Diego", "6"},
    {"SF", "San Francisco", "6"},
    {"SJV", "San Joaquin Valley", "6"},
    {"SV", "Sacramento Valley", "6"},
    {"PAC", "Pacific", "6"},
    {"AZ", "Arizona", "7"},
    {"EWA", "East Washington", "7"},
    {"ID", "Idaho", "7"},
    {"MT", "Montana", "7"},
    {"NV", "Nevada", "7"},
    {"OR", "Oregon", "7"},
    {"UT", "Utah", "7"},
    {"WWA", "West Washington", "7"},
    {"WY", "Wyoming", "7"},
    {"AK", "Alaska", "7"},
    {"MI", "Michigan", "8"},
    {"OH", "Ohio", "8"},
    {"WV", "West Virginia", "8"},
    {"IL", "Illinois", "9"},
    {"IN", "Indiana", "9"},
    {"WI", "Wisconsin", "9"},
    {"CO", "Colorado", "0"},
    {"IA", "Iowa", "0"},
    {"KS", "Kansas", "0"},
    {"MN", "Minnesota", "0"},
    {"MO", "Missouri", "0"},
    {"NE", "Nebraska", "0"},
    {"ND", "North Dakota", "0"},
    {"SD", "South Dakota", "0"},
    {"NL", "Newfoundland-Labrador", "Canada"},
    {"MAR", "Maritime", "Canada"},
    {"QC", "Quebec", "Canada"},
    {"ONN", "Ontario North", "Canada"},
    {"MB", "Manitoba", "Canada"},
    {"SK", "Saskatchewan", "Canada"},
    {"AB", "Alberta", "Canada"},
    {"BC", "British Columbia", "Canada"},
    {"NT", "Northern Territories", "Canada"},
    {"WCF", "West Central Florida", "4"},
    {"ONS", "Ontario South", "Canada"},
    {"ONE", "Ontario East", "Canada"},
    {"GTA", "Greater Toronto Area", "Canada"},
}};

struct SectionTableTest : ProgramFixture {
    /// Logs a contact with the section in question; each has a call of its own.
    void Work(std::string_view section) {
        Type("88a" + ("K" + std::to_string(++worked_)) + "XX72");
        Fill(Main().txtSec, section);
        Press("Enter");
    }
    Colour ColourOf(int i) { return Main().Label10(i).State().foreColor; }

private:
    int worked_ = 0;
};

TEST(SectionTable, HasTheSectionsInTheirOrder) {
    for (int i = 1; i <= 83; ++i) {
        const ToldSection& told = kTold.at(static_cast<std::size_t>(i - 1));
        EXPECT_EQ(SectionTable{}.Code(i), told.code) << i;
        EXPECT_EQ(SectionTable{}.Name(i), told.name) << i;
    }
}

TEST(SectionTable, IsEmptyUntilTheStartHasFilledIt) {
    const SectionTable sections;
    EXPECT_EQ(sections.gSectionCount, 0);
    EXPECT_EQ(sections.Find("CT"), 0);
}

TEST_F(SectionTableTest, CodeIsFoundExactlyAndAtItsOwnRow) {
    Start();
    const SectionTable& sections = program->sections;
    EXPECT_EQ(sections.gSectionCount, 83);
    for (int i = 1; i <= 83; ++i) {
        EXPECT_EQ(sections.Find(kTold.at(static_cast<std::size_t>(i - 1)).code), i);
    }
    for (const std::string_view code : {"", " ", "XX", "ct", "CT ", " CT", "C", "CTX", "Connecticut", "ONT", "DX"}) {
        EXPECT_EQ(sections.Find(code), 0) << code;
    }
}

TEST_F(SectionTableTest, NeededIsBoldAndWorkedIsNot) {
    Start();
    const int section = program->sections.Find("CT");
    EXPECT_TRUE(Main().Label10(section).State().bold);
    Work("CT");
    EXPECT_FALSE(Main().Label10(section).State().bold);
    EXPECT_TRUE(Main().Label10(program->sections.Find("ME")).State().bold);
    program->reload.mnuopen2();
    EXPECT_FALSE(Main().Label10(section).State().bold);
}

TEST_F(SectionTableTest, LabelHasTheCodeTheNameAndAPlaceUnderItsHeading) {
    Start();
    const Form1& form = Main();
    const std::array<const Label*, 11> headings{
        &form.lblSecOne,   &form.lblSecTwo,   &form.lblSecThre, &form.lblSecFour, &form.lblSecFive, &form.lblSecSix,
        &form.lblSecSeven, &form.lblSecEight, &form.lblSecNine, &form.lblSecZero, &form.lblSecCA};
    std::set<std::pair<double, double>> places;
    for (int i = 1; i <= 83; ++i) {
        const ToldSection& told = kTold.at(static_cast<std::size_t>(i - 1));
        const Label& label = Main().Label10(i);
        EXPECT_EQ(label.Caption(), told.code) << i;
        EXPECT_EQ(label.State().toolTip, told.name) << i;
        const auto heading =
            std::ranges::find_if(headings, [&](const Label* one) { return one->Caption() == told.heading; });
        ASSERT_NE(heading, headings.end()) << told.heading;
        EXPECT_EQ(label.State().place.left, (*heading)->State().place.left) << told.code;
        EXPECT_GT(label.State().place.top, (*heading)->State().place.top) << told.code;
        EXPECT_TRUE(places.emplace(label.State().place.left, label.State().place.top).second)
            << told.code << " lies on another";
    }
}

TEST_F(SectionTableTest, LabelsAreDarkRedBeforeTheFirstReload) {
    stored.gColorNeeded = 0x654321;
    MakeProgram();
    files.Put(kPreferencesPath, "");  // damaged: the load ends before the log is read
    program->Start();
    for (int i = 1; i <= 83; ++i) {
        EXPECT_EQ(ColourOf(i), 0x000080) << i;
    }
}

TEST_F(SectionTableTest, LabelTurnsAtTheFirstContactWithTheSection) {
    stored.gColorWorked = 0x123456;
    StartWith({});
    EXPECT_EQ(ColourOf(1), stored.gColorNeeded);
    Work("CT");
    EXPECT_EQ(ColourOf(1), 0x123456);
    EXPECT_EQ(Main().lblTotSec.Caption(), "1");
    EXPECT_EQ(Main().lblTotScore.Caption(), "2");
    Work("CT");
    EXPECT_EQ(ColourOf(1), 0x123456);
    EXPECT_EQ(program->sections.SectionQsos[1], 2);
    EXPECT_EQ(Main().lblTotSec.Caption(), "1");
    EXPECT_EQ(Main().lblTotScore.Caption(), "4");
    EXPECT_EQ(ColourOf(2), stored.gColorNeeded);
}

TEST_F(SectionTableTest, NothingIsToGoWhenAllSectionsAreWorked) {
    StartWith({});
    for (const ToldSection& told : kTold) {
        Work(told.code);
    }
    EXPECT_EQ(Main().lblsectogo.Caption(), "0");
    EXPECT_EQ(Main().lblTotSec.Caption(), "83");
    EXPECT_EQ(Main().lblTotScore.Caption(), "13778");  // 83 sections, 83 contacts, 2 points
    for (int i = 1; i <= 83; ++i) {
        EXPECT_EQ(ColourOf(i), stored.gColorWorked) << i;
    }
}

TEST_F(SectionTableTest, GridAndScoreHaveTheirCaptions) {
    Start();
    EXPECT_EQ(Main().lblSecWkd.Caption(), "  Sections Worked");
    const std::array<std::string_view, 6> captions{"Total Contacts.............", "Total Sections Worked",
                                                   "Sections to go ............", "Total Score..................",
                                                   "QSOs / Hr (last 60 min)",     "QSOs / Hr (last 20 min)"};
    for (int i = 1; i <= 6; ++i) {
        EXPECT_EQ(Main().lblScoreCaption(i).Caption(), captions.at(static_cast<std::size_t>(i - 1)));
    }
}

}  // namespace
}  // namespace tallyhut
