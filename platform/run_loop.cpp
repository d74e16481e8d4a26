// The loop of one thread: one poll() over the wake-up file and the descriptors of all sources.
#include "platform/run_loop.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <cstdint>
#include <limits>
#include <system_error>
#include <utility>

namespace r7 {

namespace {

thread_local RunLoop* innermost = nullptr;

// What poll() takes: whole milliseconds, rounded up lest a loop wakes early and turns for nothing; -1: no
// end.
int poll_timeout(std::optional<Time> sleep)
{
    if (!sleep) return -1;
    const auto milliseconds = std::chrono::ceil<std::chrono::milliseconds>(*sleep).count();
    using Count = decltype(milliseconds);
    return static_cast<int>(std::clamp<Count>(milliseconds, 0, std::numeric_limits<int>::max()));
}

std::optional<Time> earlier(std::optional<Time> a, std::optional<Time> b)
{
    if (!a || !b) return a ? a : b;
    return std::min(*a, *b);
}

} // namespace

Time SteadyClock::now() const
{
    return std::chrono::steady_clock::now().time_since_epoch();
}

void SimulatedClock::move_to(Time time)
{
    now_ = std::max(now(), time);
}

RunLoopWaker::RunLoopWaker() : event_file_(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    if (event_file_ < 0) throw std::system_error(errno, std::generic_category(), "run loop");
}

RunLoopWaker::~RunLoopWaker()
{
    ::close(event_file_);
}

void RunLoopWaker::wake() const noexcept
{
    // It fails only when the counter is full, and then the loop will wake all the same.
    [[maybe_unused]] const int status = ::eventfd_write(event_file_, 1);
}

void RunLoopWaker::forget_wakes() const noexcept
{
    eventfd_t count = 0;
    [[maybe_unused]] const int status = ::eventfd_read(event_file_, &count);
}

RunLoop::RunLoop(const Clock& clock) : clock_(clock), outer_(std::exchange(innermost, this)) {}

RunLoop::~RunLoop()
{
    for (RunLoop** loop = &innermost; *loop; loop = &(*loop)->outer_) {
        if (*loop != this) continue;
        *loop = outer_;
        break;
    }
    for (const Entry& entry : std::exchange(entries_, {})) {
        if (const auto source = entry.source.lock()) source->run_loop_ended();
    }
}

RunLoop& RunLoop::current()
{
    if (!innermost) {
        static const SteadyClock clock;
        static thread_local RunLoop loop(clock);
    }
    return *innermost;
}

void RunLoop::add(const std::shared_ptr<RunLoopSource>& source, Modes modes)
{
    remove(*source);
    entries_.push_back({source, modes});
}

void RunLoop::remove(const RunLoopSource& source)
{
    std::erase_if(entries_, [&](const Entry& entry) {
        return entry.source.expired() || entry.source.lock().get() == &source;
    });
}

bool RunLoop::has(const RunLoopSource& source) const
{
    return std::ranges::any_of(entries_,
                               [&](const Entry& entry) { return entry.source.lock().get() == &source; });
}

RunLoop::Prospect RunLoop::ask(RunLoopMode mode) const
{
    Prospect prospect;
    for (const Entry& entry : entries_) {
        const auto source = entry.source.lock();
        if (!source || !entry.is_served_in(mode)) continue;
        prospect.sources.push_back(entry.source);
        prospect.files.push_back(source->file_descriptor());
        if (const auto due = source->due()) prospect.sleep = earlier(prospect.sleep, *due - clock_.now());
        if (source->is_pending()) prospect.sleep = Time{0};
    }
    prospect.files.push_back(waker_->event_file_);
    return prospect;
}

void RunLoop::turn(std::optional<Time> at_most, RunLoopMode mode)
{
    // What is served in this turn is settled here: a source may add and remove others and turn the loop
    // itself, and one that finds itself new work waits for the next turn, so that all others have theirs.
    const Prospect prospect = ask(mode);
    std::vector<pollfd> files;
    for (const int file : prospect.files) files.push_back({file, POLLIN, 0});

    // Interrupted by a signal it leaves no answers behind, and the turn goes on with what is due.
    ::poll(files.data(), files.size(), poll_timeout(earlier(at_most, prospect.sleep)));
    // Before anybody is asked for work: a wake that comes while they are served counts for the next sleep.
    if (files.back().revents != 0) waker_->forget_wakes();

    const Time now = clock_.now();
    for (std::size_t i = 0; i < prospect.sources.size(); ++i) {
        const auto source = prospect.sources[i].lock();
        if (!source || !has(*source)) continue;
        const auto due = source->due();
        if (files[i].revents != 0 || (due && *due <= now) || source->is_pending()) source->serve();
    }
}

void RunLoop::run(RunLoopMode mode)
{
    while (!stopped_) turn(std::nullopt, mode);
    stopped_ = false;
}

std::optional<Time> RunLoop::next_due_after(Time time, RunLoopMode mode) const
{
    std::optional<Time> next;
    for (const Entry& entry : entries_) {
        const auto source = entry.source.lock();
        if (!source || !entry.is_served_in(mode)) continue;
        if (const auto due = source->due(); due && *due > time) next = earlier(next, due);
    }
    return next;
}

void RunLoop::advance(SimulatedClock& clock, Time duration, RunLoopMode mode)
{
    assert(&clock == &clock_);
    const Time end = clock.now() + duration;
    turn(Time{0}, mode);
    while (clock.now() < end) {
        clock.move_to(*earlier(end, next_due_after(clock.now(), mode)));
        turn(Time{0}, mode);
    }
}

} // namespace r7
