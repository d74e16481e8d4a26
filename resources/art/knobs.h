// The knobs' bodies and the dot that is their pointer.
#pragma once

#include "resources/art/canvas.h"
#include "resources/art/rows.h"

namespace r7::art {

/// Fills a canvas of the family's picture size.
void paint_knob(Canvas& canvas, KnobKind kind);

inline constexpr double kMarkerPicture = 16.0; ///< width and height of the marker's picture, in points

enum class Marker { at_rest, held };

void paint_marker(Canvas& canvas, Marker marker);

} // namespace r7::art
