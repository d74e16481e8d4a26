// Announcing and delivering.
#include "platform/toolbox/event_listener.h"

#include "platform/toolbox/audio_unit_instance.h"
#include "platform/toolbox/registry.h"

#include <algorithm>

namespace r7 {

namespace {

// What an event is about. A property's record has the same members as a parameter's, so either may be read.
const AudioUnitParameter& subject(const AudioUnitEvent& event)
{
    return event.mArgument.mParameter;
}

bool is_same(const AudioUnitEvent& a, const AudioUnitEvent& b)
{
    return a.mEventType == b.mEventType && subject(a).mAudioUnit == subject(b).mAudioUnit &&
           subject(a).mParameterID == subject(b).mParameterID && subject(a).mScope == subject(b).mScope &&
           subject(a).mElement == subject(b).mElement;
}

} // namespace

EventListener::EventListener(AUEventListenerProc proc, void* user_data, const RunLoop& loop, Time interval)
    : proc_(proc), user_data_(user_data), interval_(interval), waker_(loop.waker()), clock_(&loop.clock())
{
}

void EventListener::subscribe(void* object, const AudioUnitEvent& event)
{
    const auto is_this = [&](const Announcement& other) {
        return other.object == object && is_same(other.event, event);
    };
    const std::lock_guard lock(mutex_);
    if (std::ranges::none_of(quiet_, is_this) && std::ranges::none_of(announced_, is_this))
        quiet_.push_back({event, object});
}

void EventListener::announce(const AudioUnitEvent& event)
{
    const std::lock_guard lock(mutex_);
    if (!clock_) return;
    const bool was_idle = announced_.empty();
    for (auto next = quiet_.begin(); next != quiet_.end();) {
        const auto asked_for = next++;
        if (!is_same(asked_for->event, event)) continue;
        asked_for->time = clock_->now();
        announced_.splice(announced_.end(), quiet_, asked_for);
    }
    if (was_idle && !announced_.empty()) waker_->wake();
}

bool EventListener::deliver(const Announcement& announcement, std::optional<Float32> value)
{
    const AudioUnitEvent& event = announcement.event;
    const std::lock_guard call(calling_);
    auto unit = Registry::shared().find_unit(subject(event).mAudioUnit);
    if (disposed_ || !unit) return false;
    Float32 told = value.value_or(0.0F);
    if (!value && event.mEventType == kAudioUnitEvent_ParameterValueChange)
        unit->get_parameter(subject(event), told);
    unit->will_deliver(event, told);
    // The call may be the end of the unit, and it is not for us to put that off.
    unit.reset();
    if (disposed_) return false;
    const auto host_time = static_cast<UInt64>(announcement.time.count());
    proc_(user_data_, announcement.object, &event, host_time, told);
    return true;
}

void EventListener::dispose()
{
    const std::lock_guard call(calling_);
    disposed_ = true;
    const std::lock_guard lock(mutex_);
    announced_.clear();
}

std::optional<Time> EventListener::due() const
{
    const std::lock_guard lock(mutex_);
    if (announced_.empty()) return std::nullopt;
    return announced_.front().time + interval_;
}

std::optional<EventListener::Announcement> EventListener::take_announced_by(Time time)
{
    const std::lock_guard lock(mutex_);
    if (announced_.empty() || announced_.front().time > time) return std::nullopt;
    quiet_.splice(quiet_.end(), announced_, announced_.begin());
    return quiet_.back();
}

void EventListener::serve()
{
    // What the calls announce is younger than this by the interval, which is never 0, and so is not delivered
    // here: this ends.
    const Time ripe = clock_->now() - interval_;
    while (const auto next = take_announced_by(ripe)) deliver(*next);
}

void EventListener::run_loop_ended()
{
    const std::lock_guard lock(mutex_);
    clock_ = nullptr;
    announced_.clear();
}

} // namespace r7
