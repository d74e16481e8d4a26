// Mouse cursors as AppKit's.
#include "platform/cocoa/native_cursor.h"

#include "platform/cocoa/cocoa_image.h"

namespace r7 {

namespace {

// The image as a picture that a cursor can be made of: GNUstep takes bitmaps alone.
NSImage* cursor_image(const Image& image)
{
    NSImage* const native = CocoaImage::of(image).native();
#if defined(GNUSTEP)
    const NSSize size = [native size];
    const NSRect all = NSMakeRect(0.0, 0.0, size.width, size.height);
    const auto picture = ObjCPtr<NSImage>::adopt([[NSImage alloc] initWithSize:size]);
    [picture.get() lockFocus];
    [native drawInRect:all fromRect:NSZeroRect operation:NSCompositingOperationCopy fraction:1.0];
    const auto bitmap =
        ObjCPtr<NSBitmapImageRep>::adopt([[NSBitmapImageRep alloc] initWithFocusedViewRect:all]);
    [picture.get() unlockFocus];
    NSImage* const flat = [[[NSImage alloc] initWithSize:size] autorelease];
    [flat addRepresentation:bitmap.get()];
    return flat;
#else
    return native;
#endif
}

} // namespace

NSCursor* native_cursor(const CursorRef& cursor)
{
    if (!cursor || !cursor->image) return [NSCursor arrowCursor];
    // AppKit measures the hot spot from the image's upper left corner.
    const double height = cursor->image->size().height;
    const NSPoint hot_spot = NSMakePoint(cursor->hot_spot.x, height - cursor->hot_spot.y);
    return [[[NSCursor alloc] initWithImage:cursor_image(*cursor->image) hotSpot:hot_spot] autorelease];
}

} // namespace r7
