// Samples in rows: what the filters of the painted text work on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace r7 {

/// A rectangle of samples, one a pixel, rows from the top without gaps.
template <typename Sample>
class Plane final {
public:
    Plane() = default;
    Plane(int width, int height) { reset(width, height); }

    int width() const { return width_; }
    int height() const { return height_; }
    std::span<Sample> row(int y) { return {samples_.data() + start_of(y), columns()}; }
    std::span<const Sample> row(int y) const { return {samples_.data() + start_of(y), columns()}; }
    std::span<Sample> samples() { return samples_; }
    std::span<const Sample> samples() const { return samples_; }
    Sample& at(int x, int y) { return row(y)[static_cast<std::size_t>(x)]; }
    const Sample& at(int x, int y) const { return row(y)[static_cast<std::size_t>(x)]; }

    /// A new size, neither side below 0, and all samples zero. Allocates only beyond the largest size so far.
    void reset(int width, int height)
    {
        width_ = width;
        height_ = height;
        samples_.assign(start_of(height), Sample{});
    }

private:
    std::size_t columns() const { return static_cast<std::size_t>(width_); }
    std::size_t start_of(int y) const { return static_cast<std::size_t>(y) * columns(); }

    int width_ = 0;
    int height_ = 0;
    std::vector<Sample> samples_;
};

/// A colour of a picture in the making: premultiplied with its alpha, all nominally 0 to 1.
struct Pixel {
    float red = 0.0f;
    float green = 0.0f;
    float blue = 0.0f;
    float alpha = 0.0f;
};

/// How much of each pixel a shape covers: 0 nothing, 255 all. Nothing is covered outside the plane.
using Mask = Plane<std::uint8_t>;

} // namespace r7
