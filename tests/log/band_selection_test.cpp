#include "log/band_selection.h"

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct BandSelectionTest : ProgramFixture {
    std::string Checked() {
        std::string checked;
        for (const BandRow& row : kBands) {
            checked += (Main().*row.entry).Checked() ? std::string{row.band} + ' ' : "";
        }
        return checked;
    }
    void DoubleClickTheBand() {
        TheDesk().PostClick(Main().Label30, kLeftButton, true);
        TheDesk().RunPending();
    }
};

TEST_F(BandSelectionTest, AMenuEntrySetsShowsChecksAndKeepsTheBand) {
    Start();
    EXPECT_EQ(Main().Label30.Caption(), "40");
    for (const BandRow& row : kBands) {
        ChooseMenu(Main().*row.entry);
        EXPECT_EQ(program->preferences.gBand, row.band);
        EXPECT_EQ(Main().Label30.Caption(), row.band);
        EXPECT_EQ(Checked(), std::string{row.band} + ' ');
        EXPECT_NE(files.contents.at(kPreferencesPath).find('"' + std::string{row.band} + '"'), std::string::npos);
    }
}

TEST_F(BandSelectionTest, ADoubleClickTakesTheNextBandAndWraps) {
    Start();
    std::string bands;
    for (int i = 0; i < 7; ++i) {
        DoubleClickTheBand();
        bands += program->preferences.gBand + ' ';
    }
    EXPECT_EQ(bands, "20 15 10 160 80 40 20 ");
}

TEST_F(BandSelectionTest, AChangeWithTheTimeStoppedSetsTheMomentAndTimeOnSetsItAgain) {
    Start();
    clock.Advance(5'000);
    ChooseMenu(Main().mnu80);
    EXPECT_EQ(program->time.gBandOnAt, clock.Now());
    clock.Advance(5'000);
    Click(Main().cmdLogOn);
    EXPECT_EQ(program->time.gBandOnAt, clock.Now());
}

TEST_F(BandSelectionTest, AContactBearsTheBandOfItsCommit) {
    Start();
    Type("88aw1xx72mdc");
    ChooseMenu(Main().mnu15);
    Press("Enter");
    EXPECT_EQ(program->log.Row(1).Bnd, "15");
}

TEST_F(BandSelectionTest, ABandTextThatIsNoEntryIsStampedAndLeavesAllUnchecked) {
    stored.gBand = "6";
    Start();
    EXPECT_EQ(Checked(), "");
    DoubleClickTheBand();
    Type("88aw1xx72mdc\r");
    EXPECT_EQ(program->log.Row(1).Bnd, "6");
}

}  // namespace
}  // namespace tallyhut
