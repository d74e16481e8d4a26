// A relief made visible by a picture of a lit ball.
#pragma once

#include "controls/plane.h"

#include <span>
#include <utility>

namespace r7 {

/// Gives a relief the material and the light of a ball that was painted beforehand.
///
/// A ball shows every direction that a surface can face, once: so a pixel takes the ball's colour at the
/// place that faces the way the relief does there. With the slopes gx and gy of the relief (central
/// differences, y upward) the normal is (-scale gx, -scale gy, 1), normalised to n, and the place is (n.x,
/// n.y) on a ball of radius 1 about the picture's middle, read between its four nearest pixels. Level ground
/// shows the ball's middle, slopes that face away from the viewer its rim. Known as the lit sphere: P.-P.
/// Sloan, W. Martin, A. Gooch, B. Gooch, "The Lit Sphere: A Model for Capturing NPR Shading from Art" (2001).
///
/// Single precision. Allocates nothing but the copy of the ball's picture.
class ShadedMaterial final {
public:
    /// A picture of the ball, as wide and as high as itself, premultiplied; an empty one shades nothing.
    void set_shading_image(Plane<Pixel> ball) { ball_ = std::move(ball); }
    bool has_shading_image() const { return !ball_.samples().empty(); }

    float scale() const { return scale_; }
    /// How steep the relief is made. Any number: below 0 hills become hollows, beyond a million there is
    /// nothing steeper, and what is no number makes everything level.
    void set_scale(float scale) { scale_ = scale; }

    /// Shades row `y` of the relief over `mask`, which has its size: the colours of the ball, as far as the
    /// mask covers each pixel. The ground around the plane has the height 0. Transparent without a ball.
    void shade_row(const Plane<float>& heights, const Mask& mask, int y, std::span<Pixel> row) const;

private:
    // The colour where a ball of radius 1 about the middle has the point (x, y), y upward.
    Pixel ball_at(float x, float y) const;

    Plane<Pixel> ball_;
    float scale_ = 18.0f;
};

} // namespace r7
