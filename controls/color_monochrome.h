// A tint of one colour.
#pragma once

#include "controls/plane.h"
#include "platform/color.h"

#include <span>

namespace r7 {

/// Makes every colour a shade of one: what was white becomes that colour, what was grey is darker.
///
/// At full intensity a pixel's colour gives way to its luminance (.2126 red + .7152 green + .0722 blue, of
/// the components as they are: ITU-R BT.709's weights) times the tint, and its alpha is multiplied by the
/// tint's; at intensity 0 nothing changes, and between the two the results are mixed.
struct ColorMonochrome {
    Rgba color{0.0, 0.0, 1.0, 1.0};
    float intensity = 1.0f; ///< 0 to 1

    void apply_to(std::span<Pixel> pixels) const;
};

} // namespace r7
