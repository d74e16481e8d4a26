// Drawing of images on an OpenGL context.
#pragma once

#include "platform/cairo/image_pixels.h"
#include "platform/gl_state.h"
#include "platform/image.h"

namespace r7 {

/// Draws images with a view's OpenGL context, which has to be current then and to outlive this.
///
/// Keeps the pixels of the image that was drawn last, so that the same image again costs no conversion.
class ImageContext final {
public:
    explicit ImageContext(GLState& gl) : gl_(gl) {}

    /// Draws what lies in `from`, in whole points of the image's coordinates, with its lower left corner at
    /// `at`. Outside the image there is nothing to draw.
    void drawImage_atPoint_fromRect(const ImageRef& image, Point at, const Rect& from);

private:
    GLState& gl_;
    ImageRef image_;
    ImagePixels pixels_; // of image_
};

} // namespace r7
