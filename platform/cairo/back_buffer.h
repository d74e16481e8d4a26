// The picture of a window, painted by Cairo: what is presented on a screen or written to a file.
#pragma once

#include "platform/cairo/pixels.h"
#include "platform/geometry.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <vector>

namespace r7 {

class Window;

/// An image surface of a window's size at a scale.
///
/// The same calls give the same pixels on every machine, on a screen and off it.
class BackBuffer final {
public:
    /// `size` in points, at least 1 by 1; `scale` is device pixels for a point, above 0. The picture
    /// starts black and opaque.
    BackBuffer(Size size, double scale);
    ~BackBuffer();
    BackBuffer(const BackBuffer&) = delete;
    BackBuffer& operator=(const BackBuffer&) = delete;

    int width() const;
    int height() const;
    double scale() const;
    /// Bytes from one row to the next.
    std::size_t stride() const;
    /// Premultiplied ARGB, 32 bits a pixel in the machine's byte order, rows from the top.
    std::span<const std::uint8_t> pixels() const;

    /// Paints what the window asks to have redrawn, and nothing else. Returns the pixels that may have
    /// changed, valid until the next call; empty where nothing was asked.
    std::span<const PixelRect> repaint(Window& window);

    /// Writes the picture, or the part of it that `part` (in points, window coordinates) covers. False, with
    /// no file left behind that was not there before, where it cannot be written whole.
    [[nodiscard]] bool write_png(const std::filesystem::path& path) const;
    [[nodiscard]] bool write_png(const std::filesystem::path& path, const Rect& part) const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace r7
