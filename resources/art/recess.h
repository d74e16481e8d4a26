// What is cut into the plate.
#pragma once

#include "resources/art/canvas.h"

namespace r7::art {

/// A round-cornered recess: its floor darkened by `depth` (0 to 1), a shadow from its upper left edge, a dark
/// upper and a light lower rim, which lies one point outside `room`.
void cut_recess(Canvas& canvas, const Rect& room, double corner, double depth);

/// A thin straight groove, along the longer side of `room`.
void cut_groove(Canvas& canvas, const Rect& room);

} // namespace r7::art
