// The shadow as strips along the right and the lower edge, each a point wide and fainter than the one before.
#include "platform/window_shadow.h"

#include "platform/color.h"
#include "platform/graphics.h"

namespace r7 {

namespace {

constexpr double kReach = 12.0; // points beside the edges
constexpr double kDrop = 6.0;   // where it begins, from the upper right and the lower left corner
constexpr double kDarkest = 0.5;

} // namespace

Rect with_shadow(const Rect& frame)
{
    return {frame.x, frame.y - kReach, frame.width + kReach, frame.height + kReach};
}

void paint_window_shadow(Graphics& graphics, const Rect& frame)
{
    for (double out = 0.0; out < kReach; ++out) {
        const double rest = 1.0 - out / kReach;
        const Color shade(Rgba{.alpha = kDarkest * rest * rest});
        // Together they turn the corner, and meet nowhere.
        const Rect right{frame.right() + out, frame.y - out - 1.0, 1.0, frame.height - kDrop + out + 1.0};
        const Rect below{frame.x + kDrop, frame.y - out - 1.0, frame.width - kDrop + out, 1.0};
        graphics.fill_rect(right, &shade, Compositing::source_over);
        graphics.fill_rect(below, &shade, Compositing::source_over);
    }
}

} // namespace r7
