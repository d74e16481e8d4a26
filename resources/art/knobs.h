// The knobs' bodies, the dot that is their pointer, and the scale around them.
#pragma once

#include "resources/art/canvas.h"
#include "resources/art/rows.h"

namespace r7::art {

/// What is seen at a point, measured from the knob's centre, of its body and of the short shadow around it.
Tint knob_tint(KnobKind kind, Point from_center);
/// Fills a canvas of the family's picture size.
void paint_knob(Canvas& canvas, KnobKind kind);

/// Prints the scale of a knob, enlarged by `size`: 11 ticks over 270 degrees, the gap at the bottom.
void print_scale(Canvas& canvas, Point center, const KnobShape& shape, double size = 1.0);

inline constexpr double kMarkerPicture = 16.0; ///< width and height of the marker's picture, in points
inline constexpr double kMarkerDot = 4.0;      ///< radius of the dot itself

enum class Marker { at_rest, held };

/// What is seen of the marker at a point, measured from its centre.
Tint marker_tint(Marker marker, Point from_center);
void paint_marker(Canvas& canvas, Marker marker);

} // namespace r7::art
