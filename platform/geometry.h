// Points, sizes and rectangles, in points of the view, y upward.
#pragma once

#include <algorithm>
#include <cmath>

namespace r7 {

struct Point {
    double x = 0.0;
    double y = 0.0;
    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0.0;
    double height = 0.0;
    bool operator==(const Size&) const = default;
};

/// A rectangle by its lower left corner. One whose width or height is not above 0 (NaN included) is empty.
struct Rect {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
    bool operator==(const Rect&) const = default;

    Point origin() const { return {x, y}; }
    Size size() const { return {width, height}; }
    double right() const { return x + width; }
    double top() const { return y + height; }
    bool is_empty() const { return !(width > 0.0 && height > 0.0); }
};

/// Whether the point lies in the rectangle: the lower and left edges are inside, the upper and right ones
/// outside.
inline bool contains(const Rect& rect, Point point)
{
    return point.x >= rect.x && point.x < rect.right() && point.y >= rect.y && point.y < rect.top();
}

inline Rect moved_by(const Rect& rect, Point by)
{
    return {rect.x + by.x, rect.y + by.y, rect.width, rect.height};
}

/// The common part of two rectangles; empty (all zero) where there is none.
inline Rect intersection(const Rect& a, const Rect& b)
{
    const double x = std::max(a.x, b.x), y = std::max(a.y, b.y);
    const double right = std::min(a.right(), b.right()), top = std::min(a.top(), b.top());
    return right > x && top > y ? Rect{x, y, right - x, top - y} : Rect{};
}

/// The smallest rectangle around both; an empty one does not count.
inline Rect enclosing(const Rect& a, const Rect& b)
{
    if (a.is_empty()) return b;
    if (b.is_empty()) return a;
    const double x = std::min(a.x, b.x), y = std::min(a.y, b.y);
    return {x, y, std::max(a.right(), b.right()) - x, std::max(a.top(), b.top()) - y};
}

inline bool is_finite(Point point)
{
    return std::isfinite(point.x) && std::isfinite(point.y);
}

inline bool is_finite(const Rect& rect)
{
    return is_finite(rect.origin()) && std::isfinite(rect.width) && std::isfinite(rect.height);
}

} // namespace r7
