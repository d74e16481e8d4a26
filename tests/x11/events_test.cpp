// Real events of a real server: presses, drags and clicks.
#include "platform/x11/endless_screen.h"
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

TEST_F(X11Events, DragGoesOnPastTheScreensEdgesUnseenAndExact)
{
    const Display::Cursor arrow = display.cursor();
    const auto drag = [&](int dx, int dy, int moves) {
        for (int i = 0; i < moves; ++i) {
            display.move_by(dx, dy);
            if (i % 2 == 0) continue; // so that motions are under way while the pointer is brought back
            ASSERT_TRUE(turn_until([&] {
                constexpr int kEdge = X11EndlessScreen::kNearEdge;
                loop.turn(Time{0});
                const auto [x, y] = display.pointer();
                return x >= kEdge && x < kScreenWidth - kEdge && y >= kEdge && y < kScreenHeight - kEdge;
            }));
        }
    };
    std::ostringstream expected;
    expected << "down 11,129 by 0,0 x1\n";
    display.press(1);
    int x = 11, y = 129;
    for (const auto& [dx, dy, moves] : {std::array{-10, 0, 400}, {7, 10, 400}, {-5, 9, 100}}) {
        drag(dx, dy, moves);
        for (int i = 0; i < moves; ++i)
            expected << "drag " << (x += dx) << ',' << (y -= dy) << " by " << dx << ',' << dy << " x1\n";
    }
    const Display::Cursor hidden = display.cursor();
    EXPECT_EQ(hidden.pixels, Pixels(hidden.pixels.size())) << "over the screen, too";
    display.release(1);
    expected << "up " << x << ',' << y << " by 0,0 x1\n";
    EXPECT_TRUE(heard_until("\nup") == expected.str());
    const auto is_at = [this](int px, int py) {
        return turn_until([&] { return display.pointer() == std::pair(px, py); });
    };
    EXPECT_TRUE(is_at(0, kScreenHeight - 1)) << "where the hand is, on the screen";
    EXPECT_EQ(display.cursor(), arrow);

    // The next one's release never comes, for its window is hidden.
    display.move_to(311, 220);
    display.press(1);
    drag(-10, 0, 60);
    display.show(shown.x11->native_id(), false);
    EXPECT_TRUE(is_at(0, 220));
    display.release(1);
    display.show(shown.x11->native_id(), true);
    display.move_to(311, 220);
    EXPECT_EQ(display.cursor(), arrow);
}

TEST_F(X11Events, ClicksCountOnWithinTheDesktopsTimeAsItIsNow)
{
    using namespace std::string_literals;
    const xcb_atom_t settings = display.atom("_XSETTINGS_SETTINGS");
    const xcb_window_t manager = display.make_window({0, 0, 10, 10});
    xcb_set_selection_owner(display.get(), manager, display.atom("_XSETTINGS_S0"), XCB_CURRENT_TIME);
    ASSERT_EQ(display.owner("_XSETTINGS_S0"), manager);
    Shown other(loop);
    ASSERT_TRUE(settle(other, 600, 400));
    display.move_to(611, 420);
    for (const auto& [milliseconds, second] : {std::pair{"\x3c\0\0\0"s, "x1\ndown 31,129 by 0,0 x1\n"},
                                               {"\x88\x13\0\0"s, "x1\ndown 51,129 by 0,0 x2\n"}}) {
        display.set_property(manager, settings, settings, desktop_settings(milliseconds));
        display.move_by(20, 0);
        for (const std::uint32_t delay : {0U, 100U}) {
            display.press(1, delay);
            display.release(1);
        }
        EXPECT_TRUE(turn_until([&] { return other.view->has_heard(second); })) << other.view->heard();
    }
    display.destroy(manager);
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
