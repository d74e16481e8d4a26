// From the platform's pixels to planes of samples, and back.
#pragma once

#include "controls/plane.h"
#include "platform/cairo/image_pixels.h"

#include <span>

namespace r7 {

Plane<Pixel> plane_of(const ImagePixels& pixels);

/// How much of each pixel a picture covers; `mask` takes its size.
void read_coverage(const ImagePixels& pixels, Mask& mask);

/// Rounds colours, held between 0 and 1, to the bytes of the platform's pixels, four for
/// each. Returns where the next would go.
std::uint8_t* write_bytes(std::span<const Pixel> colors, std::uint8_t* bytes);

} // namespace r7
