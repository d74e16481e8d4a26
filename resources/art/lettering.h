// Printed text.
#pragma once

#include "resources/art/canvas.h"

#include <string_view>

namespace r7::art {

enum class Anchor { left, center, right };

struct TextStyle {
    double size = 11.0;   ///< in points
    double spacing = 0.0; ///< added between letters, in points
    Tint tint;
};

/// Width of the text from its first letter to its last.
double width_of(std::string_view text, const TextStyle& style);

/// Prints one line; `at` is on the baseline, at the line's left end, middle or right end.
void print(Canvas& canvas, std::string_view text, Point at, Anchor anchor, const TextStyle& style);

} // namespace r7::art
