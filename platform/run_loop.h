// The loop of one thread: serves files, times and what other threads signal.
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace r7 {

/// Nanoseconds since the beginning of a clock of its own.
using Time = std::chrono::nanoseconds;

class Clock {
public:
    virtual ~Clock() = default;
    virtual Time now() const = 0;
};

/// The machine's monotonic clock.
class SteadyClock final : public Clock {
public:
    Time now() const override;
};

/// A clock that moves when it is told; starts at 0.
class SimulatedClock final : public Clock {
public:
    Time now() const override { return now_; }
    /// Never back: an earlier time changes nothing.
    void move_to(Time time);

private:
    Time now_{0};
};

/// What a loop is doing: sources are served in the modes that they were added for.
enum class RunLoopMode { standard, modal };

/// Something that a run loop serves.
class RunLoopSource {
public:
    virtual ~RunLoopSource() = default;
    /// A file descriptor; the source is served when it can be read. -1: none.
    virtual int file_descriptor() const { return -1; }
    /// Whether there is work although neither file nor time says so (a library's own queue). Asked before
    /// every sleep.
    virtual bool is_pending() { return false; }
    /// When the source wants to be served, or nothing. Asked before every sleep; may be answered from another
    /// thread's words (RunLoopWaker).
    virtual std::optional<Time> due() const { return std::nullopt; }
    /// Does what there is to do. May add and remove sources, itself included, and run the loop in another
    /// mode.
    virtual void serve() = 0;
};

/// Wakes a loop from any thread, without allocating or blocking; outlives the loop for whoever holds it.
class RunLoopWaker {
public:
    RunLoopWaker();
    ~RunLoopWaker();
    RunLoopWaker(const RunLoopWaker&) = delete;
    RunLoopWaker& operator=(const RunLoopWaker&) = delete;
    void wake() const noexcept;

private:
    friend class RunLoop;
    int event_file_ = -1;
};

/// The loop of the thread that made it; all of its operations belong on that thread.
///
/// The one made last on a thread, and not yet gone, is the thread's current loop.
class RunLoop final {
public:
    /// `clock` outlives the loop.
    explicit RunLoop(const Clock& clock);
    ~RunLoop();
    RunLoop(const RunLoop&) = delete;
    RunLoop& operator=(const RunLoop&) = delete;

    /// The thread's loop; where none has been made, one over the machine's clock, for the rest of the
    /// thread's life.
    static RunLoop& current();

    const Clock& clock() const { return clock_; }
    std::shared_ptr<const RunLoopWaker> waker() const { return waker_; }

    /// Serves `source` from now on, in the standard mode only or in every mode. The loop does not own it: a
    /// source that is gone is served no more.
    enum class Modes { standard_only, all };
    void add(const std::shared_ptr<RunLoopSource>& source, Modes modes = Modes::all);
    void remove(const RunLoopSource& source);

    /// One turn: sleeps until something is to be done, or for `at_most`, whichever is first (never on a
    /// simulated clock's account: with one, pass 0), then serves every source that has work, once, in the
    /// order of adding.
    void turn(std::optional<Time> at_most, RunLoopMode mode = RunLoopMode::standard);
    /// Turns until stop() is called.
    void run(RunLoopMode mode = RunLoopMode::standard);
    void stop() { stopped_ = true; }

    /// Moves a simulated clock, which must be this loop's, on by `duration`, stopping to serve at each time
    /// that is due on the way, in order, and at the end.
    void advance(SimulatedClock& clock, Time duration, RunLoopMode mode = RunLoopMode::standard);

private:
    struct Entry {
        std::weak_ptr<RunLoopSource> source;
        Modes modes;
    };

    const Clock& clock_;
    std::shared_ptr<RunLoopWaker> waker_;
    std::vector<Entry> entries_;
    RunLoop* outer_ = nullptr; // the thread's loop before this one
    bool stopped_ = false;
};

} // namespace r7
