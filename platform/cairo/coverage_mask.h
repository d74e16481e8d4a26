// How much of each pixel a shape covers.
#pragma once

#include "platform/cairo/handles.h"
#include "platform/path.h"

#include <vector>

namespace r7 {

/// A mask as large as a picture, into which Cairo renders one shape after the other.
///
/// Shapes go through a mask, and not to the picture at once, because the coverage that Cairo computes
/// depends, by a little, on its clip. Rendered for all of a shape that can be visible, and then limited to
/// the pixels that are repainted, it is the same in every repaint.
class CoverageMask final {
public:
    CoverageMask(int width, int height);

    /// Empties `part`, which must lie in the mask. Shapes until the next call leave the rest as it is.
    void begin(const PixelRect& part);
    /// Adds the inside of a path (non-zero winding rule).
    void fill(const Path& path, const PixelTransform& to_pixels);
    /// Adds the stroke of a path, `width` pixels wide, with butt caps and mitre joins.
    void stroke(const Path& path, const PixelTransform& to_pixels, double width);
    /// Adds a rectangle.
    void fill_box(const Box& box);
    /// Multiplies everything in the part that was begun.
    void fade(double opacity);

    cairo_surface_t* surface() const { return context_.surface(); }

    /// How far a stroke reaches beyond its path, in pixels.
    static double reach_of_stroke(double width) { return kMiterLimit * 0.5 * width; }

private:
    static constexpr double kMiterLimit = 10.0;

    // Calls `visit(closed)` with the vertices of each subpath in points_: finite, in pixels, and few.
    template <typename Visit>
    void each_subpath(const Path& path, const PixelTransform& to_pixels, Visit visit);

    CairoContext context_;
    PixelRect part_{};
    Path flattened_;
    std::vector<Point> points_;
    std::vector<Point> scratch_;
};

} // namespace r7
