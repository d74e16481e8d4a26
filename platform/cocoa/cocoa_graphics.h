// Drawing by AppKit.
#pragma once

#include "platform/cocoa/appkit_compat.h"
#include "platform/graphics.h"

#include <vector>

namespace r7 {

/// The drawing operations in the current NSGraphicsContext, whose coordinates it starts with. To be used
/// while that context is the current one.
///
/// Points are placed by our own arithmetic; the context's matrix stays as it is.
class CocoaGraphics final : public Graphics {
public:
    void move_origin_to(Point origin) override;
    void anchor_patterns() override;
    void clip_to(const Rect& rect) override;
    void fill(const Path& path, const Color* color) override;
    void stroke(const Path& path, const Color* color) override;
    void fill_rect(const Rect& rect, const Color* color, Compositing how) override;
    void draw_image(const Image* image, Point origin, Compositing how, double fraction) override;
    void draw_image_in_rect(const Image* image, const Rect& rect, Compositing how, double fraction) override;
    void draw_text(std::string_view utf8, const Rect& rect, const TextAttributes& attributes) override;

protected:
    void save() override;
    void restore() override;

private:
    NSRect placed(const Rect& rect) const;
    NSBezierPath* placed(const Path& path) const;

    Point origin_{};
    std::vector<Point> saved_;
};

} // namespace r7
