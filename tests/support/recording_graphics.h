// A Graphics that paints nothing and keeps a row of every call, and images that are nothing but a size.
#pragma once

#include "platform/graphics.h"

#include <sstream>
#include <string>
#include <vector>

namespace r7 {

/// A number to nine digits, as many as tell single precision apart; "nan" whatever its sign.
inline std::string text_of(double number)
{
    std::ostringstream out;
    out.precision(9);
    std::isnan(number) ? out << "nan" : out << number;
    return out.str();
}

/// A call in words, as "stroke 0,0,0,0.9 width 2 from 5,0" or "draw_image 40x30 at 30,25 over 1": colours by
/// their components, images by their sizes, paths by where they begin.
struct DrawCall {
    std::string words;
    Path path{};                    ///< of a fill or a stroke
    const Image* pattern = nullptr; ///< of its colour
};

class RecordingGraphics final : public Graphics {
public:
    std::vector<DrawCall> calls;

    /// All calls' words, with "; " between.
    std::string words() const
    {
        std::string all;
        for (const DrawCall& call : calls) all += (all.empty() ? "" : "; ") + call.words;
        return all;
    }

    void move_origin_to(Point origin) override { add("move_origin_to ", origin); }
    void clip_to(const Rect& rect) override { add("clip_to ", rect); }
    void fill(const Path& path, const Color* color) override { keep(add("fill ", color, path), path, color); }
    void stroke(const Path& path, const Color* color) override
    {
        keep(add("stroke ", color, " width ", path.line_width, path), path, color);
    }
    void fill_rect(const Rect& rect, const Color* color, Compositing how) override
    {
        add("fill_rect ", color, " in ", rect, how);
    }
    void draw_image(const Image* image, Point origin, Compositing how, double fraction) override
    {
        add("draw_image ", image, " at ", origin, how, " ", fraction);
    }
    void draw_image_in_rect(const Image* image, const Rect& rect, Compositing how, double fraction) override
    {
        add("draw_image_in_rect ", image, " in ", rect, how, " ", fraction);
    }
    void draw_text(std::string_view utf8, const Rect& rect, const TextAttributes& attributes) override
    {
        add("draw_text ", utf8, " in ", rect,
            attributes.alignment == TextAlignment::center ? " center " : " ", attributes.color.get(),
            " size ", attributes.font_size);
    }

protected:
    void save() override { add("save"); }
    void restore() override { add("restore"); }

private:
    static void keep(DrawCall& call, const Path& path, const Color* color)
    {
        call.path = path;
        call.pattern = color ? color->pattern_image() : nullptr;
    }

    static std::string text_of(std::string_view text) { return std::string(text); }
    static std::string text_of(double number) { return r7::text_of(number); }
    static std::string text_of(Point point) { return text_of(point.x) + "," + text_of(point.y); }
    static std::string text_of(const Rect& rect)
    {
        return text_of(rect.origin()) + "," + text_of(Point{rect.width, rect.height});
    }
    static std::string text_of(Compositing how) { return how == Compositing::copy ? " copy" : " over"; }
    static std::string text_of(const Path& path)
    {
        return path.is_empty() ? " empty" : " from " + text_of(path.elements()[0].end());
    }
    static std::string text_of(const Image* image)
    {
        return image ? text_of(image->size().width) + "x" + text_of(image->size().height) : "none";
    }
    static std::string text_of(const Color* color)
    {
        if (!color) return "none";
        const Rgba* parts = color->rgba();
        if (!parts) return "pattern " + text_of(color->pattern_image());
        return text_of(Point{parts->red, parts->green}) + "," + text_of(Point{parts->blue, parts->alpha});
    }

    template <typename... Parts>
    DrawCall& add(const Parts&... parts)
    {
        return calls.emplace_back(DrawCall{(text_of(parts) + ...)});
    }
};

struct FakeImage final : Image {
    explicit FakeImage(Size new_extent) : extent(new_extent) {}
    Size size() const override { return extent; }
    const Size extent;
};

inline ImageRef fake_image(double width, double height)
{
    return std::make_shared<FakeImage>(Size{width, height});
}

} // namespace r7
