// The one font of the panel: everything is read out of the embedded file once, and FreeType let go.
#include "platform/freetype/font.h"

#include "platform/freetype/font_data.h"
#include "platform/freetype/utf8.h"
#include "platform/text.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <cassert>

namespace r7 {

namespace {

// Receives a glyph's outline from FreeType, in font units, into a path in ems.
struct OutlineReader
{
    Path& path;
    double ems_per_unit;

    Point point(const FT_Vector* v) const
    {
        return {static_cast<double>(v->x) * ems_per_unit, static_cast<double>(v->y) * ems_per_unit};
    }
};

int move_to(const FT_Vector* to, void* context)
{
    auto& reader = *static_cast<OutlineReader*>(context);
    if (!reader.path.is_empty()) reader.path.close();
    reader.path.move_to(reader.point(to));
    return 0;
}

int line_to(const FT_Vector* to, void* context)
{
    auto& reader = *static_cast<OutlineReader*>(context);
    reader.path.line_to(reader.point(to));
    return 0;
}

// TrueType outlines are quadratic; the cubic of the same shape has its control points two thirds of the way.
int conic_to(const FT_Vector* control, const FT_Vector* to, void* context)
{
    auto& reader = *static_cast<OutlineReader*>(context);
    const Point from = reader.path.current_point(), c = reader.point(control), end = reader.point(to);
    const auto two_thirds = [&](Point p) {
        return Point{p.x + (c.x - p.x) * 2.0 / 3.0, p.y + (c.y - p.y) * 2.0 / 3.0};
    };
    reader.path.curve_to(two_thirds(from), two_thirds(end), end);
    return 0;
}

int cubic_to(const FT_Vector* control_1, const FT_Vector* control_2, const FT_Vector* to, void* context)
{
    auto& reader = *static_cast<OutlineReader*>(context);
    reader.path.curve_to(reader.point(control_1), reader.point(control_2), reader.point(to));
    return 0;
}

// A face over the embedded file, closed when it goes. Null where FreeType has no memory.
class Face final
{
public:
    Face()
    {
        if (FT_Init_FreeType(&library_) != 0) return;
        [[maybe_unused]] const FT_Error error =
            FT_New_Memory_Face(library_, kFontData.data(), static_cast<FT_Long>(kFontData.size()), 0, &face_);
        assert(error == 0);
    }
    ~Face()
    {
        if (face_) FT_Done_Face(face_);
        if (library_) FT_Done_FreeType(library_);
    }
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    FT_Face get() const { return face_; }

private:
    FT_Library library_ = nullptr;
    FT_Face face_ = nullptr;
};

} // namespace

Font::Font()
{
    glyphs_.emplace_back();
    const Face owner;
    const FT_Face face = owner.get();
    if (!face) return;

    const double ems_per_unit = 1.0 / face->units_per_EM;
    ascent_ = face->ascender * ems_per_unit;
    descent_ = -face->descender * ems_per_unit;
    const FT_Outline_Funcs functions{move_to, line_to, conic_to, cubic_to, 0, 0};
    const auto read = [&](FT_UInt glyph_index, Glyph& glyph) {
        if (FT_Load_Glyph(face, glyph_index, FT_LOAD_NO_SCALE) != 0) return;
        glyph.advance = static_cast<double>(face->glyph->metrics.horiAdvance) * ems_per_unit;
        OutlineReader reader{glyph.outline, ems_per_unit};
        FT_Outline_Decompose(&face->glyph->outline, &functions, &reader);
        if (!glyph.outline.is_empty()) glyph.outline.close();
    };

    read(0, glyphs_.front());
    for (std::size_t code_point = 0; code_point < index_.size(); ++code_point) {
        const FT_UInt glyph_index = FT_Get_Char_Index(face, code_point);
        if (glyph_index == 0) continue;
        index_[code_point] = static_cast<unsigned short>(glyphs_.size());
        read(glyph_index, glyphs_.emplace_back());
    }
}

const Font& Font::label()
{
    static const Font font;
    return font;
}

const Font::Glyph& Font::glyph(char32_t code_point) const
{
    return glyphs_[code_point < index_.size() ? index_[code_point] : 0];
}

double Font::advance(char32_t code_point, double size) const
{
    return glyph(code_point).advance * size;
}

void Font::append_outline(char32_t code_point, Point origin, double size, Path& path) const
{
    const auto placed = [&](Point p) { return Point{origin.x + p.x * size, origin.y + p.y * size}; };
    for (const Path::Element& element : glyph(code_point).outline.elements()) {
        const auto& [a, b, c] = element.points;
        switch (element.verb) {
        case Path::Verb::move:
            path.move_to(placed(a));
            break;
        case Path::Verb::line:
            path.line_to(placed(a));
            break;
        case Path::Verb::curve:
            path.curve_to(placed(a), placed(b), placed(c));
            break;
        case Path::Verb::close:
            path.close();
            break;
        }
    }
}

double width_of_text(std::string_view utf8, double font_size)
{
    const Font& font = Font::label();
    double width = 0.0;
    while (!utf8.empty()) width += font.advance(decode_utf8(utf8), font_size);
    return width;
}

} // namespace r7
