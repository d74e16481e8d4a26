// Colours.
#include "platform/color.h"

namespace r7 {

ColorRef Color::device_rgba(double red, double green, double blue, double alpha)
{
    return std::make_shared<const Color>(Rgba{red, green, blue, alpha});
}

ColorRef Color::device_white(double white, double alpha)
{
    return device_rgba(white, white, white, alpha);
}

ColorRef Color::pattern(std::shared_ptr<const Image> image)
{
    return image ? std::make_shared<const Color>(std::move(image)) : nullptr;
}

const Image* Color::pattern_image() const
{
    const auto* image = std::get_if<std::shared_ptr<const Image>>(&paint_);
    return image ? image->get() : nullptr;
}

} // namespace r7
