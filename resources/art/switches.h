// The rocker switches.
#pragma once

#include "resources/art/canvas.h"
#include "resources/art/rows.h"

namespace r7::art {

enum class Tilt { left = -1, flat = 0, right = 1 };

/// Fills the canvas, of the size of the switch's frame.
void paint_switch(Canvas& canvas, SwitchKind kind, Tilt tilt);

} // namespace r7::art
