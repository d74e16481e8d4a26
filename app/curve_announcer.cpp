// Tells others of the curves that the panel writes.
#include "app/curve_announcer.h"

namespace r7 {

void CurveAnnouncer::parameter_set(AudioUnitParameterID id, float value)
{
    if (next_) next_->parameter_set(id, value);
}

void CurveAnnouncer::property_written(AudioUnitPropertyID id, UInt32 size)
{
    if (next_) next_->property_written(id, size);
    if (!panel_) return;
    AudioUnitEvent event{};
    event.mEventType = kAudioUnitEvent_PropertyChange;
    event.mArgument.mProperty = {panel_->audio_unit(), id, kAudioUnitScope_Global, 0};
    AUEventListenerNotify(panel_->event_listener(), nullptr, &event);
}

void CurveAnnouncer::will_deliver(const AudioUnitEvent& event, float value)
{
    if (next_) next_->will_deliver(event, value);
}

} // namespace r7
