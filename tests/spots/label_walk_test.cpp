#include "spots/label_walk.h"

#include "tests/spots/cluster_fixture.h"

namespace tallyhut {
namespace {

struct LabelWalkTest : ClusterFixture {
    std::vector<std::string> said;

    void StartWithThree() {
        StartWithCluster();
        Arrive(PostLine("14175.0", "K1ABC", "CQ SS"));
        Arrive(PostLine("14180.0", "VE3ABC", "CQ SS"));
        Arrive(PostLine("7040.0", "W7ABC", "CQ SS"));
        Arrive(PostLine("14170.0", "W2ABC", "CQ SS"));
        TheDesk().outlets.announced = [this](std::string_view words) { said.emplace_back(words); };
    }
    void GoToMap() {
        Main().lblDX.SetFocus();
        TheDesk().RunPending();
    }
    /// The call that the keyboard points at on the main form's map.
    std::string Pointed() {
        std::string calls;
        for (int i = 0; i <= SpotTable::kNewest; ++i) {
            const ControlState& label = Main().lblDXSpot(i).State();
            calls += label.pointed ? Part().table.Row(i).SpotCall : "";
        }
        return calls;
    }
};

TEST_F(LabelWalkTest, ArrowsGoFromSpotToSpotByFrequencyAndAroundTheEnds) {
    StartWithThree();
    GoToMap();
    EXPECT_EQ(Pointed(), "W2ABC");
    Press("Down");
    EXPECT_EQ(Pointed(), "K1ABC");
    Press("Right");
    EXPECT_EQ(Pointed(), "VE3ABC");
    Press("Down");
    EXPECT_EQ(Pointed(), "W2ABC");
    Press("Up");
    EXPECT_EQ(Pointed(), "VE3ABC");
}

TEST_F(LabelWalkTest, SpotIsToldAndSaidAsUnderTheMouse) {
    StartWithThree();
    GoToMap();
    EXPECT_EQ(Main().lblDupe.Caption(), "W2ABC  14.170  21:04:33");
    ASSERT_FALSE(said.empty());
    EXPECT_EQ(said.back(), "W2ABC  14.170  21:04:33");
}

TEST_F(LabelWalkTest, EnterWorksTheSpot) {
    StartWithThree();
    GoToMap();
    Press("Down");
    Press("Enter");
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
    EXPECT_EQ(Pointed(), "");
}

TEST_F(LabelWalkTest, DeleteTakesTheSpotOffTheMapAndGoesToTheNext) {
    StartWithThree();
    GoToMap();
    Press("Delete");
    EXPECT_EQ(Pointed(), "K1ABC");
    Press("Delete");
    EXPECT_EQ(Pointed(), "VE3ABC");
    Press("Delete");
    EXPECT_EQ(Pointed(), "");
    EXPECT_EQ(said.back(), "No spots");
    Press("Delete");
    Press("Enter");
    EXPECT_EQ(Fields(), "||||");
}

TEST_F(LabelWalkTest, LetterGoesToTheNextLabelThatBeginsWithIt) {
    StartWithThree();
    GoToMap();
    Press("V");
    EXPECT_EQ(Pointed(), "VE3ABC");
    Press("Q");
    EXPECT_EQ(Pointed(), "VE3ABC");
}

TEST_F(LabelWalkTest, SpotStaysPointedAtWhenAPostComes) {
    StartWithThree();
    GoToMap();
    Arrive(PostLine("14172.0", "W3ABC", "CQ SS"));
    EXPECT_EQ(Pointed(), "W2ABC");
    Press("Down");
    EXPECT_EQ(Pointed(), "W3ABC");
}

TEST_F(LabelWalkTest, MapWithoutSpotsSaysSo) {
    StartWithCluster();
    TheDesk().outlets.announced = [this](std::string_view words) { said.emplace_back(words); };
    GoToMap();
    EXPECT_EQ(said, std::vector<std::string>{"No spots"});
}

TEST_F(LabelWalkTest, ClickOnTheMapDoesNotTakeTheFocus) {
    StartWithThree();
    TheDesk().PostClick(Main().lblDX, kRightButton);
    TheDesk().RunPending();
    EXPECT_NE(FocusedField(), "lblDX");
}

TEST_F(LabelWalkTest, SpectrumIsWalkedAlongItsBandsAndFromBandToBand) {
    StartWithThree();
    Press("Ctrl+B");
    ASSERT_TRUE(Part().spectrumForm.IsActive());
    const auto pointed = [this] { return Part().spectrumForm.lblSpot.Caption().substr(0, 5); };
    EXPECT_EQ(pointed(), "W7ABC");
    Press("Right");
    EXPECT_TRUE(pointed() == "W2ABC" || pointed() == "K1ABC") << pointed();
    Press("Left");
    EXPECT_EQ(pointed(), "W7ABC");
    Press("Enter");
    EXPECT_TRUE(Main().IsActive());
    EXPECT_EQ(Main().txtCall.Text(), "W7ABC");
}

TEST_F(LabelWalkTest, EscHidesTheSpectrum) {
    StartWithThree();
    Press("Ctrl+B");
    Press("Esc");
    EXPECT_FALSE(Part().spectrumForm.IsVisible());
    EXPECT_TRUE(Main().IsActive());
}

TEST_F(LabelWalkTest, SectionsAreWalkedAndWorkedLikeSpots) {
    StartWithCluster();
    Arrive(PostLine("14175.0", "K1ABC", "CQ CT"));
    Main().lblSecWkd.SetFocus();
    TheDesk().RunPending();
    EXPECT_TRUE(Main().Label10(1).State().pointed);
    const auto isAtConnecticut = [this] { return Main().Label10(program->sections.Find("CT")).State().pointed; };
    Press("C");
    for (int presses = 0; presses < 5 && !isAtConnecticut(); ++presses) {
        Press("C");
    }
    ASSERT_TRUE(isAtConnecticut());
    EXPECT_TRUE(Main().lblDupe.Caption().find("Recent Spot: K1ABC") != std::string::npos);
    Press("Delete");
    EXPECT_TRUE(isAtConnecticut());
    Press("Enter");
    EXPECT_EQ(Main().txtSec.Text(), "CT");
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
}

TEST_F(LabelWalkTest, KeyerKeepsItsArrowsInAKeyedContest) {
    stored.gContestMode = 0;
    StartWithThree();
    program->keyingPart.form.Option1.SetValue(true);
    GoToMap();
    const std::string before = Pointed();
    Press("Right");
    EXPECT_NE(Pointed(), before);
}

}  // namespace
}  // namespace tallyhut
