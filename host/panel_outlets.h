// The panel's controls by name: what the interface description must contain, and who finds it there.
#pragma once

#include "controls/indicator_light_view.h"
#include "controls/knob_view.h"
#include "controls/push_mode_knob_view.h"
#include "tonecontrol/parametric_eq_response_view.h"
#include "tonecontrol/parametric_eq_view.h"
#include "waveshaper/bezier_wave_shaper_response_view.h"
#include "waveshaper/bezier_wave_shaper_view.h"

#include <memory>
#include <span>
#include <string_view>
#include <variant>

namespace r7 {

/// One field for each control; all are set in a loaded panel.
struct PanelOutlets {
    std::shared_ptr<QM_R7_ParametericEQ_Response_View> pre_tone_control_display;
    std::shared_ptr<QM_R7_ParametericEQ_Response_View> post_tone_control_display;
    std::shared_ptr<Qm_ParametricEQView> pre_tone_control;
    std::shared_ptr<Qm_ParametricEQView> post_tone_control;

    std::shared_ptr<QM_BezierWaveShaperResponseView> wave_shaper_one_display;
    std::shared_ptr<QM_BezierWaveShaperResponseView> wave_shaper_two_display;
    std::shared_ptr<QM_BezierWaveShaperView> zoomed_wave_shaper_display;

    std::shared_ptr<QmKnobView> delay_depth_knob;
    std::shared_ptr<QmKnobView> delay_feedback_knob;
    std::shared_ptr<QmKnobView> delay_delay_knob;
    std::shared_ptr<QmKnobView> delay_cutoff_frequency_knob;
    std::shared_ptr<QmKnobView> delay_cutoff_q_knob;
    std::shared_ptr<QmIndicatorLightView> delay_on_indicator_light;

    std::shared_ptr<QmKnobView> output_level;

    std::shared_ptr<QmKnobView> wave_shaper_one_a;
    std::shared_ptr<QmKnobView> wave_shaper_one_b;
    std::shared_ptr<QmKnobView> wave_shaper_one_c;
    std::shared_ptr<QmKnobView> wave_shaper_one_d;
    std::shared_ptr<QmR7PushModeKnobView> wave_shaper_one_e;
    std::shared_ptr<QmKnobView> wave_shaper_two_a;
    std::shared_ptr<QmKnobView> wave_shaper_two_b;
    std::shared_ptr<QmKnobView> wave_shaper_two_c;
    std::shared_ptr<QmKnobView> wave_shaper_two_d;
    std::shared_ptr<QmR7PushModeKnobView> wave_shaper_two_e;

    std::shared_ptr<QmKnobView> envelope_sensitivity;
    std::shared_ptr<QmKnobView> filter_resonance;
    std::shared_ptr<QmKnobView> envelope_attack_time;
    std::shared_ptr<QmKnobView> envelope_release_time;
    std::shared_ptr<QmR7PushModeKnobView> envelope_mode;
    std::shared_ptr<QmR7FiveStateIndicatorLightView> wah_mode_light;
    std::shared_ptr<QmR7PushModeKnobView> start_vowel_mode;
    std::shared_ptr<QmR7TenStateIndicatorLightView> start_vowel_light;
    std::shared_ptr<QmR7PushModeKnobView> end_vowel_mode;
    std::shared_ptr<QmR7TenStateIndicatorLightView> end_vowel_light;
};

template <typename V>
using Outlet = std::shared_ptr<V> PanelOutlets::*;

/// A field of the panel and the name that the description gives it.
struct OutletRow {
    std::string_view name;
    std::variant<Outlet<QmKnobView>, Outlet<QmR7PushModeKnobView>, Outlet<QmIndicatorLightView>,
                 Outlet<QmR7FiveStateIndicatorLightView>, Outlet<QmR7TenStateIndicatorLightView>,
                 Outlet<QM_BezierWaveShaperView>, Outlet<QM_BezierWaveShaperResponseView>,
                 Outlet<Qm_ParametricEQView>, Outlet<QM_R7_ParametericEQ_Response_View>>
        field;
};

/// Every outlet, once, in the order of the fields.
std::span<const OutletRow> outlet_rows();

/// The row of that name, or none.
const OutletRow* outlet_row_named(std::string_view name);

/// The view in a row's field; none while it is not connected.
View* view_in(const PanelOutlets& outlets, const OutletRow& row);

/// Stores `view` in the row's field. False, with nothing stored, where it is of another class than the field.
[[nodiscard]] bool connect(PanelOutlets& outlets, const OutletRow& row, const ViewRef& view);

} // namespace r7
