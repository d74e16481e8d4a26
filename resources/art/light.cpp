// Colours in linear light, materials, and the one lamp that lights everything.
#include "resources/art/light.h"

namespace r7::art {

namespace {

// Of a face turned to the viewer, this part of the light comes from all sides, the rest from the lamp.
constexpr double kAmbient = 0.42;

const Vector kHalfway = normalized({kLight.x, kLight.y, kLight.z + 1.0});

} // namespace

double linear_from_srgb(double c)
{
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double srgb_from_linear(double c)
{
    c = std::clamp(c, 0.0, 1.0);
    return c <= 0.0031308 ? c * 12.92 : 1.055 * std::pow(c, 1.0 / 2.4) - 0.055;
}

Tint srgb(std::uint32_t rgb, double alpha)
{
    const auto component = [&](int shift) { return linear_from_srgb((rgb >> shift & 0xFF) / 255.0); };
    return {component(16), component(8), component(0), alpha};
}

Tint mix(const Tint& a, const Tint& b, double t)
{
    t = std::clamp(t, 0.0, 1.0);
    return {std::lerp(a.red, b.red, t), std::lerp(a.green, b.green, t), std::lerp(a.blue, b.blue, t),
            std::lerp(a.alpha, b.alpha, t)};
}

Tint over(const Tint& top, const Tint& bottom)
{
    const double rest = bottom.alpha * (1.0 - top.alpha), alpha = top.alpha + rest;
    if (alpha <= 0.0) return kClear;
    const auto blended = [&](double t, double b) { return (t * top.alpha + b * rest) / alpha; };
    return {blended(top.red, bottom.red), blended(top.green, bottom.green), blended(top.blue, bottom.blue),
            alpha};
}

Tint scaled(const Tint& tint, double by)
{
    return {tint.red * by, tint.green * by, tint.blue * by, tint.alpha};
}

Tint with_alpha(const Tint& tint, double alpha)
{
    return {tint.red, tint.green, tint.blue, std::clamp(alpha, 0.0, 1.0)};
}

double dot(const Vector& a, const Vector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector normalized(const Vector& v)
{
    const double length = std::sqrt(dot(v, v));
    return {v.x / length, v.y / length, v.z / length};
}

Tint lit(const Material& material, const Vector& normal)
{
    const double lamp = std::max(0.0, dot(normal, kLight)) / kLight.z;
    const double sky = 0.5 + 0.5 * normal.z;
    const double glint = material.sheen * std::pow(std::max(0.0, dot(normal, kHalfway)), material.gloss);
    const double light = kAmbient * sky + (1.0 - kAmbient) * lamp;
    return {material.color.red * light + glint, material.color.green * light + glint,
            material.color.blue * light + glint, material.color.alpha};
}

double noise(int a, int b)
{
    auto h = static_cast<std::uint32_t>(a) * 0x9E3779B1u ^ static_cast<std::uint32_t>(b) * 0x85EBCA77u;
    h = (h ^ h >> 15) * 0x2C1B3C6Du;
    h = (h ^ h >> 12) * 0x297A2D39u;
    h ^= h >> 15;
    return static_cast<double>(h) / 2147483647.5 - 1.0;
}

} // namespace r7::art
