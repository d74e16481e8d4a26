// An image's pixels, and how they look to eyes of several kinds.
#include "tests/resources/picture.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace r7::art {

namespace {

constexpr Pixel kRecess{0.085, 0.095, 0.11, 1.0};
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
using Matrix = std::array<std::array<double, 3>, 3>;
constexpr Matrix kProtan{{{0.11238, 0.88762, 0.0}, {0.11238, 0.88762, 0.0}, {0.00401, -0.00401, 1.0}}};
constexpr Matrix kDeutan{{{0.29275, 0.70725, 0.0}, {0.29275, 0.70725, 0.0}, {-0.02234, 0.02234, 1.0}}};
constexpr Matrix kGrey{{{0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}}};

} // namespace

Picture picture_of(cairo_surface_t* surface)
{
    Picture picture;
    if (cairo_surface_status(surface) != CAIRO_STATUS_SUCCESS) return picture;
    cairo_surface_flush(surface);
    picture.width = cairo_image_surface_get_width(surface);
    picture.height = cairo_image_surface_get_height(surface);
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface);
    const bool has_alpha = cairo_image_surface_get_format(surface) == CAIRO_FORMAT_ARGB32;
    for (int row = 0; row < picture.height; ++row) {
        const auto* const line =
            reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface) + row * stride);
        for (int column = 0; column < picture.width; ++column) {
            const auto byte = [&](int shift) { return (line[column] >> shift & 0xFF) / 255.0; };
            const double alpha = has_alpha ? byte(24) : 1.0, by = alpha > 0.0 ? 1.0 / alpha : 0.0;
            picture.pixels.push_back({byte(16) * by, byte(8) * by, byte(0) * by, alpha});
        }
    }
    return picture;
}

Picture image_named(const std::string& name)
{
    const std::string file = R7_RESOURCES "/images/" + name + ".png";
    cairo_surface_t* const surface = cairo_image_surface_create_from_png(file.c_str());
    Picture picture = picture_of(surface);
    cairo_surface_destroy(surface);
    return picture;
}

Pixel seen(const Pixel& pixel, Eye eye)
{
    const Matrix& matrix = eye == Eye::grey ? kGrey : eye == Eye::protan ? kProtan : kDeutan;
    std::array<double, 3> light{};
    for (std::size_t i = 0; i < 3; ++i)
        light[i] = to_linear(pixel[i] * pixel[3] + kRecess[i] * (1.0 - pixel[3]));
    Pixel result{0.0, 0.0, 0.0, 1.0};
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = from_linear(matrix[i][0] * light[0] + matrix[i][1] * light[1] + matrix[i][2] * light[2]);
    return result;
}

double luminance(const Pixel& pixel)
{
    return kGrey[0][0] * to_linear(pixel[0]) + kGrey[0][1] * to_linear(pixel[1]) +
           kGrey[0][2] * to_linear(pixel[2]);
}

double contrast(double a, double b)
{
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

double difference(const Picture& a, const Picture& b, Eye eye)
{
    int there = 0, different = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i) {
        if (a.pixels[i][3] == 0.0 && b.pixels[i][3] == 0.0) continue;
        ++there;
        const Pixel p = seen(a.pixels[i], eye), q = seen(b.pixels[i], eye);
        const double step = std::max({std::abs(p[0] - q[0]), std::abs(p[1] - q[1]), std::abs(p[2] - q[2])});
        if (step > kClearStep) ++different;
    }
    return there ? static_cast<double>(different) / there : 0.0;
}

} // namespace r7::art
