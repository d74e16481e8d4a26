// From the platform's pixels to planes of samples, and back.
#include "controls/pixel_planes.h"

#include <algorithm>
#include <cstring>

namespace r7 {

namespace {

std::uint32_t word_at(const std::uint8_t* bytes)
{
    std::uint32_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

float component(std::uint32_t word, int shift)
{
    return static_cast<float>(word >> shift & 0xFF) / 255.0f;
}

// A NaN is 0.
std::uint32_t byte_of(float color)
{
    return static_cast<std::uint32_t>(std::min(std::max(0.0f, color), 1.0f) * 255.0f + 0.5f);
}

} // namespace

Plane<Pixel> plane_of(const ImagePixels& pixels)
{
    Plane<Pixel> plane(pixels.width, pixels.height);
    const std::uint8_t* bytes = pixels.bytes.data();
    for (Pixel& pixel : plane.samples()) {
        const std::uint32_t word = word_at(bytes);
        pixel = {component(word, 16), component(word, 8), component(word, 0), component(word, 24)};
        bytes += sizeof word;
    }
    return plane;
}

void read_coverage(const ImagePixels& pixels, Mask& mask)
{
    mask.reset(pixels.width, pixels.height);
    const std::uint8_t* bytes = pixels.bytes.data();
    for (std::uint8_t& coverage : mask.samples()) {
        coverage = static_cast<std::uint8_t>(word_at(bytes) >> 24);
        bytes += 4;
    }
}

std::uint8_t* write_bytes(std::span<const Pixel> colors, std::uint8_t* bytes)
{
    for (const Pixel& color : colors) {
        const std::uint32_t word = byte_of(color.alpha) << 24 | byte_of(color.red) << 16 |
                                   byte_of(color.green) << 8 | byte_of(color.blue);
        std::memcpy(bytes, &word, sizeof word);
        bytes += sizeof word;
    }
    return bytes;
}

} // namespace r7
