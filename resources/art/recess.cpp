// What is cut into the plate.
#include "resources/art/recess.h"

#include "resources/art/palette.h"
#include "resources/art/shapes.h"

namespace r7::art {

void cut_recess(Canvas& canvas, const Rect& room, double corner, double depth)
{
    canvas.shade(
        inset(room, -2.0),
        [&](Point p) {
            const auto distance = [&](double x, double y) { return rounded_box({x, y}, room, corner); };
            const double d = distance(p.x, p.y);
            if (d >= 1.0) return kClear;
            if (d >= 0.0) {
                const Vector inward = normal_of(distance, p.x, p.y);
                const double facing = (inward.x * kLight.x + inward.y * kLight.y) / 0.55;
                return facing < 0.0 ? with_alpha(kEdgeDark, 0.85 * -facing)
                                    : with_alpha(kEdgeLight, 0.60 * facing);
            }
            const double shadow = smooth_step(-5.0, 2.5, distance(p.x - 1.6, p.y + 2.2));
            return over(with_alpha(kShadow, 0.55 * shadow), with_alpha(kEdgeDark, depth));
        },
        2);
}

void cut_groove(Canvas& canvas, const Rect& room)
{
    const Point middle = center_of(room);
    const bool upright = room.height > room.width;
    canvas.shade(room, [&](Point p) {
        const bool toward_light = upright ? p.x < middle.x : p.y > middle.y;
        return toward_light ? with_alpha(kEdgeDark, 0.65) : with_alpha(kEdgeLight, 0.35);
    });
}

} // namespace r7::art
