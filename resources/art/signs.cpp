// The signs of the lamps, as shapes.
#include "resources/art/signs.h"

#include "resources/art/shapes.h"

namespace r7::art {

namespace {

constexpr double kStroke = 2.5; // half the width of a bar

double plus(Point p)
{
    return std::min(box(p, kSignExtent, kStroke), box(p, kStroke, kSignExtent));
}

double triangle(Point p)
{
    constexpr double kSlope = 0.866;
    const double sides = kSlope * std::abs(p.x) + 0.5 * p.y - 4.7;
    return std::max(sides, -p.y - 6.4);
}

} // namespace

double sign_distance(Sign sign, Point p)
{
    switch (sign) {
    case Sign::none:
        break;
    case Sign::ring:
        return std::abs(circle(p, kSignExtent - 2.2)) - 2.2;
    case Sign::bar:
        return box(p, 3.1, kSignExtent + 0.6);
    case Sign::triangle:
        return triangle(p);
    case Sign::twin_bars:
        return box({p.x, std::abs(p.y) - 4.2}, kSignExtent - 0.8, 2.1);
    case Sign::plus:
        return plus(p);
    case Sign::lozenge:
        return box(turned(p, 45.0), 5.6, 5.6);
    case Sign::dash:
        return box(p, kSignExtent, 3.0);
    case Sign::cross:
        return plus(turned(p, 45.0));
    case Sign::half_disc:
        return std::max(circle(p, kSignExtent), p.x);
    case Sign::twin_posts:
        return box({std::abs(p.x) - 4.2, p.y}, 2.1, kSignExtent - 0.8);
    }
    return 1e3;
}

} // namespace r7::art
