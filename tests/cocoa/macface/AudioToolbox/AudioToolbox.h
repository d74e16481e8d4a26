// What the panel uses of a Mac's Audio Toolbox, declared as there: plain enumerations, other integers and
// other structures behind the handles than in our own.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

typedef struct OpaqueAudioComponentInstance* AudioComponentInstance;
typedef AudioComponentInstance AudioUnit;
typedef UInt32 AudioUnitPropertyID;
typedef UInt32 AudioUnitParameterID;
typedef UInt32 AudioUnitScope;
typedef UInt32 AudioUnitElement;
typedef Float32 AudioUnitParameterValue;

enum { noErr = 0 };
enum : UInt32 { kAudioUnitScope_Global = 0 };

typedef struct AudioUnitParameter {
    AudioUnit mAudioUnit;
    AudioUnitParameterID mParameterID;
    AudioUnitScope mScope;
    AudioUnitElement mElement;
} AudioUnitParameter;

typedef struct AudioUnitProperty {
    AudioUnit mAudioUnit;
    AudioUnitPropertyID mPropertyID;
    AudioUnitScope mScope;
    AudioUnitElement mElement;
} AudioUnitProperty;

typedef enum AudioUnitEventType : UInt32 {
    kAudioUnitEvent_ParameterValueChange = 0,
    kAudioUnitEvent_BeginParameterChangeGesture = 1,
    kAudioUnitEvent_EndParameterChangeGesture = 2,
    kAudioUnitEvent_PropertyChange = 3
} AudioUnitEventType;

typedef struct AudioUnitEvent {
    AudioUnitEventType mEventType;
    union {
        AudioUnitParameter mParameter;
        AudioUnitProperty mProperty;
    } mArgument;
} AudioUnitEvent;

typedef struct AUListenerBase* AUParameterListenerRef;
typedef struct AUListenerBase* AUEventListenerRef;
typedef void (*AUEventListenerProc)(void* inUserData, void* inObject, const AudioUnitEvent* inEvent,
                                    UInt64 inEventHostTime, AudioUnitParameterValue inParameterValue);

OSStatus AudioUnitGetParameter(AudioUnit inUnit, AudioUnitParameterID inID, AudioUnitScope inScope,
                               AudioUnitElement inElement, AudioUnitParameterValue* outValue);
OSStatus AudioUnitGetProperty(AudioUnit inUnit, AudioUnitPropertyID inID, AudioUnitScope inScope,
                              AudioUnitElement inElement, void* outData, UInt32* ioDataSize);
OSStatus AudioUnitSetProperty(AudioUnit inUnit, AudioUnitPropertyID inID, AudioUnitScope inScope,
                              AudioUnitElement inElement, const void* inData, UInt32 inDataSize);
OSStatus AUParameterSet(AUParameterListenerRef inSendingListener, void* inSendingObject,
                        const AudioUnitParameter* inParameter, AudioUnitParameterValue inValue,
                        UInt32 inBufferOffsetInFrames);
OSStatus AUEventListenerCreate(AUEventListenerProc inProc, void* inUserData, CFRunLoopRef inRunLoop,
                               CFStringRef inRunLoopMode, Float32 inNotificationInterval,
                               Float32 inValueChangeGranularity, AUEventListenerRef* outListener);
OSStatus AUEventListenerAddEventType(AUEventListenerRef inListener, void* inObject,
                                     const AudioUnitEvent* inEvent);
OSStatus AUEventListenerNotify(AUEventListenerRef inSendingListener, void* inSendingObject,
                               const AudioUnitEvent* inEvent);
OSStatus AUListenerDispose(AUParameterListenerRef inListener);
}
