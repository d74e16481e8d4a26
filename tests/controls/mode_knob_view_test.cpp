// The positions of mode knob and push switch, and the switch's pictures.
#include "controls/push_mode_knob_view.h"

#include "tests/controls/control_rig.h"

#include <fstream>
#include <unistd.h>

namespace r7 {
namespace {

TEST(ModeKnob, SelectionIsTheEntryAtTheValueRoundedDown)
{
    constexpr double kMost = 2147483647.0, kLeast = -2147483648.0;
    const double rows[][2] = {
        {0, 10},    {1.999, 20},          {2.7, 30},       {3, 3},           {-0.5, -1},
        {kNaN, 10}, {kMost + 0.5, kMost}, {kMost + 1, 10}, {kLeast, kLeast}, {kLeast - 0.5, 10},
    };
    QmModeKnobView knob({});
    knob.set_menu_map({10, 20, 30});
    knob.set_values_minimum_maximum_default_value(-1e300, 1e300, 0);
    for (const auto& [value, selection] : rows) {
        knob.set_current_value(value);
        EXPECT_EQ(knob.current_menu_selection(), selection) << value;
    }
    knob.set_menu_map({});
    EXPECT_EQ(knob.current_menu_selection(), -1) << "the only position of an empty map";
}

TEST(ModeKnob, LeftDoubleClickStepsRoundAndRightOneResets)
{
    ControlRig<QmModeKnobView> rig;
    rig.control->set_menu_map({7, 8, 9});
    rig.control->mouseDown({});
    EXPECT_TRUE(rig.control->mouse_is_down());
    for (const std::int32_t selection : {8, 9, 7, 8}) {
        rig.redraw_requested();
        rig.control->mouseDown({.click_count = 2});
        EXPECT_TRUE(rig.redraw_requested());
        EXPECT_EQ(rig.control->current_menu_selection(), selection);
    }
    rig.control->rightMouseDown({.click_count = 2});
    EXPECT_EQ(rig.control->current_menu_selection(), 7);
    EXPECT_EQ(rig.target->calls, 5);
}

using SwitchRig = ControlRig<QmR7PushModeKnobView>;

TEST(PushSwitch, EachPressStepsByItsHalfRoundTheEnds)
{
    const double rows[][5] = {
        // point in the view (100 by 80), value before and after, and state
        {10, 40, 3, 2, -1},      {10, 40, 0, 5, -1}, {10, 40, 0.5, 5, -1}, {10, 40, kNaN, 5, -1},
        {49.99, 0, 3, 2, -1},    {50, 40, 3, 4, 1},  {90, 40, 5, 0, 1},    {90, 40, 4.5, 0, 1},
        {90, 40, kNaN, kNaN, 1}, {100, 40, 3, 3, 0}, {50, 80, 3, 3, 0},    {-0.01, 40, 3, 3, 0},
    };
    for (const auto& [x, y, from, to, state] : rows) {
        SwitchRig rig;
        rig.control->set_menu_map({0, 1, 2, 3, 4, 5});
        rig.control->set_current_value(from);
        rig.control->set_frame({30, 20, 400, 80}); // the halves stay those of the first frame
        rig.redraw_requested();
        rig.control->mouseDown({.location_in_window = {x + 30, y + 20}, .click_count = 2});
        EXPECT_TRUE(rig.redraw_requested());
        rig.control->mouseDragged({.delta_x = 50});
        EXPECT_EQ(rig.control->state(), state) << x;
        rig.control->mouseUp({});
        EXPECT_TRUE(rig.redraw_requested());
        EXPECT_EQ(rig.control->state(), 0);
        EXPECT_EQ(text_of(rig.control->current_value()), text_of(to));
        EXPECT_EQ(rig.target->calls, 1);
    }
}

TEST(PushSwitch, PicturesFillItAndAreReplacedEachByItsOwnFile)
{
    const std::filesystem::path directory = testing::TempDir() + "r7-" + std::to_string(getpid());
    std::filesystem::create_directories(directory);
    for (const char* name : {"1", "2", "3", "4", "text"}) std::ofstream(directory / name) << name;
    using Name = std::optional<std::string>;
    const struct {
        Name left, flat, right;
        std::string shown[3]; // with the left half held, at rest, and with the right half held
    } rows[] = {
        {"1", "2", "3", {"1x8", "2x8", "3x8"}},
        {"missing", "missing", {}, {"1x8", "2x8", "3x8"}},
        {"4", "text", {}, {"4x8", "none", "3x8"}},
        // A file for the right slot lets the left picture go, even if it is missing.
        {{}, "2", "missing", {"none", "2x8", "3x8"}},
        {"1", {}, "4", {"none", "2x8", "4x8"}},
    };
    SwitchRig rig;
    const auto path = [&](const Name& name) {
        return name ? std::optional(directory / *name) : std::nullopt;
    };
    for (const auto& row : rows) {
        rig.control->set_image_urls_left_flat_right(path(row.left), path(row.flat), path(row.right));
        for (const int i : {0, 1, 2}) {
            rig.control->mouseDown({.location_in_window = {40.0 + 40 * i, i == 1 ? 0.0 : 50.0}});
            EXPECT_EQ(rig.drawn(), "draw_image_in_rect " + row.shown[i] + " in 0,0,100,80 over 1");
        }
    }
    std::filesystem::remove_all(directory);
}

} // namespace
} // namespace r7
