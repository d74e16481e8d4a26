// Shapes, as signed distances: below 0 inside, in points, above 0 outside.
#pragma once

#include "platform/geometry.h"

#include <cmath>
#include <numbers>

namespace r7::art {

inline double circle(Point p, double radius)
{
    return std::hypot(p.x, p.y) - radius;
}

/// A box about the origin.
inline double box(Point p, double half_width, double half_height)
{
    const double dx = std::abs(p.x) - half_width, dy = std::abs(p.y) - half_height;
    return std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0);
}

inline double rounded_box(Point p, const Rect& rect, double radius)
{
    const double half_width = rect.width * 0.5, half_height = rect.height * 0.5;
    return box({p.x - rect.x - half_width, p.y - rect.y - half_height}, half_width - radius,
               half_height - radius) -
           radius;
}

/// The rectangle made smaller by as much on every side.
inline Rect inset(const Rect& rect, double by)
{
    return {rect.x + by, rect.y + by, rect.width - 2.0 * by, rect.height - 2.0 * by};
}

inline Point center_of(const Rect& rect)
{
    return {rect.x + rect.width * 0.5, rect.y + rect.height * 0.5};
}

/// Where p lies in a frame that is turned counterclockwise.
inline Point turned(Point p, double degrees)
{
    const double a = degrees * std::numbers::pi / 180.0, c = std::cos(a), s = std::sin(a);
    return {p.x * c + p.y * s, p.y * c - p.x * s};
}

} // namespace r7::art
