// The table of outlets.
#include "host/panel_outlets.h"

#include <algorithm>
#include <array>

namespace r7 {

namespace {

using O = PanelOutlets;

constexpr std::array kRows = std::to_array<OutletRow>({
    {"pre_tone_control_display", &O::pre_tone_control_display},
    {"post_tone_control_display", &O::post_tone_control_display},
    {"pre_tone_control", &O::pre_tone_control},
    {"post_tone_control", &O::post_tone_control},
    {"wave_shaper_one_display", &O::wave_shaper_one_display},
    {"wave_shaper_two_display", &O::wave_shaper_two_display},
    {"zoomed_wave_shaper_display", &O::zoomed_wave_shaper_display},
    {"delay_depth_knob", &O::delay_depth_knob},
    {"delay_feedback_knob", &O::delay_feedback_knob},
    {"delay_delay_knob", &O::delay_delay_knob},
    {"delay_cutoff_frequency_knob", &O::delay_cutoff_frequency_knob},
    {"delay_cutoff_q_knob", &O::delay_cutoff_q_knob},
    {"delay_on_indicator_light", &O::delay_on_indicator_light},
    {"output_level", &O::output_level},
    {"wave_shaper_one_a", &O::wave_shaper_one_a},
    {"wave_shaper_one_b", &O::wave_shaper_one_b},
    {"wave_shaper_one_c", &O::wave_shaper_one_c},
    {"wave_shaper_one_d", &O::wave_shaper_one_d},
    {"wave_shaper_one_e", &O::wave_shaper_one_e},
    {"wave_shaper_two_a", &O::wave_shaper_two_a},
    {"wave_shaper_two_b", &O::wave_shaper_two_b},
    {"wave_shaper_two_c", &O::wave_shaper_two_c},
    {"wave_shaper_two_d", &O::wave_shaper_two_d},
    {"wave_shaper_two_e", &O::wave_shaper_two_e},
    {"envelope_sensitivity", &O::envelope_sensitivity},
    {"filter_resonance", &O::filter_resonance},
    {"envelope_attack_time", &O::envelope_attack_time},
    {"envelope_release_time", &O::envelope_release_time},
    {"envelope_mode", &O::envelope_mode},
    {"wah_mode_light", &O::wah_mode_light},
    {"start_vowel_mode", &O::start_vowel_mode},
    {"start_vowel_light", &O::start_vowel_light},
    {"end_vowel_mode", &O::end_vowel_mode},
    {"end_vowel_light", &O::end_vowel_light},
});

} // namespace

std::span<const OutletRow> outlet_rows()
{
    return kRows;
}

const OutletRow* outlet_row_named(std::string_view name)
{
    const auto row = std::ranges::find(kRows, name, &OutletRow::name);
    return row == kRows.end() ? nullptr : &*row;
}

View* view_in(const PanelOutlets& outlets, const OutletRow& row)
{
    return std::visit([&](auto field) -> View* { return (outlets.*field).get(); }, row.field);
}

bool connect(PanelOutlets& outlets, const OutletRow& row, const ViewRef& view)
{
    return std::visit(
        [&]<typename V>(Outlet<V> field) {
            auto typed = std::dynamic_pointer_cast<V>(view);
            if (!typed) return false;
            outlets.*field = std::move(typed);
            return true;
        },
        row.field);
}

} // namespace r7
