#pragma once

#include <vector>

#include "toolkit/raster_image.h"

namespace tallyhut {

/// A part of a picture.
struct Shape {
    enum class Kind {
        Area,  ///< what its paths enclose; a path within another one is a hole
        Line,  ///< along each of its paths; a path of one point is a dot
    };
    Kind kind = Kind::Line;
    std::vector<Path> paths = {};
    Colour colour = kWindowText;
    double width = 1;  ///< of a line, in units of the picture
};

/// A picture as shapes on a ground, the first the lowest. From it each host draws as sharply as its screen can, and the
/// core its pixels.
struct Drawing {
    double width = 0;  ///< in units of its own, as is all else
    double height = 0;
    Colour ground = kWindowGround;
    std::vector<Shape> shapes = {};
};

/// So many pixels wide, and as high as that makes it. Lines are one pixel wide where they are drawn thinner.
RasterImage PixelsOf(const Drawing& drawing, int pixelsWide);

}  // namespace tallyhut
