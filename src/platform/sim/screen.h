#pragma once

#include "platform/screen.h"

namespace tallyhut::sim {

/// At first a screen of the design's size, where scaling changes nothing.
struct Screen : tallyhut::Screen {
    ScreenSize whole{9600, 7200};
    ScreenSize workArea{9600, 7200};

    ScreenSize Whole() const override { return whole; }
    ScreenSize WorkArea() const override { return workArea; }
};

}  // namespace tallyhut::sim
