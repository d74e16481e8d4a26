// Images made of pixels.
#include "platform/cairo/pixel_image.h"

#include "platform/cairo/cairo_image.h"

#include <cstddef>
#include <cstring>

namespace r7 {

namespace {

class PixelImage final : public CairoImage {
public:
    explicit PixelImage(SurfaceRef surface) : raster_{std::move(surface), 1.0} {}

    Size size() const override
    {
        return {static_cast<double>(raster_.width()), static_cast<double>(raster_.height())};
    }
    Raster raster(double) const override { return raster_; }

private:
    Raster raster_;
};

} // namespace

ImageRef image_of(const ImagePixels& pixels)
{
    if (pixels.width <= 0 || pixels.height <= 0) return nullptr;
    const std::size_t bytes =
        std::size_t{4} * static_cast<std::size_t>(pixels.width) * static_cast<std::size_t>(pixels.height);
    SurfaceRef surface =
        make_surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels.width, pixels.height));
    if (pixels.bytes.size() < bytes || cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
        return nullptr;
    // A row of 32-bit pixels has no gap.
    std::memcpy(cairo_image_surface_get_data(surface.get()), pixels.bytes.data(), bytes);
    cairo_surface_mark_dirty(surface.get());
    return std::make_shared<PixelImage>(std::move(surface));
}

} // namespace r7
