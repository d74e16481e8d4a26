// The way in: an event of the Audio Unit reaches the controls that show it.
#include "host/panel_view.h"
#include "host/parameter_values.h"
#include "platform/log.h"

#include <algorithm>
#include <type_traits>

namespace r7 {

void QmR7View::_eventListener_event_value(void*, const AudioUnitEvent& event, Float32 value)
{
    switch (event.mEventType) {
    case kAudioUnitEvent_PropertyChange:
        sequence_updated_from_au(static_cast<std::int32_t>(event.mArgument.mProperty.mPropertyID));
        return;
    case kAudioUnitEvent_ParameterValueChange:
        parameter_changed(event.mArgument.mParameter.mParameterID, value);
        return;
    default:
        // It is the type of the event that is unknown, whatever the message says; its wording is fixed.
        log_message("Error: Got an update for an unknown parameter.");
    }
}

void QmR7View::parameter_changed(AudioUnitParameterID id, float value)
{
    if (const auto knob = std::ranges::find(kKnobRows, id, &KnobRow::id); knob != kKnobRows.end()) {
        (this->*knob->field)->set_current_value(value);
        if (knob->field == &PanelOutlets::delay_depth_knob)
            delay_on_indicator_light->set_indicator_state(value > 0.0f);
    } else if (const auto row = std::ranges::find(kSwitchRows, id, &SwitchRow::id);
               row != kSwitchRows.end()) {
        (this->*row->field)->set_current_value(value);
        show_lamp(row->lamp, lamp_for_value(value));
    }
}

void QmR7View::show_lamp(const LampOutlet& lamp, std::int32_t state)
{
    std::visit(
        [&](auto field) {
            if constexpr (!std::is_same_v<decltype(field), std::monostate>)
                (this->*field)->set_indicator_state(state);
        },
        lamp);
}

} // namespace r7
