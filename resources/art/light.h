// Colours in linear light, materials, and the one lamp that lights everything.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace r7::art {

/// A colour in linear light, straight alpha.
struct Tint {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;
};

/// A colour as it is usually written, 0xRRGGBB.
Tint srgb(std::uint32_t rgb, double alpha = 1.0);
/// The component of a pixel, 0 to 1, for one in linear light, and the other way.
double srgb_from_linear(double linear);
double linear_from_srgb(double component);

inline const Tint kClear{0.0, 0.0, 0.0, 0.0};

/// From a (t = 0) to b (t = 1), alpha included; `t` is clamped.
Tint mix(const Tint& a, const Tint& b, double t);
/// `top`, as far as it covers, over `bottom`.
Tint over(const Tint& top, const Tint& bottom);
/// The colour made brighter or darker; alpha stays.
Tint scaled(const Tint& tint, double by);
Tint with_alpha(const Tint& tint, double alpha);

struct Vector {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

double dot(const Vector& a, const Vector& b);
Vector normalized(const Vector& v);

/// Toward the lamp: from the top left, in front of the panel (x rightward, y upward, z toward the viewer).
inline const Vector kLight = normalized({-0.46, 0.62, 0.64});

struct Material {
    Tint color;          ///< of a face turned to the viewer
    double sheen = 0.0;  ///< strength of the lamp's reflection
    double gloss = 12.0; ///< its sharpness
};

/// A surface with that normal, of unit length, in the lamp's light.
Tint lit(const Material& material, const Vector& normal);

/// The normal of a height field at (x, y), from differences over `step` points.
template <class Height>
Vector normal_of(const Height& height, double x, double y, double step = 0.05)
{
    return normalized({(height(x - step, y) - height(x + step, y)) / (2.0 * step),
                       (height(x, y - step) - height(x, y + step)) / (2.0 * step), 1.0});
}

/// 0 up to `from`, 1 from `to` on, smooth between.
inline double smooth_step(double from, double to, double x)
{
    const double t = std::clamp((x - from) / (to - from), 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

/// The same number, -1 to 1, for the same whole numbers, and no pattern between them.
double noise(int a, int b = 0);

} // namespace r7::art
