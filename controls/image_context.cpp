// Drawing of images on an OpenGL context.
#include "controls/image_context.h"

namespace r7 {

void ImageContext::drawImage_atPoint_fromRect(const ImageRef& image, Point at, const Rect& from)
{
    if (image != image_) {
        image_ = image;
        pixels_ = image_pixels(*image, 1.0);
    }
    const Rect whole{0.0, 0.0, static_cast<double>(pixels_.width), static_cast<double>(pixels_.height)};
    const Rect part = intersection(from, whole);
    if (part.is_empty()) return;
    gl_.draw_pixels(pixels_, {at.x + part.x - from.x, at.y + part.y - from.y}, part);
}

} // namespace r7
