// The one font of the panel, as outlines and measures.
#pragma once

#include "platform/path.h"

#include <array>
#include <vector>

namespace r7 {

/// Unhinted glyphs, exactly linear in the size: a text of 18 points is a text of 9 points, twice as large.
///
/// Sizes and results are in points. A code point that the font lacks has the advance and the outline of the
/// missing-character box. There is no kerning.
class Font final
{
public:
    /// The embedded label font: ASCII and Latin-1. Read on the first call, immutable from then on, and safe
    /// from any thread.
    static const Font& label();

    double advance(char32_t code_point, double size) const;
    /// From the baseline to the top of a line, above 0.
    double ascent(double size) const { return ascent_ * size; }
    /// From the baseline down to the bottom of a line, above 0.
    double descent(double size) const { return descent_ * size; }
    double line_height(double size) const { return ascent(size) + descent(size); }

    /// Appends the closed outline of a code point (non-zero winding), its origin on the baseline at `origin`.
    void append_outline(char32_t code_point, Point origin, double size, Path& path) const;

private:
    // In ems.
    struct Glyph
    {
        double advance = 0.0;
        Path outline;
    };

    Font();
    const Glyph& glyph(char32_t code_point) const;

    double ascent_ = 0.0;
    double descent_ = 0.0;
    std::vector<Glyph> glyphs_;               // the missing-character box first
    std::array<unsigned short, 256> index_{}; // into glyphs_, by code point
};

} // namespace r7
