// Breaking of text into lines.
#include "platform/cairo/text_layout.h"

#include "platform/freetype/font.h"
#include "platform/freetype/utf8.h"

#include <optional>
#include <utility>

namespace r7 {

namespace {

constexpr char32_t kBlank = U' ';

// Takes the first line off `text`, with the blanks that it is broken at.
std::string_view take_line(std::string_view& text, double width, double font_size)
{
    const Font& font = Font::label();
    const std::string_view whole = std::exchange(text, {});
    std::string_view rest = whole;
    std::optional<std::size_t> line_end; // of the words before the present one
    std::size_t word_start = 0;
    double advanced = 0.0;
    char32_t before = kBlank; // blanks that lead a line belong to its first word
    while (!rest.empty()) {
        const std::size_t here = whole.size() - rest.size();
        const char32_t code_point = decode_utf8(rest);
        if (code_point == kBlank && before != kBlank) line_end = here;
        if (code_point != kBlank && before == kBlank) word_start = here;
        advanced += font.advance(code_point, font_size);
        if (code_point != kBlank && advanced > width && line_end) {
            text = whole.substr(word_start);
            return whole.substr(0, *line_end);
        }
        before = code_point;
    }
    return whole;
}

} // namespace

void append_text(std::string_view utf8, const Rect& rect, double font_size, TextAlignment alignment,
                 Path& outlines)
{
    if (!(font_size > 0.0) || !std::isfinite(font_size) || !is_finite(rect)) return;
    const Font& font = Font::label();
    Point pen{0.0, rect.top() - font.ascent(font_size)};
    while (!utf8.empty()) {
        std::string_view line = take_line(utf8, rect.width, font_size);
        pen.x = rect.x;
        if (alignment == TextAlignment::center) pen.x += (rect.width - width_of_text(line, font_size)) * 0.5;
        while (!line.empty()) {
            const char32_t code_point = decode_utf8(line);
            font.append_outline(code_point, pen, font_size, outlines);
            pen.x += font.advance(code_point, font_size);
        }
        pen.y -= font.line_height(font_size);
    }
}

} // namespace r7
