// A run loop as one file: for a thread that sleeps in a loop of another kind.
#pragma once

#include "platform/run_loop.h"

#include <vector>

namespace r7 {

/// Lets another loop of the thread (a toolkit's, a host's) run this one: that loop watches one descriptor and
/// takes a turn whenever it can be read. Belongs on the run loop's thread; the run loop, over the machine's
/// clock, outlives it.
class RunLoopFile final {
public:
    /// Throws std::system_error where the process can open no more files.
    explicit RunLoopFile(RunLoop& loop);
    ~RunLoopFile();
    RunLoopFile(const RunLoopFile&) = delete;
    RunLoopFile& operator=(const RunLoopFile&) = delete;

    /// Can be read, to any kind of poll, while a turn has work: a source's file can be read, a source is due
    /// or has work pending, or the loop was woken. It is not for reading from.
    ///
    /// Sources were last asked in the last turn. Whoever gives one new work in between, other than through
    /// its file, or adds one, wakes the loop (RunLoop::waker) or takes a turn.
    int descriptor() const { return ready_; }

    /// Serves what has work in the standard mode, without sleeping. May be called at any time.
    void turn();

private:
    // Makes the file tell of what the sources wait for now.
    void watch();

    RunLoop& loop_;
    int timer_;
    int ready_;                // the watched files and the timer, as one
    std::vector<int> watched_; // the sources' files, and the waker's
};

} // namespace r7
