// Counting clicks by time and distance, and the desktop's settings: what needs no display.
#include "platform/x11/desktop_settings.h"
#include "platform/x11/endless_screen.h"
#include "tests/x11/rig.h"

namespace r7 {
namespace {

using namespace std::string_literals;

constexpr std::uint16_t kHeld1 = 0x100;

X11Pointer at(int x, std::uint32_t time, std::uint16_t state = 0)
{
    return {x, 10, x, 10, time, state};
}

TEST(X11PointerTracker, CountsClicksThatAreCloseInTimeAndPlace)
{
    struct Step {
        std::uint8_t button;
        int x;              // pixels, two for a point
        std::uint32_t time; // milliseconds
        int clicks;
    };
    constexpr std::uint32_t kLast = 0xffffffff;
    const std::vector<std::vector<Step>> kCases = {
        {{1, 50, 1000, 1}, {1, 50, 1400, 2}, {1, 50, 1800, 3}, {1, 50, 2200, 4}},
        {{1, 50, 1000, 1}, {1, 50, 1401, 1}, {1, 50, 1801, 2}},
        {{1, 50, kLast - 100, 1}, {1, 50, 200, 2}, {1, 50, 601, 1}},
        {{1, 50, 0, 1}, {1, 58, 0, 2}, {1, 66, 0, 3}, {1, 75, 0, 1}},
        {{1, 50, 0, 1}, {3, 50, 10, 1}, {3, 50, 20, 2}, {1, 50, 30, 1}},
        {{1, 50, 0, 1}, {2, 50, 10, 0}, {4, 50, 20, 0}, {1, 50, 30, 2}},
    };
    for (const auto& steps : kCases) {
        X11PointerTracker tracker(100, 2.0);
        for (const Step& step : steps) {
            const auto press = tracker.press(step.button, at(step.x, step.time));
            EXPECT_EQ(press ? press->event.click_count : 0, step.clicks) << step.x << " at " << step.time;
            const auto release = tracker.release(step.button, at(step.x, step.time));
            EXPECT_EQ(release ? release->event.click_count : 0, step.clicks);
        }
    }
}

TEST(X11PointerTracker, DragThatStraysEndsTheCountEvenWhenItComesBack)
{
    for (const auto& [strayed_to, clicks] : {std::pair{58, 2}, {59, 1}}) {
        X11PointerTracker tracker(100, 2.0);
        tracker.press(1, at(50, 0));
        tracker.move(at(strayed_to, 10, kHeld1));
        tracker.move(at(50, 20, kHeld1));
        tracker.release(1, at(50, 30, kHeld1));
        EXPECT_EQ(tracker.press(1, at(50, 40))->event.click_count, clicks);
    }
}

TEST(X11PointerTracker, MotionBelongsToTheButtonsThatTheDisplaySaysAreHeld)
{
    constexpr std::uint16_t kHeld3 = 0x400;
    X11PointerTracker tracker(100, 2.0);
    EXPECT_FALSE(tracker.move(at(50, 0)));
    tracker.press(3, at(50, 0));
    // Its release never came: another program took the pointer meanwhile.
    const auto press = tracker.press(1, at(70, 10));
    EXPECT_EQ(press->event.delta_x, 0.0);
    EXPECT_EQ(press->event.location_in_window, (Point{35.0, 44.5})) << "pixels are half points";
    EXPECT_EQ(tracker.move(at(71, 20, kHeld1))->event.delta_x, 0.5);
    EXPECT_FALSE(tracker.move(at(71, 20, kHeld1))) << "it stands still";
    EXPECT_EQ(tracker.move(at(72, 20, kHeld1 | kHeld3))->button, MouseButton::primary);
    EXPECT_EQ(tracker.move(at(73, 20, kHeld3))->button, MouseButton::secondary);
}

TEST(X11PointerTracker, ModifiersAreNamed)
{
    constexpr Modifiers kOption = Modifiers::option;
    const std::pair<int, Modifiers> kCases[] = {
        {XCB_MOD_MASK_SHIFT, Modifiers::shift},
        {XCB_MOD_MASK_CONTROL, Modifiers::control},
        {XCB_MOD_MASK_1, kOption},
        {XCB_MOD_MASK_4, kOption},
        {XCB_MOD_MASK_5 | XCB_MOD_MASK_SHIFT, kOption | Modifiers::shift},
        {XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2 | XCB_MOD_MASK_3, Modifiers::none},
    };
    for (const auto& [state, modifiers] : kCases) {
        X11PointerTracker tracker(100, 1.0);
        EXPECT_EQ(tracker.press(1, at(50, 0, static_cast<std::uint16_t>(state)))->event.modifiers, modifiers);
    }
}

TEST(X11EndlessScreen, EdgesAreThoseOfTheMonitor)
{
    const auto comes_back_from = [](int x, int y) {
        X11EndlessScreen screen;
        screen.begin({1000, 500, 600, 400});
        screen.follow({.root_x = 1300, .root_y = 700});
        screen.follow({.root_x = x, .root_y = y});
        const auto place = screen.bring_back();
        return place && place->x == 1300 && place->y == 700;
    };
    for (const auto& [x, y] : {std::pair{1048, 700}, {1551, 700}, {1300, 548}, {1300, 851}})
        EXPECT_FALSE(comes_back_from(x, y)) << x << ',' << y;
    for (const auto& [x, y] : {std::pair{1047, 700}, {1552, 700}, {1300, 547}, {1300, 852}})
        EXPECT_TRUE(comes_back_from(x, y)) << x << ',' << y;
}

TEST(X11DesktopSettings, DoubleClickTimeIsFoundInWholeBytesOnly)
{
    const std::string lowest_first = testing_x11::desktop_settings("\x5e\1\0\0"s);
    const std::string highest_first =
        "\1\0\0\0\0\0\0\7\0\0\0\1\0\0\0\23Net/DoubleClickTime\0\0\0\0\7\0\0\1\x5e"s;
    for (const std::string& bytes : {lowest_first, highest_first}) {
        EXPECT_EQ(double_click_time_of(bytes), std::chrono::milliseconds(350));
        for (std::size_t size = 0; size < bytes.size(); ++size)
            EXPECT_EQ(double_click_time_of({bytes.data(), size}), std::nullopt) << size;
    }
    for (const std::string& refused : {"\x31\0\0\0"s, "\x89\x13\0\0"s, "\xff\xff\xff\xff"s})
        EXPECT_EQ(double_click_time_of(testing_x11::desktop_settings(refused)), std::nullopt);
    std::string unknown = lowest_first;
    unknown[12] = 3; // the first one's type
    EXPECT_EQ(double_click_time_of(unknown), std::nullopt);
    EXPECT_EQ(double_click_time_of(std::string(12, '\xff')), std::nullopt);
}

TEST(X11DesktopSettings, ScaleIsTheDensitySettingOverNinetySix)
{
    const std::pair<std::string_view, double> kCases[] = {
        {"", 1.0},
        {"Xft.dpi:\t192\n", 2.0},
        {"*background: grey\nXft.dpi:120\nXft.hinting: 1", 1.25},
        {"XXft.dpi: 144\nxterm.Xft.dpi: 144\n", 1.0},
        {"Xft.dpi:\nXft.dpi: many\n", 1.0},
        {"Xft.dpi: nan\n", 1.0},
        {"Xft.dpi: -192\n", 1.0},
        {"Xft.dpi: 1e9\n", 1.0},
    };
    for (const auto& [resources, scale] : kCases) EXPECT_EQ(desktop_scale_of(resources), scale) << resources;
}

} // namespace
} // namespace r7
