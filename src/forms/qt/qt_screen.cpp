#include "forms/qt/qt_screen.h"

#include <QGuiApplication>
#include <QScreen>

namespace tallyhut {
namespace {

ScreenSize InUnits(const QRect& pixels) {
    return {.width = pixels.width() * kUnitsPerPixel, .height = pixels.height() * kUnitsPerPixel};
}

}  // namespace

ScreenSize QtScreen::Whole() const {
    return InUnits(QGuiApplication::primaryScreen()->geometry());
}

ScreenSize QtScreen::WorkArea() const {
    return InUnits(QGuiApplication::primaryScreen()->availableGeometry());
}

}  // namespace tallyhut
