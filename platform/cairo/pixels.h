// Device pixels: rectangles of them, and the way there from points.
#pragma once

#include "platform/geometry.h"

#include <algorithm>
#include <cmath>

namespace r7 {

/// Whole device pixels, origin at the picture's top left corner, y downward.
struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const PixelRect&) const = default;

    int right() const { return x + width; }
    int bottom() const { return y + height; }
    bool is_empty() const { return width <= 0 || height <= 0; }
};

/// The common part; empty (all zero) where there is none.
inline PixelRect intersection(const PixelRect& a, const PixelRect& b)
{
    const int x = std::max(a.x, b.x), y = std::max(a.y, b.y);
    const int right = std::min(a.right(), b.right()), bottom = std::min(a.bottom(), b.bottom());
    return right > x && bottom > y ? PixelRect{x, y, right - x, bottom - y} : PixelRect{};
}

/// A rectangle in pixels that need not be whole, y downward.
struct Box {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;

    double width() const { return right - left; }
    double height() const { return bottom - top; }
    Box grown_by(double margin) const
    {
        return {left - margin, top - margin, right + margin, bottom + margin};
    }
};

/// A number of pixels as an integer; far outside every picture it stops, and a NaN is far outside.
inline int to_pixel_index(double pixels)
{
    constexpr double kFar = 1e8;
    return static_cast<int>(std::max(-kFar, std::min(kFar, pixels)));
}

/// Every pixel that the box touches.
inline PixelRect rounded_outward(const Box& box)
{
    const int x = to_pixel_index(std::floor(box.left)), y = to_pixel_index(std::floor(box.top));
    return {x, y, to_pixel_index(std::ceil(box.right)) - x, to_pixel_index(std::ceil(box.bottom)) - y};
}

/// The box with its edges moved to the nearest whole pixels: boxes that share an edge do so still.
inline PixelRect rounded_to_nearest(const Box& box)
{
    const int x = to_pixel_index(std::round(box.left)), y = to_pixel_index(std::round(box.top));
    return {x, y, to_pixel_index(std::round(box.right)) - x, to_pixel_index(std::round(box.bottom)) - y};
}

inline Box box_of(const PixelRect& rect)
{
    return {static_cast<double>(rect.x), static_cast<double>(rect.y), static_cast<double>(rect.right()),
            static_cast<double>(rect.bottom())};
}

/// From points, y upward, to pixels, y downward.
struct PixelTransform {
    double scale = 1.0; ///< pixels for a point
    Point origin{};     ///< where the point (0, 0) lies, in pixels

    /// Where a finite point lies; one farther out than a million points is moved in to there.
    Point operator()(Point point) const
    {
        constexpr double kFar = 1e6;
        return {origin.x + std::clamp(point.x, -kFar, kFar) * scale,
                origin.y - std::clamp(point.y, -kFar, kFar) * scale};
    }

    /// Where a finite rectangle lies. Edges next to a whole pixel are on it: a rasteriser sees no less than
    /// 1/256 of a pixel, and sums of points are seldom exact.
    Box operator()(const Rect& rect) const
    {
        const Point low = (*this)(rect.origin()), high = (*this)(Point{rect.right(), rect.top()});
        return {snapped(low.x), snapped(high.y), snapped(high.x), snapped(low.y)};
    }

    /// The rectangle, in points, that whole pixels cover.
    Rect to_points(const PixelRect& rect) const
    {
        return {(rect.x - origin.x) / scale, (origin.y - rect.bottom()) / scale, rect.width / scale,
                rect.height / scale};
    }

private:
    static double snapped(double pixels)
    {
        const double whole = std::round(pixels);
        return std::abs(pixels - whole) < 1.0 / 512.0 ? whole : pixels;
    }
};

} // namespace r7
