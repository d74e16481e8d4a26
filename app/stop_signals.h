// The signals that ask a program to end, served by its run loop.
#pragma once

#include "platform/run_loop.h"

#include <csignal>
#include <functional>

namespace r7 {

/// While it lives, SIGINT and SIGTERM do not end the process but call `stop` from the loop that serves this.
/// For the thread that runs the loop, while no other thread takes these signals.
class StopSignals final : public RunLoopSource {
public:
    explicit StopSignals(std::function<void()> stop);
    ~StopSignals() override;
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

    int file_descriptor() const override { return file_; }
    void serve() override;

private:
    std::function<void()> stop_;
    sigset_t before_{}; // what was blocked
    int file_ = -1;     // -1: the signals end the process as ever
};

} // namespace r7
