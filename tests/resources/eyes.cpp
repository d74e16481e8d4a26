// How colours look to eyes of several kinds.
#include "tests/resources/eyes.h"

#include <array>
#include <cmath>

namespace r7::art {

namespace {

using Components = std::array<double, 3>;
constexpr Components kRecess{0.085, 0.095, 0.11};
constexpr double kClearStep = 0.12; // of a component, as it stands in the file

double to_linear(double c)
{
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double from_linear(double c)
{
    c = std::clamp(c, 0.0, 1.0);
    return c <= 0.0031308 ? c * 12.92 : 1.055 * std::pow(c, 1.0 / 2.4) - 0.055;
}

// Dichromats' colours in linear light: F. Vienot, H. Brettel, J. D. Mollon, "Digital video colourmaps for
// checking the legibility of displays by dichromats", Color Research and Application 24 (1999).
using Matrix = std::array<Components, 3>;
constexpr Matrix kProtan{{{0.11238, 0.88762, 0.0}, {0.11238, 0.88762, 0.0}, {0.00401, -0.00401, 1.0}}};
constexpr Matrix kDeutan{{{0.29275, 0.70725, 0.0}, {0.29275, 0.70725, 0.0}, {-0.02234, 0.02234, 1.0}}};
constexpr Matrix kGrey{{{0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}}};

// The pixel over the recesses, in linear light.
Components light_of(const Pixel& pixel)
{
    const Components over{pixel.red / 255.0, pixel.green / 255.0, pixel.blue / 255.0};
    Components light{};
    for (std::size_t i = 0; i < 3; ++i)
        light[i] = to_linear(over[i] + kRecess[i] * (1.0 - pixel.alpha / 255.0));
    return light;
}

double weighted(const Components& light, const Components& weights)
{
    return weights[0] * light[0] + weights[1] * light[1] + weights[2] * light[2];
}

} // namespace

double luminance(const Pixel& pixel)
{
    return weighted(light_of(pixel), kGrey[0]);
}

double contrast(double a, double b)
{
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

double difference(const r7::Canvas& a, const r7::Canvas& b)
{
    double least = 1.0;
    for (const Matrix& matrix : {kGrey, kProtan, kDeutan}) {
        int there = 0, different = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x) {
                if (a.alpha(x, y) == 0 && b.alpha(x, y) == 0) continue;
                const Components p = light_of(a.at(x, y)), q = light_of(b.at(x, y));
                ++there;
                different += std::ranges::any_of(matrix, [&](const Components& row) {
                    return std::abs(from_linear(weighted(p, row)) - from_linear(weighted(q, row))) >
                           kClearStep;
                });
            }
        least = std::min(least, there ? static_cast<double>(different) / there : 0.0);
    }
    return least;
}

} // namespace r7::art
