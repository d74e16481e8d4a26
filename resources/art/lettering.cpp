// Printed text: the letters' outlines, filled.
#include "resources/art/lettering.h"

#include "platform/freetype/font.h"
#include "platform/freetype/utf8.h"

namespace r7::art {

namespace {

void add_to(cairo_t* context, const Path& path)
{
    for (const Path::Element& element : path.elements()) {
        const auto& [a, b, c] = element.points;
        switch (element.verb) {
        case Path::Verb::move:
            cairo_move_to(context, a.x, a.y);
            break;
        case Path::Verb::line:
            cairo_line_to(context, a.x, a.y);
            break;
        case Path::Verb::curve:
            cairo_curve_to(context, a.x, a.y, b.x, b.y, c.x, c.y);
            break;
        case Path::Verb::close:
            cairo_close_path(context);
            break;
        }
    }
}

// Whole points, so that every letter stands on whole pixels, where its stems are sharp, and equal letters are
// equally far apart.
double advance(char32_t letter, const TextStyle& style)
{
    return std::round(Font::label().advance(letter, style.size) + style.spacing);
}

} // namespace

double width_of(std::string_view text, const TextStyle& style)
{
    double width = -style.spacing;
    while (!text.empty()) width += advance(decode_utf8(text), style);
    return width;
}

void print(Canvas& canvas, std::string_view text, Point at, Anchor anchor, const TextStyle& style)
{
    const double back = anchor == Anchor::left ? 0.0 : anchor == Anchor::center ? 0.5 : 1.0;
    Point pen{std::round(at.x - back * width_of(text, style)), at.y};
    Path outlines;
    while (!text.empty()) {
        const char32_t letter = decode_utf8(text);
        Font::label().append_outline(letter, pen, style.size, outlines);
        pen.x += advance(letter, style);
    }
    add_to(canvas.context(), outlines);
    canvas.set_source(style.tint);
    cairo_fill(canvas.context());
}

} // namespace r7::art
