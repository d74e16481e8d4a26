// The window system's side of a window that is shown in an NSView.
#pragma once

#include "platform/cocoa/appkit_compat.h"
#include "platform/cocoa/objc_ptr.h"
#include "platform/window.h"

#include <memory>
#include <vector>

namespace r7 {

/// Hands an r7::Window what AppKit tells its view, and AppKit what the window asks for. A child of the window
/// is shown in an NSWindow of its own, above the view's.
///
/// Wherever it is told something the window may let go of the view, and so of this.
class CocoaWindow final : public WindowBackend {
public:
    /// `view` is lent, and outlives this.
    CocoaWindow(NSView* view, std::shared_ptr<Window> window);
    ~CocoaWindow() override;

    /// Paints what of the window AppKit wants drawn in the view, which is the focused one.
    void paint(NSRect dirty) noexcept;
    /// Tells the window of a mouse or scroll event of the view.
    void tell(NSEvent* event) noexcept;
    /// The cursor over the view, or nil for the window's around.
    NSCursor* cursor() const { return cursor_.get(); }
    bool accepts_first_responder() const;

    void window_needs_paint(const Rect& part) override;
    void child_windows_changed() override;
    void show_cursor(const CursorRef& cursor) override;

private:
    struct Overlay {
        Window* child;
        ObjCPtr<NSWindow> native;
    };

    void update_frame();
    Point location_of(NSEvent* event) const;
    MouseEvent mouse_event(NSEvent* event);
    void open(Window& child);
    void close(const Overlay& overlay);

    NSView* view_;
    std::shared_ptr<Window> window_;
    std::vector<Overlay> overlays_;
    ObjCPtr<NSCursor> cursor_;
    NSPoint pointer_{}; // on the screen, at the event before
};

} // namespace r7
