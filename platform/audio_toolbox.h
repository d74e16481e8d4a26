// The part of the Audio Toolbox that the panel calls, under the platform's own names.
//
// On a Mac these are the system's. Elsewhere toolbox/ implements them in process, with this contract:
//
// - Only AUParameterSet and AUEventListenerNotify announce. An announcement reaches every listener that has
//   asked for this type of event from this parameter or property of this unit, except the one that is named
//   as its sender.
// - It is delivered on the listener's run loop, one notification interval after it was made or at the first
//   turn from then on; never in a modal loop, which it waits out.
// - What is announced again before it is delivered is delivered once, in the place of the first time, with
//   the parameter's value at the moment of delivery. So no listener hears of one thing twice within an
//   interval, and of everything in the end.
// - All but making a listener may be done on any thread. Announcing does not allocate, and waits for nothing
//   but another thread's look at a list.
// - A handle is never given out twice. One whose unit or listener has gone, or that is null where one is
//   needed, gives kAudio_ParamError, and nothing happens.
#pragma once

#if __has_include(<AudioToolbox/AudioToolbox.h>)
#include <AudioToolbox/AudioToolbox.h>
#include <CoreFoundation/CoreFoundation.h>
#else

#include <cstdint>

extern "C" {

using OSStatus = std::int32_t;
using UInt32 = std::uint32_t;
using UInt64 = std::uint64_t;
using Float32 = float;

inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus kAudio_ParamError = -50;
inline constexpr OSStatus kAudioUnitErr_InvalidPropertyValue = -10851;
inline constexpr OSStatus kAudioUnitErr_PropertyNotWritable = -10865;
inline constexpr OSStatus kAudioUnitErr_InvalidScope = -10866;
inline constexpr OSStatus kAudioUnitErr_InvalidElement = -10877;
inline constexpr OSStatus kAudioUnitErr_InvalidParameter = -10878;
inline constexpr OSStatus kAudioUnitErr_InvalidProperty = -10879;

using CFRunLoopRef = struct OpaqueCFRunLoop*;
using CFStringRef = const struct OpaqueCFString*;

extern const CFStringRef kCFRunLoopDefaultMode;

/// The current thread's run loop.
CFRunLoopRef CFRunLoopGetCurrent();

using AudioUnit = struct OpaqueAudioUnit*;
using AudioUnitParameterID = UInt32;
using AudioUnitPropertyID = UInt32;
using AudioUnitScope = UInt32;
using AudioUnitElement = UInt32;
using AudioUnitParameterValue = Float32;

inline constexpr AudioUnitScope kAudioUnitScope_Global = 0;

struct AudioUnitParameter {
    AudioUnit mAudioUnit;
    AudioUnitParameterID mParameterID;
    AudioUnitScope mScope;
    AudioUnitElement mElement;
};

struct AudioUnitProperty {
    AudioUnit mAudioUnit;
    AudioUnitPropertyID mPropertyID;
    AudioUnitScope mScope;
    AudioUnitElement mElement;
};

enum AudioUnitEventType : UInt32 {
    kAudioUnitEvent_ParameterValueChange = 0,
    kAudioUnitEvent_BeginParameterChangeGesture = 1,
    kAudioUnitEvent_EndParameterChangeGesture = 2,
    kAudioUnitEvent_PropertyChange = 3
};

struct AudioUnitEvent {
    AudioUnitEventType mEventType;
    union {
        AudioUnitParameter mParameter; // of the first three types
        AudioUnitProperty mProperty;   // of kAudioUnitEvent_PropertyChange
    } mArgument;
};

using AUEventListenerRef = struct AUListenerBase*;
using AUParameterListenerRef = AUEventListenerRef;

/// What a listener calls: with its user data, with the object that the event was asked for with, and with the
/// value where the event is a change of a parameter, otherwise 0. The host time is that of the announcement,
/// in nanoseconds of the run loop's clock.
using AUEventListenerProc = void (*)(void* inUserData, void* inObject, const AudioUnitEvent* inEvent,
                                     UInt64 inEventHostTime, AudioUnitParameterValue inParameterValue);

OSStatus AudioUnitGetParameter(AudioUnit inUnit, AudioUnitParameterID inID, AudioUnitScope inScope,
                               AudioUnitElement inElement, AudioUnitParameterValue* outValue);

/// Sets the parameter and, if that succeeds, announces it. The sending object is not looked at, nor is the
/// offset into a buffer: nothing is rendered here.
OSStatus AUParameterSet(AUParameterListenerRef inSendingListener, void* inSendingObject,
                        const AudioUnitParameter* inParameter, AudioUnitParameterValue inValue,
                        UInt32 inBufferOffsetInFrames);

/// @param ioDataSize  in: the bytes that `outData` has room for; out: those written
OSStatus AudioUnitGetProperty(AudioUnit inUnit, AudioUnitPropertyID inID, AudioUnitScope inScope,
                              AudioUnitElement inElement, void* outData, UInt32* ioDataSize);

/// Announces nothing.
OSStatus AudioUnitSetProperty(AudioUnit inUnit, AudioUnitPropertyID inID, AudioUnitScope inScope,
                              AudioUnitElement inElement, const void* inData, UInt32 inDataSize);

/// Makes a listener that calls `inProc` on the current thread's run loop, which must be the one given, in the
/// default mode, the only one there is.
///
/// @param inNotificationInterval   in seconds, at most a day; kept in whole microseconds, at least one
/// @param inValueChangeGranularity  not looked at: a delivery is for all announcements before it
OSStatus AUEventListenerCreate(AUEventListenerProc inProc, void* inUserData, CFRunLoopRef inRunLoop,
                               CFStringRef inRunLoopMode, Float32 inNotificationInterval,
                               Float32 inValueChangeGranularity, AUEventListenerRef* outListener);

/// Asks for an event, whose unit must exist. Asking again with the same object changes nothing.
OSStatus AUEventListenerAddEventType(AUEventListenerRef inListener, void* inObject,
                                     const AudioUnitEvent* inEvent);

/// Announces an event. With no sending listener nobody is left out; the sending object is not looked at.
OSStatus AUEventListenerNotify(AUEventListenerRef inSendingListener, void* inSendingObject,
                               const AudioUnitEvent* inEvent);

/// From here on the listener is not called. If it is being called on another thread, waits until it returns.
OSStatus AUListenerDispose(AUParameterListenerRef inListener);

} // extern "C"

#endif
