// The rockers: a cap of two faces that meet in a valley, tilted by the hand, in a dark frame.
#include "resources/art/switches.h"

#include "resources/art/palette.h"
#include "resources/art/shapes.h"

namespace r7::art {

namespace {

constexpr double kFrame = 3.0;  // width of the frame
constexpr double kCorner = 6.0; // of the frame's outline
constexpr double kCapCorner = 3.5;
constexpr double kValley = 0.20; // rise of a face from the valley outward, in points a point
constexpr double kTilt = 0.24;   // rise added by the hand

// Distance of a chevron that points to `direction` (-1 or 1), about the origin.
double chevron(Point p, double direction)
{
    const double x = p.x * direction, y = std::abs(p.y);
    const double along = std::clamp((2.0 - x + y) * 0.5, 0.0, 4.2); // from its tip, at (2, 0)
    return std::hypot(x - (2.0 - along), y - along) - 0.75;
}

struct Rocker {
    Rect cap;
    double tilt; // -1 with the left half down, 1 with the right one
    Material material;

    double rise(double x) const
    {
        const double from_middle = x - center_of(cap).x;
        return kValley * std::tanh(from_middle / 1.5) - tilt * kTilt;
    }

    Tint face(Point p) const
    {
        if (rounded_box(p, cap, kCapCorner) >= 0.0) return kClear;
        const Point middle = center_of(cap);
        const auto height = [&](double x, double y) {
            return -1.6 * smooth_step(-2.2, 0.0, rounded_box({x, y}, cap, kCapCorner));
        };
        const Vector edge = normal_of(height, p.x, p.y, 0.1);
        const double bulge = 0.22 * (p.y - middle.y) / (cap.height * 0.5);
        const Vector normal = normalized({edge.x / edge.z - rise(p.x), edge.y / edge.z + bulge, 1.0});
        Tint tint = lit(material, normal);
        // The half that is pressed lies in the shadow of the frame, the other one stands in the light.
        const double down = tilt * (p.x - middle.x) / (cap.width * 0.5); // 1 at the end that is pressed
        if (tilt != 0.0) tint = scaled(tint, down > 0.0 ? 0.62 - 0.40 * down : 1.30);
        return mix(tint, kInk, 0.85 * ink(p));
    }

    // The chevrons that are printed on the halves: 1 in a line, 0 beside it.
    double ink(Point p) const
    {
        const Point middle = center_of(cap);
        double d = 1e3;
        for (const double side : {-1.0, 1.0})
            d = std::min(d, chevron({p.x - middle.x - side * cap.width * 0.26, p.y - middle.y}, side));
        return 1.0 - smooth_step(-0.3, 0.3, d);
    }
};

Tint frame(Point p, const Rect& bounds)
{
    const auto height = [&](double x, double y) {
        const double d = rounded_box({x, y}, bounds, kCorner);
        return -1.2 * smooth_step(-1.2, 0.0, d) - 1.5 * (1.0 - smooth_step(-kFrame, -kFrame + 1.0, d));
    };
    const double d = rounded_box(p, bounds, kCorner);
    if (d >= 0.0) return kClear;
    const Tint metal = lit({kBezel, 0.10, 16.0}, normal_of(height, p.x, p.y, 0.1));
    return d < -kFrame + 0.2 ? srgb(0x040506) : metal;
}

} // namespace

void paint_switch(Canvas& canvas, SwitchKind kind, Tilt tilt)
{
    const double hand = static_cast<double>(tilt);
    Rocker rocker{inset(canvas.bounds(), kFrame + 0.5), hand,
                  kind == SwitchKind::push_button ? Material{kCharcoal, 0.10, 14.0}
                                                  : Material{kSwitchRed, 0.22, 24.0}};
    // The end that is down is seen shorter, the end that is up stands out over the frame.
    const double left = tilt == Tilt::left ? 2.5 : tilt == Tilt::right ? -1.5 : 0.0;
    const double right = tilt == Tilt::right ? 2.5 : tilt == Tilt::left ? -1.5 : 0.0;
    rocker.cap.x += left;
    rocker.cap.width -= left + right;
    canvas.shade(canvas.bounds(), [&](Point p) { return over(rocker.face(p), frame(p, canvas.bounds())); });
}

} // namespace r7::art
