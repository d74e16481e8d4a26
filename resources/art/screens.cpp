// The two patterns that curves are painted with.
#include "resources/art/screens.h"

#include <numbers>

namespace r7::art {

void paint_blue_bar(Canvas& canvas)
{
    const Tint bright = srgb(0xA8DCFF), deep = srgb(0x3A8DFF);
    canvas.shade(canvas.bounds(), [&](Point p) {
        return mix(deep, bright, 0.5 + 0.5 * std::cos(2.0 * std::numbers::pi * p.y / kBlueBarTile.height));
    });
}

void paint_lcd_grid(Canvas& canvas)
{
    constexpr double kCell = 3.0, kGap = 1.0;
    const Tint cell = srgb(0x4FA6FF, 0.72), gap = srgb(0x4397F0, 0.56);
    canvas.shade(canvas.bounds(), [&](Point p) {
        const double x = std::fmod(p.x, kCell), y = std::fmod(p.y, kCell);
        return x < kGap || y < kGap ? gap : cell;
    });
}

} // namespace r7::art
