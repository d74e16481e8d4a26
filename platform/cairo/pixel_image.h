// Images made of pixels.
#pragma once

#include "platform/cairo/image_pixels.h"

namespace r7 {

/// An image of these pixels, one to a point. Null where there are none, or too few for its size.
ImageRef image_of(const ImagePixels& pixels);

} // namespace r7
