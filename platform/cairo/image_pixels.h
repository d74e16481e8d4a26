// The pixels of an image, for whoever shows it without painting: a cursor.
#pragma once

#include "platform/image.h"

#include <cstdint>
#include <vector>

namespace r7 {

/// A picture of whole device pixels.
struct ImagePixels {
    int width = 0;
    int height = 0;
    /// Premultiplied ARGB, 32 bits a pixel in the machine's byte order, rows from the top without gaps.
    std::vector<std::uint8_t> bytes;
};

/// The image over nothing at `scale` pixels for a point (above 0), its size rounded up to whole pixels.
ImagePixels image_pixels(const Image& image, double scale);

} // namespace r7
