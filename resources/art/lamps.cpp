// The lamps: a lens in a dark bezel, lit from within, with a sign engraved in it.
#include "resources/art/lamps.h"

#include "resources/art/palette.h"
#include "resources/art/shapes.h"

namespace r7::art {

namespace {

constexpr double kLens = 11.0, kBezelRadius = 14.0, kReach = kLampPicture * 0.5;

Tint bezel(Point p, double r)
{
    const double across = (r - (kLens + kBezelRadius) * 0.5) / ((kBezelRadius - kLens) * 0.5); // -1 to 1
    const Vector normal = normalized({p.x / r * across, p.y / r * across, 0.75});
    return lit({kBezel, 0.10, 14.0}, normal);
}

Tint lens(const LampRow& lamp, Point p, double r)
{
    const Tint color = srgb(lamp.color);
    const bool is_lit = lamp.sign != Sign::none;
    const double rim = smooth_step(0.55 * kLens, kLens, r);
    Tint tint = is_lit ? mix(mix(color, kBlueHot, 0.22), scaled(color, 0.45), rim)
                       : mix(scaled(color, 0.8), scaled(color, 0.25), rim);
    // The engraving: dark glass, its lower right wall catching the light.
    const auto depth = [&](double x, double y) {
        return smooth_step(-0.6, 0.5, sign_distance(lamp.sign, {x, y}));
    };
    if (is_lit) {
        const Vector wall = normal_of(depth, p.x, p.y, 0.2);
        const double lit_wall = std::max(0.0, dot(wall, kLight) - kLight.z * wall.z);
        tint = mix(scaled(color, 0.06), tint, depth(p.x, p.y));
        tint = mix(tint, kBlueHot, 0.5 * lit_wall);
    }
    // The room, seen in the glass.
    const double glint = 1.0 - smooth_step(0.0, 1.0, std::hypot((p.x + 4.6) / 4.2, (p.y - 6.6) / 2.6));
    return mix(tint, kBlueHot, (is_lit ? 0.30 : 0.16) * glint);
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
        const double glow = 1.0 - smooth_step(kLens - 1.5, kReach, r);
        return over(with_alpha(srgb(lamp.color), 0.55 * glow), tint);
    });
}

} // namespace r7::art
