// The displays and the zoomed editors: curves and tone controls in and out, and
// the overlay.
#include "tests/support/panel_rig.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace r7 {
namespace {

// The panel in a window of its own, which lies at (100, 100) on the screen.
struct Zoom : testing::Test, PanelRig {
    std::shared_ptr<Window> window = std::make_shared<Window>(Rect{100, 100, 960, 600});

    Zoom() { window->set_content_view(panel); }

    static void double_click(View& view) { press(view, 0.5, 2), view.mouseUp({}); }
    void close_stage() { panel->toggle_callback(*panel->zoomed_wave_shaper_display); }
    void close_tone() { panel->toggle_callback(*panel->pre_tone_control); }

    // Drags the end point of the editor's curve, as a hand would.
    void drag_end_point(double dx, double dy)
    {
        QM_BezierWaveShaperView& editor = *panel->zoomed_wave_shaper_display;
        const AmplitudePoint& end = editor.curve().point(CurvePoint::positive_end_point);
        const Point at = editor.position_for_amplitudes({end.x, end.y});
        editor.mouseDown({.location_in_window = editor.convert_to_window(at)});
        editor.mouseDragged({.delta_x = dx, .delta_y = dy});
        editor.mouseUp({});
    }

    static CurvePoints bent_curve()
    {
        return {{{0, 0}, {0.1, 0.3}, {0.2, 0.5}, {0.3, 0.55}, {0.4, 0.6}, {0.5, 0.7}, {0.6, 0.7}}};
    }
};

TEST_F(Zoom, AnEditorOpensOverThePanelsUpperLeftCornerAndClosesWithIt)
{
    double_click(*panel->wave_shaper_two_display);
    ASSERT_TRUE(panel->overlay());
    const QM_R7_Overlay_Window& overlay = *panel->overlay();
    EXPECT_EQ(overlay.frame(), (Rect{100, 300, 560, 400}));
    EXPECT_EQ(overlay.content_view(), panel->zoomed_wave_shaper_display.get());
    EXPECT_EQ(overlay.parent_window(), window.get());
    EXPECT_EQ(overlay.style(), WindowStyle::borderless);
    EXPECT_EQ(overlay.creation(), WindowCreation::immediate) << "although the panel asks for a later one";
    EXPECT_EQ(overlay.level, WindowLevel::floating);
    EXPECT_FALSE(overlay.is_opaque);
    EXPECT_TRUE(overlay.is_key_window());
    EXPECT_FALSE(overlay.accepts_mouse_moved_events);
    EXPECT_FALSE(panel->zoomed_wave_shaper_display->is_hidden());
    EXPECT_EQ(panel->wave_shaper_state(), 2);

    close_stage();
    EXPECT_FALSE(panel->overlay());
    EXPECT_TRUE(panel->zoomed_wave_shaper_display->is_hidden());
    EXPECT_EQ(panel->wave_shaper_state(), 0);
    EXPECT_TRUE(window->child_windows().empty());
    EXPECT_TRUE(window->is_key_window());

    double_click(*panel->post_tone_control_display);
    EXPECT_EQ(panel->overlay()->frame(), (Rect{100, 340, 640, 360}));
    EXPECT_TRUE(panel->overlay()->accepts_mouse_moved_events);
    panel.reset();
    window->set_content_view(nullptr);
    EXPECT_TRUE(window->child_windows().empty());
}

TEST_F(Zoom, APanelOutsideEveryWindowOpensNothing)
{
    window->set_content_view(nullptr);
    double_click(*panel->wave_shaper_one_display);
    double_click(*panel->pre_tone_control_display);
    EXPECT_FALSE(panel->overlay());
    EXPECT_EQ(panel->wave_shaper_state(), 0);
}

TEST_F(Zoom, AnOpenEditorDoesNotStayBehindInAWindowThatIsLeftOrGone)
{
    double_click(*panel->wave_shaper_one_display);
    window->set_content_view(nullptr);
    EXPECT_FALSE(panel->overlay());
    EXPECT_TRUE(panel->zoomed_wave_shaper_display->is_hidden());

    window->set_content_view(panel);
    double_click(*panel->wave_shaper_one_display);
    window.reset();
    panel->zoomed_wave_shaper_display->zoom_clicked();
    EXPECT_FALSE(panel->overlay());
}

TEST_F(Zoom, ADraggedCurveIsWrittenShownAndReadBackTheSame)
{
    const _QM_R7_Bezier_Sequence before = unit->record(Stage::one);
    double_click(*panel->wave_shaper_one_display);
    drag_end_point(-20, 10);
    const UInt32 size = sizeof(_QM_R7_Bezier_Sequence);
    EXPECT_EQ(observer.writes, (std::vector<std::pair<AudioUnitPropertyID, UInt32>>{{80110, size}}));
    const _QM_R7_Bezier_Sequence written = unit->record(Stage::one);
    EXPECT_EQ(written.needs_update, before.needs_update + 1);
    EXPECT_NE(written.pos_Intercept, before.pos_Intercept);
    EXPECT_EQ(std::memcmp(&written, &panel->stage_one_data(), sizeof written), 0);
    for (const float x : {-1.5f, -0.2f, 0.05f, 0.35f, 0.79f, 2.0f}) {
        const float y = panel->zoomed_wave_shaper_display->response_for_in_amplitude(x);
        EXPECT_EQ(panel->wave_shaper_one_display->response_for_in_amplitude(x), y);
        // Announced, it is read back and changes nothing.
        panel->sequence_updated_from_au(80110);
        EXPECT_EQ(panel->zoomed_wave_shaper_display->response_for_in_amplitude(x), y);
    }
    drag_end_point(1, 0);
    EXPECT_EQ(unit->record(Stage::one).needs_update, before.needs_update + 2);
    EXPECT_EQ(unit->record(Stage::two).needs_update, 0);

    close_stage();
    drag_end_point(5, 5);
    EXPECT_EQ(observer.writes.size(), 2u) << "an edit while no stage is zoomed is thrown away";
}

TEST_F(Zoom, LevelsAreReadWhenAnnouncedAndNotBefore)
{
    unit->take_level(Stage::two, 0.75);
    panel->setAU(unit->handle());
    EXPECT_EQ(panel->wave_shaper_two_display->shown_input_level(), 0.0);
    unit->take_level(Stage::two, 0.75);
    deliver();
    EXPECT_EQ(panel->wave_shaper_two_display->shown_input_level(), 0.75);
    EXPECT_EQ(panel->wave_shaper_one_display->shown_input_level(), 0.0);
}

TEST_F(Zoom, AFailedReadChangesNothing)
{
    unit->take_curve(Stage::one, bent_curve());
    deliver();
    unit.reset();
    for (const int property : {80110, 80111, 80112, 80113, 4711, -1})
        panel->sequence_updated_from_au(property);
    EXPECT_EQ(panel->wave_shaper_one_display->response_for_in_amplitude(0.6f), 0.7f);
    EXPECT_EQ(panel->stage_one_data().needs_update, 1);
}

TEST_F(Zoom, ToneParametersReachEditorAndDisplayHiddenOrNot)
{
    for (const ToneRow& row : kToneRows)
        for (UInt32 offset = 0; offset < kToneValues; ++offset) {
            const float value = 0.25f + static_cast<float>(row.base + offset);
            unit->automate(row.base + offset, value);
            deliver();
            const auto get = kToneValueRows[offset].get;
            EXPECT_EQ(((*panel.*row.editor).get()->*get)(), value) << row.base + offset;
            EXPECT_EQ(((*panel.*row.display).get()->*get)(), value) << row.base + offset;
        }
    EXPECT_EQ(panel->pre_tone_control->qLowMid(), 4.25f);
    EXPECT_EQ(panel->post_tone_control->levelHigh(), 29.25f);
    EXPECT_TRUE(observer.sets.empty());
}

} // namespace
} // namespace r7
