// The way out: what the user moves goes to the Audio Unit, and to the panel's other views.
#include "host/panel_view.h"
#include "host/parameter_values.h"

#include <algorithm>
#include <array>

namespace r7 {

void QmR7View::knob_callback(View& sender)
{
    const auto is_sender = [&](const auto& row) { return (this->*row.field).get() == &sender; };
    const auto is_editor = [&](const ToneRow& row) { return (this->*row.editor).get() == &sender; };
    if (const auto knob = std::ranges::find_if(kKnobRows, is_sender); knob != kKnobRows.end())
        knob_moved(*knob);
    else if (const auto push = std::ranges::find_if(kSwitchRows, is_sender); push != kSwitchRows.end())
        switch_moved(*push);
    else if (const auto tone = std::ranges::find_if(kToneRows, is_editor); tone != kToneRows.end())
        tone_control_moved(*tone);
    else if (&sender == zoomed_wave_shaper_display.get())
        curve_edited();
}

void QmR7View::knob_moved(const KnobRow& row)
{
    const double value = (this->*row.field)->current_value();
    const auto sent = static_cast<float>(value);
    const auto [stage, gain] = gain_of_knob(row.field);
    if (gain) ((this->*stage->display).get()->*gain->set_on_display)(sent);
    set_au_parameter_to_value(row.id, sent);
    if (gain && is_zoomed(*stage)) (zoomed_wave_shaper_display.get()->*gain->set_on_editor)(sent);
    // The lamp goes by the knob's own 64-bit value.
    if (row.field == &PanelOutlets::delay_depth_knob)
        delay_on_indicator_light->set_indicator_state(value > 0.0);
}

void QmR7View::switch_moved(const SwitchRow& row)
{
    const std::int32_t selection = (this->*row.field)->current_menu_selection();
    const auto sent = static_cast<float>(selection);
    show_mode(row, mode_position_for_value(sent));
    if (row.lamp_turn == LampTurn::before_parameter) show_lamp(row.lamp, selection + 1);
    set_au_parameter_to_value(row.id, sent);
    if (row.lamp_turn == LampTurn::after_parameter) show_lamp(row.lamp, selection + 1);
}

void QmR7View::tone_control_moved(const ToneRow& row)
{
    // All fifteen go out, whichever one was moved; they are read first, so that they belong together.
    std::array<float, kToneValues> values{};
    for (std::size_t offset = 0; offset < kToneValues; ++offset)
        values[offset] = ((this->*row.editor).get()->*kToneValueRows[offset].get)();
    for (const std::uint8_t offset : row.sending_order)
        set_au_parameter_to_value(row.base + offset, values[offset]);
    for (const std::uint8_t offset : kToneDisplayOrder)
        ((this->*row.display).get()->*kToneValueRows[offset].set)(values[offset]);
}

} // namespace r7
