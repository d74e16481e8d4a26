// The loop of one thread: serves files, times and what other threads signal.
#pragma once

#include <atomic>
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
    /// May be asked from any thread. Never goes back.
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
    Time now() const override { return now_.load(); }
    /// Never back: an earlier time changes nothing. On one thread at a time.
    void move_to(Time time);

private:
    std::atomic<Time> now_{Time{0}};
};

/// What a loop is doing: sources are served in the modes that they were added for.
enum class RunLoopMode { standard, modal };

/// Something that a run loop serves.
///
/// The questions are asked before every sleep and before serving; answering them adds and removes no sources.
class RunLoopSource {
public:
    virtual ~RunLoopSource() = default;
    /// A file descriptor, or -1 for none. The source is served when it can be read, has failed or was closed;
    /// by then somebody else may have read what there was.
    virtual int file_descriptor() const { return -1; }
    /// Whether there is work although neither file nor time says so (a library's own queue).
    virtual bool is_pending() { return false; }
    /// When the source wants to be served, or nothing. Another thread that makes this an earlier time wakes
    /// the loop (RunLoopWaker).
    virtual std::optional<Time> due() const { return std::nullopt; }
    /// Does what there is to do. May add, remove and destroy sources, itself included, and run the loop in
    /// another mode, which serves this source, too, if it has work left.
    virtual void serve() = 0;
    /// The loop is going, and its clock may follow.
    virtual void run_loop_ended() {}
};

/// Wakes a loop from any thread, without allocating or blocking; outlives the loop for whoever holds it.
class RunLoopWaker final {
public:
    /// Throws std::system_error where the process can open no more files.
    RunLoopWaker();
    ~RunLoopWaker();
    RunLoopWaker(const RunLoopWaker&) = delete;
    RunLoopWaker& operator=(const RunLoopWaker&) = delete;
    /// Ends the sleep that the loop is in, or else its next one.
    void wake() const noexcept;

private:
    friend class RunLoop;
    void forget_wakes() const noexcept;

    int event_file_ = -1;
};

/// The loop of the thread that made it; all of its operations belong on that thread.
///
/// The one made last on a thread, and not yet gone, is the thread's current loop.
class RunLoop final {
public:
    enum class Modes { standard_only, all };

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

    /// Serves `source`, from the next turn on and after those added before, in the standard mode only or in
    /// every mode. A source that was added before comes last now, in the modes given last. The loop does not
    /// own it: a source that is gone is served no more.
    void add(const std::shared_ptr<RunLoopSource>& source, Modes modes = Modes::all);
    void remove(const RunLoopSource& source);

    /// One turn: sleeps until something is to be done, or for `at_most`, whichever is first (never on a
    /// simulated clock's account: with one, pass 0), then serves every source that has work, once, in the
    /// order of adding. Sleeps end on whole milliseconds, a little late rather than early.
    void turn(std::optional<Time> at_most, RunLoopMode mode = RunLoopMode::standard);
    /// Turns until stop() is called.
    void run(RunLoopMode mode = RunLoopMode::standard);
    /// Ends the innermost run() after this turn, or, where none is under way, the next one before its first.
    void stop() { stopped_ = true; }

    /// Moves a simulated clock, which must be this loop's, on by `duration`, taking a turn at once, at each
    /// time that a source is due on the way, and at the end. A source that is due again at the time at which
    /// it was served waits for the next of these turns.
    void advance(SimulatedClock& clock, Time duration, RunLoopMode mode = RunLoopMode::standard);

private:
    friend class RunLoopFile;

    struct Entry {
        std::weak_ptr<RunLoopSource> source;
        Modes modes;

        bool is_served_in(RunLoopMode mode) const
        {
            return modes == Modes::all || mode == RunLoopMode::standard;
        }
    };

    // The sources of a mode, what they say before a sleep, and how long that may last (no time: until a file
    // can be read). The last file is the waker's; the others belong to the sources, in the same order.
    struct Prospect {
        std::vector<std::weak_ptr<RunLoopSource>> sources;
        std::vector<int> files;
        std::optional<Time> sleep;
    };

    Prospect ask(RunLoopMode mode) const;
    // Whether the source is still to be served, in whichever modes.
    bool has(const RunLoopSource& source) const;
    // The earliest time after `time` that a source is due at, or nothing.
    std::optional<Time> next_due_after(Time time, RunLoopMode mode) const;

    const Clock& clock_;
    std::shared_ptr<RunLoopWaker> waker_ = std::make_shared<RunLoopWaker>();
    std::vector<Entry> entries_;
    RunLoop* outer_ = nullptr; // the thread's loop before this one
    bool stopped_ = false;
};

} // namespace r7
