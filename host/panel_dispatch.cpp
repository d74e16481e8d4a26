// The way in: an event of the Audio Unit reaches the views that show it.
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
    if (id < kToneRows.size() * kToneValues) {
        // The editors follow whether they are shown or hidden: a hidden one is always current.
        const ToneRow& row = kToneRows[id / kToneValues];
        const auto set = kToneValueRows[id % kToneValues].set;
        ((this->*row.editor).get()->*set)(value);
        ((this->*row.display).get()->*set)(value);
    } else if (const auto knob = std::ranges::find(kKnobRows, id, &KnobRow::id); knob != kKnobRows.end()) {
        knob_changed(*knob, value);
    } else if (const auto push = std::ranges::find(kSwitchRows, id, &SwitchRow::id);
               push != kSwitchRows.end()) {
        switch_changed(*push, value);
    }
}

void QmR7View::knob_changed(const KnobRow& row, float value)
{
    QmKnobView& knob = *(this->*row.field);
    knob.set_current_value(value);
    if (row.field == &PanelOutlets::delay_depth_knob)
        delay_on_indicator_light->set_indicator_state(value > 0.0f);
    if (const auto [stage, gain] = gain_of_knob(row.field); gain) {
        // The display takes the value as it came, the editor the one that the knob has clamped; the
        // difference is meant.
        ((this->*stage->display).get()->*gain->set_on_display)(value);
        if (is_zoomed(*stage))
            (zoomed_wave_shaper_display.get()->*gain->set_on_editor)(
                static_cast<float>(knob.current_value()));
    }
}

void QmR7View::switch_changed(const SwitchRow& row, float value)
{
    show_mode(row, mode_position_for_value(value));
    (this->*row.field)->set_current_value(value);
    show_lamp(row.lamp, lamp_for_value(value));
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

void QmR7View::show_mode(const SwitchRow& row, std::optional<std::int32_t> position)
{
    const StageRow* stage = stage_of_switch(row.field);
    if (stage && position)
        (this->*stage->display)->set_mode_string(kModeLetters[static_cast<std::size_t>(*position)]);
}

} // namespace r7
