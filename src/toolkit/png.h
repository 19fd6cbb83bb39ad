#pragma once

#include <string>

#include "toolkit/raster_image.h"

namespace tallyhut {

/// The picture as the bytes of a PNG file, 24 bits a pixel. Colours of the desktop are those of a light one. Empty for
/// a picture without pixels.
std::string PngOf(const RasterImage& image);

}  // namespace tallyhut
