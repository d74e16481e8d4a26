// The pixels of an image.
#include "platform/cairo/image_pixels.h"

#include "platform/cairo/cairo_graphics.h"

namespace r7 {

ImagePixels image_pixels(const Image& image, double scale)
{
    const SurfaceRef picture = make_picture(image.size(), scale);
    CairoGraphics(picture, scale).draw_image(&image, {}, Compositing::copy, 1.0);

    // A row of 32-bit pixels has no gap.
    cairo_surface_flush(picture.get());
    const int width = cairo_image_surface_get_width(picture.get());
    const int height = cairo_image_surface_get_height(picture.get());
    const unsigned char* bytes = cairo_image_surface_get_data(picture.get());
    return {width, height, {bytes, bytes + std::ptrdiff_t{4} * width * height}};
}

} // namespace r7
