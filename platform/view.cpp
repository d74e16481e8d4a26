// The tree of views.
#include "platform/view.h"

#include "platform/graphics.h"
#include "platform/window.h"

#include <algorithm>
#include <utility>

namespace r7 {

View::~View()
{
    for (const ViewRef& view : subviews_) view->superview_ = nullptr;
}

Window* View::window() const
{
    const View* root = this;
    while (root->superview_) root = root->superview_;
    return root->window_;
}

void View::set_frame(const Rect& frame)
{
    if (frame == frame_) return;
    set_needs_display();
    frame_ = frame;
    set_needs_display();
}

void View::set_hidden(bool hidden)
{
    if (hidden == hidden_) return;
    // A hidden view asks for nothing, so the request comes before it hides or after it shows.
    set_needs_display();
    hidden_ = hidden;
    set_needs_display();
}

void View::add_subview(ViewRef view)
{
    view->remove_from_superview();
    view->superview_ = this;
    subviews_.push_back(view);
    view->moved_to_window();
    view->set_needs_display();
}

void View::remove_from_superview()
{
    if (!superview_) return;
    set_needs_display();
    auto& siblings = superview_->subviews_;
    const auto place = std::ranges::find(siblings, this, &ViewRef::get);
    const ViewRef kept = std::move(*place);
    siblings.erase(place);
    superview_ = nullptr;
    moved_to_window();
}

void View::set_needs_display_in(const Rect& rect)
{
    Rect asked = intersection(rect, bounds());
    const View* view = this;
    for (;;) {
        if (view->hidden_) return;
        asked = moved_by(asked, view->frame_.origin());
        if (!view->superview_) break;
        view = view->superview_;
        asked = intersection(asked, view->bounds());
    }
    if (view->window_) view->window_->set_needs_display_in(asked);
}

View* View::hit_test(Point in_superview)
{
    if (hidden_ || !contains(frame_, in_superview)) return nullptr;
    const Point here{in_superview.x - frame_.x, in_superview.y - frame_.y};
    for (auto view = subviews_.rbegin(); view != subviews_.rend(); ++view)
        if (View* hit = (*view)->hit_test(here)) return hit;
    return this;
}

Point View::convert_from_window(Point point) const
{
    for (const View* view = this; view; view = view->superview_)
        point = {point.x - view->frame_.x, point.y - view->frame_.y};
    return point;
}

Point View::convert_to_window(Point point) const
{
    for (const View* view = this; view; view = view->superview_)
        point = {point.x + view->frame_.x, point.y + view->frame_.y};
    return point;
}

void View::drawRect(Graphics&, const Rect&) {}

void View::moved_to_window()
{
    viewDidMoveToWindow();
    for (const ViewRef& view : std::vector<ViewRef>(subviews_)) view->moved_to_window();
}

void View::update_tree()
{
    if (hidden_) return;
    update_geometry();
    for (const ViewRef& view : subviews_) view->update_tree();
}

void View::paint_tree(Graphics& graphics, const Rect& dirty)
{
    const Rect asked = intersection(dirty, frame_);
    if (hidden_ || asked.is_empty()) return;
    const Rect here = moved_by(asked, {-frame_.x, -frame_.y});
    const Graphics::SavedState state(graphics);
    graphics.move_origin_to(frame_.origin());
    graphics.clip_to(bounds());
    {
        // A clip that the view sets for itself must not hold for its subviews.
        const Graphics::SavedState own(graphics);
        drawRect(graphics, here);
    }
    for (const ViewRef& view : subviews_) view->paint_tree(graphics, here);
}

} // namespace r7
