// Images from PNG files.
#include "platform/cairo/cairo_image.h"
#include "platform/png_file.h"

#include <cstdio>

namespace r7 {

namespace {

// One or two pictures of the same thing.
class PngImage final : public CairoImage {
public:
    PngImage(SurfaceRef once, SurfaceRef twice) : once_{std::move(once), 1.0}, twice_{std::move(twice), 2.0}
    {
    }

    Size size() const override
    {
        return {static_cast<double>(once_.width()), static_cast<double>(once_.height())};
    }

    Raster raster(double pixels_per_point) const override
    {
        // Any enlargement looks better from the larger picture; sums of points are not exact.
        constexpr double kEnlarged = 1.001;
        return twice_.surface && pixels_per_point > kEnlarged ? twice_ : once_;
    }

private:
    Raster once_;
    Raster twice_; // without a surface where there is no such file
};

cairo_status_t read_exactly(void* closure, unsigned char* data, unsigned int length)
{
    return std::fread(data, 1, length, static_cast<std::FILE*>(closure)) == length ? CAIRO_STATUS_SUCCESS
                                                                                   : CAIRO_STATUS_READ_ERROR;
}

// The picture of a file, or null.
SurfaceRef read_png(const std::filesystem::path& path)
{
    const FileRef file = open_png_file(path);
    if (!file) return nullptr;
    SurfaceRef surface = make_surface(cairo_image_surface_create_from_png_stream(read_exactly, file.get()));
    return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS ? surface : nullptr;
}

bool has_twice_the_pixels(cairo_surface_t* twin, cairo_surface_t* surface)
{
    return cairo_image_surface_get_width(twin) == 2 * cairo_image_surface_get_width(surface) &&
           cairo_image_surface_get_height(twin) == 2 * cairo_image_surface_get_height(surface);
}

} // namespace

ImageRef Image::from_png_file(const std::filesystem::path& path)
{
    SurfaceRef once = read_png(path);
    if (!once) return nullptr;
    SurfaceRef twice = read_png(twice_as_large(path));
    if (twice && !has_twice_the_pixels(twice.get(), once.get())) twice = nullptr;
    return std::make_shared<PngImage>(std::move(once), std::move(twice));
}

} // namespace r7
