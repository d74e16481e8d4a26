// The way out: what the user moves goes to the Audio Unit, and to the panel's other views.
#include "host/panel_view.h"

#include <algorithm>

namespace r7 {

void QmR7View::knob_callback(View& sender)
{
    const auto is_sender = [&](const auto& row) { return (this->*row.field).get() == &sender; };
    if (const auto row = std::ranges::find_if(kKnobRows, is_sender); row != kKnobRows.end())
        knob_moved(*row);
    else if (const auto push = std::ranges::find_if(kSwitchRows, is_sender); push != kSwitchRows.end())
        switch_moved(*push);
}

void QmR7View::knob_moved(const KnobRow& row)
{
    const double value = (this->*row.field)->current_value();
    set_au_parameter_to_value(row.id, static_cast<float>(value));
    // The lamp goes by the knob's own 64-bit value.
    if (row.field == &PanelOutlets::delay_depth_knob)
        delay_on_indicator_light->set_indicator_state(value > 0.0);
}

void QmR7View::switch_moved(const SwitchRow& row)
{
    const std::int32_t selection = (this->*row.field)->current_menu_selection();
    if (row.lamp_turn == LampTurn::before_parameter) show_lamp(row.lamp, selection + 1);
    set_au_parameter_to_value(row.id, static_cast<float>(selection));
    if (row.lamp_turn == LampTurn::after_parameter) show_lamp(row.lamp, selection + 1);
}

} // namespace r7
