#pragma once

#include <string>

#include "toolkit/raster_image.h"

namespace tallyhut {

/// The picture as the bytes of a PNG file, 24 bits a pixel. Colours of the desktop are those of a light one. Source:
/// W3C PNG, RFC 1950 and RFC 1951; runs of equal bytes are all that is packed, which suits areas of one colour.
std::string PngOf(const RasterImage& image);

}  // namespace tallyhut
