// A picture in the making: shaded areas, Cairo's lines and letters, and a PNG file in the end.
#pragma once

#include "platform/geometry.h"
#include "resources/art/light.h"

#include <cairo.h>

#include <filesystem>
#include <functional>
#include <memory>

namespace r7::art {

/// The colour at a point.
using Shader = std::function<Tint(Point)>;

/// A picture in points, y upward, at 1 or 2 pixels a point.
class Canvas final {
public:
    enum class Ground { clear, opaque };

    Canvas(Size size, int scale, Ground ground = Ground::clear);

    Size size() const { return size_; }
    int scale() const { return scale_; }
    Rect bounds() const { return {0.0, 0.0, size_.width, size_.height}; }
    /// For lines and letters; its user space is in points, y upward.
    cairo_t* context() const { return context_.get(); }

    /// Paints `shader` over every pixel of `area`, from `grain` x `grain` samples a pixel.
    void shade(const Rect& area, const Shader& shader, int grain = 5);
    /// Paints another canvas of the same scale with its lower left corner at `origin`.
    void place(const Canvas& other, Point origin);
    /// Paints the whole canvas, where it is not clipped away, with a tile repeated from the lower left
    /// corner.
    void pave(const Canvas& tile);
    /// The source of the context becomes `tint`.
    void set_source(const Tint& tint);

    /// False where the file cannot be written.
    [[nodiscard]] bool write_png(const std::filesystem::path& path) const;

private:
    struct Free {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
        void operator()(cairo_t* context) const { cairo_destroy(context); }
    };

    Size size_;
    int scale_;
    std::unique_ptr<cairo_surface_t, Free> surface_;
    std::unique_ptr<cairo_t, Free> context_;
};

} // namespace r7::art
