// The small waveshaper display.
#include "tests/waveshaper/rig.h"
#include "waveshaper/bezier_wave_shaper_response_view.h"

#include <gtest/gtest.h>

namespace r7 {
namespace {

constexpr Rect kFrame{10, 20, 410, 410};

/// A curve that is level beyond full scale, so that it matters which gain comes first.
_QM_R7_Bezier_Sequence level_at_the_end()
{
    _QM_R7_Bezier_Sequence record{};
    BezierCurve curve;
    curve.set_point_to_in_amplitude_to_out_amplitude(CurvePoint::positive_end_c2_point, 0, 1);
    curve.update_coeffs();
    curve.export_sequence_data(record);
    return record;
}

TEST(WaveShaperDisplay, AsksForTheEditorOnADoubleClickOnly)
{
    for (const int clicks : {1, 2, 3}) {
        const auto owner = std::make_shared<Owner>();
        QM_BezierWaveShaperResponseView view(kFrame);
        view.set_toggle_callback_onObject(&Owner::toggle, owner);
        view.mouseDown({.click_count = clicks});
        EXPECT_EQ(owner->toggles, clicks == 2 ? 1 : 0);
    }
}

TEST(WaveShaperDisplay, ShowsItsModeAndFromTheFirstRecordOnTheResponse)
{
    pictures.clear();
    QM_BezierWaveShaperResponseView view(kFrame);
    view.set_color_background(Color::device_white(0, 1));
    view.update_input_level(1);
    EXPECT_EQ(painted(view).size(), 2U);
    view.set_from_sequence_data(level_at_the_end());
    view.set_mode_string("C");
    view.set_mode_string(nullptr);
    const std::vector<std::string> expected = {
        "fill_rect 0,0,0,1 in 5,5,400,400 over",
        "stroke 0.8,0.15,0.1,1 width 2 from 5,205.000015",
        "stroke 1,1,1,0.5 width 0.5 from 5,205.000015",
        "draw_image 10x1 at 200,0 over 1",
    };
    EXPECT_EQ(words_of(painted(view)), expected);
    EXPECT_EQ(pictures.at(1), "fill_rect 0,0,0,1 in 0,0,10,15 over; "
                              "draw_text C in 0,0,10,15 center 0.333000004,0.333000004,1,1 size 9");
}

TEST(WaveShaperDisplay, TracesOneOpenPeriodAtTheInputLevel)
{
    const struct {
        double level;
        float pregain, postgain;
        double peak; // points above the middle
    } kRows[] = {{1, 1, 1, 100}, {0, 1, 1, 0}, {0.5, 4, 1, 100}, {0.5, 1, 3, 150}, {-1, 1, 1, -100}};
    QM_BezierWaveShaperResponseView view(kFrame);
    view.set_from_sequence_data(level_at_the_end());
    for (const auto& row : kRows) {
        view.update_input_level(row.level);
        view.set_sine_pregain(row.pregain);
        view.set_sine_postgain(row.postgain);
        const std::vector<DrawCall> list = painted(view);
        const auto sine = list.at(1).path.elements();
        ASSERT_EQ(sine.size(), 512U);
        EXPECT_NEAR(sine[0].end().x, 5, 1e-3);
        EXPECT_NEAR(sine[128].end().y, 205 - row.peak, 1e-3);
        EXPECT_NEAR(sine[384].end().y, 205 + row.peak, 1e-3);
        EXPECT_NEAR(sine[511].end().x, 405 - 400.0 / 512, 1e-3);
    }
}

} // namespace
} // namespace r7
