// A listener that writes down what it hears, and short names for what the toolbox is told.
#pragma once

#include "platform/audio_toolbox.h"

#include <functional>
#include <sstream>
#include <string>

namespace r7 {

inline AudioUnitEvent event_of(UInt32 type, AudioUnit unit, UInt32 id, UInt32 scope = 0, UInt32 element = 0)
{
    return {AudioUnitEventType{type}, {.mParameter = {unit, id, scope, element}}};
}

inline OSStatus set(AUEventListenerRef sender, AudioUnit unit, UInt32 id, Float32 value)
{
    const AudioUnitParameter parameter{unit, id, kAudioUnitScope_Global, 0};
    return AUParameterSet(sender, nullptr, &parameter, value, 0);
}

inline OSStatus notify(AUEventListenerRef sender, const AudioUnitEvent& event)
{
    return AUEventListenerNotify(sender, nullptr, &event);
}

/// A listener on the current run loop that writes `TYPE:ID=VALUE ` for each event.
struct RecordingListener {
    explicit RecordingListener(Float32 interval = 0.05F)
    {
        AUEventListenerCreate(&called, this, CFRunLoopGetCurrent(), kCFRunLoopDefaultMode, interval, interval,
                              &handle);
    }
    ~RecordingListener() { AUListenerDispose(handle); }
    RecordingListener(const RecordingListener&) = delete;
    RecordingListener& operator=(const RecordingListener&) = delete;

    OSStatus ask_for(const AudioUnitEvent& event)
    {
        return AUEventListenerAddEventType(handle, this, &event);
    }

    static void called(void* self, void*, const AudioUnitEvent* event, UInt64, Float32 value)
    {
        auto& listener = *static_cast<RecordingListener*>(self);
        std::ostringstream text;
        text << event->mEventType << ':' << event->mArgument.mParameter.mParameterID << '=' << value << ' ';
        listener.heard += text.str();
        if (listener.during_call) listener.during_call();
    }

    AUEventListenerRef handle = nullptr;
    std::string heard;
    std::function<void()> during_call;
};

} // namespace r7
