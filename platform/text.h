// Attributes of painted text, and its measure.
#pragma once

#include "platform/color.h"

#include <string_view>

namespace r7 {

enum class TextAlignment { left, center };

/// How a text is painted, in the one label font.
struct TextAttributes {
    double font_size = 9.0; ///< in points; not above 0, or not finite: nothing is painted
    TextAlignment alignment = TextAlignment::left;
    ColorRef color;
};

/// Width in points of one line of text in the label font, as painted. Unhinted, so it scales with the size.
double width_of_text(std::string_view utf8, double font_size);

} // namespace r7
