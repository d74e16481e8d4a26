// The look-up of a relief's normals in the picture of a ball.
#include "controls/shaded_material.h"

#include <algorithm>
#include <cmath>

namespace r7 {

namespace {

constexpr float kSteepest = 1e6f;

Pixel mix(const Pixel& a, const Pixel& b, float t)
{
    return {a.red + t * (b.red - a.red), a.green + t * (b.green - a.green), a.blue + t * (b.blue - a.blue),
            a.alpha + t * (b.alpha - a.alpha)};
}

Pixel scaled(const Pixel& a, float by)
{
    return {a.red * by, a.green * by, a.blue * by, a.alpha * by};
}

// Where to read a line of `count` samples for a place from -1 to 1.
struct Place {
    int first = 0;
    int second = 0;
    float between = 0.0f; // 0 at the first
};

Place place_in(int count, float at)
{
    const float position = (at + 1.0f) * 0.5f * static_cast<float>(count) - 0.5f;
    const int last = count - 1;
    const float held = std::clamp(position, 0.0f, static_cast<float>(last));
    const int first = static_cast<int>(held);
    return {first, std::min(first + 1, last), held - static_cast<float>(first)};
}

} // namespace

Pixel ShadedMaterial::ball_at(float x, float y) const
{
    const Place across = place_in(ball_.width(), x), down = place_in(ball_.height(), -y);
    const auto in_row = [&](int row) {
        return mix(ball_.at(across.first, row), ball_.at(across.second, row), across.between);
    };
    return mix(in_row(down.first), in_row(down.second), down.between);
}

void ShadedMaterial::shade_row(const Plane<float>& heights, const Mask& mask, int y,
                               std::span<Pixel> row) const
{
    std::ranges::fill(row, Pixel{});
    if (!has_shading_image()) return;
    const float scale = std::isnan(scale_) ? 0.0f : std::clamp(scale_, -kSteepest, kSteepest);
    const auto height_at = [&](int x, int at_y) {
        const bool inside = x >= 0 && x < heights.width() && at_y >= 0 && at_y < heights.height();
        return inside ? heights.at(x, at_y) : 0.0f;
    };
    for (int x = 0; x < mask.width(); ++x) {
        const int coverage = mask.at(x, y);
        if (coverage == 0) continue;
        const float across = -scale * 0.5f * (height_at(x + 1, y) - height_at(x - 1, y));
        const float upward = -scale * 0.5f * (height_at(x, y - 1) - height_at(x, y + 1));
        const float length = std::sqrt(across * across + upward * upward + 1.0f);
        row[static_cast<std::size_t>(x)] =
            scaled(ball_at(across / length, upward / length), static_cast<float>(coverage) / 255.0f);
    }
}

} // namespace r7
