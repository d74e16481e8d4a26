// The borderless window that a zoomed editor is shown in.
#include "cocoa/overlay_window.h"

@implementation QM_R7_Overlay_Window

- (id)initWithContentRect:(NSRect)rect
                styleMask:(NSUInteger)style
                  backing:(NSBackingStoreType)backing
                    defer:(BOOL)defer
{
    (void)style, (void)backing, (void)defer;
    self = [super initWithContentRect:rect
                            styleMask:NSWindowStyleMaskBorderless
                              backing:NSBackingStoreBuffered
                                defer:NO];
    if (!self) return nil;
    [self setBackgroundColor:[NSColor clearColor]];
    [self setOpaque:NO];
    [self setHasShadow:YES];
    [self setReleasedWhenClosed:NO];
    return self;
}

- (BOOL)canBecomeKeyWindow
{
    return YES;
}

@end
