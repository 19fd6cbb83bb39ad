#include "toolkit/drawing.h"

#include <string>

#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

std::string Drawn(const RasterImage& image) {
    std::string text;
    for (int y = 0; y < image.Height(); ++y) {
        for (int x = 0; x < image.Width(); ++x) {
            text += image.At(x, y) == 0 ? '.' : static_cast<char>('0' + image.At(x, y));
        }
        text += '\n';
    }
    return text;
}

Path Box(double left, double top, double right, double bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

TEST(Drawing, AnAreaIsWhatItsPathEncloses) {
    RasterImage image{5, 4, 0};
    image.FillArea({Box(1, 1, 4, 3)}, 3);
    EXPECT_EQ(Drawn(image), ".....\n.333.\n.333.\n.....\n");
    image.FillArea({{{0, 0}, {5, 0}, {0, 5}}}, 7);  // the middles of pixels on its edge lie outside
    EXPECT_EQ(Drawn(image), "7777.\n7773.\n7733.\n7....\n");
}

TEST(Drawing, APathWithinAnotherIsAHole) {
    RasterImage image{5, 5, 0};
    image.FillArea({Box(0, 0, 5, 5), Box(2, 1, 4, 3)}, 1);
    EXPECT_EQ(Drawn(image), "11111\n11..1\n11..1\n11111\n11111\n");
}

TEST(Drawing, AnAreaThatReachesBeyondThePictureIsCut) {
    RasterImage image{3, 2, 0};
    image.FillArea({Box(-100, -100, 2, 100)}, 4);
    EXPECT_EQ(Drawn(image), "44.\n44.\n");
    image.FillArea({{}, {{1, 1}}}, 5);  // nothing is enclosed
    EXPECT_EQ(Drawn(image), "44.\n44.\n");
}

TEST(Drawing, ShapesLieOnEachOtherInTheirOrderAtTheScaleOfThePixels) {
    Drawing drawing{.width = 50, .height = 30, .ground = 2};
    drawing.shapes.push_back({.kind = Shape::Kind::Area, .paths = {Box(0, 10, 50, 20)}, .colour = 3});
    drawing.shapes.push_back({.paths = {{{25, 0}, {25, 29}}, {{45, 25}}}, .colour = 5});
    EXPECT_EQ(Drawn(PixelsOf(drawing, 5)), "22522\n33533\n22525\n");
}

TEST(Drawing, AWideLineTakesPixelsOnBothSides) {
    Drawing drawing{.width = 5, .height = 5, .ground = 0};
    drawing.shapes.push_back({.paths = {{{0, 2}, {4, 2}}}, .colour = 1, .width = 3});
    EXPECT_EQ(Drawn(PixelsOf(drawing, 5)), ".....\n11111\n11111\n11111\n.....\n");
    drawing.shapes.front().paths = {{{2, 0}, {2, 4}}};
    EXPECT_EQ(Drawn(PixelsOf(drawing, 5)), ".111.\n.111.\n.111.\n.111.\n.111.\n");
}

TEST(Drawing, ANarrowPictureHasNoPixels) {
    EXPECT_EQ(PixelsOf({}, 5).Height(), 0);
    EXPECT_EQ(PixelsOf({.width = 5, .height = 5}, 0).Width(), 0);
}

struct DrawnRasterTest : ToolkitTest {};

TEST_F(DrawnRasterTest, ShapesAreGoneWhenPixelsAreDrawnAndWhenTheFormUnloads) {
    Form form{desk, "Form", "", {}};
    Raster raster{form, "raster", 3, {}};
    EXPECT_EQ(raster.FullName(), "raster(3)");
    EXPECT_EQ(raster.Shapes(), nullptr);
    form.Show();
    raster.Show(Drawing{.width = 10, .height = 5, .ground = 7}, 20);
    ASSERT_NE(raster.Shapes(), nullptr);
    EXPECT_EQ(raster.Image().Height(), 10);
    EXPECT_EQ(raster.Image().At(19, 9), 7);
    raster.Draw([](RasterImage& image) { image.Set(0, 0, 1); });
    EXPECT_EQ(raster.Shapes(), nullptr);
    EXPECT_EQ(raster.Image().At(0, 0), 1);
    raster.Show(Drawing{.width = 10, .height = 5}, 20);
    form.Unload();
    EXPECT_EQ(raster.Shapes(), nullptr);
    EXPECT_EQ(raster.Image().Width(), 0);
}

}  // namespace
}  // namespace tallyhut
