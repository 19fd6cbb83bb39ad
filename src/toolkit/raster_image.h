#pragma once

#include <vector>

#include "values/colour.h"

namespace tallyhut {

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

using Path = std::vector<Point>;

/// A picture of pixels in memory, drawn on by simple means, the same on every machine. What lies outside of it is left
/// alone. Pixels count from 0 at the upper left.
class RasterImage {
public:
    RasterImage() = default;
    RasterImage(int width, int height, Colour ground);

    int Width() const { return width_; }
    int Height() const { return height_; }
    /// kWindowGround outside of the picture.
    Colour At(int x, int y) const;
    void Set(int x, int y, Colour colour);
    void Fill(Colour colour);
    void FillRect(int x, int y, int width, int height, Colour colour);
    void DrawLine(int x1, int y1, int x2, int y2, Colour colour);
    /// What closed paths enclose: all pixels whose centre lies within an odd number of them.
    void FillArea(const std::vector<Path>& paths, Colour colour);
    /// Recolours the connected patch (four neighbours) of one colour around a pixel.
    void FloodFill(int x, int y, Colour colour);
    /// The pixels row by row, for a host that shows them.
    const std::vector<Colour>& Pixels() const { return pixels_; }

private:
    bool Holds(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }
    std::size_t Offset(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<Colour> pixels_;
};

}  // namespace tallyhut
