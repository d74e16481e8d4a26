// The knobs: turned aluminium with a red anodised top, and rubber with grip ribs.
#include "resources/art/knobs.h"

#include "resources/art/palette.h"
#include "resources/art/shapes.h"

#include <numbers>

namespace r7::art {

namespace {

// A point of a round body, as the shaders want it.
struct Polar {
    double radius, angle, x, y; // x, y: the unit vector outward
};

Polar polar(Point p)
{
    const double radius = std::hypot(p.x, p.y), by = radius > 0.0 ? 1.0 / radius : 0.0;
    return {radius, std::atan2(p.y, p.x), p.x * by, p.y * by};
}

// The short soft shadow of a round body, within the picture's margin around it.
Tint shadow(Point p, double radius, double margin)
{
    const Point shifted{p.x - 0.33 * margin, p.y + 0.42 * margin};
    const double cast = 1.0 - smooth_step(-0.45 * margin, 0.46 * margin, circle(shifted, radius));
    const double contact = 1.0 - smooth_step(-0.2, 0.3 * margin, circle(p, radius));
    return with_alpha(kShadow, std::max(0.62 * cast, 0.55 * contact));
}

// How a surface turned on a lathe reflects: brightest across the light's direction, dark along the tool
// marks.
double lathe_sheen(double angle)
{
    const double from_light = angle - std::atan2(kLight.y, kLight.x);
    const double bow_tie = std::pow(0.5 + 0.5 * std::cos(2.0 * from_light), 3.0);
    const double window = std::pow(0.5 + 0.5 * std::cos(2.0 * (from_light - 1.15)), 14.0);
    return bow_tie + 0.35 * window;
}

// The normal of a body of revolution whose height falls by `fall` for each point outward.
Vector turned_normal(const Polar& p, double fall)
{
    return normalized({p.x * fall, p.y * fall, 1.0});
}

Tint red_knob(Point point)
{
    constexpr double kTop = 20.6, kGroove = 21.6, kChamfer = 24.4;
    constexpr double kRadius = shape_of(KnobKind::red).radius;
    const Polar p = polar(point);
    const double tool_marks = 1.0 + 0.045 * noise(static_cast<int>(p.radius * 5.0));
    const double sheen = lathe_sheen(p.angle);
    if (p.radius > kGroove) {
        const double knurl = p.radius > kChamfer ? 0.82 + 0.18 * std::cos(p.angle * 60.0) : 1.0;
        const double fall =
            p.radius > kChamfer ? 0.5 + 0.7 * (p.radius - kChamfer) / (kRadius - kChamfer) : 0.16;
        const Tint metal = lit({kAluminium, 0.10, 20.0}, turned_normal(p, fall));
        return scaled(metal, (0.34 + 0.80 * sheen) * tool_marks * knurl);
    }
    if (p.radius > kTop) return scaled(kRed, 0.10);
    const double lip = smooth_step(kTop - 1.3, kTop - 0.2, p.radius);
    const double fall = -0.10 * p.radius / kTop + 0.9 * lip;
    const Tint top = lit({kRed, 0.02, 10.0}, turned_normal(p, fall));
    const Tint lit_top = scaled(top, (0.55 + 0.72 * sheen) * tool_marks);
    return mix(lit_top, kRedGlare, 0.10 * sheen);
}

struct Rubber {
    double radius, plateau; // of the whole, and of the smooth top
    int ribs;
    double fall, depth; // of the side, and of the grooves between the ribs, in points
};

constexpr Rubber kBigRubber{shape_of(KnobKind::big_rubber).radius, 29.0, 20, 6.5, 2.6};
constexpr Rubber kSmallRubber{shape_of(KnobKind::small_rubber).radius, 16.8, 14, 4.4, 1.9};

// 1 on a rib's crest, 0 in the groove beside it.
double crest(const Rubber& rubber, double angle)
{
    return std::pow(0.5 + 0.5 * std::cos(angle * rubber.ribs), 0.4);
}

// A flat dome, a small step down at its edge, and the ribbed side.
double height(const Rubber& rubber, double x, double y)
{
    constexpr double kStep = 0.5;
    const double dome = 0.10 * rubber.plateau;
    const Polar p = polar({x, y});
    if (p.radius < rubber.plateau) {
        const double t = p.radius / rubber.plateau;
        return -dome * t * t - kStep * smooth_step(0.93, 1.0, t);
    }
    const double t = (p.radius - rubber.plateau) / (rubber.radius - rubber.plateau);
    return -dome - kStep - rubber.fall * t * t -
           rubber.depth * (1.0 - crest(rubber, p.angle)) * smooth_step(0.05, 0.5, t);
}

double outline(const Rubber& rubber, Point point)
{
    const Polar p = polar(point);
    return p.radius - rubber.radius + 0.45 * rubber.depth * (1.0 - crest(rubber, p.angle));
}

Tint rubber_knob(const Rubber& rubber, Point point)
{
    const Vector normal =
        normal_of([&](double x, double y) { return height(rubber, x, y); }, point.x, point.y, 0.15);
    Tint tint = lit({kRubber, 0.085, 9.0}, normal);
    // A groove round the flat top, and the sky in the parts that turn away from the viewer.
    const double groove = std::abs(std::hypot(point.x, point.y) - rubber.plateau + 1.9) - 0.45;
    tint = scaled(tint, 0.55 + 0.45 * smooth_step(-0.3, 0.3, groove));
    return mix(tint, kSky, 0.10 * (1.0 - normal.z));
}

} // namespace

Tint knob_tint(KnobKind kind, Point p)
{
    const KnobShape& shape = shape_of(kind);
    const auto body = [&]() -> Tint {
        switch (kind) {
        case KnobKind::red:
            return circle(p, shape.radius) < 0.0 ? red_knob(p) : kClear;
        case KnobKind::big_rubber:
            return outline(kBigRubber, p) < 0.0 ? rubber_knob(kBigRubber, p) : kClear;
        case KnobKind::small_rubber:
            return outline(kSmallRubber, p) < 0.0 ? rubber_knob(kSmallRubber, p) : kClear;
        }
        return kClear;
    };
    return over(body(), shadow(p, shape.radius, shape.picture * 0.5 - shape.radius));
}

void paint_knob(Canvas& canvas, KnobKind kind)
{
    const double half = shape_of(kind).picture * 0.5;
    canvas.shade(canvas.bounds(), [&](Point at) { return knob_tint(kind, {at.x - half, at.y - half}); });
}

void print_scale(Canvas& canvas, Point center, const KnobShape& shape, double size)
{
    cairo_t* const context = canvas.context();
    cairo_set_line_cap(context, CAIRO_LINE_CAP_BUTT);
    for (int tick = 0; tick <= 10; ++tick) {
        const bool major = tick % 5 == 0;
        const double angle = (225.0 - 27.0 * tick) * std::numbers::pi / 180.0;
        const double from = size * shape.scale_radius, to = from + size * (major ? 4.5 : 3.0);
        cairo_move_to(context, center.x + from * std::cos(angle), center.y + from * std::sin(angle));
        cairo_line_to(context, center.x + to * std::cos(angle), center.y + to * std::sin(angle));
        cairo_set_line_width(context, size * (major ? 1.6 : 1.1));
        canvas.set_source(major ? kTickMajor : kTickMinor);
        cairo_stroke(context);
    }
}

Tint marker_tint(Marker marker, Point p)
{
    constexpr double kSocket = 5.8, kDot = kMarkerDot;
    const bool held = marker == Marker::held;
    const double r = std::hypot(p.x, p.y);
    Tint tint = with_alpha(kShadow, 0.85 * (1.0 - smooth_step(kSocket - 1.4, kSocket, r)));
    if (held) {
        const double glow = 1.0 - smooth_step(kDot - 1.0, kMarkerPicture * 0.5, r);
        tint = over(with_alpha(kBlueGlow, 0.85 * glow * glow), tint);
    }
    if (r < kDot) {
        const Tint core = held ? mix(kBlueHot, kBlueGlow, smooth_step(1.2, kDot, r))
                               : mix(kBlueDot, scaled(kBlueDot, 0.55), smooth_step(1.0, kDot, r));
        const double glint = 1.0 - smooth_step(0.3, 1.6, std::hypot(p.x + 1.1, p.y - 1.2));
        tint = mix(core, kBlueHot, (held ? 0.8 : 0.5) * glint);
    }
    return tint;
}

void paint_marker(Canvas& canvas, Marker marker)
{
    const double half = kMarkerPicture * 0.5;
    canvas.shade(canvas.bounds(), [&](Point at) { return marker_tint(marker, {at.x - half, at.y - half}); });
}

} // namespace r7::art
