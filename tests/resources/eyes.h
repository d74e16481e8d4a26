// How colours look to eyes of several kinds.
#pragma once

#include "tests/support/canvas.h"

namespace r7::art {

/// Relative luminance, 0 to 1, of an opaque pixel.
double luminance(const Pixel& pixel);
/// The contrast of two luminances, 1 to 21.
double contrast(double a, double b);

/// The part of the pixels, where either picture has any, that differ by a clear step over the plate's
/// recesses: to the eye that sees least of it, with one kind of cones missing or without any colour. The
/// pictures are of one size.
double difference(const r7::Canvas& a, const r7::Canvas& b);

} // namespace r7::art
