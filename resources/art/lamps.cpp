// The lamps: a lens in a dark bezel, lit from within, with a sign engraved in it.
#include "resources/art/lamps.h"

#include "resources/art/palette.h"
#include "resources/art/shapes.h"

namespace r7::art {

namespace {

constexpr double kLens = 11.0, kBezelRadius = 13.6, kReach = kLampPicture * 0.5;

Tint bezel(Point p, double r)
{
    const double across = (r - (kLens + kBezelRadius) * 0.5) / ((kBezelRadius - kLens) * 0.5); // -1 to 1
    const Vector normal = normalized({p.x / r * across, p.y / r * across, 0.6});
    return lit({kBezel, 0.04, 10.0}, normal);
}

// The lens without its engraving: hot in the middle, deep at the rim.
Tint glass(const Tint& color, bool is_lit, double r)
{
    const double rim = smooth_step(0.45 * kLens, kLens, r);
    if (!is_lit) return mix(scaled(color, 0.75), scaled(color, 0.20), rim);
    const double heat = std::exp(-std::pow(r / (0.62 * kLens), 2.0));
    return mix(mix(color, scaled(color, 0.50), rim), kBlueHot, 0.36 * heat);
}

Tint lens(const LampRow& lamp, Point p, double r)
{
    const Tint color = srgb(lamp.color);
    const bool is_lit = lamp.sign != Sign::none;
    Tint tint = glass(color, is_lit, r);
    if (is_lit) {
        // The engraving: dark glass, its lower right wall catching the light.
        const auto depth = [&](double x, double y) {
            return smooth_step(-0.6, 0.5, sign_distance(lamp.sign, {x, y}));
        };
        const Vector wall = normal_of(depth, p.x, p.y, 0.2);
        const double lit_wall = std::max(0.0, wall.x * kLight.x + wall.y * kLight.y);
        tint = mix(scaled(color, 0.05), tint, depth(p.x, p.y));
        tint = mix(tint, kBlueHot, 0.35 * lit_wall);
    }
    // The room, seen in the glass, and the bezel's shadow on it.
    tint = scaled(tint, 1.0 - 0.40 * smooth_step(kLens - 2.2, kLens, std::hypot(p.x - 0.5, p.y + 0.7)));
    const double glint = 1.0 - smooth_step(0.2, 1.0, std::hypot((p.x + 3.6) / 4.4, (p.y - 7.0) / 2.2));
    return mix(tint, kBlueHot, (is_lit ? 0.42 : 0.20) * glint);
}

} // namespace

void paint_lamp(Canvas& canvas, const LampRow& lamp)
{
    canvas.shade(canvas.bounds(), [&](Point at) {
        const Point p{at.x - kReach, at.y - kReach};
        const double r = std::hypot(p.x, p.y);
        if (r < kLens) return lens(lamp, p, r);
        const double shade = 1.0 - smooth_step(-1.0, 2.0, circle({p.x - 0.7, p.y + 0.9}, kBezelRadius));
        Tint tint = with_alpha(kShadow, 0.6 * shade);
        if (r < kBezelRadius) tint = bezel(p, r);
        if (lamp.sign == Sign::none) return tint;
        // The glow, on the bezel and on the plate around it.
        const double fade = 1.0 - smooth_step(kLens - 1.0, kReach, r);
        return over(with_alpha(srgb(lamp.color), (r < kBezelRadius ? 0.13 : 0.42) * fade), tint);
    });
}

} // namespace r7::art
