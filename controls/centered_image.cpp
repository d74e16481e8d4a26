// Where the pictures of knobs and lights lie in their views.
#include "controls/centered_image.h"

#include "platform/graphics.h"

namespace r7 {

Point origin_to_center(Size size, const Rect& rect)
{
    return {(rect.width - size.width) * 0.5 + rect.x, (rect.height - size.height) * 0.5 + rect.y};
}

void draw_centered(Graphics& graphics, const Image* image, const Rect& rect)
{
    if (!image) return;
    graphics.draw_image(image, origin_to_center(image->size(), rect), Compositing::source_over, 1.0);
}

} // namespace r7
