// The program's icon.
#include "resources/art/icon.h"

#include "resources/art/knobs.h"
#include "resources/art/palette.h"
#include "resources/art/shapes.h"

#include <numbers>

namespace r7::art {

namespace {

// The rounded piece of plate, its edge broken and lit like the panel's.
Tint plate(const IconRow& row, Point p)
{
    const double edge = std::max(1.0, row.size / 64.0);
    const Rect room{0.0, 0.0, static_cast<double>(row.size), static_cast<double>(row.size)};
    const auto distance = [&](double x, double y) { return rounded_box({x, y}, room, row.corner); };
    const double d = distance(p.x, p.y);
    if (d >= 0.0) return kClear;
    const Tint face = scaled(mix(kPlateBottom, kPlateTop, p.y / row.size), 1.6);
    if (d < -edge) return face;
    const Vector inward = normal_of(distance, p.x, p.y);
    const double facing = -(inward.x * kLight.x + inward.y * kLight.y) / 0.55;
    return facing < 0.0 ? mix(face, kEdgeDark, -0.8 * facing) : mix(face, kSky, 0.5 * facing);
}

} // namespace

void paint_icon(Canvas& canvas, const IconRow& row)
{
    const double middle = row.size * 0.5;
    const KnobShape& shape = shape_of(KnobKind::red);
    const double enlarged = row.knob / shape.radius;
    canvas.shade(canvas.bounds(), [&](Point p) { return plate(row, p); });
    if (row.has_scale) print_scale(canvas, {middle, middle}, shape, enlarged);

    constexpr double kAngle = 45.0 * std::numbers::pi / 180.0; // two thirds up
    const double dot_at = 0.57 * row.knob;
    const Point dot{middle + dot_at * std::cos(kAngle), middle + dot_at * std::sin(kAngle)};
    canvas.shade(canvas.bounds(), [&](Point p) {
        const Tint knob = knob_tint(KnobKind::red, {(p.x - middle) / enlarged, (p.y - middle) / enlarged});
        const double by = kMarkerDot / row.dot;
        return over(marker_tint(Marker::held, {(p.x - dot.x) * by, (p.y - dot.y) * by}), knob);
    });
}

} // namespace r7::art
