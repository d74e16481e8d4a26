// The height field in its direct form: what the fast one has to agree with, and is measured against.
#pragma once

#include "controls/height_field.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace r7 {

/// Heights over `mask`, every pixel by itself: the nearest outside pixel is looked for in the square of
/// `reach` pixels around, beyond which nothing is seen, and the smoothing sums 25 weighted heights.
inline Plane<float> direct_relief(const Mask& mask, float radius, int reach)
{
    const auto at = [](const auto& plane, int x, int y) {
        const bool inside = x >= 0 && x < plane.width() && y >= 0 && y < plane.height();
        return inside ? static_cast<float>(plane.at(x, y)) : 0.0f;
    };
    Plane<float> rough(mask.width(), mask.height()), smooth = rough;
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x) {
            float depth = 0.0f;
            for (const float threshold : {32.0f, 96.0f, 160.0f, 224.0f}) {
                if (at(mask, x, y) < threshold) continue;
                int nearest = (reach + 1) * (reach + 1);
                for (int j = -reach; j <= reach; ++j)
                    for (int i = -reach; i <= reach; ++i)
                        if (at(mask, x + i, y + j) < threshold) nearest = std::min(nearest, i * i + j * j);
                depth += std::sqrt(static_cast<float>(nearest)) / 4.0f;
            }
            const float inward = 1.0f - std::min(depth / radius, 1.0f);
            rough.at(x, y) = std::sqrt(1.0f - inward * inward);
        }
    for (int y = 0; y < mask.height(); ++y)
        for (int x = 0; x < mask.width(); ++x) {
            float sum = 0.0f;
            for (int j = -2; j <= 2; ++j)
                for (int i = -2; i <= 2; ++i)
                    sum +=
                        static_cast<float>((3 - std::abs(i)) * (3 - std::abs(j))) * at(rough, x + i, y + j);
            smooth.at(x, y) = sum / 81.0f * at(mask, x, y) / 255.0f;
        }
    return smooth;
}

} // namespace r7
