// A picture to paint on and to look at.
#pragma once

#include "platform/cairo/cairo_graphics.h"

#include <cstdint>
#include <functional>
#include <ostream>
#include <vector>

namespace r7 {

/// Premultiplied components, 0 to 255.
struct Pixel {
    int red = 0;
    int green = 0;
    int blue = 0;
    int alpha = 0;
    bool operator==(const Pixel&) const = default;
};

inline std::ostream& operator<<(std::ostream& stream, const Pixel& p)
{
    return stream << '(' << p.red << ' ' << p.green << ' ' << p.blue << ' ' << p.alpha << ')';
}

class Canvas final {
public:
    using Painter = std::function<void(Graphics&)>;

    Canvas(double width, double height, double scale = 1.0)
        : picture_(make_picture({width, height}, scale)), graphics_(picture_, scale)
    {
    }
    Canvas(double width, double height, const Painter& paint) : Canvas(width, height) { paint(graphics_); }
    Canvas(double width, double height, double scale, const Painter& paint) : Canvas(width, height, scale)
    {
        paint(graphics_);
    }

    int width() const { return cairo_image_surface_get_width(picture_.get()); }
    int height() const { return cairo_image_surface_get_height(picture_.get()); }
    CairoGraphics& graphics() { return graphics_; }

    /// The pixel in column `x` from the left and row `y` from the bottom.
    Pixel at(int x, int y) const
    {
        const std::uint32_t argb = word(x, height() - 1 - y);
        const auto byte = [&](int shift) { return static_cast<int>(argb >> shift & 0xFF); };
        return {byte(16), byte(8), byte(0), byte(24)};
    }
    int alpha(int x, int y) const { return at(x, y).alpha; }

    /// All pixels, rows from the top.
    std::vector<std::uint32_t> pixels() const
    {
        std::vector<std::uint32_t> all;
        for (int y = 0; y < height(); ++y)
            for (int x = 0; x < width(); ++x) all.push_back(word(x, y));
        return all;
    }

private:
    std::uint32_t word(int x, int y_from_top) const
    {
        cairo_surface_flush(picture_.get());
        const unsigned char* row =
            cairo_image_surface_get_data(picture_.get()) +
            static_cast<std::ptrdiff_t>(y_from_top) * cairo_image_surface_get_stride(picture_.get());
        return reinterpret_cast<const std::uint32_t*>(row)[x];
    }

    SurfaceRef picture_;
    CairoGraphics graphics_;
};

} // namespace r7
