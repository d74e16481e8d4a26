// Counting clicks by time and distance, and the desktop's settings: what needs no display.
#include "platform/x11/desktop_settings.h"
#include "tests/x11/rig.h"

#include <tuple>

namespace r7 {
namespace {

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
    X11PointerTracker tracker(100, 1.0);
    EXPECT_FALSE(tracker.move(at(50, 0)));
    tracker.press(3, at(50, 0));
    // Its release never came: another program took the pointer meanwhile.
    const auto press = tracker.press(1, at(70, 10));
    EXPECT_EQ(press->event.delta_x, 0.0);
    EXPECT_EQ(tracker.move(at(71, 20, kHeld1))->button, MouseButton::primary);
    EXPECT_FALSE(tracker.move(at(71, 20, kHeld1))) << "it stands still";
    EXPECT_EQ(tracker.move(at(72, 20, kHeld1 | kHeld3))->button, MouseButton::primary);
    EXPECT_EQ(tracker.move(at(73, 20, kHeld3))->button, MouseButton::secondary);
}

TEST(X11PointerTracker, ModifiersAndTheWheelsDirectionsAreNamed)
{
    constexpr Modifiers kNone{}, kOption = Modifiers::option;
    const struct {
        std::uint8_t button;
        int state;
        double dx, dy;
        Modifiers modifiers;
    } kCases[] = {
        {4, 0, 0.0, 1.0, kNone},
        {5, XCB_MOD_MASK_SHIFT, 0.0, -1.0, Modifiers::shift},
        {6, XCB_MOD_MASK_CONTROL, -1.0, 0.0, Modifiers::control},
        {7, XCB_MOD_MASK_1, 1.0, 0.0, kOption},
        {4, XCB_MOD_MASK_4, 0.0, 1.0, kOption},
        {4, XCB_MOD_MASK_5 | XCB_MOD_MASK_SHIFT, 0.0, 1.0, kOption | Modifiers::shift},
        {4, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2 | XCB_MOD_MASK_3, 0.0, 1.0, kNone},
    };
    const X11PointerTracker tracker(100, 1.0);
    for (const auto& [button, state, dx, dy, modifiers] : kCases) {
        const auto notch = tracker.scroll(button, at(50, 0, static_cast<std::uint16_t>(state)));
        ASSERT_TRUE(notch);
        EXPECT_EQ((std::tuple{notch->delta_x, notch->delta_y, notch->modifiers}),
                  (std::tuple{dx, dy, modifiers}))
            << state;
    }
}

TEST(X11DesktopSettings, DoubleClickTimeIsFoundInWholeBytesOnly)
{
    using std::chrono::milliseconds;
    for (const bool highest_first : {false, true}) {
        const std::string bytes = testing_x11::desktop_settings(highest_first, 350);
        EXPECT_EQ(double_click_time_of(bytes), milliseconds(350));
        for (std::size_t size = 0; size < bytes.size(); ++size)
            EXPECT_EQ(double_click_time_of({bytes.data(), size}), std::nullopt) << size;
        for (const std::uint32_t refused : {0U, 49U, 5001U, ~0U})
            EXPECT_EQ(double_click_time_of(testing_x11::desktop_settings(highest_first, refused)),
                      std::nullopt);
    }
    std::string unknown = testing_x11::desktop_settings(false, 350);
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
