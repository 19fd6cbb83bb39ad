#include "toolkit/png.h"

#include <png.h>

#include <cstdint>
#include <vector>

namespace tallyhut {
namespace {

Colour OnLightDesktop(Colour colour) {
    switch (colour) {
        case kWindowGround:
            return FromRgb(255, 255, 255);
        case kButtonFace:
            return FromRgb(240, 240, 240);
        case kWindowText:
        case kButtonText:
            return 0;
        default:
            return colour;
    }
}

/// Red, green and blue of each pixel, row by row.
std::vector<std::uint8_t> BytesOf(const RasterImage& image) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(image.Pixels().size() * 3);
    for (const Colour pixel : image.Pixels()) {
        const Colour colour = OnLightDesktop(pixel);
        for (const int part : {RedOf(colour), GreenOf(colour), BlueOf(colour)}) {
            bytes.push_back(static_cast<std::uint8_t>(part));
        }
    }
    return bytes;
}

}  // namespace

std::string PngOf(const RasterImage& image) {
    const std::vector<std::uint8_t> bytes = BytesOf(image);
    png_image head{};
    head.version = PNG_IMAGE_VERSION;
    head.width = static_cast<png_uint_32>(image.Width());
    head.height = static_cast<png_uint_32>(image.Height());
    head.format = PNG_FORMAT_RGB;
    std::string file;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(head);
    file.resize(size);
    const bool written = png_image_write_to_memory(&head, file.data(), &size, 0, bytes.data(), 0, nullptr) != 0;
    file.resize(written ? size : 0);
    return file;
}

}  // namespace tallyhut
