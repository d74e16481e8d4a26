// "r7-bg": the face plate with its recesses, scales, glass and print.
#pragma once

#include "resources/art/canvas.h"
#include "resources/art/description.h"

namespace r7::art {

/// Fills a canvas of the panel's size. A control of the rows that the description lacks is left out.
void paint_background(Canvas& canvas, const Description& description);

/// A round-cornered recess: its floor darkened by `depth` (0 to 1), a shadow from its upper left edge,
/// a dark upper and a light lower rim.
void cut_recess(Canvas& canvas, const Rect& room, double corner, double depth);

} // namespace r7::art
