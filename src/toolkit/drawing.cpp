#include "toolkit/drawing.h"

#include <algorithm>
#include <cmath>

namespace tallyhut {
namespace {

Path Scaled(const Path& path, double scale) {
    Path scaled;
    scaled.reserve(path.size());
    for (const Point& point : path) {
        scaled.push_back({point.x * scale, point.y * scale});
    }
    return scaled;
}

/// Beside each other, across the direction in which the line runs less.
void DrawThickLine(RasterImage& image, const Point& from, const Point& to, int thickness, Colour colour) {
    const bool steep = std::abs(to.y - from.y) > std::abs(to.x - from.x);
    for (int i = 0; i < thickness; ++i) {
        const int aside = i - thickness / 2;
        const int right = steep ? aside : 0;
        const int down = steep ? 0 : aside;
        image.DrawLine(static_cast<int>(from.x) + right, static_cast<int>(from.y) + down,
                       static_cast<int>(to.x) + right, static_cast<int>(to.y) + down, colour);
    }
}

void DrawPath(RasterImage& image, const Path& path, int thickness, Colour colour) {
    for (std::size_t i = 0; i < path.size(); ++i) {
        DrawThickLine(image, path[i == 0 ? 0 : i - 1], path[i], thickness, colour);
    }
}

}  // namespace

RasterImage PixelsOf(const Drawing& drawing, int pixelsWide) {
    const double scale = drawing.width > 0 ? pixelsWide / drawing.width : 0;
    RasterImage image{pixelsWide, static_cast<int>(std::lround(drawing.height * scale)), drawing.ground};
    for (const Shape& shape : drawing.shapes) {
        std::vector<Path> paths;
        std::ranges::transform(shape.paths, std::back_inserter(paths),
                               [scale](const Path& path) { return Scaled(path, scale); });
        if (shape.kind == Shape::Kind::Area) {
            image.FillArea(paths, shape.colour);
            continue;
        }
        const int thickness = std::max(static_cast<int>(std::lround(shape.width * scale)), 1);
        for (const Path& path : paths) {
            DrawPath(image, path, thickness, shape.colour);
        }
    }
    return image;
}

}  // namespace tallyhut
