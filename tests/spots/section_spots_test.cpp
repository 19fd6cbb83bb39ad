#include "spots/section_spots.h"

#include "tests/spots/spots_fixture.h"

namespace tallyhut {
namespace {

struct SectionSpotsTest : SpotsFixture {
    std::unique_ptr<SectionSpots> sections;

    void StartSections() {
        StartSpots();
        program->time.gTimeOn = 1;
        sections = std::make_unique<SectionSpots>(
            SectionSpots{program->logPart.panel, program->logPart.contest, table, program->rigPart.rigCommands});
    }
    int IndexOf(std::string_view code) { return program->sections.Find(code); }
};

TEST_F(SectionSpotsTest, ClickWorksTheNewestSpotOfTheSection) {
    StartSections();
    Post("K1ABC", "MDC", "14025");
    Post("K2ABC", "MDC", "7030");
    Post("K3ABC", "EMA", "3530");
    sections->Label10_MouseDown(IndexOf("MDC"));
    EXPECT_EQ(Main().txtCall.Text(), "K2ABC");
    EXPECT_EQ(Main().txtSec.Text(), "MDC");
    EXPECT_EQ(Dialog(), "K2ABC  -  MDC\r\n 7.03\r\n21:04");
}

TEST_F(SectionSpotsTest, ClickOnASectionWithoutASpotOnlyFillsTheSection) {
    StartSections();
    Post("K1ABC", "MDC", "14025");
    sections->Label10_MouseDown(IndexOf("CT"));
    EXPECT_EQ(Main().txtSec.Text(), "CT");
    EXPECT_EQ(Main().txtCall.Text(), "");
}

TEST_F(SectionSpotsTest, SpotThatWasTakenOffTheMapIsStillFetched) {
    StartSections();
    Post("K1ABC", "MDC", "14025");
    table.Newest().SpotFreq = 0;
    sections->Label10_MouseDown(IndexOf("MDC"));
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
    EXPECT_EQ(Dialog(), "K1ABC  -  MDC\r\n 0\r\n21:04");
}

TEST_F(SectionSpotsTest, HoverCountsTheContactsOfEachBand) {
    std::vector<Contact> contacts = ManyContacts(4);
    contacts[1].Bnd = "160";
    contacts[2].Bnd = "6";
    contacts[3].Sec = "EMA";
    PutLog(contacts);
    StartSections();
    sections->Label10_MouseMove(IndexOf("MDC"));
    EXPECT_EQ(Partials(), "  Maryland-DC   Total = 2\r\n  160 = 1   80 = 0   40 = 1   20 = 0   15 = 0   10 = 0");
}

TEST_F(SectionSpotsTest, HoverTellsOfTheNewestSpot) {
    StartSections();
    Post("K1ABC", "MDC", "14025.3");
    sections->Label10_MouseMove(IndexOf("MDC"));
    EXPECT_EQ(Partials(),
              "  Maryland-DC   Total = 0\r\n  160 = 0   80 = 0   40 = 0   20 = 0   15 = 0   10 = 0\r\n"
              "  Recent Spot: K1ABC  -   14.0253  -  21:04");
}

}  // namespace
}  // namespace tallyhut
