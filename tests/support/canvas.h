// A picture to paint on and to look at.
#pragma once

#include "platform/cairo/cairo_graphics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
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

/// The greatest step of a component from one to the other.
inline int step_between(const Pixel& a, const Pixel& b)
{
    return std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue),
                     std::abs(a.alpha - b.alpha)});
}

inline std::ostream& operator<<(std::ostream& stream, const Pixel& p)
{
    return stream << '(' << p.red << ' ' << p.green << ' ' << p.blue << ' ' << p.alpha << ')';
}

class Canvas final {
public:
    using Painter = std::function<void(Graphics&)>;

    /// What is painted already, on an image surface.
    explicit Canvas(SurfaceRef picture) : picture_(std::move(picture)) {}
    Canvas(double width, double height, double scale, const Painter& paint)
        : Canvas(make_picture({width, height}, scale))
    {
        CairoGraphics graphics(picture_, scale);
        paint(graphics);
    }
    Canvas(double width, double height, const Painter& paint) : Canvas(width, height, 1.0, paint) {}

    int width() const { return cairo_image_surface_get_width(picture_.get()); }
    int height() const { return cairo_image_surface_get_height(picture_.get()); }

    /// The pixel in column `x` from the left and row `y` from the bottom.
    Pixel at(int x, int y) const
    {
        cairo_surface_flush(picture_.get());
        const unsigned char* row = cairo_image_surface_get_data(picture_.get()) +
                                   cairo_image_surface_get_stride(picture_.get()) * (height() - 1 - y);
        const std::uint32_t argb = reinterpret_cast<const std::uint32_t*>(row)[x];
        const auto byte = [&](int shift) { return static_cast<int>(argb >> shift & 0xFF); };
        const bool has_alpha = cairo_image_surface_get_format(picture_.get()) == CAIRO_FORMAT_ARGB32;
        return {byte(16), byte(8), byte(0), has_alpha ? byte(24) : 255};
    }
    void write_png(const std::string& path) const
    {
        cairo_surface_write_to_png(picture_.get(), path.c_str());
    }
    int alpha(int x, int y) const { return at(x, y).alpha; }

private:
    SurfaceRef picture_;
};

/// A colour, and where in points it is expected.
struct Lit {
    Rect where;
    Pixel color;
};

/// Expects every pixel to have the colour of the first of these rectangles around it, or else to be clear.
inline void expect_lit(const Canvas& canvas, const std::vector<Lit>& lit, double scale = 1.0)
{
    for (int y = 0; y < canvas.height(); ++y)
        for (int x = 0; x < canvas.width(); ++x) {
            const Point point{(x + 0.5) / scale, (y + 0.5) / scale};
            const auto found =
                std::ranges::find_if(lit, [&](const Lit& l) { return contains(l.where, point); });
            ASSERT_EQ(canvas.at(x, y), found == lit.end() ? Pixel{} : found->color) << "at " << x << ' ' << y;
        }
}

} // namespace r7
