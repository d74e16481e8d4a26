// Paths, colours and images, from the panel's to AppKit's.
#include "platform/cocoa/cocoa_graphics.h"

#include "platform/cocoa/cocoa_image.h"
#include "platform/cocoa/conversions.h"
#include "platform/cocoa/label_text.h"
#include "platform/cocoa/native_color.h"
#include "platform/cocoa/pattern_stroke.h"

#include <optional>

namespace r7 {

namespace {

// Beyond this a rasteriser may lose its count, and nobody sees the difference.
constexpr double kFarthest = 1e6;

NSPoint placed(Point point, Point origin)
{
    return NSMakePoint(std::clamp(origin.x + point.x, -kFarthest, kFarthest),
                       std::clamp(origin.y + point.y, -kFarthest, kFarthest));
}

NSCompositingOperation operation(Compositing how)
{
    return how == Compositing::copy ? NSCompositingOperationCopy : NSCompositingOperationSourceOver;
}

// Makes the colour the one that is painted with. False where it paints nothing.
bool set(const Color* color)
{
    NSColor* const native = color ? native_color(*color) : nil;
    [native set];
    return native != nil;
}

} // namespace

void CocoaGraphics::save()
{
    saved_.push_back(origin_);
    [NSGraphicsContext saveGraphicsState];
}

void CocoaGraphics::restore()
{
    origin_ = saved_.back();
    saved_.pop_back();
    [NSGraphicsContext restoreGraphicsState];
}

void CocoaGraphics::move_origin_to(Point origin)
{
    if (is_finite(origin))
        origin_ = {origin_.x + origin.x, origin_.y + origin.y};
    else
        NSRectClip(NSZeroRect); // what is nowhere cannot be seen
}

// GNUstep repeats patterns from the view's own corner, which is where they are anchored; a Mac from the
// window's.
void CocoaGraphics::anchor_patterns()
{
    if (kOnGNUstep) return;
    [[NSGraphicsContext currentContext] setPatternPhase:[[NSView focusView] convertPoint:to_native(origin_)
                                                                                  toView:nil]];
}

void CocoaGraphics::clip_to(const Rect& rect)
{
    NSRectClip(is_finite(rect) && !rect.is_empty() ? placed(rect) : NSZeroRect);
}

void CocoaGraphics::fill(const Path& path, const Color* color)
{
    if (set(color)) [placed(path) fill];
}

void CocoaGraphics::stroke(const Path& path, const Color* color)
{
    if (!(path.line_width > 0.0) || !std::isfinite(path.line_width) || !set(color)) return;
    NSBezierPath* const native = placed(path);
    if (kOnGNUstep && color->pattern_image())
        stroke_with_pattern(native, native_color(*color));
    else
        [native stroke];
}

void CocoaGraphics::fill_rect(const Rect& rect, const Color* color, Compositing how)
{
    if (!is_finite(rect) || rect.is_empty() || !set(color)) return;
    if (color->pattern_image())
        [NSBezierPath fillRect:placed(rect)];
    else
        NSRectFillUsingOperation(placed(rect), operation(how));
}

void CocoaGraphics::draw_image(const Image* image, Point origin, Compositing how, double fraction)
{
    if (!image) return;
    const Size size = image->size();
    draw_image_in_rect(image, {origin.x, origin.y, size.width, size.height}, how, fraction);
}

void CocoaGraphics::draw_image_in_rect(const Image* image, const Rect& rect, Compositing how, double fraction)
{
    if (!image || !is_finite(rect) || rect.is_empty() || !std::isfinite(fraction)) return;
    [CocoaImage::of(*image).native() drawInRect:placed(rect)
                                       fromRect:NSZeroRect
                                      operation:operation(how)
                                       fraction:fraction];
}

void CocoaGraphics::draw_text(std::string_view utf8, const Rect& rect, const TextAttributes& attributes)
{
    if (!is_finite(rect) || !attributes.color) return;
    if (NSDictionary* const native = native_attributes(attributes))
        [to_native(utf8) drawInRect:placed(rect) withAttributes:native];
}

NSRect CocoaGraphics::placed(const Rect& rect) const
{
    const NSPoint lower_left = r7::placed(rect.origin(), origin_);
    const NSPoint upper_right = r7::placed(Point{rect.right(), rect.top()}, origin_);
    return NSMakeRect(lower_left.x, lower_left.y, upper_right.x - lower_left.x, upper_right.y - lower_left.y);
}

// Points that are not finite are left out; a curve that has one is a line to its end.
NSBezierPath* CocoaGraphics::placed(const Path& path) const
{
    NSBezierPath* const native = [NSBezierPath bezierPath];
    [native setLineWidth:path.line_width];
    bool begun = false; // whether there is a point to draw from
    for (const Path::Element& element : path.elements()) {
        const auto& [first, second, third] = element.points;
        if (element.verb == Path::Verb::close) {
            if (begun) [native closePath];
        } else if (!is_finite(element.end())) {
            // In place of a move that leads nowhere, the next point begins the subpath.
            if (element.verb == Path::Verb::move) begun = false;
        } else if (element.verb == Path::Verb::move || !begun) {
            [native moveToPoint:r7::placed(element.end(), origin_)];
            begun = true;
        } else if (element.verb == Path::Verb::curve && is_finite(first) && is_finite(second)) {
            [native curveToPoint:r7::placed(third, origin_)
                   controlPoint1:r7::placed(first, origin_)
                   controlPoint2:r7::placed(second, origin_)];
        } else {
            [native lineToPoint:r7::placed(element.end(), origin_)];
        }
    }
    return native;
}

} // namespace r7
