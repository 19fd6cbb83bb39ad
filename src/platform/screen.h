#pragma once

namespace tallyhut {

/// Sizes in the design's units: 15 to a pixel at scale 1, so that 9600 by 7200 is a screen of 640 by 480.
struct ScreenSize {
    double width = 0;
    double height = 0;
};

struct Screen {
    virtual ~Screen() = default;

    virtual ScreenSize Whole() const = 0;
    /// What taskbars and panels leave.
    virtual ScreenSize WorkArea() const = 0;
};

}  // namespace tallyhut
