// The facts about the two waveshaper stages, in rows.
#pragma once

#include "host/panel_tables.h"

#include <array>

namespace r7 {

/// A gain of a stage's test sine: the knob that it comes from, and how it is set on display and editor.
struct GainRow {
    Outlet<QmKnobView> knob;
    void (QM_BezierWaveShaperResponseView::*set_on_display)(float gain);
    void (QM_BezierWaveShaperView::*set_on_editor)(float gain);
};

/// A waveshaper stage: its properties, its display and controls, and the zoom state in which the editor shows
/// it.
struct StageRow {
    UnitProperty curve;
    UnitProperty level;
    Outlet<QM_BezierWaveShaperResponseView> display;
    std::array<GainRow, 2> gains; // pre, post
    Outlet<QmR7PushModeKnobView> mode;
    std::int32_t zoom_state;
};

inline constexpr auto kStageRows = [] {
    using Display = QM_BezierWaveShaperResponseView;
    using Editor = QM_BezierWaveShaperView;
    using O = PanelOutlets;
    return std::array<StageRow, 2>{{
        {UnitProperty::stage_one_curve,
         UnitProperty::stage_one_level,
         &O::wave_shaper_one_display,
         {{{&O::wave_shaper_one_a, &Display::set_sine_pregain, &Editor::set_sine_pregain},
           {&O::wave_shaper_one_b, &Display::set_sine_postgain, &Editor::set_sine_postgain}}},
         &O::wave_shaper_one_e,
         1},
        {UnitProperty::stage_two_curve,
         UnitProperty::stage_two_level,
         &O::wave_shaper_two_display,
         {{{&O::wave_shaper_two_a, &Display::set_sine_pregain, &Editor::set_sine_pregain},
           {&O::wave_shaper_two_b, &Display::set_sine_postgain, &Editor::set_sine_postgain}}},
         &O::wave_shaper_two_e,
         2},
    }};
}();

/// The gain that a knob sets, and its stage; none for the other knobs.
struct StageGain {
    const StageRow* stage = nullptr;
    const GainRow* gain = nullptr;
};
StageGain gain_of_knob(Outlet<QmKnobView> knob);

/// The stage whose mode a switch sets; none for the other switches.
const StageRow* stage_of_switch(Outlet<QmR7PushModeKnobView> mode);

/// What a display shows for the positions of its stage's mode switch.
inline constexpr std::array<const char*, 6> kModeLetters{"-", "A", "B", "C", "D", "E"};

} // namespace r7
