// Lines of text as outlines.
#pragma once

#include "platform/path.h"
#include "platform/text.h"

#include <string_view>

namespace r7 {

/// Appends the outlines of `utf8` in the label font, laid out from the top of `rect` downward.
///
/// A line that is wider than the rectangle is broken at its last blanks that make it fit, which are then not
/// shown; a word that is too wide alone is not broken. What stands below the rectangle is laid out too. A
/// size that is not above 0, and numbers that are not finite, append nothing.
void append_text(std::string_view utf8, const Rect& rect, double font_size, TextAlignment alignment,
                 Path& outlines);

} // namespace r7
