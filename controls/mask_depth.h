// How deep each pixel of a mask lies in the shape.
#pragma once

#include "controls/plane.h"

#include <vector>

namespace r7 {

/// The exact Euclidean distance of pixels to the outside of their shape, with soft edges.
///
/// In a mask of all and nothing, the depth of a covered pixel is the distance from its centre to the nearest
/// centre of one that is not, and 0 outside; what lies beyond the mask's edges is outside. A mask with soft
/// edges is taken as the mean of kLevels hard ones, each of the pixels that are covered by more than its
/// threshold, and so is the depth: a straight edge that covers its pixels by a quarter moves the depth of all
/// behind it by a quarter, whichever way it runs.
///
/// The distance is found line by line, along the rows first and then down the columns, where it is the lower
/// envelope of parabolas: P. Felzenszwalb, D. Huttenlocher, "Distance Transforms of Sampled Functions" (2004,
/// 2012), and in whole numbers, as here, A. Meijster, J. Roerdink, W. Hesselink, "A General Algorithm for
/// Computing Distance Transforms in Linear Time" (2000). The cost grows with the pixels that are covered, and
/// with nothing else. Allocates nothing for a mask that is no larger than one before it.
class MaskDepth final {
public:
    static constexpr int kLevels = 4;

    /// Depths of `mask`, at most 4096 pixels a side; valid until the next call.
    const Plane<float>& of(const Mask& mask);

private:
    void add_level(const Mask& mask, std::uint8_t threshold);
    // Adds the depths of the covered pixels from `top` to `bottom` (not included) of a column.
    void add_run(int x, int top, int bottom);

    // A pixel of the run that is nearest to some of those below it, and the first of them.
    struct Nearest {
        int y = 0;
        int squared = 0;
        int from = 0;
    };

    Plane<float> depths_;
    Plane<int> across_; // distance to the outside along the row, 0 outside
    std::vector<Nearest> envelope_;
};

} // namespace r7
