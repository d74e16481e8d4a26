// A window on an X11 display, top-level or embedded in another program's window.
#pragma once

#include "platform/cairo/back_buffer.h"
#include "platform/dirty_region.h"
#include "platform/run_loop.h"
#include "platform/window.h"
#include "platform/x11/pointer_tracker.h"
#include "platform/x11/window_options.h"

#include <memory>

namespace r7 {

class X11Connection;

/// Shows a Window on a display over a connection of its own, and feeds it the display's events.
///
/// Whoever opens it adds it to a run loop, which then does everything: events first, then at most one paint a
/// turn. Between turns it sends nothing and wants nothing. Its size stays as it was opened. Errors of the
/// display never end the process, and a display that goes away leaves a window that does nothing.
class X11Window final : public WindowBackend,
                        public RunLoopSource,
                        public std::enable_shared_from_this<X11Window> {
public:
    struct Opened {
        std::shared_ptr<X11Window> window; ///< null unless the status is open
        X11OpenStatus status = X11OpenStatus::open;
    };
    /// Opens a window; it appears, painted, with the first turns of the loop.
    [[nodiscard]] static Opened open(X11WindowOptions options);
    ~X11Window() override;

    /// The window shown. Its frame is where the display says, measured from the screen's lower left corner.
    Window& window() { return *window_; }
    /// The window's number on its display, for whoever embeds it.
    std::uint32_t native_id() const { return native_id_; }
    double scale() const { return back_buffer_.scale(); }
    /// The picture as last painted.
    const BackBuffer& picture() const { return back_buffer_; }
    /// Bytes sent to the display since the window was opened; 0 once the connection is lost.
    std::uint64_t bytes_sent() const;

    // WindowBackend
    void window_needs_paint(const Rect&) override { wants_turn_ = true; }
    /// The cursor is remade only when it is another one than the last; null is that of the window around.
    void show_cursor(const CursorRef& cursor) override;

    // RunLoopSource
    int file_descriptor() const override;
    bool is_pending() override;
    void serve() override;

private:
    struct Native;
    struct Event;

    X11Window(X11WindowOptions options, double scale);
    // Whether the display made the window.
    bool create(std::unique_ptr<X11Connection> connection);

    void handle(const Event& event);
    // Before a drag reaches the screen's edge, takes the pointer away from there, unseen.
    void keep_off_edges();
    // Leaves the pointer, seen again, where the hand has taken it.
    void end_drag();
    void use_cursor(const CursorRef& cursor);
    void update_click_interval();
    void update_frame();
    // The window's upper left corner, in pixels from the screen's.
    void place(int left, int top);
    void paint();
    void lose();

    X11WindowOptions options_;
    BackBuffer back_buffer_;
    X11PointerTracker pointer_;
    std::shared_ptr<Window> window_;
    std::unique_ptr<Native> native_; // null once the connection is lost
    std::uint32_t native_id_ = 0;
    bool wants_turn_ = true;
    bool moved_ = true;
    bool exposed_ = false; // since it was mapped
    CursorRef cursor_;     // shown, but for a pointer that is hidden
    bool hides_pointer_ = false;
    DirtyRegion to_send_; // pixels, from the picture's top left corner
};

} // namespace r7
