// A source of a run loop that does what a test tells it.
#pragma once

#include "platform/run_loop.h"

#include <functional>
#include <optional>

namespace r7 {

struct Source final : RunLoopSource {
    int file = -1;
    bool pending = false;
    std::optional<Time> when;
    std::function<void()> work;

    int file_descriptor() const override { return file; }
    bool is_pending() override { return pending; }
    std::optional<Time> due() const override { return when; }
    void serve() override { work(); }
    void run_loop_ended() override { work(); }
};

} // namespace r7
