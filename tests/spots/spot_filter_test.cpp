#include "spots/spot_filter.h"

#include <gtest/gtest.h>

#include "tests/spots/cluster_fixture.h"

namespace tallyhut {
namespace {

TEST(Spotter, IsTheCallBehindDeWithoutWhatANodeHangsOn) {
    EXPECT_EQ(SpotterOf("DE K3LR:     14025.0  W1AW"), "K3LR");
    EXPECT_EQ(SpotterOf("DE KM3T-2-#:  14029.6  W1XX"), "KM3T");
    EXPECT_EQ(SpotterOf("DE VE3/K1AB:  14040.0"), "VE3/K1AB");
    EXPECT_EQ(SpotterOf("DE K3LR 14025.0"), "K3LR");
    EXPECT_EQ(SpotterOf("DE :"), "");
    EXPECT_EQ(SpotterOf("K3LR:"), "");
    EXPECT_EQ(SpotterOf(""), "");
}

TEST(NearSpotters, AreOfTheUnitedStatesAndCanada) {
    for (const char* call :
         {"K1ABC",     "N1ABC",     "W1AW",   "AA1AA",  "AL7X",     "KH6XX",     "KL7XX",    "KP4XX", "VA3XX", "VE3XX",
          "VG1X",      "VO1XX",     "VX3X",   "VY2XX",  "CF3X",     "CK3X",      "CY0X",     "CZ1X",  "XJ1X",  "XO1X",
          "VE3/K1ABC", "K1ABC/VE3", "W1AW/3", "W1AW/P", "W1AW/QRP", "DL1ABC/W1", "W1AW/M/P", "W1AW/R"}) {
        EXPECT_TRUE(IsNear(call)) << call;
    }
    for (const char* call :
         {"",     "/",    "DL1ABC", "AM1X",   "A41AA",  "VH2X",   "VK2ABC",   "VN1X",    "VP9X",     "VQ9X",
          "VU2X", "VZ1X", "CE1X",   "CL1X",   "CX1X",   "XI1X",   "XP1X",     "XE1ABC",  "PJ5/KG9N", "KG9N/PJ5",
          "V",    "A",    "3",      "M/W1XX", "P/W1XX", "R/W1XX", "R/W1XX/P", "M/W1XX/3"}) {
        EXPECT_FALSE(IsNear(call)) << call;
    }
}

/// A post of whoever.
std::string PostBy(std::string_view spotter, std::string_view frequency, std::string_view call,
                   std::string_view comment) {
    std::string line = PostLine(frequency, call, comment);
    return line.replace(line.find("K3LR"), 4, spotter);
}

struct SpotFilterTest : ClusterFixture {
    void StartWithPosts() {
        StartWithCluster();
        Arrive(PostBy("K3LR", "14025.0", "K1OLD", "CQ SS CT"));
        Arrive(PostBy("DL1A", "14030.0", "K1FAR", "CQ SS CT"));
        Arrive(PostBy("K3LR", "14035.0", "K1ANY", "CQ SS"));
        Arrive(PostBy("K3LR", "14040.0", "K1NEW", "CQ SS MDC"));
    }
    void Tick(CheckBox& box, bool on = true) {
        box.SetValue(on);
        TheDesk().RunPending();
    }
    /// Calls on the map, by frequency.
    std::string OnTheMap() {
        std::string calls;
        for (const int row : Part().bandMap.RowsShown()) {
            EXPECT_TRUE(Main().lblDXSpot(row).State().visible) << row;
            calls += Part().table.Row(row).SpotCall + ' ';
        }
        return calls;
    }
    std::string OnTheList() {
        std::string calls;
        for (std::size_t row = 0; row < Main().txtDX.RowCount(); ++row) {
            calls += Main().txtDX.Cell(row, 0) + ' ';
        }
        return calls;
    }
    int OnTheSpectrum() {
        int count = 0;
        for (int i = 0; i <= 49; ++i) {
            count += Part().spectrumForm.lblDXSpot(i).State().visible ? 1 : 0;
        }
        return count;
    }
};

TEST_F(SpotFilterTest, WithoutAChoiceAllAreShown) {
    StartWithPosts();
    EXPECT_EQ(OnTheMap(), "K1OLD K1FAR K1ANY K1NEW ");
    EXPECT_EQ(OnTheList(), "K1NEW K1ANY K1FAR K1OLD ");
}

TEST_F(SpotFilterTest, OnlySpottersNearbyThinMapsAndListAndNotTheTable) {
    StartWithPosts();
    Part().spectrumForm.Show();
    TheDesk().RunPending();
    EXPECT_EQ(OnTheSpectrum(), 4);
    Tick(SetupForm().chkNearOnly);
    EXPECT_EQ(OnTheMap(), "K1OLD K1ANY K1NEW ");
    EXPECT_EQ(OnTheList(), "K1NEW K1ANY K1OLD ");
    EXPECT_EQ(OnTheSpectrum(), 3);
    EXPECT_EQ(Part().table.Row(47).SpotCall, "K1FAR");
    Arrive(PostBy("DL1A", "14045.0", "K1GER", "CQ SS CT"));
    EXPECT_EQ(OnTheMap(), "K1OLD K1ANY K1NEW ");
    EXPECT_EQ(Part().table.Newest().SpotCall, "K1GER");
    Tick(SetupForm().chkNearOnly, false);
    EXPECT_EQ(OnTheMap(), "K1OLD K1FAR K1ANY K1NEW K1GER ");
}

TEST_F(SpotFilterTest, OnlyNeededSectionsAreShownUntilTheyAreWorked) {
    stored.gColorNeededSpots = 1;
    StartWithPosts();
    Tick(SetupForm().chkNeededOnly);
    EXPECT_EQ(OnTheMap(), "K1OLD K1FAR K1NEW ");
    EXPECT_EQ(OnTheList(), "K1NEW K1FAR K1OLD ");
    EXPECT_EQ(Main().lblFreqSpot(0).Caption(), "14.024");
    Type("88aw1xx72ct");
    Part().transports.Command2_Click();
    Press("Enter");
    EXPECT_EQ(OnTheMap(), "K1NEW ") << "whether a port is open or not";
    EXPECT_EQ(OnTheList(), "K1NEW ");
    const Label& offered = Main().Label10(program->sections.Find("MDC"));
    EXPECT_TRUE(offered.State().underlined) << "marks are no matter of it";
}

TEST_F(SpotFilterTest, SectionOffersWhatIsNotShown) {
    StartWithPosts();
    Tick(SetupForm().chkNearOnly);
    Arrive(PostBy("DL1A", "14045.0", "K1GER", "CQ SS EMA"));
    TheDesk().PostClick(Main().Label10(program->sections.Find("EMA")), kLeftButton);
    TheDesk().RunPending();
    EXPECT_EQ(Main().txtCall.Text(), "K1GER");
}

TEST_F(SpotFilterTest, ClickOnARowOfTheThinnedListWorksThatSpot) {
    cluster.showsList = true;
    StartWithPosts();
    Tick(SetupForm().chkNearOnly);
    TheDesk().PostRowClick(Main().txtDX, 2, kLeftButton);
    TheDesk().RunPending();
    EXPECT_EQ(Main().txtCall.Text(), "K1OLD");
}

TEST_F(SpotFilterTest, ChoiceIsKeptOnThisMachine) {
    StartWithPosts();
    Tick(SetupForm().chkNearOnly);
    Tick(SetupForm().chkNeededOnly);
    EXPECT_EQ(settings.Get("Machine", "SpotsNearOnly"), "1");
    EXPECT_EQ(settings.Get("Machine", "SpotsNeededOnly"), "1");
    StartWithCluster();
    EXPECT_TRUE(SetupForm().chkNearOnly.Value());
    Tick(SetupForm().chkNeededOnly, false);
    EXPECT_EQ(settings.Get("Machine", "SpotsNeededOnly"), "0");
}

}  // namespace
}  // namespace tallyhut
