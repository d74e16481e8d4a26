// Colours: device RGBA, device white with alpha, and patterns.
#pragma once

#include <memory>
#include <variant>

namespace r7 {

class Image;
class Color;

/// Colours are immutable and shared; a null pointer is "no colour".
using ColorRef = std::shared_ptr<const Color>;

/// Straight (not premultiplied) components, nominally 0 to 1; painting clamps what lies outside.
struct Rgba {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;
    bool operator==(const Rgba&) const = default;
};

class Color final {
public:
    static ColorRef device_rgba(double red, double green, double blue, double alpha);
    static ColorRef device_white(double white, double alpha);
    /// An image repeated from the painted view's window's lower left corner, in points.
    /// A null image gives no colour.
    static ColorRef pattern(std::shared_ptr<const Image> image);

    /// The plain colour; for a pattern, null.
    const Rgba* rgba() const { return std::get_if<Rgba>(&paint_); }
    /// The pattern's image; for a plain colour, null.
    const Image* pattern_image() const;

    explicit Color(Rgba rgba) : paint_(rgba) {}
    explicit Color(std::shared_ptr<const Image> image) : paint_(std::move(image)) {}

private:
    std::variant<Rgba, std::shared_ptr<const Image>> paint_;
};

} // namespace r7
