// A Mac's AppKit, as far as a compiler is to believe in it: GNUstep's declarations without its name, and what
// only a Mac declares.
#pragma once

#include_next <AppKit/AppKit.h>

#undef GNUSTEP

enum : NSUInteger {
    NSCompositingOperationCopy = 1,
    NSCompositingOperationSourceOver = 2,
};

enum : NSUInteger {
    NSEventTypeLeftMouseDown = 1,
    NSEventTypeLeftMouseUp = 2,
    NSEventTypeRightMouseDown = 3,
    NSEventTypeRightMouseUp = 4,
    NSEventTypeLeftMouseDragged = 6,
    NSEventTypeRightMouseDragged = 7,
};

enum : NSUInteger {
    NSEventModifierFlagShift = 1 << 17,
    NSEventModifierFlagControl = 1 << 18,
    NSEventModifierFlagOption = 1 << 19,
};

@interface NSView (Backing)
- (NSSize)convertSizeFromBacking:(NSSize)size;
@end
