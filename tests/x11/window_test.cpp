// A window on a display: opening, embedding and losing it, and what the screen shows of picture and cursor.
#include "platform/cairo/image_pixels.h"
#include "tests/x11/rig.h"

#include <csignal>
#include <cstdio>
#include <memory>

namespace r7::testing_x11 {
namespace {

using X11Windows = X11Test;

TEST_F(X11Windows, WindowThatCannotBeOpenedSaysWhy)
{
    const xcb_window_t gone = display.make_window({0, 0, 10, 10});
    display.destroy(gone);
    const xcb_window_t unseen = xcb_generate_id(display.get());
    xcb_create_window(display.get(), 0, unseen, display.root(), 0, 0, 10, 10, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    display.place(unseen, 0, 0);
    const struct {
        X11WindowOptions options;
        X11OpenStatus status;
    } kCases[] = {
        {{.size = {10, 10}, .display = ":no such display"}, X11OpenStatus::no_display},
        {{.size = {10, 10}, .parent = gone}, X11OpenStatus::unusable_parent},
        {{.size = {10, 10}, .parent = unseen}, X11OpenStatus::unusable_parent},
        {{.size = {10, 4000}, .scale = 10.0}, X11OpenStatus::too_large},
        {{.size = {10, 10}}, X11OpenStatus::open},
    };
    for (const auto& [options, status] : kCases) {
        const auto opened = X11Window::open(options);
        EXPECT_EQ(opened.status, status);
        EXPECT_EQ(opened.window != nullptr, status == X11OpenStatus::open);
    }
}

TEST_F(X11Windows, ScaleIsTheDesktopsUnlessGiven)
{
    const auto set_resources = [this](std::string_view text) {
        display.set_property(display.root(), XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, text);
    };
    set_resources("Xft.dpi:\t192\n");
    EXPECT_EQ(Shown(loop).x11->scale(), 2.0);
    EXPECT_EQ(Shown(loop, {.scale = 1.0}).x11->scale(), 1.0);
    set_resources("");
    EXPECT_EQ(Shown(loop).x11->scale(), 1.0);
}

TEST_F(X11Windows, EmbeddedWindowLeavesFocusAndPixelFormatToItsHostWhoseEndIsToldOnceEvenInMidDrag)
{
    const xcb_window_t host = display.make_window({300, 200, 250, 180}, true);
    const xcb_window_t focus = display.focus();
    Shown shown(loop, {.parent = host});
    ASSERT_TRUE(settle(shown));
    display.move_to(311, 220);
    display.place(host, 305, 210); // of which the window is told by nobody
    display.press(1);
    display.move_to(315, 220);
    EXPECT_TRUE(turn_until([&] { return shown.view->has_heard("drag"); }));
    EXPECT_EQ(shown.x11->window().frame().origin(), (Point{305.0, kScreenHeight - 210.0 - 150.0}));
    EXPECT_EQ(display.focus(), focus);

    display.destroy(host);
    EXPECT_TRUE(turn_until([&] { return shown.lost == 1; }));
    shown.view->heard();
    const int paints = shown.view->paints;
    shown.view->set_needs_display();
    shown.x11->show_cursor(std::make_shared<Cursor>());
    EXPECT_FALSE(shown.x11->is_pending());
    EXPECT_EQ(shown.x11->file_descriptor(), -1);
    shown.x11->serve();
    loop.turn(Time{0});
    EXPECT_EQ(shown.lost, 1);
    EXPECT_EQ(shown.view->paints, paints);
    EXPECT_EQ(shown.view->heard(), "");
}

TEST_F(X11Windows, InAnotherProcessesWindowItHearsTheHandUntilThatProcessIsKilledInMidDrag)
{
    const std::unique_ptr<std::FILE, decltype(&::pclose)> other(
        ::popen("echo $$; exec xev -event property -bw 0 -geometry 250x180+300+200", "r"), ::pclose);
    int process = 0;
    unsigned host = 0;
    ASSERT_EQ(std::fscanf(other.get(), "%d Outer window is %x", &process, &host), 2);
    Shown shown(loop, {.parent = host});
    ASSERT_TRUE(settle(shown));
    display.move_to(311, 220);
    display.press(1);
    display.move_to(700, 900);
    EXPECT_TRUE(turn_until([&] { return shown.view->has_heard("drag"); }));
    ASSERT_EQ(::kill(process, SIGKILL), 0);
    EXPECT_TRUE(turn_until([&] { return shown.lost == 1; }));
}

TEST_F(X11Windows, CloseRequestMayDestroyTheWindow)
{
    Shown shown(loop, {.close_requested = [&shown] { shown.x11.reset(); }});
    ASSERT_TRUE(settle(shown));
    const std::weak_ptr<X11Window> watched = shown.x11;
    display.ask_to_close(shown.x11->native_id());
    EXPECT_TRUE(turn_until([&] { return watched.expired(); }));
    EXPECT_EQ(shown.view->window(), nullptr);
}

TEST_F(X11Windows, OnlyTheChangedPartIsSent)
{
    Shown shown(loop);
    ASSERT_TRUE(settle(shown));
    const Pixels before = shown.painted();
    const std::uint64_t sent = shown.x11->bytes_sent();
    shown.view->mark_x = 100.0; // more than is asked for
    shown.view->set_needs_display_in({5.0, 15.0, 40.0, 10.0});
    shown.view->set_needs_display_in({20.0, 20.0, 5.0, 10.0});
    EXPECT_EQ(shown.x11->bytes_sent(), sent) << "before the turn";
    EXPECT_TRUE(
        turn_until([&] { return shown.on_screen(display) == shown.painted() && shown.painted() != before; }));
    EXPECT_EQ(shown.view->paints, 2);
    EXPECT_EQ(shown.x11->bytes_sent() - sent, sizeof(xcb_put_image_request_t) + std::size_t{4} * 40 * 15);
    EXPECT_FALSE(shown.x11->is_pending());
}

TEST_F(X11Windows, UncoveredPartNeedsNoPaintAndAHiddenWindowSendsNothingUntilItIsSeen)
{
    Shown shown(loop);
    ASSERT_TRUE(settle(shown));
    display.destroy(display.make_window({280, 180, 60, 70}));
    EXPECT_NE(shown.on_screen(display), shown.painted());
    EXPECT_TRUE(turn_until([&] { return shown.on_screen(display) == shown.painted(); }));
    EXPECT_EQ(shown.view->paints, 1);

    display.show(shown.x11->native_id(), false);
    loop.turn(std::chrono::seconds(5));
    const std::uint64_t sent = shown.x11->bytes_sent();
    shown.view->mark_x = 100.0;
    shown.view->set_needs_display();
    loop.turn(std::chrono::seconds(5));
    EXPECT_EQ(shown.x11->bytes_sent(), sent);
    display.show(shown.x11->native_id(), true);
    EXPECT_TRUE(settle(shown, 500, 300));
}

TEST_F(X11Windows, PictureLargerThanARequestArrivesWhole)
{
    Shown shown(loop, {.size = {760.0, 690.0}, .scale = 3.0});
    ASSERT_GT(std::size_t{2280} * 2070 * 4, std::size_t{xcb_get_maximum_request_length(display.get())} * 4);
    EXPECT_TRUE(settle(shown, 0, 0));
}

// A square picture, empty but for a point at its lower left.
ImageRef corner_of(double size)
{
    return Image::painted({size, size}, [](Graphics& graphics) {
        const ColorRef color = Color::device_rgba(1.0, 0.4, 0.0, 0.5);
        graphics.fill_rect({0.0, 0.0, 1.0, 1.0}, color.get(), Compositing::source_over);
    });
}

TEST_F(X11Windows, CursorIsThePicturePixelByPixel)
{
    const CursorRef cursor = std::make_shared<Cursor>(Cursor{corner_of(24.0), {5.0, 4.0}});
    for (const double scale : {1.0, 2.0}) {
        Shown shown(loop, {.scale = scale});
        ASSERT_TRUE(settle(shown));
        display.move_to(320, 220);
        const ImagePixels expected = image_pixels(*cursor->image, scale);
        Pixels pixels(expected.bytes.size() / 4);
        std::memcpy(pixels.data(), expected.bytes.data(), expected.bytes.size());
        const int unit = static_cast<int>(scale);
        shown.x11->show_cursor(cursor);
        EXPECT_TRUE(turn_until([&] {
            return display.cursor() == Display::Cursor{24 * unit, 24 * unit, 5 * unit, 20 * unit, pixels};
        })) << scale;
    }
}

TEST_F(X11Windows, IconsAreStraightColoursInTheSizesThatThereAre)
{
    Shown shown(loop, {.icons = {corner_of(2.0), nullptr, corner_of(4096.0), corner_of(1.0)}});
    ASSERT_TRUE(settle(shown));
    const auto reply = display.ask<xcb_get_property_reply, xcb_get_property>(
        false, shown.x11->native_id(), display.atom("_NET_WM_ICON"), XCB_ATOM_CARDINAL, 0, 100);
    const auto* words = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    EXPECT_EQ(std::vector(words, words + reply->value_len),
              (std::vector<std::uint32_t>{2, 2, 0, 0, 0x80ff6600, 0, 1, 1, 0x80ff6600}));
}

TEST_F(X11Windows, ChildWindowLiesOverThePictureOnTheScreenOfACompositorToo)
{
    Shown shown(loop);
    Window child({310.0, 1760.0, 50.0, 50.0}, WindowStyle::borderless);
    child.background_color = Color::device_rgba(0.0, 1.0, 0.0, 0.5);
    ASSERT_TRUE(settle(shown));
    const auto is_on_screen = [&] {
        return display.pixels_of(display.root(), {300, 200, 200, 150}) == shown.painted();
    };
    EXPECT_TRUE(turn_until(is_on_screen));
    ASSERT_EQ(std::system("picom --backend xrender --config /dev/null >/dev/null 2>&1 &"), 0);
    ASSERT_TRUE(turn_until([&] { return display.owner("_NET_WM_CM_S0") != XCB_WINDOW_NONE; }));
    const Pixels before = shown.painted();
    shown.x11->window().add_child_window(child);
    EXPECT_TRUE(turn_until([&] { return shown.painted() != before && is_on_screen(); }));
    xcb_kill_client(display.get(), display.owner("_NET_WM_CM_S0"));
    EXPECT_TRUE(turn_until([&] { return display.owner("_NET_WM_CM_S0") == XCB_WINDOW_NONE; }));
}

} // namespace
} // namespace r7::testing_x11
