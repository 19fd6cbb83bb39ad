#include "support/form_scaling.h"

#include "platform/sim/screen.h"
#include "tests/toolkit/toolkit_fixture.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

TEST(Ratios, TextGrowsWithTheWidthAndAtMostByHalf) {
    struct Case {
        ScreenSize screen;
        Ratios ratios;
        double font;
    };
    const Case cases[] = {
        {{9600, 7200}, {1, 1}, 1},       {{12000, 7200}, {1.25, 1}, 1.25}, {{14400, 10800}, {1.5, 1.5}, 1.5},
        {{19200, 14400}, {2, 2}, 1.5},   {{9600, 14400}, {1, 2}, 1},       {{4800, 7200}, {0.5, 1}, 0.5},
        {{28800, 10800}, {3, 1.5}, 1.5},
    };
    for (const Case& c : cases) {
        const Ratios ratios = RatiosOf(c.screen, kDesignScreen);
        EXPECT_EQ(ratios, c.ratios) << c.screen.width << 'x' << c.screen.height;
        EXPECT_EQ(ratios.Font(), c.font) << c.screen.width << 'x' << c.screen.height;
    }
}

TEST(Ratios, SizesThatAreNothingAreRefused) {
    EXPECT_THROW(RatiosOf({0, 7200}, kDesignScreen), ValueError);
    EXPECT_THROW(RatiosOf({9600, 0}, kDesignScreen), ValueError);
    EXPECT_THROW(RatiosOf({-9600, 7200}, kDesignScreen), ValueError);
    EXPECT_THROW(RatiosOf(kDesignScreen, {0, 7200}), ValueError);
    EXPECT_THROW(RatiosOf(kDesignScreen, {9600, 0}), ValueError);
}

TEST(Scaled, LeftAndWidthGoWithTheWidthTopAndHeightWithTheHeight) {
    EXPECT_EQ(Scaled({10, 20, 30, 40}, {.width = 2, .height = 3}), (Place{20, 60, 60, 120}));
}

TEST(Centred, FormStandsInTheMiddleAndATitleBarHigher) {
    EXPECT_EQ(Centred({4000, 3000}, {9600, 7200}), (Place{2800, 1930, 4000, 3000}));
    EXPECT_EQ(Centred({9600, 7200}, {9600, 7200}), (Place{0, -170, 9600, 7200}));
}

struct ShapesForm : Form {
    explicit ShapesForm(Desk& owner) : Form{owner, "Shapes", "Shapes", {.width = 4800, .height = 3600}} {}

    MenuEntry menu{*this, "menu", "&Menu"};
    Label label{*this, "label", "", {.place = {100, 200, 300, 400}, .fontSize = 12}};
    Button button{*this, "button", "", {.place = {10, 20, 30, 40}}};
    ListView list{*this, "list", {{"Rec#", 520}, {"P", 340}}, {.place = {500, 600, 700, 800}}};
    Line line{*this, "line", 1, 2, 3, 4};
    Timer timer{*this, "timer", 500, false};
};

struct FormScalingTest : ToolkitTest {
    sim::Screen screen;
    ShapesForm form{desk};

    void SetScreen(double width, double height) { screen.whole = {width, height}; }
    void Load() {
        form.Form_Load = [this] { ScaleSmallForm(form, screen); };
        form.Load();
    }
    /// All that scaling touches, in one text.
    std::string Shape() const {
        const auto numbers = [](std::initializer_list<double> values) {
            std::string text;
            for (const double value : values) {
                text += (text.empty() ? "" : " ") + PlainText(value);
            }
            return text;
        };
        const auto of = [&](const Control& control) {
            const ControlState& state = control.State();
            return numbers({state.place.left, state.place.top, state.place.width, state.place.height, state.fontSize});
        };
        const ControlState& ends = form.line.State();
        return "label " + of(form.label) + ", button " + of(form.button) + ", list " + of(form.list) + " columns " +
               numbers({form.list.State().columns[0].width, form.list.State().columns[1].width}) + ", line " +
               numbers({ends.x1, ends.y1, ends.x2, ends.y2});
    }
    static constexpr const char* kDesignShape =
        "label 100 200 300 400 12, button 10 20 30 40 9, list 500 600 700 800 9 columns 520 340, line 1 2 3 4";
};

TEST_F(FormScalingTest, OnTheDesignScreenAFormIsAsDesigned) {
    Load();
    EXPECT_EQ(Shape(), kDesignShape);
    EXPECT_EQ(form.FormPlace(), (Place{2400, 1630, 4800, 3600}));
}

