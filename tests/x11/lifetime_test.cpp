// Opening, embedding, closing, and everything that can go away under a window.
#include "tests/x11/rig.h"

#include <unistd.h>

namespace r7::testing_x11 {
namespace {

struct X11Lifetime : X11Test {};

TEST_F(X11Lifetime, WindowThatCannotBeOpenedSaysWhy)
{
    const PrivateServer shallow("640x480x8");
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
        {{.size = {10, 10}, .display = shallow.name()}, X11OpenStatus::no_usable_visual},
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

TEST_F(X11Lifetime, ScaleIsTheDesktopsUnlessGiven)
{
    display.set_resources("Xft.dpi:\t192\n");
    EXPECT_EQ(Shown(loop).x11->scale(), 2.0);
    EXPECT_EQ(Shown(loop, {.scale = 1.0}).x11->scale(), 1.0);
    display.set_resources("");
    EXPECT_EQ(Shown(loop).x11->scale(), 1.0);
}

TEST_F(X11Lifetime, WindowManagerIsToldNameProcessAndFixedSize)
{
    const Shown shown(loop, {.scale = 2.0, .title = "Größe", .class_name = "panel"});
    const xcb_window_t id = shown.x11->native_id();
    EXPECT_EQ(display.property(id, display.atom("_NET_WM_NAME")), "Größe");
    EXPECT_EQ(display.property(id, XCB_ATOM_WM_CLASS), std::string("panel\0panel\0", 12));
    const auto words = [&](xcb_atom_t name) {
        const std::string bytes = display.property(id, name);
        std::vector<std::uint32_t> all(bytes.size() / 4);
        std::memcpy(all.data(), bytes.data(), all.size() * 4);
        return all;
    };
    EXPECT_EQ(words(display.atom("_NET_WM_PID")), std::vector{static_cast<std::uint32_t>(getpid())});
    EXPECT_NE(display.property(id, XCB_ATOM_WM_CLIENT_MACHINE), "");
    const std::vector<std::uint32_t> hints{0x30, 0, 0, 0, 0, 400, 300, 400, 300};
    const auto told = words(XCB_ATOM_WM_NORMAL_HINTS);
    ASSERT_EQ(told.size(), 18U);
    EXPECT_TRUE(std::equal(hints.begin(), hints.end(), told.begin()));
}

TEST_F(X11Lifetime, EmbeddedWindowLeavesFocusAndPixelFormatToItsHost)
{
    const xcb_window_t host = display.make_window({300, 200, 250, 180}, true);
    const xcb_window_t focus = display.focus();
    Shown shown(loop, {.parent = host});
    ASSERT_TRUE(settle(shown));
    display.move_to(311, 220);
    display.click(1);
    EXPECT_TRUE(turn_until([&] { return shown.view->has_heard("up"); }));
    EXPECT_EQ(shown.view->heard(), "down 11,129 by 0,0 x1\nup 11,129 by 0,0 x1\n");
    EXPECT_EQ(display.focus(), focus);
    display.destroy(host);
    EXPECT_TRUE(turn_until([&] { return shown.lost == 1; }));
    EXPECT_EQ(shown.x11->file_descriptor(), -1);
}

TEST_F(X11Lifetime, OneOfTwoWindowsMayGo)
{
    Shown stays(loop), goes(loop);
    ASSERT_TRUE(settle(stays) && settle(goes, 600, 200));
    goes.x11.reset();
    display.move_to(311, 220);
    display.click(1);
    EXPECT_TRUE(turn_until([&] { return stays.view->has_heard("up"); }));
    EXPECT_EQ(stays.on_screen(display), stays.painted());
}

TEST_F(X11Lifetime, CloseRequestMayDestroyTheWindow)
{
    Shown shown(loop, {.close_requested = [&shown] { shown.x11.reset(); }});
    ASSERT_TRUE(settle(shown));
    const std::weak_ptr<X11Window> watched = shown.x11;
    display.ask_to_close(shown.x11->native_id());
    EXPECT_TRUE(turn_until([&] { return watched.expired(); }));
    EXPECT_EQ(shown.view->window(), nullptr);
}

TEST_F(X11Lifetime, ServerKilledInMidDragIsToldOnceAndLeavesAnIdleWindow)
{
    PrivateServer server("800x600x24");
    const Display mouse(server.name());
    Shown shown(loop, {.display = server.name()});
    ASSERT_TRUE(turn_until([&] { return shown.on_screen(mouse) == shown.painted(); }));
    mouse.move_to(11, 20);
    mouse.press(1);
    mouse.move_to(15, 20);
    ASSERT_TRUE(turn_until([&] { return shown.view->has_heard("drag"); }));

    server.kill_it();
    shown.view->set_needs_display();
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

} // namespace
} // namespace r7::testing_x11
