// The zoomed curve editor in a user's hand.
#include "tests/waveshaper/rig.h"

#include <gtest/gtest.h>

#include <limits>

namespace r7 {
namespace {

using enum CurvePoint;

constexpr Point kCloseButton{375, 20}, kZoomButton{375, 50}, kLinearButton{375, 80};

/// A digit for each point that is picked, the zero point's first.
std::string picks(const EditorRig& rig)
{
    std::string digits;
    for (std::size_t i = 0; i < kCurvePoints; ++i)
        digits += rig.view.is_moving(static_cast<CurvePoint>(i)) ? '1' : '0';
    return digits;
}

TEST(WaveShaperEditor, PicksThePointInWhoseSquareThePressLies)
{
    const struct {
        CurvePoint point;
        double dx, dy;
        const char* picked;
    } kRows[] = {
        {positive_mid_c1_point, 0, 0, "0100000"},
        {positive_mid_c2_point, 2.4, -2.4, "0010000"},
        {positive_end_c1_point, 0, 0, "0000100"},
        {positive_end_c2_point, 0, 0, "0000010"},
        {positive_end_point, -2.5, -2.5, "0000001"},
        {positive_end_point, 2.5, 0, "0000000"},
        {positive_end_point, 0, 2.5, "0000000"},
        {positive_end_point, -2.6, 0, "0000000"},
        {zero_point, 0, 0, "0000000"},
        {positive_mid_point, 0, 0, "0000000"},
    };
    for (const auto& row : kRows) {
        EditorRig rig;
        const Point place = rig.place(row.point);
        rig.view.mouseDown(rig.at({place.x + row.dx, place.y + row.dy}));
        EXPECT_EQ(picks(rig), row.picked);
        EXPECT_TRUE(rig.view.mouse_is_down());
        rig.view.mouseUp({});
        EXPECT_EQ(picks(rig), "0000000");
        EXPECT_FALSE(rig.view.mouse_is_down());
    }
}

TEST(WaveShaperEditor, DragsByTheMotionTimesItsScaleAndTheKeysHeld)
{
    constexpr auto none = Modifiers::none, control = Modifiers::control, shift = Modifiers::shift,
                   option = Modifiers::option;
    const struct {
        bool secondary;
        Modifiers held;
        double dx, dy;
    } kRows[] = {
        {false, none, 0.2, -0.1},  {false, control, 0.02, -0.01}, {false, shift, 0, -0.1},
        {false, option, 0.2, 0},   {false, shift | option, 0, 0}, {false, control | shift, 0, -0.01},
        {true, none, 0.02, -0.01}, {true, control, 0.02, -0.01},  {true, option, 0.02, 0},
    };
    for (const auto& row : kRows) {
        EditorRig rig;
        const MouseEvent press = rig.at(rig.place(positive_end_point)), drag = rig.motion(20, 10, row.held);
        row.secondary ? rig.view.rightMouseDown(press) : rig.view.mouseDown(press);
        row.secondary ? rig.view.rightMouseDragged(drag) : rig.view.mouseDragged(drag);
        EXPECT_EQ(rig.amplitudes(positive_end_point).x, static_cast<float>(1 + row.dx));
        EXPECT_EQ(rig.amplitudes(positive_end_point).y, static_cast<float>(1 + row.dy));
        EXPECT_EQ(rig.owner->updates, 1);
    }
}

TEST(WaveShaperEditor, KeepsADragWithinTheLimitsAndIsWellAfterANaN)
{
    EditorRig rig;
    rig.view.mouseDown(rig.at(rig.place(positive_end_point)));
    rig.view.mouseDragged(rig.motion(5000, 5000));
    EXPECT_EQ(rig.amplitudes(positive_end_point), (Point{2, -2}));
    rig.view.mouseDragged(rig.motion(-5000, -5000));
    EXPECT_EQ(rig.amplitudes(positive_end_point), (Point{1.001, 2})); // the mid point was at 1
    rig.view.mouseDragged(rig.motion(std::numeric_limits<double>::quiet_NaN(), 0));
    painted(rig.view);
    rig.view.mouseDown(rig.at(kLinearButton));
    EXPECT_EQ(rig.view.curve().points(), BezierCurve().points());
}

TEST(WaveShaperEditor, LandsAllPickedPointsOnOneTargetAndTellsOfEach)
{
    EditorRig rig;
    constexpr CurvePoint kPoints[] = {positive_mid_c1_point, positive_mid_c2_point, positive_end_c1_point,
                                      positive_end_point};
    for (int i = 0; i < 12; ++i)
        for (const CurvePoint point : kPoints)
            rig.view.set_point_to_in_amplitude_to_out_amplitude(point, 0, 0.5F);
    rig.view.mouseDown(rig.at(rig.place(positive_mid_c1_point)));
    ASSERT_EQ(picks(rig), "0110101");
    rig.view.mouseDragged(rig.motion(0, -10));
    for (const CurvePoint point : kPoints) EXPECT_EQ(rig.amplitudes(point).y, static_cast<double>(0.6F));
    EXPECT_EQ(rig.owner->updates, 4);
}

TEST(WaveShaperEditor, KeepsTheSecondaryButtonsPicksUntilThePrimarysRelease)
{
    EditorRig rig;
    rig.view.rightMouseDown(rig.at(rig.place(positive_mid_c1_point)));
    rig.view.rightMouseUp({});
    rig.view.mouseDown(rig.at(rig.place(positive_end_point)));
    EXPECT_EQ(picks(rig), "0100001");
    rig.view.mouseUp({});
    rig.view.mouseDragged(rig.motion(10, 10));
    EXPECT_EQ(rig.owner->updates, 0);
    EXPECT_TRUE(rig.view.mouse_is_down());
}

TEST(WaveShaperEditor, PressesItsButtonsOnASinglePressBesideAllPoints)
{
    const struct {
        Point at;
        int clicks, updates, toggles;
        bool zoomed;
    } kRows[] = {
        {kCloseButton, 1, 0, 1, false},  {kZoomButton, 1, 0, 0, true},   {kLinearButton, 1, 1, 0, false},
        {kLinearButton, 2, 0, 0, false}, {kCloseButton, 3, 0, 1, false}, {{370, 15}, 1, 0, 1, false},
        {{400, 15}, 1, 0, 0, false},     {{370, 35}, 1, 0, 0, false},
    };
    for (const auto& row : kRows) {
        EditorRig rig;
        rig.view.rightMouseDown(rig.at(row.at));
        EXPECT_EQ(rig.owner->updates + rig.owner->toggles, 0);
        rig.view.mouseUp({});
        rig.view.set_point_to_in_amplitude_to_out_amplitude(positive_end_point, 1, 0);
        rig.view.mouseDown(rig.at(row.at, row.clicks));
        EXPECT_EQ(rig.owner->updates, row.updates);
        EXPECT_EQ(rig.owner->toggles, row.toggles);
        EXPECT_EQ(rig.view.shows_db_scale(), row.zoomed);
        EXPECT_EQ(rig.view.mouse_is_down(), row.clicks != 2);
        // Whoever is asked to close the editor finds the coefficients computed.
        EXPECT_NEAR(rig.view.curve().coefficients().pos_M, row.toggles ? -5 : 1, 1e-5);
    }
    EditorRig rig;
    rig.view.set_point_to_in_amplitude_to_out_amplitude(positive_end_point, 1.7F, -1.25F);
    rig.view.mouseDown(rig.at(kLinearButton));
    EXPECT_EQ(picks(rig), "0000001");
    EXPECT_EQ(rig.owner->updates, 0);
}

} // namespace
} // namespace r7
