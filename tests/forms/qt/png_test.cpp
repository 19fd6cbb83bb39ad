#include "toolkit/png.h"

#include <gtest/gtest.h>

#include <QImage>

#include "values/colour.h"

namespace tallyhut {
namespace {

QImage Read(const RasterImage& image) {
    return QImage::fromData(QByteArray::fromStdString(PngOf(image)), "PNG");
}

/// The desktop's own reader is not ours.
void ExpectSamePixels(const RasterImage& image) {
    const QImage read = Read(image);
    ASSERT_EQ(read.size(), (QSize{image.Width(), image.Height()}));
    for (int y = 0; y < image.Height(); ++y) {
        for (int x = 0; x < image.Width(); ++x) {
            const QColor pixel = read.pixelColor(x, y);
            ASSERT_EQ(FromRgb(pixel.red(), pixel.green(), pixel.blue()), image.At(x, y)) << x << ',' << y;
        }
    }
}

TEST(Png, ThePixelsAreReadAsTheyWereWritten) {
    RasterImage image{700, 90, FromRgb(255, 255, 255)};
    image.FillRect(20, 10, 600, 30, FromRgb(1, 2, 3));
    image.DrawLine(0, 0, 699, 89, FromRgb(255, 0, 128));
    image.FillArea({{{100, 20}, {300, 80}, {50, 85}}}, FromRgb(10, 200, 90));
    ExpectSamePixels(image);
}

TEST(Png, EveryByteIsPacked) {
    RasterImage image{256, 256, 0};
    for (int y = 0; y < 256; ++y) {
        for (int x = 0; x < 256; ++x) {
            image.Set(x, y, FromRgb(x, y, (x * 7 + y * y) % 256));
        }
    }
    ExpectSamePixels(image);
}

TEST(Png, ASinglePixelIsAPicture) {
    ExpectSamePixels({1, 1, FromRgb(9, 8, 7)});
}

TEST(Png, AreasOfOneColourArePackedSmall) {
    EXPECT_LT(PngOf({2000, 1000, FromRgb(200, 30, 40)}).size(), 60'000U);
}

TEST(Png, ColoursOfTheDesktopAreThoseOfALightOne) {
    const QImage read = Read({1, 1, kWindowGround});
    EXPECT_EQ(read.pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(Read({1, 1, kWindowText}).pixelColor(0, 0), QColor(Qt::black));
}

}  // namespace
}  // namespace tallyhut
