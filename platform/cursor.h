// A mouse cursor: a picture and the point of it that points.
#pragma once

#include "platform/image.h"

#include <memory>

namespace r7 {

/// `hot_spot` is measured from the image's lower left corner, in points.
struct Cursor {
    ImageRef image;
    Point hot_spot;
};

using CursorRef = std::shared_ptr<const Cursor>;

} // namespace r7
