// Real events of a real server: presses, drags and clicks.
#include "tests/x11/rig.h"

#include <poll.h>

namespace r7::testing_x11 {
namespace {

struct X11Events : X11Test {
    Shown shown{loop};

    void SetUp() override
    {
        ASSERT_TRUE(settle(shown));
        display.move_to(311, 220);
    }
    // What is heard until that word is among it.
    std::string heard_until(std::string_view word)
    {
        EXPECT_TRUE(turn_until([&] { return shown.view->has_heard(word); })) << word;
        return shown.view->heard();
    }
};

TEST_F(X11Events, FirstPressedOfTwoButtonsDragsEvenOutsideTheWindow)
{
    display.press(3);
    display.press(1);
    display.move_to(315, 210);
    display.release(3);
    display.move_to(290, 390);
    display.release(1);
    EXPECT_EQ(heard_until("\nup"), "right down 11,129 by 0,0 x1\n"
                                   "down 11,129 by 0,0 x1\n"
                                   "right drag 15,139 by 4,-10 x1\n"
                                   "right up 15,139 by 0,0 x1\n"
                                   "drag -10,-41 by -25,180 x1\n"
                                   "up -10,-41 by 0,0 x1\n");
}

TEST_F(X11Events, DragGoesOnPastTheScreensEdgesUnseenAndExact)
{
    const Display::Cursor arrow = display.cursor();
    std::ostringstream expected;
    expected << "down 11,129 by 0,0 x1\n";
    display.press(1);
    int x = 11, y = 129;
    for (const auto& [dx, dy, moves] : {std::array{-10, 0, 400}, {7, 10, 401}, {-5, 9, 100}}) {
        for (int i = 0; i < moves; ++i) {
            display.move_by(dx, dy);
            if (i % 2) loop.turn(Time{0}); // some motions are under way while the pointer is brought back
            x += dx;
            y -= dy;
            expected << "drag " << x << ',' << y << " by " << dx << ',' << dy << " x1\n";
        }
    }
    const Display::Cursor hidden = display.cursor();
    EXPECT_EQ(hidden.pixels, Pixels(hidden.pixels.size())) << "over the screen, too";
    display.release(1);
    expected << "up " << x << ',' << y << " by 0,0 x1\n";
    EXPECT_EQ(heard_until("\nup"), expected.str());
    EXPECT_EQ(display.pointer(), std::pair(0, kScreenHeight - 1)) << "where the hand is, on the screen";
    EXPECT_EQ(display.cursor(), arrow);

    // The end of the next drag never comes: its window is hidden.
    display.move_to(311, 220);
    display.press(1);
    for (int i = 0; i < 60; ++i, loop.turn(Time{0})) display.move_by(-10, 0);
    display.show(shown.x11->native_id(), false);
    EXPECT_TRUE(turn_until([&] { return display.pointer() == std::pair(0, 220); }));
    display.release(1);
    display.show(shown.x11->native_id(), true);
    ASSERT_TRUE(settle(shown));
    shown.view->heard();
    display.move_to(311, 220);
    EXPECT_EQ(display.cursor(), arrow);
    display.press(1);
    EXPECT_EQ(heard_until("down"), "down 11,129 by 0,0 x1\n");
}

TEST_F(X11Events, ClicksCountOnWithinTheDesktopsTimeAsItIsNow)
{
    const xcb_atom_t settings = display.atom("_XSETTINGS_SETTINGS");
    const xcb_window_t manager = display.make_window({0, 0, 10, 10});
    xcb_set_selection_owner(display.get(), manager, display.atom("_XSETTINGS_S0"), XCB_CURRENT_TIME);
    display.set_property(manager, settings, settings, desktop_settings(true, 60));
    Shown other(loop);
    ASSERT_TRUE(settle(other, 600, 400));
    display.move_to(611, 420);
    for (const auto& [time, clicks] : {std::pair{60U, "x1\n"}, {5000U, "x2\n"}}) {
        display.move_by(20, 0);
        display.set_property(manager, settings, settings, desktop_settings(false, time));
        for (const std::uint32_t delay : {0U, 100U}) {
            display.press(1, delay);
            display.release(1);
            EXPECT_TRUE(turn_until([&] { return other.view->has_heard("up"); }));
            EXPECT_TRUE(other.view->has_heard(delay ? clicks : "x1\n")) << time;
            other.view->heard();
        }
    }
    display.destroy(manager);
}

TEST_F(X11Events, PixelsAreHalfPointsAtTwiceTheScale)
{
    Shown fine(loop, {.scale = 2.0});
    ASSERT_TRUE(settle(fine, 600, 400));
    display.move_to(600, 400);
    display.press(1);
    display.move_to(999, 699);
    display.release(1);
    ASSERT_TRUE(turn_until([&] { return fine.view->has_heard("up"); }));
    EXPECT_EQ(fine.view->heard(), "down 0,149.5 by 0,0 x1\n"
                                  "drag 199.5,0 by 199.5,149.5 x1\n"
                                  "up 199.5,0 by 0,0 x1\n");
    EXPECT_EQ(shown.view->heard(), "") << "the other window of this process";
}

TEST_F(X11Events, IdleWindowIsWokenByNobodyAndSendsNothing)
{
    const std::uint64_t sent = shown.x11->bytes_sent();
    display.move_to(320, 230);
    display.move_to(330, 240);
    pollfd file{shown.x11->file_descriptor(), POLLIN, 0};
    EXPECT_EQ(poll(&file, 1, 0), 0);
    EXPECT_FALSE(shown.x11->is_pending());
    EXPECT_EQ(shown.x11->due(), std::nullopt);
    loop.turn(Time{0});
    EXPECT_EQ(shown.x11->bytes_sent(), sent);
    EXPECT_EQ(shown.view->paints, 1);
}

} // namespace
} // namespace r7::testing_x11
