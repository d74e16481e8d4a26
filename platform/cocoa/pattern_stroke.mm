// Strokes in a pattern colour: the pattern in a picture, of which only what the stroke covers is kept.
#include "platform/cocoa/pattern_stroke.h"

#include "platform/cocoa/objc_ptr.h"

#include <cmath>

namespace r7 {

#if defined(GNUSTEP)

namespace {

// A picture of what `paint` paints in the coordinates of `area`.
template <typename Paint>
ObjCPtr<NSImage> picture_of(NSRect area, Paint paint)
{
    auto picture = ObjCPtr<NSImage>::adopt([[NSImage alloc] initWithSize:area.size]);
    [picture.get() lockFocus];
    NSAffineTransform* const move = [NSAffineTransform transform];
    [move translateXBy:-area.origin.x yBy:-area.origin.y];
    [move concat];
    paint();
    [picture.get() unlockFocus];
    return picture;
}

} // namespace

void stroke_with_pattern(NSBezierPath* path, NSColor* pattern)
{
    const CGFloat reach = [path lineWidth];
    // A curve may lead far out of what can be seen.
    NSRect area = NSIntersectionRect(NSInsetRect([path bounds], -reach, -reach), [[NSView focusView] bounds]);
    if (NSIsEmptyRect(area)) return;
    // From whole tiles on, so that the pattern repeats as it does outside the picture.
    const NSSize tile = [[pattern patternImage] size];
    const CGFloat left = std::floor(NSMinX(area) / tile.width) * tile.width;
    const CGFloat bottom = std::floor(NSMinY(area) / tile.height) * tile.height;
    area = NSMakeRect(left, bottom, std::ceil(NSMaxX(area) - left), std::ceil(NSMaxY(area) - bottom));

    const auto stroke = picture_of(area, [&] {
        [[NSColor blackColor] set];
        [path stroke];
    });
    const auto stroked_pattern = picture_of(area, [&] {
        [pattern set];
        [NSBezierPath fillRect:area];
        [stroke.get() drawInRect:area
                        fromRect:NSZeroRect
                       operation:NSCompositingOperationDestinationIn
                        fraction:1.0];
    });
    [stroked_pattern.get() drawInRect:area
                             fromRect:NSZeroRect
                            operation:NSCompositingOperationSourceOver
                             fraction:1.0];
}

#else

void stroke_with_pattern(NSBezierPath*, NSColor*) {}

#endif

} // namespace r7
