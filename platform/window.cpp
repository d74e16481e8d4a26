// Windows: layers, events and redraw requests.
#include "platform/window.h"

#include "platform/graphics.h"
#include "platform/window_shadow.h"

#include <algorithm>
#include <utility>

namespace r7 {

namespace {

template <typename Event>
Event seen_from(Event event, Point window_origin)
{
    event.location_in_window.x -= window_origin.x;
    event.location_in_window.y -= window_origin.y;
    return event;
}

} // namespace

Window::~Window()
{
    detach_from_parent();
    for (Window* child : children_) child->parent_ = nullptr;
    if (content_view_) content_view_->window_ = nullptr;
}

void Window::set_frame_origin(Point origin)
{
    const Point by{origin.x - frame_.x, origin.y - frame_.y};
    frame_ = moved_by(frame_, by);
    for (Window* child : children_) child->set_frame_origin({child->frame_.x + by.x, child->frame_.y + by.y});
}

void Window::set_content_view(ViewRef view)
{
    if (view == content_view_) return;
    if (view) {
        view->remove_from_superview();
        if (view->window_) view->window_->set_content_view(nullptr);
    }
    const ViewRef before = std::exchange(content_view_, std::move(view));
    if (before) {
        before->window_ = nullptr;
        before->moved_to_window();
    }
    if (content_view_) {
        content_view_->window_ = this;
        content_view_->moved_to_window();
    }
    set_needs_display_in({0.0, 0.0, frame_.width, frame_.height});
}

void Window::set_backend(WindowBackend* backend)
{
    backend_ = backend;
    if (!backend_) return;
    for (const Rect& part : dirty_.rects()) backend_->window_needs_paint(part);
}

void Window::add_child_window(Window& child)
{
    child.detach_from_parent();
    children_.push_back(&child);
    child.parent_ = this;
    set_needs_display_in(covered_by(child));
    if (backend_) backend_->child_windows_changed();
}

void Window::remove_child_window(Window& child)
{
    if (child.parent_ == this) child.detach_from_parent();
}

void Window::detach_from_parent()
{
    if (!parent_) return;
    Window& top = root();
    if (top.key_window_ == this) top.key_window_ = nullptr;
    Window& parent = *std::exchange(parent_, nullptr);
    std::erase(parent.children_, this);
    parent.set_needs_display_in(parent.covered_by(*this));
    if (parent.backend_) parent.backend_->child_windows_changed();
}

void Window::make_key_and_order_front()
{
    if (parent_) {
        auto& siblings = parent_->children_;
        std::rotate(std::ranges::find(siblings, this), std::ranges::find(siblings, this) + 1, siblings.end());
        if (parent_->backend_) parent_->backend_->child_windows_changed();
    }
    if (canBecomeKeyWindow()) root().key_window_ = this;
}

bool Window::is_key_window() const
{
    const Window& top = root();
    return top.key_window_ ? top.key_window_ == this : &top == this;
}

const Window& Window::root() const
{
    const Window* window = this;
    while (window->parent_) window = window->parent_;
    return *window;
}

bool Window::make_first_responder(const ViewRef& view)
{
    if (view && !view->acceptsFirstResponder()) return false;
    first_responder_ = view;
    return true;
}

Point Window::origin_of(const Window& child) const
{
    return {child.frame_.x - frame_.x, child.frame_.y - frame_.y};
}

Rect Window::covered_by(const Window& child) const
{
    const Rect frame = moved_by(child.frame_, {-frame_.x, -frame_.y});
    return child.has_shadow ? with_shadow(frame) : frame;
}

Window::Target Window::target_at(Point point) const
{
    for (auto child = children_.rbegin(); child != children_.rend(); ++child) {
        if (!(*child)->is_layer()) continue;
        const Point origin = origin_of(**child);
        if (!contains((*child)->frame_, {point.x + frame_.x, point.y + frame_.y})) continue;
        // A child takes what lies above it, even where no view of it does.
        Target target = (*child)->target_at({point.x - origin.x, point.y - origin.y});
        target.window_origin = {target.window_origin.x + origin.x, target.window_origin.y + origin.y};
        return target;
    }
    View* hit = content_view_ ? content_view_->hit_test(point) : nullptr;
    return {hit ? hit->shared_from_this() : nullptr, {}};
}

Window::Target Window::pressed_by(MouseButton button) const
{
    const Pressed& pressed = pressed_[static_cast<std::size_t>(button)];
    return {pressed.view.lock(), pressed.window_origin};
}

void Window::press(MouseButton button, const MouseEvent& event)
{
    const Target target = target_at(event.location_in_window);
    pressed_[static_cast<std::size_t>(button)] = {target.view, target.window_origin};
    if (!target.view) return;
    const MouseEvent seen = seen_from(event, target.window_origin);
    if (button == MouseButton::primary)
        target.view->mouseDown(seen);
    else
        target.view->rightMouseDown(seen);
}

void Window::drag(MouseButton button, const MouseEvent& event)
{
    const Target target = pressed_by(button);
    if (!target.view) return;
    const MouseEvent seen = seen_from(event, target.window_origin);
    if (button == MouseButton::primary)
        target.view->mouseDragged(seen);
    else
        target.view->rightMouseDragged(seen);
}

void Window::release(MouseButton button, const MouseEvent& event)
{
    const Target target = pressed_by(button);
    pressed_[static_cast<std::size_t>(button)] = {};
    if (!target.view) return;
    const MouseEvent seen = seen_from(event, target.window_origin);
    if (button == MouseButton::primary)
        target.view->mouseUp(seen);
    else
        target.view->rightMouseUp(seen);
}

void Window::scroll(const ScrollEvent& event)
{
    const Target target = target_at(event.location_in_window);
    if (target.view) target.view->scrollWheel(seen_from(event, target.window_origin));
}

void Window::set_needs_display_in(const Rect& rect)
{
    const Rect asked = intersection(rect, {0.0, 0.0, frame_.width, frame_.height});
    if (asked.is_empty()) return;
    if (is_layer()) {
        parent_->set_needs_display_in(moved_by(asked, parent_->origin_of(*this)));
        return;
    }
    dirty_.add(asked);
    if (backend_) backend_->window_needs_paint(asked);
}

void Window::update_views()
{
    if (content_view_) content_view_->update_tree();
    for (Window* child : children_)
        if (child->is_layer()) child->update_views();
}

DirtyRegion Window::take_dirty_region()
{
    update_views();
    return std::exchange(dirty_, {});
}

void Window::paint(Graphics& graphics, const Rect& dirty)
{
    const Rect bounds{0.0, 0.0, frame_.width, frame_.height};
    const Graphics::SavedState state(graphics);
    graphics.clip_to(bounds);
    graphics.anchor_patterns();
    graphics.fill_rect(bounds, background_color.get(), Compositing::source_over);
    if (content_view_) content_view_->paint_tree(graphics, dirty);
    for (Window* child : children_) {
        if (!child->is_layer()) continue;
        const Point origin = origin_of(*child);
        if (child->has_shadow) paint_window_shadow(graphics, moved_by(child->frame_, {-frame_.x, -frame_.y}));
        const Graphics::SavedState above(graphics);
        graphics.move_origin_to(origin);
        child->paint(graphics, moved_by(dirty, {-origin.x, -origin.y}));
    }
}

} // namespace r7
