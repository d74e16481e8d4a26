// Images: read from PNG files, or painted by the panel itself.
#pragma once

#include "platform/geometry.h"

#include <filesystem>
#include <functional>
#include <memory>

namespace r7 {

class Graphics;
class Image;

/// Images are immutable once made and shared; a null pointer is "no image".
using ImageRef = std::shared_ptr<const Image>;

/// Pixels per side that an image file may have; a larger one is refused before it is decoded.
inline constexpr int kMostImagePixels = 4096;

/// A picture of a size in points. Implemented once for each drawing back end.
class Image : public std::enable_shared_from_this<Image> {
public:
    virtual ~Image() = default;
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

    /// Size in points: one pixel of the 1x file is one point.
    virtual Size size() const = 0;

    /// Reads a PNG file, and its twin `name@2x.png` beside it where that exists, is readable and has twice
    /// the pixels.
    ///
    /// Null, without a message, where the file is missing, unreadable, no PNG, truncated, or larger than
    /// kMostImagePixels a side (told from its header, before anything is decoded).
    static ImageRef from_png_file(const std::filesystem::path& path);

    /// An image painted by code: `paint` is called once, now, in the image's own coordinates (origin at the
    /// lower left, y upward). It is kept as drawing, not as pixels, and so is sharp at every scale. Null
    /// where the size is empty, not finite or above kMostImagePixels a side.
    static ImageRef painted(Size size, const std::function<void(Graphics&)>& paint);

protected:
    Image() = default;
};

} // namespace r7
