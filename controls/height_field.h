// A relief from a mask.
#pragma once

#include "controls/mask_depth.h"
#include "controls/plane.h"

namespace r7 {

/// Raises the covered part of a mask to a rounded relief, 0 outside and up to 1 inside.
///
/// From its edge inward the surface rises as a quarter of a circle: 0 and steep at the edge, 1 and level from
/// the depth of one radius on, as a sheet of thickness 1 with a rounded rim would be. Where a shape is
/// narrower than two radii the slopes of both sides meet below 1. A pixel of the depth d (see MaskDepth) has
/// the height sqrt(1 - (1 - min(d / radius, 1))^2), the circle's equation. Ridges, where slopes meet, and the
/// steps of slanting edges are smoothed by weights 1 2 3 2 1 both ways (two means of three in a row), and the
/// height of an edge pixel counts as far as the pixel is covered.
///
/// Single precision throughout, with no function but the exactly rounded square root: the same everywhere.
/// Time does not depend on the radius. Allocates nothing for a mask that is no larger than one before it.
class HeightField final {
public:
    /// In pixels, as it was set.
    float radius() const { return radius_; }
    /// Any number; what is below half a pixel, or no number, makes a relief as for half a pixel.
    void set_radius(float radius) { radius_ = radius; }

    /// Heights over `mask`, at most 4096 pixels a side; valid until the next call.
    const Plane<float>& from_mask(const Mask& mask);

private:
    // From heights_ to smoothed_, and back.
    void smooth_rows();
    void smooth_columns();

    MaskDepth depth_;
    Plane<float> heights_;
    Plane<float> smoothed_;
    float radius_ = 11.0f;
};

} // namespace r7
