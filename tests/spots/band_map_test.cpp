#include "spots/band_map.h"

#include <algorithm>

#include "tests/spots/spots_fixture.h"

namespace tallyhut {
namespace {

struct BandMapTest : SpotsFixture {
    std::unique_ptr<BandMap> map;

    void StartMap(std::string_view band = "20") {
        stored.gBand = band;
        StartSpots();
        map = std::make_unique<BandMap>(
            BandMap{program->logPart.panel, program->logPart.contest, table, *posts, program->rigPart.rigCommands});
        posts->drawMaps = [this] { map->DisplayBandMapLabels(); };
        posts->listChanged = [this] { map->ShowList(); };
        map->PacketResize(SpotDisplay::Map);
    }
    std::string Scale() {
        std::string captions;
        for (int i = 0; i < 5; ++i) {
            captions += (i == 0 ? "" : " ") + Main().lblFreqSpot(i).Caption();
        }
        return captions;
    }
    const ControlState& Spot(int row) { return Main().lblDXSpot(row).State(); }
    /// The rows that are on the map.
    std::string OnMap() {
        std::string rows;
        for (int i = 0; i <= 49; ++i) {
            rows += Spot(i).visible ? (rows.empty() ? "" : " ") + std::to_string(i) : "";
        }
        return rows;
    }
    double CentreOf(int row) { return Spot(row).place.top + Spot(row).place.height / 2; }
    double MarkAt(double share) {
        const ControlState& line = Main().LineDX.State();
        return line.y1 + share * (line.y2 - line.y1);
    }
};

TEST_F(BandMapTest, OneSpotLeavesTheScaleAtTheBandEdges) {
    StartMap();
    Post("K1ABC", "", "14025");
    EXPECT_EQ(Scale(), "14.000 14.088 14.175 14.263 14.350");
    EXPECT_EQ(OnMap(), "49");
}

TEST_F(BandMapTest, LabelStandsAgainstTheScaleAtItsFrequency) {
    StartMap();
    Post("K1ABC", "", "14175");
    const ControlState& label = Spot(49);
    EXPECT_EQ(label.text, "K1");
    EXPECT_EQ(label.toolTip, "K1ABC  14.175  21:04:33");
    EXPECT_DOUBLE_EQ(label.place.left, Main().LineDX.State().x2 - label.place.width - 0.004 * label.place.width);
    EXPECT_NEAR(CentreOf(49), MarkAt(0.5), 0.01);
    EXPECT_FALSE(Main().LineSpot(49).State().visible);
}

TEST_F(BandMapTest, HintHasTheTimeByTheOffsetInWholeHours) {
    stored.gUtcOffset = 5.4F;
    StartMap();
    Post("K1ABC", "", "14175");
    EXPECT_EQ(Spot(49).toolTip, "K1ABC  14.175  02:04:33");
}

TEST_F(BandMapTest, SpotAtTheEdgeOfTheBandIsNotDrawn) {
    StartMap("160");
    Post("K1ABC", "", "1800");
    Post("K2ABC", "", "2000");
    EXPECT_EQ(OnMap(), "");
    EXPECT_EQ(Scale(), "1.800 1.850 1.900 1.950 2.000");
}

TEST_F(BandMapTest, SpotsAgeAndGo) {
    StartMap();
    Post("K1ABC", "", "14025");
    const auto colourAfter = [this](Tick seconds) {
        clock.SetNow(AddSeconds({2026, 11, 7, 21, 4, 33}, static_cast<std::int64_t>(seconds)));
        map->DisplayBandMapLabels();
        return Spot(49).visible ? Spot(49).foreColor : -1;
    };
    EXPECT_EQ(colourAfter(599), 0x80FFFF);
    EXPECT_TRUE(Spot(49).bold) << "told by more than colour";
    EXPECT_EQ(colourAfter(600), 0xFFFFFF);
    EXPECT_FALSE(Spot(49).bold);
    EXPECT_EQ(colourAfter(1800), 0xC0C0C0);
    EXPECT_EQ(colourAfter(3600), -1);
}

TEST_F(BandMapTest, LeftClickTakesASpotOffAndTheScaleFollows) {
    StartMap();
    Post("K1ABC", "", "14025");
    Post("K2ABC", "", "14030");
    EXPECT_EQ(Scale().substr(0, 6), "14.024");
    map->lblDXSpot_MouseDown(48, kLeftButton);
    EXPECT_EQ(OnMap(), "49");
    EXPECT_EQ(Scale().substr(0, 6), "14.000");
    EXPECT_EQ(table.Row(48).SpotFreq, 0);
    EXPECT_EQ(table.Row(48).SpotCall, "K1ABC");
}

TEST_F(BandMapTest, RightClickWorksTheSpot) {
    StartMap();
    program->time.gTimeOn = 1;
    Post("K1ABC", "", "14025");
    map->lblDXSpot_MouseDown(49, kRightButton);
    TheDesk().RunPending();
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
    EXPECT_NE(FocusedField(), "txtCall") << "the flow has moved on";
    EXPECT_EQ(OnMap(), "49");
}

TEST_F(BandMapTest, CallOfAShortLineComesIntoTheFieldWithoutItsEnd) {
    StartMap();
    Post("K1ABC\r\n", "", "14025");
    map->lblDXSpot_MouseDown(49, kRightButton);
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
}

TEST_F(BandMapTest, HoverShowsTheHint) {
    StartMap();
    Post("K1ABC", "", "14025");
    map->lblDXSpot_MouseMove(49);
    EXPECT_EQ(Partials(), "K1ABC  14.025  21:04:33");
}

TEST_F(BandMapTest, SpotsOfAnotherBandReturnWithIt) {
    StartMap();
    Post("K1ABC", "", "14025");
    program->band.bandChanged = [this] { map->DisplayBandMapLabels(); };
    program->band.ChooseBand("40");
    EXPECT_EQ(OnMap(), "");
    EXPECT_EQ(Scale(), "7.000 7.075 7.150 7.225 7.300");
    program->band.ChooseBand("20");
    EXPECT_EQ(OnMap(), "49");
}

TEST_F(BandMapTest, CrowdedLabelsStandApartWithALeaderToTheirMark) {
    StartMap();
    for (const char* frequency : {"14010", "14020", "14020", "14020", "14090"}) {
        Post("K1ABC", "", frequency);
    }
    EXPECT_FALSE(Main().LineSpot(49).State().visible) << "alone";
    const double height = Spot(48).place.height;
    EXPECT_NEAR(std::abs(CentreOf(48) - CentreOf(47)), height, 0.01);
    EXPECT_NEAR(std::abs(CentreOf(47) - CentreOf(46)), height, 0.01);
    const ControlState& leader = Main().LineSpot(48).State();
    EXPECT_TRUE(leader.visible);
    EXPECT_NEAR(leader.y2, MarkAt((14.020 - 14.009) / (14.091 - 14.009)), 1);
    EXPECT_NEAR(leader.y1, CentreOf(48), 0.01);
}

TEST_F(BandMapTest, FiftySpotsOnABandDoNotLieOnEachOther) {
    StartMap();
    for (int n = 0; n < 50; ++n) {
        Post("K1ABC", "", std::to_string(14'010 + n % 7));
    }
    const Place frame = Main().lblDX.State().place;
    for (int i = 0; i < 50; ++i) {
        const Place one = Spot(i).place;
        EXPECT_GE(one.left, frame.left);
        EXPECT_GE(one.top, frame.top);
        EXPECT_LE(one.top + one.height, frame.top + frame.height);
        for (int j = i + 1; j < 50; ++j) {
            const Place other = Spot(j).place;
            const bool beside =
                one.left + one.width <= other.left + 0.01 || other.left + other.width <= one.left + 0.01;
            const bool above = one.top + one.height <= other.top + 0.01 || other.top + other.height <= one.top + 0.01;
            EXPECT_TRUE(beside || above) << i << ' ' << j;
        }
    }
}

TEST_F(BandMapTest, MapTakesItsRoomFromTheContactsAndGivesItBack) {
    StartMap();
    const auto right = [this](const Control& control) {
        return control.State().place.left + control.State().place.width;
    };
    EXPECT_TRUE(Main().lblDX.State().visible);
    EXPECT_LE(right(Main().ListView1), Main().lblDX.State().place.left);
    map->PacketResize(SpotDisplay::List);
    EXPECT_FALSE(Main().lblDX.State().visible);
    EXPECT_TRUE(Main().txtDX.State().visible);
    EXPECT_EQ(OnMap(), "");
    map->PacketResize(SpotDisplay::None);
    EXPECT_FALSE(Main().txtDX.State().visible);
    EXPECT_GT(right(Main().ListView1), Main().lblDX.State().place.left);
}

TEST_F(BandMapTest, ListIsFilledWhetherShownOrNotAndAClickWorksASpot) {
    StartMap();
    program->time.gTimeOn = 1;
    Post("K1ABC", "", "14025");
    Post("K2ABC", "", "7030");
    ASSERT_EQ(Main().txtDX.RowCount(), 2U);
    EXPECT_EQ(Main().txtDX.Cell(0, 0), "K2ABC");
    EXPECT_EQ(Main().txtDX.Cell(0, 1), "7.03");
    Main().txtDX.SelectRow(1);
    map->txtDX_Click();
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
}

TEST_F(BandMapTest, ClickOnAnEmptyListDoesNothing) {
    StartMap();
    map->txtDX_Click();
    EXPECT_EQ(Main().txtCall.Text(), "");
}

}  // namespace
}  // namespace tallyhut
