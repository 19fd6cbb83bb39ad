#include "toolkit/raster_image.h"

#include <string>

#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

/// The picture as text: a dot for 0, the digit for 1 to 9.
std::string Drawn(const RasterImage& image) {
    std::string text;
    for (int y = 0; y < image.Height(); ++y) {
        for (int x = 0; x < image.Width(); ++x) {
            const Colour colour = image.At(x, y);
            text += colour == 0 ? '.' : static_cast<char>('0' + colour);
        }
        text += '\n';
    }
    return text;
}

TEST(RasterImage, BeginsAsItsGround) {
    EXPECT_EQ(Drawn({3, 2, 7}), "777\n777\n");
    EXPECT_EQ(Drawn({}), "");
    EXPECT_EQ(RasterImage(-1, 4, 0).Width(), 0);
    EXPECT_EQ(RasterImage(4, -1, 0).Height(), 0);
}

TEST(RasterImage, OutsideIsLeftAlone) {
    RasterImage image{2, 2, 0};
    for (const auto& [x, y] : {std::pair{-1, 0}, {0, -1}, {2, 0}, {0, 2}}) {
        image.Set(x, y, 5);
        image.FloodFill(x, y, 5);
        EXPECT_EQ(image.At(x, y), kWindowGround);
    }
    EXPECT_EQ(Drawn(image), "..\n..\n");
}

TEST(RasterImage, FillCoversAllAndFillRectItsPart) {
    RasterImage image{4, 3, 0};
    image.FillRect(1, 1, 2, 5, 3);
    EXPECT_EQ(Drawn(image), "....\n.33.\n.33.\n");
    image.FillRect(-2, -2, 3, 3, 4);
    EXPECT_EQ(Drawn(image), "4...\n.33.\n.33.\n");
    image.FillRect(3, 0, 0, 3, 9);
    image.FillRect(3, 0, -1, 3, 9);
    EXPECT_EQ(Drawn(image), "4...\n.33.\n.33.\n");
    image.Fill(2);
    EXPECT_EQ(Drawn(image), "2222\n2222\n2222\n");
}

TEST(RasterImage, LinesHoldBothEnds) {
    const struct {
        int x1, y1, x2, y2;
        std::string_view drawn;
    } rows[] = {
        {0, 1, 3, 1, "....\n1111\n....\n....\n"}, {2, 3, 2, 0, "..1.\n..1.\n..1.\n..1.\n"},
        {0, 0, 3, 3, "1...\n.1..\n..1.\n...1\n"}, {0, 3, 3, 0, "...1\n..1.\n.1..\n1...\n"},
        {1, 1, 1, 1, "....\n.1..\n....\n....\n"}, {-5, 2, 9, 2, "....\n....\n1111\n....\n"},
        {3, 1, 0, 0, "11..\n..11\n....\n....\n"},
    };
    for (const auto& row : rows) {
        RasterImage image{4, 4, 0};
        image.DrawLine(row.x1, row.y1, row.x2, row.y2, 1);
        EXPECT_EQ(Drawn(image), row.drawn) << row.x1 << ',' << row.y1 << ' ' << row.x2 << ',' << row.y2;
    }
}

TEST(RasterImage, FloodFillStaysWithinThePatchOfFourNeighbours) {
    RasterImage image{5, 4, 0};
    image.DrawLine(0, 3, 3, 0, 1);  // slanting: only corners touch
    image.FloodFill(0, 0, 5);
    EXPECT_EQ(Drawn(image), "5551.\n551..\n51...\n1....\n");
    image.FloodFill(2, 1, 6);  // the line itself, a patch of one pixel
    EXPECT_EQ(Drawn(image), "5551.\n556..\n51...\n1....\n");
    image.FloodFill(4, 3, 0);  // the same colour
    EXPECT_EQ(Drawn(image), "5551.\n556..\n51...\n1....\n");
}

TEST(RasterImage, FloodFillOfALargePatchEnds) {
    RasterImage image{900, 600, 0};
    image.FloodFill(450, 300, 8);
    EXPECT_EQ(image.At(0, 0), 8);
    EXPECT_EQ(image.At(899, 599), 8);
}

TEST(RasterImage, PixelsComeRowByRow) {
    RasterImage image{2, 2, 0};
    image.Set(1, 0, 1);
    image.Set(0, 1, 2);
    EXPECT_EQ(image.Pixels(), (std::vector<Colour>{0, 1, 2, 0}));
}

TEST(Colour, BlueIsInTheHighByte) {
    static_assert(FromRgb(0x12, 0x34, 0x56) == 0x563412);
    EXPECT_EQ(RedOf(0x563412), 0x12);
    EXPECT_EQ(GreenOf(0x563412), 0x34);
    EXPECT_EQ(BlueOf(0x563412), 0x56);
    EXPECT_EQ(FromRgb(255, 0, 0), 255);
    EXPECT_EQ(FromRgb(0, 0, 255), 16711680);
}

TEST(Colour, DesktopColoursAreNoneOfThe24BitValues) {
    for (const Colour colour : {kWindowGround, kWindowText, kButtonFace, kButtonText}) {
        EXPECT_LT(colour, 0);
    }
}

struct RasterTest : EntryFormTest {
    Raster raster{form, "raster", {}};
    int told = 0;

    RasterTest() {
        desk.outlets.controlChanged = [this](Control& control) { told += &control == &raster ? 1 : 0; };
    }
    ~RasterTest() override { desk.outlets = {}; }
    RasterTest(const RasterTest&) = delete;
    RasterTest& operator=(const RasterTest&) = delete;
    RasterTest(RasterTest&&) = delete;
    RasterTest& operator=(RasterTest&&) = delete;
};

TEST_F(RasterTest, DrawingIsToldToTheHost) {
    raster.Draw([](RasterImage& image) {
        image = {3, 1, 0};
        image.Set(1, 0, 4);
    });
    EXPECT_EQ(told, 1);
    EXPECT_EQ(Drawn(raster.Image()), ".4.\n");
}

}  // namespace
}  // namespace tallyhut
