// Repainting and writing of pictures.
#include "platform/cairo/back_buffer.h"

#include "platform/cairo/cairo_graphics.h"
#include "platform/window.h"

#include <unistd.h>

#include <cstdio>
#include <string>
#include <system_error>

namespace r7 {

namespace {

cairo_status_t write_exactly(void* closure, const unsigned char* data, unsigned int length)
{
    return std::fwrite(data, 1, length, static_cast<std::FILE*>(closure)) == length
               ? CAIRO_STATUS_SUCCESS
               : CAIRO_STATUS_WRITE_ERROR;
}

} // namespace

struct BackBuffer::Impl {
    Impl(Size size, double new_scale)
        : scale(new_scale), surface(make_picture(size, new_scale)), graphics(surface, new_scale)
    {
        changed.reserve(DirtyRegion::kMostRects);
        graphics.fill_rect(to_pixels().to_points(bounds()), &black, Compositing::copy);
    }

    PixelRect bounds() const
    {
        return {0, 0, cairo_image_surface_get_width(surface.get()),
                cairo_image_surface_get_height(surface.get())};
    }
    PixelTransform to_pixels() const { return {scale, {0.0, static_cast<double>(bounds().height)}}; }
    std::size_t stride() const
    {
        return static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()));
    }
    unsigned char* row(int y) const
    {
        cairo_surface_flush(surface.get());
        return cairo_image_surface_get_data(surface.get()) + static_cast<std::size_t>(y) * stride();
    }

    const Color black{Rgba{}};
    double scale;
    SurfaceRef surface;
    CairoGraphics graphics;
    std::vector<PixelRect> changed;
};

BackBuffer::BackBuffer(Size size, double scale) : impl_(std::make_unique<Impl>(size, scale)) {}

BackBuffer::~BackBuffer() = default;

int BackBuffer::width() const
{
    return impl_->bounds().width;
}

int BackBuffer::height() const
{
    return impl_->bounds().height;
}

double BackBuffer::scale() const
{
    return impl_->scale;
}

std::size_t BackBuffer::stride() const
{
    return impl_->stride();
}

std::span<const std::uint8_t> BackBuffer::pixels() const
{
    return {impl_->row(0), stride() * static_cast<std::size_t>(height())};
}

std::span<const PixelRect> BackBuffer::repaint(Window& window)
{
    impl_->changed.clear();
    const PixelTransform to_pixels = impl_->to_pixels();
    const DirtyRegion dirty = window.take_dirty_region();
    for (const Rect& rect : dirty.rects()) {
        const PixelRect pixels = intersection(rounded_outward(to_pixels(rect)), impl_->bounds());
        if (pixels.is_empty()) continue;
        const Rect covered = to_pixels.to_points(pixels);
        impl_->graphics.begin(pixels);
        // What is painted here twice, or shines through, must not add up from one repaint to the next.
        impl_->graphics.fill_rect(covered, &impl_->black, Compositing::copy);
        window.paint(impl_->graphics, covered);
        impl_->changed.push_back(pixels);
    }
    return impl_->changed;
}

bool BackBuffer::write_png(const std::filesystem::path& path) const
{
    return write_png(path, impl_->to_pixels().to_points(impl_->bounds()));
}

bool BackBuffer::write_png(const std::filesystem::path& path, const Rect& part) const
{
    const PixelRect pixels = intersection(rounded_outward(impl_->to_pixels()(part)), impl_->bounds());
    if (pixels.is_empty()) return false;
    const SurfaceRef surface = make_surface(
        cairo_image_surface_create_for_data(impl_->row(pixels.y) + 4 * pixels.x, CAIRO_FORMAT_ARGB32,
                                            pixels.width, pixels.height, static_cast<int>(stride())));

    // Whoever looks at `path` finds the old file or the whole new one.
    const std::filesystem::path unfinished = path.string() + ".part-" + std::to_string(::getpid());
    std::FILE* const file = std::fopen(unfinished.c_str(), "wbx");
    if (!file) return false;
    bool written =
        cairo_surface_write_to_png_stream(surface.get(), write_exactly, file) == CAIRO_STATUS_SUCCESS;
    written = std::fclose(file) == 0 && written;
    std::error_code error;
    if (written) std::filesystem::rename(unfinished, path, error);
    if (written && !error) return true;
    std::filesystem::remove(unfinished, error);
    return false;
}

} // namespace r7
