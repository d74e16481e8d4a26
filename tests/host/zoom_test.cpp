// The displays and the zoomed editors: what reaches them, and the overlay. Sessions pin whole edits.
#include "tests/support/panel_rig.h"

#include <gtest/gtest.h>

namespace r7 {
namespace {

// The panel in a window of its own, which lies at (100, 100) on the screen.
struct Zoom : testing::Test, PanelRig {
    std::shared_ptr<Window> window = std::make_shared<Window>(Rect{100, 100, 960, 600});

    Zoom() { window->set_content_view(panel); }

    static void double_click(View& view) { press(view, 0.5, 2), view.mouseUp({}); }
};

TEST_F(Zoom, AnEditorOpensInAWindowOverThePanelAndClosesWithIt)
{
    double_click(*panel->wave_shaper_two_display);
    ASSERT_TRUE(panel->overlay());
    const QM_R7_Overlay_Window& overlay = *panel->overlay();
    EXPECT_EQ(overlay.content_view(), panel->zoomed_wave_shaper_display.get());
    EXPECT_EQ(overlay.parent_window(), window.get());
    EXPECT_EQ(overlay.style(), WindowStyle::borderless);
    EXPECT_EQ(overlay.creation(), WindowCreation::immediate) << "although the panel asks for a later one";
    EXPECT_EQ(overlay.level, WindowLevel::floating);
    EXPECT_FALSE(overlay.is_opaque);
    EXPECT_TRUE(overlay.is_key_window());
    EXPECT_FALSE(overlay.accepts_mouse_moved_events);
    EXPECT_FALSE(panel->zoomed_wave_shaper_display->is_hidden());

    panel->toggle_callback(*panel->zoomed_wave_shaper_display);
    EXPECT_TRUE(panel->zoomed_wave_shaper_display->is_hidden());
    EXPECT_TRUE(window->child_windows().empty());
    EXPECT_TRUE(window->is_key_window());

    double_click(*panel->post_tone_control_display);
    EXPECT_TRUE(panel->overlay()->accepts_mouse_moved_events);
    panel.reset();
    window->set_content_view(nullptr);
    EXPECT_TRUE(window->child_windows().empty());
}

TEST_F(Zoom, AnEditorOpensAndStaysOnlyInAWindowThatIsThere)
{
    double_click(*panel->wave_shaper_one_display);
    window->set_content_view(nullptr);
    EXPECT_FALSE(panel->overlay());
    EXPECT_TRUE(panel->zoomed_wave_shaper_display->is_hidden());
    double_click(*panel->wave_shaper_one_display);
    double_click(*panel->pre_tone_control_display);
    EXPECT_FALSE(panel->overlay());
    EXPECT_EQ(panel->wave_shaper_state(), 0);

    window->set_content_view(panel);
    double_click(*panel->wave_shaper_one_display);
    window.reset();
    panel->zoomed_wave_shaper_display->zoom_clicked();
    EXPECT_FALSE(panel->overlay());
}

TEST_F(Zoom, AFailedReadChangesNothing)
{
    const float before = panel->wave_shaper_one_display->response_for_in_amplitude(0.6f);
    unit.reset();
    for (const int property : {80110, 80111, 80112, 80113, 4711, -1})
        panel->sequence_updated_from_au(property);
    EXPECT_EQ(panel->wave_shaper_one_display->response_for_in_amplitude(0.6f), before);
    EXPECT_EQ(panel->stage_one_data().pos_M, 1.0);
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
    EXPECT_EQ(observer.sets, 0);
}

} // namespace
} // namespace r7
