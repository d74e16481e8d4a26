// Windows: where a tree of views is shown, and where its events come from.
#pragma once

#include "platform/color.h"
#include "platform/cursor.h"
#include "platform/dirty_region.h"
#include "platform/view.h"

#include <array>
#include <memory>
#include <utility>
#include <vector>

namespace r7 {

class Graphics;
class Window;

enum class WindowLevel { normal, floating };
enum class WindowStyle { borderless = 0, titled = 1 };
/// How the picture is kept; all back ends buffer it.
enum class WindowBacking { retained = 0, nonretained = 1, buffered = 2 };
/// Whether a window system's window is made at once or when the window is first shown.
enum class WindowCreation { immediate, deferred };

/// The window system's side of a window: implemented by each back end, called by the window shown in it.
class WindowBackend {
public:
    virtual ~WindowBackend() = default;

    /// `part` of the window is to be redrawn, in its coordinates, and not empty: paint once, for this and
    /// what else is asked, in a later turn of the loop.
    virtual void window_needs_paint(const Rect& part) = 0;
    /// A child window was added or removed, or came to the front. A back end that draws child windows as
    /// layers has nothing to do; one with windows of its own for them sets itself, or another, as theirs.
    virtual void child_windows_changed() {}
    /// Shows this cursor over the window; null for the system's own arrow.
    virtual void show_cursor(const CursorRef& cursor) = 0;
};

/// A rectangle of the screen that shows a tree of views.
///
/// The frame is in screen points, y upward; window coordinates start at its lower left corner. A child window
/// lies above its parent, moves with it, and, where it has no back end of its own, is a layer of the parent's
/// picture that takes the events above it first. Neither owns the other: whoever shows a window holds it.
class Window : public std::enable_shared_from_this<Window> {
public:
    explicit Window(const Rect& frame, WindowStyle style = WindowStyle::titled,
                    WindowBacking backing = WindowBacking::buffered,
                    WindowCreation creation = WindowCreation::immediate)
        : frame_(frame), style_(style), backing_(backing), creation_(creation)
    {
    }
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    const Rect& frame() const { return frame_; }
    WindowStyle style() const { return style_; }
    WindowBacking backing() const { return backing_; }
    WindowCreation creation() const { return creation_; }
    /// Where the window system has put the window; children move along.
    void set_frame_origin(Point origin);

    View* content_view() const { return content_view_.get(); }
    /// Shows the tree of `view`, or nothing, in place of the one before.
    void set_content_view(ViewRef view);

    /// The window system's side; not owned, null for a child drawn as a layer.
    WindowBackend* backend() const { return backend_; }
    void set_backend(WindowBackend* backend);

    /// Bottom to top.
    const std::vector<Window*>& child_windows() const { return children_; }
    Window* parent_window() const { return parent_; }
    /// Puts the child above this window and above its other children.
    void add_child_window(Window& child);
    /// Does nothing for a window that is no child of this one.
    void remove_child_window(Window& child);

    virtual bool canBecomeKeyWindow() const { return true; }
    /// Makes this the window that keys go to, among its parent, itself and their children, if it can become
    /// that.
    void make_key_and_order_front();
    bool is_key_window() const;

    WindowLevel level = WindowLevel::normal;
    /// Set before the window is shown.
    bool has_shadow = false;
    bool is_opaque = true;
    /// Whether views ask to hear of motion without a button. None does anything with it: back ends send none.
    bool accepts_mouse_moved_events = false;
    /// Painted under the content view; null paints nothing.
    ColorRef background_color;

    View* first_responder() const { return first_responder_.lock().get(); }
    /// Refused, with no change, by a view that does not accept it.
    bool make_first_responder(const ViewRef& view);

    // Events, from the back end, in this window's coordinates. Layers take those above them first; drags and
    // the release go to the view that took the press, wherever they happen and whether or not it is still
    // shown.
    void press(MouseButton button, const MouseEvent& event);
    void drag(MouseButton button, const MouseEvent& event);
    void release(MouseButton button, const MouseEvent& event);
    void scroll(const ScrollEvent& event);

    /// Asks for the redraw of a part of the window, in its coordinates.
    void set_needs_display_in(const Rect& rect);
    /// Brings all visible views up to date and returns what is to be redrawn; nothing is, after this.
    DirtyRegion take_dirty_region();
    /// Paints what meets `dirty`: background, views, then the child windows above them.
    void paint(Graphics& graphics, const Rect& dirty);

private:
    // Who takes an event, and where the lower left corner of its window lies in this one.
    struct Target {
        ViewRef view;
        Point window_origin;
    };
    struct Pressed {
        std::weak_ptr<View> view;
        Point window_origin;
    };

    // The view under a point, child windows first; none outside all of them.
    Target target_at(Point point) const;
    // Who took the press of a button, if it still exists.
    Target pressed_by(MouseButton button) const;
    // Whether this is painted into its parent's picture.
    bool is_layer() const { return parent_ && !backend_; }
    // Lower left corner of a child, in this window's coordinates.
    Point origin_of(const Window& child) const;
    // What a child and its shadow cover, in this window's coordinates.
    Rect covered_by(const Window& child) const;
    void detach_from_parent();
    void update_views();
    // The window at the end of the chain of parents.
    const Window& root() const;
    Window& root() { return const_cast<Window&>(std::as_const(*this).root()); }

    Rect frame_;
    WindowStyle style_;
    WindowBacking backing_;
    WindowCreation creation_;
    ViewRef content_view_;
    WindowBackend* backend_ = nullptr;
    Window* parent_ = nullptr;
    std::vector<Window*> children_;
    Window* key_window_ = nullptr; // in a root window only; null: the root itself
    std::weak_ptr<View> first_responder_;
    std::array<Pressed, 2> pressed_; // by MouseButton
    DirtyRegion dirty_;
};

} // namespace r7
