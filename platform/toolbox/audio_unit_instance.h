// What an audio unit in this process is to the toolbox, and how it gets its handle.
#pragma once

#include "platform/audio_toolbox.h"

#include <cstddef>
#include <memory>
#include <span>

namespace r7 {

/// An audio unit that the toolbox's functions reach through its handle. All operations are called on
/// whichever thread calls the toolbox, and no lock is held meanwhile.
class AudioUnitInstance {
public:
    virtual ~AudioUnitInstance() = default;

    // Each gives a status, and where that is not noErr changes nothing.
    virtual OSStatus get_parameter(const AudioUnitParameter& parameter, Float32& value) const = 0;
    virtual OSStatus set_parameter(const AudioUnitParameter& parameter, Float32 value) = 0;
    /// Fills the beginning of `data` and tells in `size` how much.
    virtual OSStatus get_property(const AudioUnitProperty& property, std::span<std::byte> data,
                                  UInt32& size) const = 0;
    virtual OSStatus set_property(const AudioUnitProperty& property, std::span<const std::byte> data) = 0;

    /// Just before an event about this unit is delivered to a listener, with what the listener will be told.
    virtual void will_deliver(const AudioUnitEvent& event, Float32 value) = 0;
};

/// A unit's handle, valid for as long as this exists and the unit does.
///
/// The toolbox does not own the unit, but keeps it alive while it calls it: destroying a unit that another
/// thread is using puts off its end until that call returns.
class AudioUnitRegistration final {
public:
    explicit AudioUnitRegistration(std::weak_ptr<AudioUnitInstance> unit);
    ~AudioUnitRegistration();
    AudioUnitRegistration(const AudioUnitRegistration&) = delete;
    AudioUnitRegistration& operator=(const AudioUnitRegistration&) = delete;

    AudioUnit handle() const { return handle_; }

private:
    AudioUnit handle_;
};

/// Delivers one event to one listener at once, on this thread, whether or not it has asked for it, with no
/// object and at host time 0. What is announced stays so.
OSStatus send_event(AUEventListenerRef listener, const AudioUnitEvent& event, Float32 value);

} // namespace r7
