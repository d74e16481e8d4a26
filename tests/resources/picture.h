// An image's pixels, and how they look to eyes of several kinds.
#pragma once

#include <cairo.h>

#include <array>
#include <string>
#include <vector>

namespace r7::art {

/// One pixel: red, green, blue, alpha; straight, 0 to 1, as they stand in the file.
using Pixel = std::array<double, 4>;

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels; ///< row by row from the top; none in an empty picture

    /// Columns and rows from the upper left.
    const Pixel& at(int column, int row) const
    {
        return pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(column)];
    }
};

/// The pixels of an image surface of Cairo's; empty where it is in error.
Picture picture_of(cairo_surface_t* surface);
/// The image of a name in the panel's resources, "@2x" included where it is wanted; empty where there is
/// none.
Picture image_named(const std::string& name);

enum class Eye { grey, protan, deutan };

/// The pixel over the plate's recesses, as an eye of that kind sees it (opaque).
Pixel seen(const Pixel& pixel, Eye eye);
/// Relative luminance, 0 to 1, of an opaque pixel.
double luminance(const Pixel& pixel);
/// The contrast of two luminances, 1 to 21.
double contrast(double a, double b);

/// The part of the pixels, where either picture has any, that differ to that eye by a clear step. The
/// pictures are of one size.
double difference(const Picture& a, const Picture& b, Eye eye);

} // namespace r7::art
