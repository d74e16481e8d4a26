// A view of AppKit that shows a window of the panel's.
#include "cocoa/host_view.h"

#include <utility>

@implementation QmR7HostView

- (void)showWindow:(std::shared_ptr<r7::Window>)window
{
    shown_ = std::make_unique<r7::CocoaWindow>(self, std::move(window));
    [self setNeedsDisplay:YES];
}

- (void)showNothing
{
    shown_.reset();
}

- (void)dealloc
{
    [self showNothing];
    [super dealloc];
}

- (void)drawRect:(NSRect)dirty
{
    if (shown_) shown_->paint(dirty);
}

- (void)resetCursorRects
{
    if (NSCursor* const cursor = shown_ ? shown_->cursor() : nil)
        [self addCursorRect:[self bounds] cursor:cursor];
}

- (BOOL)acceptsFirstResponder
{
    return shown_ && shown_->accepts_first_responder();
}

// A knob answers at once, also while an editor's window is the one with the keys.
- (BOOL)acceptsFirstMouse:(NSEvent*)event
{
    (void)event;
    return YES;
}

// The controls are inside this view, and dragging them must never move the window.
- (BOOL)mouseDownCanMoveWindow
{
    return NO;
}

// Whoever is told of an event may let go of this view.
- (void)tell:(NSEvent*)event
{
    [[self retain] autorelease];
    if (shown_) shown_->tell(event);
}

- (void)mouseDown:(NSEvent*)event
{
    [self tell:event];
}

- (void)mouseDragged:(NSEvent*)event
{
    [self tell:event];
}

- (void)mouseUp:(NSEvent*)event
{
    [self tell:event];
}

- (void)rightMouseDown:(NSEvent*)event
{
    [self tell:event];
}

- (void)rightMouseDragged:(NSEvent*)event
{
    [self tell:event];
}

- (void)rightMouseUp:(NSEvent*)event
{
    [self tell:event];
}

- (void)scrollWheel:(NSEvent*)event
{
    [self tell:event];
}

@end
