// The tree of views: frames, visibility, redraw requests, hit test, events.
#pragma once

#include "platform/event.h"
#include "platform/geometry.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace r7 {

class Graphics;
class View;
class Window;

/// A view is held by its superview, and by whoever keeps it for longer (a panel its controls).
using ViewRef = std::shared_ptr<View>;

/// A rectangle of a window that paints itself and takes events.
///
/// Its frame lies in its superview's coordinates, its bounds have their origin at (0, 0) and the frame's
/// size; y points upward. Overriders of the event operations may destroy any view, their own included:
/// whoever delivers an event keeps the receiver alive until it returns.
class View : public std::enable_shared_from_this<View> {
public:
    explicit View(const Rect& frame) : frame_(frame) {}
    virtual ~View();
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    const Rect& frame() const { return frame_; }
    Rect bounds() const { return {0.0, 0.0, frame_.width, frame_.height}; }
    bool is_hidden() const { return hidden_; }
    /// The view that holds this one; none for a window's content view and for a view that is nowhere.
    View* superview() const { return superview_; }
    std::span<const ViewRef> subviews() const { return subviews_; }
    /// The window that shows the tree of this view, or none.
    Window* window() const;

    /// Moves or resizes the view, and asks for the redraw of where it was and where it is.
    void set_frame(const Rect& frame);
    /// Hidden views, and all views below them, are not painted and not hit.
    void set_hidden(bool hidden);
    /// Puts `view` above the other subviews, taking it out of where it was.
    void add_subview(ViewRef view);
    void remove_from_superview();

    /// Asks for a redraw of the whole view, or of a part of it in its own coordinates. Requests merge;
    /// painting happens once, later. A hidden view, or one outside every window, asks nobody.
    void set_needs_display() { set_needs_display_in(bounds()); }
    void set_needs_display_in(const Rect& rect);

    /// The deepest visible view under a point of the superview's coordinates, this one included, or none.
    View* hit_test(Point in_superview);
    Point convert_from_window(Point in_window) const;
    Point convert_to_window(Point in_view) const;

    /// Paints the view, which has been asked to by the window: only what was asked to be redrawn is touched,
    /// and nothing outside the bounds. Depends on the view's state alone and changes none.
    virtual void drawRect(Graphics& graphics, const Rect& dirty);
    /// Brings derived geometry up to date. Runs before every paint of a visible view; allocates and paints
    /// nothing.
    virtual void update_geometry() {}

    /// Runs once, after the whole tree of an interface description has been made.
    virtual void awakeFromNib() {}
    virtual void viewDidMoveToWindow() {}
    virtual bool acceptsFirstResponder() const { return false; }
    virtual bool mouseDownCanMoveWindow() const { return true; }

    virtual void mouseDown(const MouseEvent&) {}
    virtual void mouseDragged(const MouseEvent&) {}
    virtual void mouseUp(const MouseEvent&) {}
    virtual void rightMouseDown(const MouseEvent&) {}
    virtual void rightMouseDragged(const MouseEvent&) {}
    virtual void rightMouseUp(const MouseEvent&) {}
    virtual void scrollWheel(const ScrollEvent&) {}

private:
    friend class Window;

    // Tells this view and all below it that their window is another one now.
    void moved_to_window();
    // Brings this view, if visible, and all visible ones below it up to date.
    void update_tree();
    // Paints this view and all below it, as far as they meet `dirty`, in the superview's coordinates.
    void paint_tree(Graphics& graphics, const Rect& dirty);

    Rect frame_;
    bool hidden_ = false;
    View* superview_ = nullptr;
    Window* window_ = nullptr; // set in a content view only
    std::vector<ViewRef> subviews_;
};

} // namespace r7
