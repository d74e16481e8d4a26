// The lamps of the indicator lights.
#pragma once

#include "resources/art/canvas.h"
#include "resources/art/rows.h"

namespace r7::art {

inline constexpr double kLampPicture = 32.0; ///< width and height of a lamp's picture, in points

void paint_lamp(Canvas& canvas, const LampRow& lamp);

} // namespace r7::art
