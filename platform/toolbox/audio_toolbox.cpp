// The toolbox's functions: they check what they are given, and find whom it is for.
#include "platform/audio_toolbox.h"

#include "platform/toolbox/audio_unit_instance.h"
#include "platform/toolbox/event_listener.h"
#include "platform/toolbox/registry.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <optional>
#include <utility>

struct OpaqueCFString {};

using namespace r7;

namespace {

constexpr OpaqueCFString default_mode;

Registry& registry()
{
    return Registry::shared();
}

AudioUnit unit_of(const AudioUnitEvent& event)
{
    return event.mEventType == kAudioUnitEvent_PropertyChange ? event.mArgument.mProperty.mAudioUnit
                                                              : event.mArgument.mParameter.mAudioUnit;
}

bool is_known(const AudioUnitEvent& event)
{
    return event.mEventType <= kAudioUnitEvent_PropertyChange && registry().find_unit(unit_of(event));
}

bool may_send(AUEventListenerRef sender)
{
    return !sender || registry().listeners.find(sender);
}

void announce(AUEventListenerRef sender, const AudioUnitEvent& event)
{
    registry().listeners.for_each([&](AUEventListenerRef handle, EventListener& listener) {
        if (handle != sender) listener.announce(event);
    });
}

// A notification interval in seconds, on the loop's scale. The single-precision 0.05 is a little more than 50
// ms, hence the microseconds.
std::optional<Time> interval_of(Float32 seconds)
{
    constexpr Float32 day = 86'400.0F;
    if (!(seconds >= 0.0F && seconds <= day)) return std::nullopt;
    const auto microseconds = std::llround(static_cast<double>(seconds) * 1e6);
    return std::chrono::microseconds(std::max(microseconds, 1LL));
}

} // namespace

namespace r7 {

Registry& Registry::shared()
{
    static Registry& registry = *new Registry;
    return registry;
}

AudioUnitRegistration::AudioUnitRegistration(std::weak_ptr<AudioUnitInstance> unit)
    : handle_(registry().units.add(std::move(unit)))
{
}

AudioUnitRegistration::~AudioUnitRegistration()
{
    registry().units.remove(handle_);
}

OSStatus send_event(AUEventListenerRef handle, const AudioUnitEvent& event, Float32 value)
{
    const auto listener = registry().listeners.find(handle);
    return listener && listener->deliver({event}, value) ? noErr : kAudio_ParamError;
}

} // namespace r7

const CFStringRef kCFRunLoopDefaultMode = &default_mode;

CFRunLoopRef CFRunLoopGetCurrent()
{
    return reinterpret_cast<CFRunLoopRef>(&RunLoop::current());
}

OSStatus AudioUnitGetParameter(AudioUnit inUnit, AudioUnitParameterID inID, AudioUnitScope inScope,
                               AudioUnitElement inElement, AudioUnitParameterValue* outValue)
{
    const auto unit = registry().find_unit(inUnit);
    if (!unit || !outValue) return kAudio_ParamError;
    return unit->get_parameter({inUnit, inID, inScope, inElement}, *outValue);
}

OSStatus AUParameterSet(AUParameterListenerRef inSendingListener, void*,
                        const AudioUnitParameter* inParameter, AudioUnitParameterValue inValue, UInt32)
{
    if (!inParameter || !may_send(inSendingListener)) return kAudio_ParamError;
    const auto unit = registry().find_unit(inParameter->mAudioUnit);
    if (!unit) return kAudio_ParamError;
    if (const OSStatus status = unit->set_parameter(*inParameter, inValue); status != noErr) return status;
    announce(inSendingListener, {kAudioUnitEvent_ParameterValueChange, {.mParameter = *inParameter}});
    return noErr;
}

OSStatus AudioUnitGetProperty(AudioUnit inUnit, AudioUnitPropertyID inID, AudioUnitScope inScope,
                              AudioUnitElement inElement, void* outData, UInt32* ioDataSize)
{
    const auto unit = registry().find_unit(inUnit);
    if (!unit || !outData || !ioDataSize) return kAudio_ParamError;
    const std::span data(static_cast<std::byte*>(outData), *ioDataSize);
    return unit->get_property({inUnit, inID, inScope, inElement}, data, *ioDataSize);
}

OSStatus AudioUnitSetProperty(AudioUnit inUnit, AudioUnitPropertyID inID, AudioUnitScope inScope,
                              AudioUnitElement inElement, const void* inData, UInt32 inDataSize)
{
    const auto unit = registry().find_unit(inUnit);
    if (!unit || !inData) return kAudio_ParamError;
    const std::span data(static_cast<const std::byte*>(inData), inDataSize);
    return unit->set_property({inUnit, inID, inScope, inElement}, data);
}

OSStatus AUEventListenerCreate(AUEventListenerProc inProc, void* inUserData, CFRunLoopRef inRunLoop,
                               CFStringRef inRunLoopMode, Float32 inNotificationInterval, Float32,
                               AUEventListenerRef* outListener)
{
    const auto interval = interval_of(inNotificationInterval);
    if (!inProc || !outListener || !interval) return kAudio_ParamError;
    // Compared, not looked at: the loop given may be gone.
    if (inRunLoop != CFRunLoopGetCurrent() || inRunLoopMode != kCFRunLoopDefaultMode)
        return kAudio_ParamError;
    RunLoop& loop = RunLoop::current();
    const auto listener = std::make_shared<EventListener>(inProc, inUserData, loop, *interval);
    loop.add(listener, RunLoop::Modes::standard_only);
    *outListener = registry().listeners.add(listener);
    return noErr;
}

OSStatus AUEventListenerAddEventType(AUEventListenerRef inListener, void* inObject,
                                     const AudioUnitEvent* inEvent)
{
    const auto listener = registry().listeners.find(inListener);
    if (!listener || !inEvent || !is_known(*inEvent)) return kAudio_ParamError;
    listener->subscribe(inObject, *inEvent);
    return noErr;
}

OSStatus AUEventListenerNotify(AUEventListenerRef inSendingListener, void*, const AudioUnitEvent* inEvent)
{
    if (!inEvent || !is_known(*inEvent) || !may_send(inSendingListener)) return kAudio_ParamError;
    announce(inSendingListener, *inEvent);
    return noErr;
}

OSStatus AUListenerDispose(AUParameterListenerRef inListener)
{
    const auto listener = registry().listeners.remove(inListener);
    if (!listener) return kAudio_ParamError;
    listener->dispose();
    return noErr;
}
