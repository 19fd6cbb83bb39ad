#pragma once

#include "platform/screen.h"

namespace tallyhut {

/// Design units in a pixel, as the desktop counts pixels.
inline constexpr double kUnitsPerPixel = 15;

/// The screen that the desktop calls the primary one.
struct QtScreen : Screen {
    ScreenSize Whole() const override;
    ScreenSize WorkArea() const override;
};

}  // namespace tallyhut
