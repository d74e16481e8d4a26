// The soft shadow that a window throws on the one below it, where it is a layer of that one's picture.
#pragma once

#include "platform/geometry.h"

namespace r7 {

class Graphics;

/// What a window with this frame covers together with its shadow, which falls to the lower right.
Rect with_shadow(const Rect& frame);

/// Paints the shadow of a window with this frame: beside the window only, for one may see through it.
void paint_window_shadow(Graphics& graphics, const Rect& frame);

} // namespace r7
