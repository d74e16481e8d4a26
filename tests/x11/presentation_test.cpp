// What the screen shows: the picture, its changed parts alone, and the cursor.
#include "platform/cairo/image_pixels.h"
#include "tests/x11/rig.h"

#include <xcb/xfixes.h>

namespace r7::testing_x11 {
namespace {

constexpr std::uint32_t kScribble = 0x123456;

struct X11Presentation : X11Test {};

// Whether exactly the pixels inside `part` are the picture's, and all others are the scribble.
bool only_that_was_sent(const Shown& shown, const Display& display, const PixelRect& part)
{
    const Pixels screen = shown.on_screen(display), picture = shown.painted();
    const int width = shown.x11->picture().width();
    for (std::size_t i = 0; i < picture.size(); ++i) {
        const int x = static_cast<int>(i) % width, y = static_cast<int>(i) / width;
        const bool inside = x >= part.x && x < part.x + part.width && y >= part.y && y < part.y + part.height;
        if (screen[i] != (inside ? picture[i] : kScribble)) return false;
    }
    return true;
}

TEST_F(X11Presentation, OnlyTheChangedPartIsSent)
{
    Shown shown(loop);
    ASSERT_TRUE(settle(shown));
    display.fill(shown.x11->native_id(), {0, 0, 200, 150}, kScribble);
    const std::uint64_t sent = shown.x11->bytes_sent();
    shown.view->set_needs_display_in({5.0, 15.0, 40.0, 10.0});
    shown.view->set_needs_display_in({20.0, 20.0, 5.0, 10.0});
    EXPECT_EQ(shown.x11->bytes_sent(), sent) << "before the turn";
    EXPECT_TRUE(turn_until([&] { return only_that_was_sent(shown, display, {5, 120, 40, 15}); }));
    EXPECT_EQ(shown.view->paints, 2);
    EXPECT_EQ(shown.x11->bytes_sent() - sent, sizeof(xcb_put_image_request_t) + std::size_t{4} * 40 * 15);
    EXPECT_FALSE(shown.x11->is_pending());
}

TEST_F(X11Presentation, UncoveredPartComesFromThePictureWithoutAPaint)
{
    Shown shown(loop);
    ASSERT_TRUE(settle(shown));
    const xcb_window_t cover = display.make_window({280, 180, 60, 70});
    display.destroy(cover);
    EXPECT_NE(shown.on_screen(display), shown.painted());
    EXPECT_TRUE(turn_until([&] { return shown.on_screen(display) == shown.painted(); }));
    EXPECT_EQ(shown.view->paints, 1);
}

TEST_F(X11Presentation, HiddenWindowSendsNothingUntilItIsSeenAgain)
{
    Shown shown(loop);
    ASSERT_TRUE(settle(shown));
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

TEST_F(X11Presentation, PictureLargerThanARequestArrivesWhole)
{
    Shown shown(loop, {.size = {760.0, 690.0}, .scale = 3.0});
    ASSERT_GT(std::size_t{2280} * 2070 * 4, std::size_t{xcb_get_maximum_request_length(display.get())} * 4);
    EXPECT_TRUE(settle(shown, 0, 0));
}

TEST_F(X11Presentation, IdleWindowSendsNothingAndWantsNothing)
{
    Shown shown(loop);
    ASSERT_TRUE(settle(shown));
    const std::uint64_t sent = shown.x11->bytes_sent();
    for (int turn = 0; turn < 3; ++turn) {
        EXPECT_FALSE(shown.x11->is_pending());
        EXPECT_EQ(shown.x11->due(), std::nullopt);
        loop.turn(Time{0});
    }
    EXPECT_EQ(shown.x11->bytes_sent(), sent);
    EXPECT_EQ(shown.view->paints, 1);
}

// The cursor that the screen shows, as the XFIXES extension reads it back.
struct ShownCursor {
    int width, height, hot_x, hot_y;
    Pixels pixels;
    bool operator==(const ShownCursor&) const = default;
};

ShownCursor cursor_on(const Display& display)
{
    xcb_connection_t* c = display.get();
    const XcbPointer<xcb_xfixes_query_version_reply_t> version(
        xcb_xfixes_query_version_reply(c, xcb_xfixes_query_version(c, 4, 0), nullptr));
    const XcbPointer<xcb_xfixes_get_cursor_image_reply_t> reply(
        xcb_xfixes_get_cursor_image_reply(c, xcb_xfixes_get_cursor_image(c), nullptr));
    const std::uint32_t* pixels = xcb_xfixes_get_cursor_image_cursor_image(reply.get());
    return {reply->width, reply->height, reply->xhot, reply->yhot,
            Pixels(pixels, pixels + xcb_xfixes_get_cursor_image_cursor_image_length(reply.get()))};
}

TEST_F(X11Presentation, CursorIsThePicturePixelByPixel)
{
    const auto image = Image::painted({24.0, 16.0}, [](Graphics& graphics) {
        const ColorRef red = Color::device_rgba(1.0, 0.0, 0.0, 0.5),
                       blue = Color::device_rgba(0.0, 0.0, 1.0, 1.0);
        graphics.fill_rect({2.0, 3.0, 10.0, 4.0}, red.get(), Compositing::source_over);
        graphics.fill_rect({12.0, 3.0, 1.0, 1.0}, blue.get(), Compositing::source_over);
    });
    const CursorRef cursor = std::make_shared<Cursor>(Cursor{image, {5.0, 4.0}});
    for (const double scale : {1.0, 2.0}) {
        Shown shown(loop, {.scale = scale});
        ASSERT_TRUE(settle(shown));
        display.move_to(320, 220);
        const ShownCursor arrow = cursor_on(display);

        const ImagePixels expected = image_pixels(*image, scale);
        Pixels pixels(expected.bytes.size() / 4);
        std::memcpy(pixels.data(), expected.bytes.data(), expected.bytes.size());
        const int unit = static_cast<int>(scale);
        shown.x11->show_cursor(cursor);
        EXPECT_TRUE(turn_until([&] {
            return cursor_on(display) == ShownCursor{24 * unit, 16 * unit, 5 * unit, 12 * unit, pixels};
        })) << scale;

        const std::uint64_t sent = shown.x11->bytes_sent();
        shown.x11->show_cursor(cursor);
        loop.turn(Time{0});
        EXPECT_EQ(shown.x11->bytes_sent(), sent) << "shown already";
        shown.x11->show_cursor(nullptr);
        EXPECT_TRUE(turn_until([&] { return cursor_on(display) == arrow; }));
    }
}

} // namespace
} // namespace r7::testing_x11
