// The header of the plate: the unit's name and its maker's.
#pragma once

#include "resources/art/canvas.h"

namespace r7::art {

/// Along the upper edge of a canvas of the panel's size.
void paint_header(Canvas& canvas);

} // namespace r7::art
