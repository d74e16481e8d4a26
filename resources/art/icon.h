// The program's icon: a red knob with its light, on a piece of the plate.
#pragma once

#include "resources/art/canvas.h"

#include <array>

namespace r7::art {

/// One size of the icon, in pixels. Each is drawn for itself: the smaller, the larger its dot, and no scale
/// where its ticks would blur.
struct IconRow {
    int size;      ///< width and height
    double corner; ///< radius of the plate's corners
    double knob;   ///< radius of the knob
    double dot;    ///< radius of its light
    bool has_scale;
};

inline constexpr auto kIcons = std::to_array<IconRow>({
    {16, 3.0, 6.6, 1.9, false},
    {24, 4.5, 9.8, 2.5, false},
    {32, 6.0, 13.0, 3.1, false},
    {48, 9.0, 19.0, 4.0, false},
    {64, 12.0, 22.0, 4.4, true},
    {128, 24.0, 44.0, 7.6, true},
    {256, 48.0, 88.0, 14.4, true},
});

/// Fills a canvas of the row's size.
void paint_icon(Canvas& canvas, const IconRow& row);

} // namespace r7::art
