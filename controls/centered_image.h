// Where the pictures of knobs and lights lie in their views.
#pragma once

#include "platform/geometry.h"

namespace r7 {

class Graphics;
class Image;

/// The lower left corner of a box of `size` that is centred in `rect`. A larger box overhangs equally on both
/// sides.
Point origin_to_center(Size size, const Rect& rect);

/// Paints an image at its own size, opaque, in the middle of `rect`; a null image paints nothing.
void draw_centered(Graphics& graphics, const Image* image, const Rect& rect);

} // namespace r7
