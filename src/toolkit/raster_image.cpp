#include "toolkit/raster_image.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tallyhut {

RasterImage::RasterImage(int width, int height, Colour ground)
    : width_{std::max(width, 0)},
      height_{std::max(height, 0)},
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), ground) {}

Colour RasterImage::At(int x, int y) const {
    return Holds(x, y) ? pixels_[Offset(x, y)] : kWindowGround;
}

void RasterImage::Set(int x, int y, Colour colour) {
    if (Holds(x, y)) {
        pixels_[Offset(x, y)] = colour;
    }
}

void RasterImage::Fill(Colour colour) {
    std::ranges::fill(pixels_, colour);
}

void RasterImage::FillRect(int x, int y, int width, int height, Colour colour) {
    const int right = std::min(x + width, width_);
    const int bottom = std::min(y + height, height_);
    for (int row = std::max(y, 0); row < bottom; ++row) {
        for (int column = std::max(x, 0); column < right; ++column) {
            pixels_[Offset(column, row)] = colour;
        }
    }
}

void RasterImage::DrawLine(int x1, int y1, int x2, int y2, Colour colour) {
    const int dx = std::abs(x2 - x1);
    const int dy = -std::abs(y2 - y1);
    const int stepX = x1 < x2 ? 1 : -1;
    const int stepY = y1 < y2 ? 1 : -1;
    int error = dx + dy;
    for (;;) {
        Set(x1, y1, colour);
        if (x1 == x2 && y1 == y2) {
            return;
        }
        const int twice = 2 * error;
        if (twice >= dy) {
            error += dy;
            x1 += stepX;
        }
        if (twice <= dx) {
            error += dx;
            y1 += stepY;
        }
    }
}

void RasterImage::FloodFill(int x, int y, Colour colour) {
    if (!Holds(x, y) || At(x, y) == colour) {
        return;
    }
    const Colour patch = At(x, y);
    std::vector<std::pair<int, int>> open{{x, y}};
    while (!open.empty()) {
        const auto [px, py] = open.back();
        open.pop_back();
        if (!Holds(px, py) || At(px, py) != patch) {
            continue;
        }
        Set(px, py, colour);
        open.insert(open.end(), {{px + 1, py}, {px - 1, py}, {px, py + 1}, {px, py - 1}});
    }
}

}  // namespace tallyhut
