// The window system's side of a window: painting, events, child windows.
#include "cocoa/cocoa_window.h"

#include "cocoa/host_view.h"
#include "cocoa/overlay_window.h"
#include "platform/cocoa/cocoa_graphics.h"
#include "platform/cocoa/conversions.h"
#include "platform/cocoa/native_color.h"
#include "platform/cocoa/native_cursor.h"

#include <algorithm>
#include <utility>

namespace r7 {

namespace {

// The flags' bits are the same.
Modifiers modifiers_of(NSEvent* event)
{
    static_assert(NSEventModifierFlagShift == static_cast<NSUInteger>(Modifiers::shift));
    static_assert(NSEventModifierFlagControl == static_cast<NSUInteger>(Modifiers::control));
    static_assert(NSEventModifierFlagOption == static_cast<NSUInteger>(Modifiers::option));
    constexpr NSUInteger kKnown =
        NSEventModifierFlagShift | NSEventModifierFlagControl | NSEventModifierFlagOption;
    return static_cast<Modifiers>([event modifierFlags] & kKnown);
}

bool is_press(NSEvent* event)
{
    return [event type] == NSEventTypeLeftMouseDown || [event type] == NSEventTypeRightMouseDown;
}

// Height of a device pixel, in points of the view.
CGFloat pixel_height(NSView* view)
{
#if defined(GNUSTEP)
    (void)view;
    return 1.0;
#else
    return [view convertSizeFromBacking:NSMakeSize(1.0, 1.0)].height;
#endif
}

} // namespace

CocoaWindow::CocoaWindow(NSView* view, std::shared_ptr<Window> window)
    : view_(view), window_(std::move(window))
{
    window_->set_backend(this);
}

CocoaWindow::~CocoaWindow()
{
    // What is shown learns that it is shown no more while its child windows can still be closed.
    if (window_->backend() == this) {
        window_->set_content_view(nullptr);
        window_->set_backend(nullptr);
    }
    for (const Overlay& overlay : std::exchange(overlays_, {})) close(overlay);
}

void CocoaWindow::paint(NSRect dirty) noexcept
try {
    // AppKit keeps what is to be drawn; the views come up to date here.
    window_->take_dirty_region();
    CocoaGraphics graphics;
    const Graphics::SavedState state(graphics);
    graphics.clip_to(from_native(dirty));
    window_->paint(graphics, from_native(dirty));
} catch (...) {
    // The system calls this: what could not be painted must not take the host down.
}

void CocoaWindow::tell(NSEvent* event) noexcept
try {
    if (![view_ window]) return; // taken away in mid-drag
    const auto window = window_;
    update_frame();
    // Without a window manager, the click that made the panel's window the key one put it over its children.
    if (kOnGNUstep && is_press(event))
        for (const Overlay& overlay : overlays_) [overlay.native.get() orderFront:nil];
    switch ([event type]) {
    case NSEventTypeLeftMouseDown:
        return window->press(MouseButton::primary, mouse_event(event));
    case NSEventTypeLeftMouseDragged:
        return window->drag(MouseButton::primary, mouse_event(event));
    case NSEventTypeLeftMouseUp:
        return window->release(MouseButton::primary, mouse_event(event));
    case NSEventTypeRightMouseDown:
        return window->press(MouseButton::secondary, mouse_event(event));
    case NSEventTypeRightMouseDragged:
        return window->drag(MouseButton::secondary, mouse_event(event));
    case NSEventTypeRightMouseUp:
        return window->release(MouseButton::secondary, mouse_event(event));
    default:
        return window->scroll({location_of(event), [event deltaX], [event deltaY], modifiers_of(event)});
    }
} catch (...) {
    // The system calls this: an event that could not be served must not take the host down.
}

bool CocoaWindow::accepts_first_responder() const
{
    return window_->content_view() && window_->content_view()->acceptsFirstResponder();
}

void CocoaWindow::window_needs_paint(const Rect& part)
{
    // Whole points, lest an edge is painted in part.
    [view_ setNeedsDisplayInRect:NSIntegralRect(to_native(part))];
}

void CocoaWindow::show_cursor(const CursorRef& cursor)
{
    cursor_ = cursor ? ObjCPtr<NSCursor>::share(native_cursor(cursor)) : ObjCPtr<NSCursor>();
    [[view_ window] invalidateCursorRectsForView:view_];
}

void CocoaWindow::child_windows_changed()
{
    const std::vector<Window*> children = window_->child_windows();
    const auto is_gone = [&](const Overlay& overlay) {
        return std::find(children.begin(), children.end(), overlay.child) == children.end();
    };
    const auto gone = std::stable_partition(overlays_.begin(), overlays_.end(), std::not_fn(is_gone));
    const std::vector<Overlay> closing(gone, overlays_.end());
    overlays_.erase(gone, overlays_.end());
    for (const Overlay& overlay : closing) close(overlay);

    for (Window* child : children) {
        const auto is_this = [&](const Overlay& overlay) { return overlay.child == child; };
        if (std::none_of(overlays_.begin(), overlays_.end(), is_this)) open(*child);
    }
    for (const Overlay& overlay : overlays_)
        if (overlay.child == children.back()) [overlay.native.get() makeKeyAndOrderFront:nil];
}

void CocoaWindow::open(Window& child)
{
    NSWindow* const window =
        [[QM_R7_Overlay_Window alloc] initWithContentRect:to_native(child.frame())
                                                styleMask:static_cast<NSUInteger>(child.style())
                                                  backing:static_cast<NSBackingStoreType>(child.backing())
                                                    defer:child.creation() == WindowCreation::deferred];
    overlays_.push_back({&child, ObjCPtr<NSWindow>::adopt(window)});
    if (child.background_color) [window setBackgroundColor:native_color(*child.background_color)];
    [window setOpaque:child.is_opaque];
    [window setHasShadow:child.has_shadow];
    [window setLevel:child.level == WindowLevel::floating ? NSFloatingWindowLevel : NSNormalWindowLevel];

    QmR7HostView* const view = [[[QmR7HostView alloc]
        initWithFrame:NSMakeRect(0.0, 0.0, child.frame().width, child.frame().height)] autorelease];
    [view showWindow:child.shared_from_this()];
    [window setContentView:view];
    [window makeFirstResponder:view];
    [window setIgnoresMouseEvents:NO];
    [window setAcceptsMouseMovedEvents:child.accepts_mouse_moved_events];
    [[view_ window] addChildWindow:window ordered:NSWindowAbove];
}

void CocoaWindow::close(const Overlay& overlay)
{
    NSWindow* const window = overlay.native.get();
    // It may be an event of the window's own that closes it.
    [[window retain] autorelease];
    [static_cast<QmR7HostView*>([window contentView]) showNothing];
    [[view_ window] removeChildWindow:window];
    [window orderOut:nil];
}

void CocoaWindow::update_frame()
{
    NSWindow* const native = [view_ window];
    const NSRect on_screen = [native convertRectToScreen:[view_ convertRect:[view_ bounds] toView:nil]];
    window_->set_frame_origin(from_native(on_screen.origin));
}

// AppKit tells a pixel by its upper left corner, the panel by the lower left one: so the pixels of a view,
// and no others, lie in its frame.
Point CocoaWindow::location_of(NSEvent* event) const
{
    const NSPoint upper_left = [view_ convertPoint:[event locationInWindow] fromView:nil];
    return {upper_left.x, upper_left.y - pixel_height(view_)};
}

MouseEvent CocoaWindow::mouse_event(NSEvent* event)
{
    MouseEvent told{.location_in_window = location_of(event),
                    .click_count = static_cast<int>([event clickCount]),
                    .modifiers = modifiers_of(event)};
    if (kOnGNUstep) {
        // Its own deltas grow upward, and jump where the pointer leaves the window.
        const NSRect in_window = {[event locationInWindow], NSZeroSize};
        const NSPoint here = [[event window] convertRectToScreen:in_window].origin;
        if (!is_press(event)) {
            told.delta_x = here.x - pointer_.x;
            told.delta_y = pointer_.y - here.y;
        }
        pointer_ = here;
    } else {
        told.delta_x = [event deltaX];
        told.delta_y = [event deltaY];
    }
    return told;
}

} // namespace r7
