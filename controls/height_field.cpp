// A relief from a mask: depth, the rounded rim, then the smoothing, along the rows and down the columns.
#include "controls/height_field.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>

namespace r7 {

namespace {

constexpr float kLeastRadius = 0.5f;

// The smoothing's weights, from the sample `-kReach` away to the one `kReach` away.
constexpr int kReach = 2;
constexpr float kWeights[] = {1.0f / 9.0f, 2.0f / 9.0f, 3.0f / 9.0f, 2.0f / 9.0f, 1.0f / 9.0f};

float weight_of(int offset)
{
    return kWeights[offset + kReach];
}

// The rim's height at a depth of `t` radii.
float rim(float t)
{
    const float inward = 1.0f - std::min(t, 1.0f);
    return std::sqrt(1.0f - inward * inward);
}

void add(std::span<const float> samples, float weight, std::span<float> to)
{
    for (std::size_t i = 0; i < to.size(); ++i) to[i] += weight * samples[i];
}

} // namespace

const Plane<float>& HeightField::from_mask(const Mask& mask)
{
    const float radius = radius_ > kLeastRadius ? radius_ : kLeastRadius;
    const Plane<float>& depths = depth_.of(mask);

    heights_.reset(mask.width(), mask.height());
    std::ranges::transform(depths.samples(), heights_.samples().begin(),
                           [&](float depth) { return depth > 0.0f ? rim(depth / radius) : 0.0f; });
    smooth_rows();
    smooth_columns();
    std::ranges::transform(
        heights_.samples(), mask.samples(), heights_.samples().begin(),
        [](float height, std::uint8_t coverage) { return height * (static_cast<float>(coverage) / 255.0f); });
    return heights_;
}

void HeightField::smooth_rows()
{
    smoothed_.reset(heights_.width(), heights_.height());
    for (int y = 0; y < heights_.height(); ++y)
        for (int offset = -kReach; offset <= kReach; ++offset) {
            const auto shift = static_cast<std::size_t>(std::abs(offset));
            const std::span<const float> from = heights_.row(y);
            const std::span<float> to = smoothed_.row(y);
            if (shift >= to.size()) continue;
            const std::size_t common = to.size() - shift;
            add(offset > 0 ? from.subspan(shift) : from.first(common), weight_of(offset),
                offset > 0 ? to.first(common) : to.subspan(shift));
        }
}

void HeightField::smooth_columns()
{
    heights_.reset(smoothed_.width(), smoothed_.height());
    for (int y = 0; y < heights_.height(); ++y)
        for (int offset = -kReach; offset <= kReach; ++offset)
            if (y + offset >= 0 && y + offset < heights_.height())
                add(smoothed_.row(y + offset), weight_of(offset), heights_.row(y));
}

} // namespace r7
