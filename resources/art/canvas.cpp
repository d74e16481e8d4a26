// A picture in the making.
#include "resources/art/canvas.h"

#include <cstddef>
#include <cstdint>

namespace r7::art {

namespace {

// The mean of a pixel's samples, weighed by their alpha, as Cairo keeps pixels: premultiplied.
class Mean final {
public:
    void add(const Tint& tint)
    {
        ++samples_;
        red_ += tint.red * tint.alpha;
        green_ += tint.green * tint.alpha;
        blue_ += tint.blue * tint.alpha;
        alpha_ += tint.alpha;
    }

    std::uint32_t pixel() const
    {
        if (alpha_ <= 0.0) return 0;
        const double alpha = alpha_ / samples_;
        const auto byte = [&](double sum) {
            return static_cast<std::uint32_t>(std::lround(srgb_from_linear(sum / alpha_) * alpha * 255.0));
        };
        const auto opacity = static_cast<std::uint32_t>(std::lround(alpha * 255.0));
        return opacity << 24 | byte(red_) << 16 | byte(green_) << 8 | byte(blue_);
    }

private:
    int samples_ = 0;
    double red_ = 0.0, green_ = 0.0, blue_ = 0.0, alpha_ = 0.0;
};

} // namespace

Canvas::Canvas(Size size, int scale, Ground ground)
    : size_(size),
      scale_(scale),
      surface_(cairo_image_surface_create(ground == Ground::clear ? CAIRO_FORMAT_ARGB32 : CAIRO_FORMAT_RGB24,
                                          static_cast<int>(size.width) * scale,
                                          static_cast<int>(size.height) * scale)),
      context_(cairo_create(surface_.get()))
{
    cairo_translate(context_.get(), 0.0, size.height * scale);
    cairo_scale(context_.get(), scale, -scale);
}

void Canvas::shade(const Rect& area, const Shader& shader, int grain)
{
    const Rect visible = intersection(area, bounds());
    const int left = static_cast<int>(std::floor(visible.x * scale_));
    const int right = static_cast<int>(std::ceil(visible.right() * scale_));
    const int bottom = static_cast<int>(std::floor(visible.y * scale_));
    const int top = static_cast<int>(std::ceil(visible.top() * scale_));
    if (right <= left || top <= bottom) return;

    const std::unique_ptr<cairo_surface_t, Free> tile(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, right - left, top - bottom));
    unsigned char* const data = cairo_image_surface_get_data(tile.get());
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(tile.get());
    for (int y = bottom; y < top; ++y) {
        auto* const row = reinterpret_cast<std::uint32_t*>(data + (top - 1 - y) * stride);
        for (int x = left; x < right; ++x) {
            Mean mean;
            for (int j = 0; j < grain; ++j)
                for (int i = 0; i < grain; ++i)
                    mean.add(shader({(x + (i + 0.5) / grain) / scale_, (y + (j + 0.5) / grain) / scale_}));
            row[x - left] = mean.pixel();
        }
    }
    cairo_surface_mark_dirty(tile.get());

    cairo_save(context_.get());
    cairo_identity_matrix(context_.get());
    cairo_set_source_surface(context_.get(), tile.get(), left, size_.height * scale_ - top);
    cairo_paint(context_.get());
    cairo_restore(context_.get());
}

void Canvas::place(const Canvas& other, Point origin)
{
    cairo_save(context_.get());
    cairo_identity_matrix(context_.get());
    cairo_set_source_surface(context_.get(), other.surface_.get(), origin.x * scale_,
                             (size_.height - origin.y - other.size_.height) * scale_);
    cairo_paint(context_.get());
    cairo_restore(context_.get());
}

void Canvas::pave(const Canvas& tile)
{
    cairo_save(context_.get());
    cairo_identity_matrix(context_.get());
    cairo_set_source_surface(context_.get(), tile.surface_.get(), 0.0, size_.height * scale_);
    cairo_pattern_set_extend(cairo_get_source(context_.get()), CAIRO_EXTEND_REPEAT);
    cairo_paint(context_.get());
    cairo_restore(context_.get());
}

void Canvas::set_source(const Tint& tint)
{
    cairo_set_source_rgba(context_.get(), srgb_from_linear(tint.red), srgb_from_linear(tint.green),
                          srgb_from_linear(tint.blue), tint.alpha);
}

bool Canvas::write_png(const std::filesystem::path& path) const
{
    cairo_surface_flush(surface_.get());
    return cairo_surface_write_to_png(surface_.get(), path.c_str()) == CAIRO_STATUS_SUCCESS;
}

} // namespace r7::art
