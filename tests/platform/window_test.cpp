// The view tree and windows: conversions, hits, captured drags, layers, redraw requests.
#include "platform/window.h"
#include "platform/window_shadow.h"

#include <gtest/gtest.h>

#include <string>

namespace r7 {
namespace {

// A view that writes down what reaches it.
struct Probe final : View {
    using View::View;

    std::string heard;
    Point last_location{};
    int updates = 0;
    std::function<void()> on_press = [] {};

    void mouseDown(const MouseEvent& event) override { note("down ", event.location_in_window), on_press(); }
    void mouseDragged(const MouseEvent& event) override { note("drag ", event.location_in_window); }
    void mouseUp(const MouseEvent& event) override { note("up ", event.location_in_window); }
    void scrollWheel(const ScrollEvent& event) override { note("scroll ", event.location_in_window); }
    void update_geometry() override { ++updates; }

    void note(std::string_view what, Point in_window)
    {
        heard += what;
        last_location = convert_from_window(in_window);
    }
};

struct Backend final : WindowBackend {
    int requests = 0;
    void window_needs_paint(const Rect&) override { ++requests; }
    void show_cursor(const CursorRef&) override {}
};

struct WindowTest : testing::Test {
    std::shared_ptr<Window> window = std::make_shared<Window>(Rect{100, 50, 400, 300});
    std::shared_ptr<Probe> content = std::make_shared<Probe>(Rect{0, 0, 400, 300});
    std::shared_ptr<Probe> outer = std::make_shared<Probe>(Rect{20, 30, 200, 100});
    std::shared_ptr<Probe> inner = std::make_shared<Probe>(Rect{10, 5, 50, 40});
    Backend backend;

    WindowTest()
    {
        outer->add_subview(inner);
        content->add_subview(outer);
        window->set_content_view(content);
        window->set_backend(&backend);
        window->take_dirty_region();
        backend.requests = 0;
    }
    ~WindowTest() override { window->set_backend(nullptr); }

    static MouseEvent at(double x, double y) { return {.location_in_window = {x, y}}; }
};

TEST_F(WindowTest, HitsLowerAndLeftEdgesAndNotUpperAndRightOnes)
{
    EXPECT_EQ(content->hit_test({30, 35}), inner.get());
    EXPECT_EQ(content->hit_test({79.9, 74.9}), inner.get());
    EXPECT_EQ(content->hit_test({80, 50}), outer.get());
    EXPECT_EQ(content->hit_test({50, 75}), outer.get());
    EXPECT_EQ(content->hit_test({400, 10}), nullptr);
    inner->set_hidden(true);
    EXPECT_EQ(content->hit_test({30, 35}), outer.get());
}

TEST_F(WindowTest, DragsAndReleaseGoToThePressedViewEvenOutsideTheWindow)
{
    window->press(MouseButton::primary, at(31, 37));
    window->drag(MouseButton::primary, at(-500, 900));
    EXPECT_EQ(inner->last_location, (Point{-530, 865}));
    window->release(MouseButton::primary, at(300, 200));
    window->drag(MouseButton::primary, at(31, 37));
    EXPECT_EQ(inner->heard, "down drag up ");
    EXPECT_EQ(content->heard + outer->heard, "");
}

TEST_F(WindowTest, APressedViewThatIsGoneIsSentNothing)
{
    std::weak_ptr<Probe> watched = inner;
    inner->on_press = [this] { inner->remove_from_superview(), inner.reset(); };
    window->press(MouseButton::primary, at(31, 37));
    EXPECT_TRUE(watched.expired());
    window->drag(MouseButton::primary, at(31, 37));
    window->release(MouseButton::primary, at(31, 37));
    EXPECT_EQ(content->heard + outer->heard, "");
}

TEST_F(WindowTest, RedrawRequestsAreClippedToWhatShowsAndMerge)
{
    inner->set_needs_display_in({40, 30, 100, 100});
    inner->set_needs_display_in({45, 35, 1, 1});
    EXPECT_EQ(backend.requests, 2);
    const DirtyRegion dirty = window->take_dirty_region();
    ASSERT_EQ(dirty.rects().size(), 1u);
    EXPECT_EQ(dirty.rects()[0], (Rect{70, 65, 10, 10}));
    EXPECT_TRUE(window->take_dirty_region().is_empty());

    outer->set_hidden(true);
    const int before = inner->updates;
    window->take_dirty_region();
    inner->set_needs_display();
    EXPECT_TRUE(window->take_dirty_region().is_empty());
    EXPECT_EQ(backend.requests, 3);
    EXPECT_EQ(inner->updates, before) << "only visible views are brought up to date";
    outer->set_hidden(false);
    window->take_dirty_region();
    EXPECT_EQ(inner->updates, before + 1);
}

TEST_F(WindowTest, AChildWithoutABackEndIsALayerThatTakesTheEventsAboveIt)
{
    auto child = std::make_shared<Window>(Rect{110, 60, 100, 80});
    auto layer = std::make_shared<Probe>(Rect{0, 0, 100, 80});
    child->set_content_view(layer);
    window->add_child_window(*child);
    window->take_dirty_region();

    window->press(MouseButton::primary, at(31, 37));
    EXPECT_EQ(layer->last_location, (Point{21, 27}));
    window->scroll({.location_in_window = {10, 10}});
    EXPECT_EQ(layer->last_location, (Point{0, 0}));
    window->scroll({.location_in_window = {110, 20}});
    EXPECT_EQ(layer->heard, "down scroll ");

    Backend own;
    child->set_backend(&own);
    layer->set_needs_display();
    window->scroll({.location_in_window = {10, 10}});
    EXPECT_TRUE(window->take_dirty_region().is_empty());
    EXPECT_GT(own.requests, 0);
    EXPECT_EQ(layer->heard, "down scroll ");
    EXPECT_EQ(content->heard, "scroll scroll ");
    child->set_backend(nullptr);

    layer->set_needs_display_in({1, 2, 3, 4});
    EXPECT_EQ(window->take_dirty_region().rects()[0], (Rect{11, 12, 3, 4}));
    window->set_frame_origin({0, 0});
    EXPECT_EQ(child->frame().origin(), (Point{10, 10}));

    child->has_shadow = true;
    const Rect covered = with_shadow({10, 10, 100, 80});
    child.reset();
    EXPECT_EQ(window->take_dirty_region().rects()[0], intersection(covered, window->frame()));
    window->press(MouseButton::primary, at(31, 37));
    EXPECT_EQ(inner->heard, "down ");
}

TEST_F(WindowTest, AChildMayOutliveItsParent)
{
    auto child = std::make_shared<Window>(Rect{110, 60, 100, 80});
    window->add_child_window(*child);
    window->set_backend(nullptr);
    window.reset();
    EXPECT_EQ(child->parent_window(), nullptr);
    EXPECT_TRUE(child->is_key_window());
    window = child;
}

TEST_F(WindowTest, ContentMovesFromWindowToWindow)
{
    auto other = std::make_shared<Window>(Rect{0, 0, 10, 10});
    other->set_content_view(inner);
    EXPECT_EQ(inner->superview(), nullptr);
    EXPECT_EQ(inner->window(), other.get());
    EXPECT_TRUE(outer->subviews().empty());
    other.reset();
    EXPECT_EQ(inner->window(), nullptr);
}

} // namespace
} // namespace r7
