// The tint's arithmetic.
#include "controls/color_monochrome.h"

#include <cmath>

namespace r7 {

void ColorMonochrome::apply_to(std::span<Pixel> pixels) const
{
    const auto red = static_cast<float>(color.red * color.alpha);
    const auto green = static_cast<float>(color.green * color.alpha);
    const auto blue = static_cast<float>(color.blue * color.alpha);
    const auto alpha = static_cast<float>(color.alpha);
    const auto mixed = [&](float plain, float tinted) { return plain + intensity * (tinted - plain); };
    for (Pixel& pixel : pixels) {
        const float luminance = .2126f * pixel.red + .7152f * pixel.green + .0722f * pixel.blue;
        pixel = {mixed(pixel.red, luminance * red), mixed(pixel.green, luminance * green),
                 mixed(pixel.blue, luminance * blue), mixed(pixel.alpha, pixel.alpha * alpha)};
    }
}

} // namespace r7
