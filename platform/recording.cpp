// Recorded drawing: one closure for each operation.
#include "platform/recording.h"

#include <string>

namespace r7 {

namespace {

ColorRef kept(const Color* color)
{
    return color ? std::make_shared<const Color>(*color) : nullptr;
}

ImageRef kept(const Image* image)
{
    return image ? image->shared_from_this() : nullptr;
}

} // namespace

void Recording::replay_on(Graphics& graphics) const
{
    for (const Operation& operation : levels_.front()) operation(graphics);
}

void Recording::restore()
{
    Operations inner = std::move(levels_.back());
    levels_.pop_back();
    add([inner = std::move(inner)](Graphics& graphics) {
        const SavedState state(graphics);
        for (const Operation& operation : inner) operation(graphics);
    });
}

void Recording::move_origin_to(Point origin)
{
    add([=](Graphics& graphics) { graphics.move_origin_to(origin); });
}

void Recording::anchor_patterns()
{
    add([](Graphics& graphics) { graphics.anchor_patterns(); });
}

void Recording::clip_to(const Rect& rect)
{
    add([=](Graphics& graphics) { graphics.clip_to(rect); });
}

void Recording::fill(const Path& path, const Color* color)
{
    add([path, color = kept(color)](Graphics& graphics) { graphics.fill(path, color.get()); });
}

void Recording::stroke(const Path& path, const Color* color)
{
    add([path, color = kept(color)](Graphics& graphics) { graphics.stroke(path, color.get()); });
}

void Recording::fill_rect(const Rect& rect, const Color* color, Compositing how)
{
    add([=, color = kept(color)](Graphics& graphics) { graphics.fill_rect(rect, color.get(), how); });
}

void Recording::draw_image(const Image* image, Point origin, Compositing how, double fraction)
{
    add([=, image = kept(image)](Graphics& graphics) {
        graphics.draw_image(image.get(), origin, how, fraction);
    });
}

void Recording::draw_image_in_rect(const Image* image, const Rect& rect, Compositing how, double fraction)
{
    add([=, image = kept(image)](Graphics& graphics) {
        graphics.draw_image_in_rect(image.get(), rect, how, fraction);
    });
}

void Recording::draw_text(std::string_view utf8, const Rect& rect, const TextAttributes& attributes)
{
    add([=, text = std::string(utf8)](Graphics& graphics) { graphics.draw_text(text, rect, attributes); });
}

} // namespace r7
