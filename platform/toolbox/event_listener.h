// One event listener: what it has asked for, what has been announced to it, and when it hears of it.
#pragma once

#include "platform/audio_toolbox.h"
#include "platform/run_loop.h"

#include <list>
#include <memory>
#include <mutex>
#include <optional>

namespace r7 {

/// A source of the run loop that it is delivered on; due when its first announcement is. Any thread, but for
/// what the loop calls.
class EventListener final : public RunLoopSource {
public:
    /// An event, what it was asked for with, and when it was announced, on the loop's clock.
    struct Announcement {
        AudioUnitEvent event;
        void* object = nullptr;
        Time time{0};
    };

    EventListener(AUEventListenerProc proc, void* user_data, const RunLoop& loop, Time interval);

    void subscribe(void* object, const AudioUnitEvent& event);
    /// If the event was asked for, has it delivered after the interval. Without effect while it is to be
    /// delivered anyway, and once the loop has gone.
    void announce(const AudioUnitEvent& event);
    /// Calls the listener now, on this thread, with `value` or else with the parameter's own. False if it has
    /// been disposed of or the event's unit has gone.
    bool deliver(const Announcement& announcement, std::optional<Float32> value = std::nullopt);
    /// Calls the listener no more. Waits for a call that another thread is in.
    void dispose();

    std::optional<Time> due() const override;
    void serve() override;
    void run_loop_ended() override;

private:
    // Takes the first announcement that was made by `time` off the list.
    std::optional<Announcement> take_announced_by(Time time);

    const AUEventListenerProc proc_;
    void* const user_data_;
    const Time interval_;
    const std::shared_ptr<const RunLoopWaker> waker_;

    // Held during a call, so that disposing waits for it on another thread, and does not on the same.
    std::recursive_mutex calling_;
    bool disposed_ = false;

    // Held for no longer than a walk over the lists. What was asked for stands in the one or the other:
    // announcing moves it to the end of the second, and so neither allocates nor loses anything.
    mutable std::mutex mutex_;
    std::list<Announcement> quiet_;
    std::list<Announcement> announced_; // first change first
    const Clock* clock_;                // null once the loop has gone
};

} // namespace r7
