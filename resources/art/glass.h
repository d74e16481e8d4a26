// The displays' glass.
#pragma once

#include "resources/art/lettering.h"
#include "resources/art/rows.h"

namespace r7::art {

/// How far the glass reaches beyond the view's frame, in points.
inline constexpr double kGlassRim = 4.0;

/// The glass around a display's frame, with the grid of its kind at the view's own mapping, and its title
/// above.
void paint_display(Canvas& canvas, const Rect& frame, const DisplayRow& row, const TextStyle& title);

} // namespace r7::art
