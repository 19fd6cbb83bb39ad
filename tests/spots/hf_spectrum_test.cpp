#include "spots/hf_spectrum.h"

#include "tests/spots/spots_fixture.h"

namespace tallyhut {
namespace {

struct HfSpectrumTest : SpotsFixture {
    std::unique_ptr<SpectrumMap> form;
    std::unique_ptr<HfSpectrum> spectrum;

    ~HfSpectrumTest() override { form.reset(); }
    HfSpectrumTest() = default;
    HfSpectrumTest(const HfSpectrumTest&) = delete;
    HfSpectrumTest& operator=(const HfSpectrumTest&) = delete;
    HfSpectrumTest(HfSpectrumTest&&) = delete;
    HfSpectrumTest& operator=(HfSpectrumTest&&) = delete;

    void StartSpectrum() {
        StartSpots();
        form = std::make_unique<SpectrumMap>(TheDesk());
        spectrum = std::make_unique<HfSpectrum>(
            HfSpectrum{*form, program->logPart.panel, program->logPart.contest, table, program->rigPart.rigCommands});
        posts->drawMaps = [this] { spectrum->BandMapLabelDisplay(); };
        spectrum->BandMapLabelDisplay();
    }
    std::string Scale(int band) {
        std::string captions;
        for (int i = 5 * band; i < 5 * band + 5; ++i) {
            captions += (i == 5 * band ? "" : " ") + form->lblFreqSpot(i).Caption();
        }
        return captions;
    }
    const ControlState& Spot(int row) { return form->lblDXSpot(row).State(); }
    double MarkAt(int band, double share) {
        const ControlState& line = form->lineHF(band).State();
        return line.y1 + share * (line.y2 - line.y1);
    }
};

TEST_F(HfSpectrumTest, EachBandHasItsScale) {
    StartSpectrum();
    EXPECT_EQ(Scale(0), "1.800 1.850 1.900 1.950 2.000");
    EXPECT_EQ(Scale(3), "10.100 10.113 10.125 10.137 10.150");
    EXPECT_EQ(Scale(10), "144.000 145.000 146.000 147.000 148.000");
}

TEST_F(HfSpectrumTest, BandWithSpotsIsZoomedAndTheOthersAreNot) {
    StartSpectrum();
    Post("K1ABC", "", "14025");
    Post("K2ABC", "", "14030");
    EXPECT_EQ(Scale(4).substr(0, 6), "14.024");
    EXPECT_EQ(Scale(4).substr(28), "14.031");
    EXPECT_EQ(Scale(2), "7.000 7.075 7.150 7.225 7.300");
}

TEST_F(HfSpectrumTest, SpotAloneStandsAgainstItsLineAtItsFrequency) {
    StartSpectrum();
    Post("K1ABC", "", "10119");
    const ControlState& label = Spot(49);
    EXPECT_TRUE(label.visible);
    EXPECT_EQ(label.text, "K1");
    EXPECT_EQ(label.toolTip, "K1ABC  10.119  21:04:33");
    EXPECT_DOUBLE_EQ(label.place.left, form->lineHF(3).State().x2 - 1.004 * label.place.width);
    EXPECT_NEAR(label.place.top + label.place.height / 2, MarkAt(3, 0.38), 1);
    EXPECT_FALSE(form->LineSpot(49).State().visible);
}

TEST_F(HfSpectrumTest, SpotAtACaptionStandsBesideItWithALeader) {
    StartSpectrum();
    Post("K1ABC", "", "14175");
    const Place caption = form->lblFreqSpot(22).State().place;
    EXPECT_GE(Spot(49).place.top, caption.top + caption.height - 0.01);
    EXPECT_TRUE(form->LineSpot(49).State().visible);
    EXPECT_NEAR(form->LineSpot(49).State().y2, MarkAt(4, 0.5), 1);
}

TEST_F(HfSpectrumTest, SpotAtAnEdgeOrOnNoScaleIsNotDrawn) {
    StartSpectrum();
    for (const char* frequency : {"7000", "7300", "5300"}) {
        Post("K1ABC", "", frequency);
        EXPECT_FALSE(Spot(49).visible) << frequency;
    }
}

TEST_F(HfSpectrumTest, SpotsAgeAndGo) {
    StartSpectrum();
    Post("K1ABC", "", "14025");
    const auto colourAfter = [this](std::int64_t seconds) {
        clock.SetNow(AddSeconds({2026, 11, 7, 21, 4, 33}, seconds));
        spectrum->BandMapLabelDisplay();
        return Spot(49).visible ? Spot(49).foreColor : -1;
    };
    EXPECT_EQ(colourAfter(599), 0x80FFFF);
    EXPECT_EQ(colourAfter(600), 0xFFFFFF);
    EXPECT_EQ(colourAfter(1800), 0xC0C0C0);
    EXPECT_EQ(colourAfter(3600), -1);
}

TEST_F(HfSpectrumTest, WorkedStationIsToldFromANewOne) {
    PutLog({Worked("K1ABC")});
    StartSpectrum();
    Post("K1ABC", "", "14025");
    Post("K2ABC", "", "7030");
    EXPECT_FALSE(Spot(48).underlined);
    EXPECT_TRUE(Spot(49).underlined);
}

TEST_F(HfSpectrumTest, LeftClickTakesASpotOffAndTheRightOneWorksIt) {
    StartSpectrum();
    program->time.gTimeOn = 1;
    Post("K1ABC", "", "14025");
    Post("K2ABC", "", "14030");
    spectrum->lblDXSpot_MouseDown(48, kLeftButton);
    EXPECT_FALSE(Spot(48).visible);
    EXPECT_EQ(Scale(4).substr(0, 6), "14.000");
    spectrum->lblDXSpot_MouseDown(49, kRightButton);
    EXPECT_EQ(Main().txtCall.Text(), "K2ABC");
    EXPECT_TRUE(Main().IsActive());
}

TEST_F(HfSpectrumTest, OperatingTimeIsNotTouchedByTheMap) {
    StartSpectrum();
    program->time.gOpSecondsNow = 77;
    Post("K1ABC", "", "14025");
    EXPECT_EQ(program->time.gOpSecondsNow, 77);
}

TEST_F(HfSpectrumTest, OldestSpotBeyondTheScaleStandsAtTheEndOfTheLine) {
    StartSpectrum();
    Post("K1ABC", "", "7290");
    for (int i = 1; i < SpotTable::kNewest + 1; ++i) {
        Post("K2ABC", "", i % 2 == 0 ? "7030" : "7040");
    }
    EXPECT_EQ(Scale(2).substr(24), "7.041");
    EXPECT_TRUE(Spot(0).visible);
    const ControlState& leader = form->LineSpot(0).State();
    EXPECT_EQ(leader.y2, MarkAt(2, 1));
}

}  // namespace
}  // namespace tallyhut