TEST_F(FormScalingTest, OnAScreenTwiceAsLargePlacesDoubleAndTextGrowsByHalf) {
    SetScreen(19200, 14400);
    Load();
    EXPECT_EQ(Shape(),
              "label 200 400 600 800 18, button 20 40 60 80 13.5, list 1000 1200 1400 1600 13.5 columns 1040 680, "
              "line 2 4 6 8");
    EXPECT_EQ(form.FormPlace(), (Place{4800, 3430, 9600, 7200}));
}

TEST_F(FormScalingTest, WidthAndHeightAreScaledEachByItsOwnRatio) {
    SetScreen(12000, 21600);
    Load();
    EXPECT_EQ(Shape(),
              "label 125 600 375 1200 15, button 12.5 60 37.5 120 11.25, list 625 1800 875 2400 11.25 columns 650 425, "
              "line 1.25 6 3.75 12");
    EXPECT_EQ(form.FormPlace(), (Place{3000, 5230, 6000, 10800}));
}

TEST_F(FormScalingTest, WhatHasNoExtentIsPassedOver) {
    SetScreen(19200, 14400);
    Load();
    for (const Control* control : {static_cast<const Control*>(&form.menu), static_cast<const Control*>(&form.timer)}) {
        EXPECT_EQ(control->State().place, Place{}) << control->name;
        EXPECT_EQ(control->State().fontSize, control->Design()->fontSize) << control->name;
    }
}

TEST_F(FormScalingTest, FormThatIsLoadedAgainIsNotScaledTwice) {
    SetScreen(19200, 14400);
    Load();
    const std::string once = Shape();
    const Place place = form.FormPlace();
    form.Unload();
    EXPECT_EQ(Shape(), kDesignShape);
    form.Load();
    EXPECT_EQ(Shape(), once);
    EXPECT_EQ(form.FormPlace(), place);
}

TEST_F(FormScalingTest, FormThatIsScaledAgainIsNotScaledTwice) {
    SetScreen(19200, 14400);
    Load();
    const std::string once = Shape();
    ScaleSmallForm(form, screen);
    EXPECT_EQ(Shape(), once);
}

TEST_F(FormScalingTest, LabelMadeSinceTheLoadIsLeftToItsMaker) {
    SetScreen(19200, 14400);
    Load();
    RuntimeLabels spots{form, "spot"};
    const Label& spot = spots.Make("W1AW", {.place = {1, 2, 3, 4}});
    ScaleSmallForm(form, screen);
    EXPECT_EQ(spot.State().place, (Place{1, 2, 3, 4}));
}

TEST_F(FormScalingTest, StatedSizeIsTakenAsItStands) {
    form.Load();
    ScaleFormToSize(form, {.NewHeight = 7200, .NewWidth = 9600, .OldHeight = 3600, .OldWidth = 4800, .SetSize = true},
                    {19200, 14400});
    EXPECT_EQ(form.FormPlace(), (Place{4800, 3430, 9600, 7200}));
    EXPECT_EQ(form.label.State().place, (Place{200, 400, 600, 800}));
}

TEST_F(FormScalingTest, WithoutAStatedSizeTheFormGrowsByNewOverOld) {
    form.Load();
    ScaleFormToSize(form, {.NewHeight = 300, .NewWidth = 200, .OldHeight = 200, .OldWidth = 100}, {19200, 14400});
    EXPECT_EQ(form.FormPlace(), (Place{4800, 4330, 9600, 5400}));
    EXPECT_EQ(form.label.State().place, (Place{200, 300, 600, 600}));
}

TEST_F(FormScalingTest, TextOfAScaledFormIsMeasuredByItsWidth) {
    EXPECT_EQ(FontRatioOf(form), 1);
    SetScreen(12000, 7200);
    Load();
    EXPECT_EQ(FontRatioOf(form), 1.25);
    form.SetFormPlace({0, 0, 48000, 3600});
    EXPECT_EQ(FontRatioOf(form), 1.5);
}

TEST_F(FormScalingTest, FailureIsToldAndLeavesTheFormAsItIs) {
    Load();
    const Place before = form.FormPlace();
    SetScreen(0, 0);
    ScaleSmallForm(form, screen);
    ScaleFormToSize(form, {.NewHeight = 7200, .NewWidth = 9600, .OldHeight = 0, .OldWidth = 4800}, {9600, 7200});
    EXPECT_EQ(
        dialogs.boxes,
        (std::vector<std::string>{
            R"(message "Form Resize Error" "A form cannot be scaled from 9600 by 7200 to 0 by 0." OK Exclamation)",
            R"(message "Form Resize Error" "A form cannot be scaled from 4800 by 0 to 9600 by 7200." )"
            "OK Exclamation"}));
    EXPECT_EQ(Shape(), kDesignShape);
    EXPECT_EQ(form.FormPlace(), before);
}

}  // namespace
}  // namespace tallyhut
