// The knob's values, gestures and drawing.
#include "controls/knob_view.h"

#include "tests/controls/control_rig.h"

namespace r7 {
namespace {

using KnobRig = ControlRig<QmKnobView>;

TEST(Knob, GesturesStepInSinglePrecisionAndAreToldEachOnce)
{
    const auto down = &View::mouseDown, right_down = &View::rightMouseDown;
    const auto drag = &View::mouseDragged, right_drag = &View::rightMouseDragged;
    // Three points tell two roundings (0.0150000006) from one (0.0149999997).
    const float step = 0.15f, fine_step = static_cast<float>(0.15f * 0.1);
    const struct {
        void (View::*gesture)(const MouseEvent&);
        MouseEvent event;
        double value; // from 0.5
        bool told, held;
    } rows[] = {
        {down, {}, 0.5, false, true},
        {down, {.click_count = 2}, 0.25, true, false},
        {down, {.click_count = 3}, 0.5, false, true},
        {right_down, {}, 0.5, false, true},
        {right_down, {.click_count = 2}, 0.25, true, false},
        {drag, {.delta_x = 3}, 0.5 + step, true, true},
        {drag, {.delta_y = 3}, 0.5 - step, true, true},
        {drag, {.delta_x = 10, .delta_y = 10}, 0.5, true, true},
        {drag, {.delta_x = -11}, 0.0, true, true},
        {drag, {.delta_x = 3, .modifiers = Modifiers::shift}, 0.5 + step, true, true},
        {drag, {.delta_x = 10, .modifiers = Modifiers::control}, 0.5 + 0.05f, true, true},
        {drag, {.delta_x = 3, .modifiers = Modifiers::control}, 0.5 + fine_step, true, true},
        {right_drag, {.delta_x = 3}, 0.5 + fine_step, true, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        KnobRig rig;
        rig.control->set_values_minimum_maximum_default_value(0.0, 1.0, 0.25);
        rig.control->set_current_value(0.5);
        rig.redraw_requested();
        (rig.control.get()->*row.gesture)(row.event);
        EXPECT_TRUE(rig.redraw_requested());
        EXPECT_EQ(rig.control->current_value(), row.value);
        // A scroll is told too, goes at full speed, and leaves the button as it is.
        rig.control->scrollWheel({.delta_x = 9, .delta_y = 3, .modifiers = Modifiers::control});
        EXPECT_TRUE(rig.redraw_requested());
        EXPECT_EQ(rig.control->current_value(), row.value + step);
        EXPECT_EQ(rig.control->mouse_is_down(), row.held);
        rig.control->rightMouseUp({});
        EXPECT_TRUE(rig.redraw_requested());
        EXPECT_FALSE(rig.control->mouse_is_down());
        EXPECT_EQ(rig.target->calls, row.told ? 2 : 1);
    }
}

TEST(Knob, ProgramSetsRangeAndValueInOrderAndTellsNobody)
{
    const double rows[][8] = {
        // minimum, maximum, default and value as given to a knob at 0, and as they then are
        {0, 2, 1, 7, 0, 2, 1, 2},          {1, 2, 5, -7, 1, 2, 2, 1},
        {0, -1, 5, 0, -1, -1, -1, -1},     {-3, -2, -9, kNaN, -3, -2, -3, kNaN},
        {kNaN, 3, 0, kNaN, 3, 3, 3, kNaN}, {0, kNaN, 7, 5, kNaN, kNaN, 7, 5},
    };
    for (const auto& row : rows) {
        KnobRig rig;
        rig.control->set_values_minimum_maximum_default_value(row[0], row[1], row[2]);
        EXPECT_TRUE(rig.redraw_requested());
        EXPECT_FALSE(rig.control->current_value() < row[4] || rig.control->current_value() > row[5]);
        rig.control->set_current_value(row[3]);
        EXPECT_TRUE(rig.redraw_requested());
        const double stored[] = {rig.control->minimum_value(), rig.control->maximum_value(),
                                 rig.control->default_value(), rig.control->current_value()};
        for (int i = 0; i < 4; ++i) EXPECT_EQ(text_of(stored[i]), text_of(row[4 + i])) << i;
        EXPECT_EQ(rig.target->calls, 0);
    }
}

TEST(Knob, MarkerSweepsClockwiseFromLowerLeftAndShowsWhetherItIsHeld)
{
    const ImageRef on = fake_image(8, 8), off = fake_image(6, 4), none;
    const struct {
        double value, inset;
        ImageRef on, off;
        bool held;
        std::string marker;
    } rows[] = {
        {0.0, 0.25, none, off, false, "draw_image 6x4 at 36.3933983,32.3933983 over 1"},
        {0.5, 0.25, none, off, true, "draw_image 6x4 at 47,58 over 1"},
        {1.0, 0.50, on, off, false, "draw_image 6x4 at 54.0710678,35.9289322 over 1"},
        {0.5, 0.00, on, off, true, "draw_image 8x8 at 46,61 over 1"},
        {0.5, 0.25, on, none, false, "fill 0,0,0,1 from 51.5,60"}, // the right end of a dot
        {kNaN, 0.25, none, off, false, "draw_image 6x4 at nan,nan over 1"},
    };
    KnobRig rig;
    rig.control->set_knob_image(nullptr);
    EXPECT_FALSE(rig.redraw_requested());
    EXPECT_EQ(rig.drawn(), "");
    rig.control->set_knob_image(fake_image(40, 30)); // taken as round: the marker goes round 50,45
    for (const auto& row : rows) {
        rig.control->set_current_value(row.value);
        rig.control->set_percent_inset_for_marker(row.inset);
        rig.control->set_marker_image_on_off(row.on, row.off);
        row.held ? rig.control->mouseDown({}) : rig.control->mouseUp({});
        EXPECT_EQ(rig.drawn(), "draw_image 40x30 at 30,25 over 1; " + row.marker);
    }
    rig.control->set_current_value(0.0);
    rig.control->set_values_minimum_maximum_default_value(1.0, 1.0, 1.0);
    EXPECT_EQ(rig.drawn(), "draw_image 40x30 at 30,25 over 1; " + std::end(rows)[-1].marker);
}

TEST(Knob, MayBeDestroyedInsideItsOwnCallback)
{
    struct Wrecker final : ActionTarget {
        std::shared_ptr<Window> window;
    };
    KnobRig rig;
    const auto wrecker = std::make_shared<Wrecker>();
    wrecker->window = rig.window;
    rig.control->set_callback_onObject(
        [](ActionTarget& own, View&) { static_cast<Wrecker&>(own).window->set_content_view(nullptr); },
        wrecker);
    const std::weak_ptr<View> knob = std::exchange(rig.control, nullptr);
    rig.window->press(MouseButton::primary, {.location_in_window = {80, 60}, .click_count = 2});
    EXPECT_TRUE(knob.expired());
}

} // namespace
} // namespace r7
