#include "toolkit/raster_image.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace tallyhut {
namespace {

constexpr double kMiddle = 0.5;  ///< of a pixel

/// The first pixel, from 0 to `most`, whose middle lies at a place or behind it.
int MiddleFrom(double place, int most) {
    return static_cast<int>(std::clamp(std::ceil(place - kMiddle), 0.0, static_cast<double>(most)));
}

/// Where an edge crosses the middles of the lines of pixels; its lower end belongs to it, its upper one does not.
void AddCrossings(const Point& one, const Point& other, std::vector<std::vector<double>>& crossings) {
    const Point& upper = one.y < other.y ? one : other;
    const Point& lower = one.y < other.y ? other : one;
    const auto lines = static_cast<int>(crossings.size());
    for (int y = MiddleFrom(upper.y, lines); y < MiddleFrom(lower.y, lines); ++y) {
        const double share = (y + kMiddle - upper.y) / (lower.y - upper.y);
        crossings[static_cast<std::size_t>(y)].push_back(upper.x + (lower.x - upper.x) * share);
    }
}

}  // namespace

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

/// Line by line of pixels: where the edges cross the middle of one, the inside begins and ends in turn.
void RasterImage::FillArea(const std::vector<Path>& paths, Colour colour) {
    std::vector<std::vector<double>> crossings(static_cast<std::size_t>(height_));
    for (const Path& path : paths) {
        for (std::size_t i = 0; i < path.size(); ++i) {
            AddCrossings(path[i], path[(i + 1) % path.size()], crossings);
        }
    }
    for (int y = 0; y < height_; ++y) {
        std::vector<double>& across = crossings[static_cast<std::size_t>(y)];
        std::ranges::sort(across);
        for (std::size_t i = 0; i + 1 < across.size(); i += 2) {
            const int first = MiddleFrom(across[i], width_);
            FillRect(first, y, MiddleFrom(across[i + 1], width_) - first, 1, colour);
        }
    }
}

/// Run by run of a line's pixels.
void RasterImage::FloodFill(int x, int y, Colour colour) {
    if (!Holds(x, y) || At(x, y) == colour) {
        return;
    }
    const Colour patch = At(x, y);
    std::vector<std::pair<int, int>> open{{x, y}};
    while (!open.empty()) {
        const auto [px, py] = open.back();
        open.pop_back();
        if (At(px, py) != patch) {
            continue;
        }
        Colour* const row = pixels_.data() + Offset(0, py);
        int first = px;
        while (first > 0 && row[first - 1] == patch) {
            --first;
        }
        int behind = px;
        while (behind < width_ && row[behind] == patch) {
            ++behind;
        }
        std::fill(row + first, row + behind, colour);
        for (const int beside : {py - 1, py + 1}) {
            for (int at = first; at < behind && Holds(at, beside); ++at) {
                const bool begins = at == first || At(at - 1, beside) != patch;
                if (begins && At(at, beside) == patch) {
                    open.emplace_back(at, beside);
                }
            }
        }
    }
}

}  // namespace tallyhut
