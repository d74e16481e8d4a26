// An open panel to which nothing happens does nothing.
#include "bench/limits/limits.h"

#include "platform/x11/x11_window.h"
#include "tests/support/panel_rig.h"

#include <sys/times.h>

#include <cmath>
#include <cstdio>

namespace r7::bench {

namespace {

/// Processor time of this process, its own and the system's for it.
double clock_ticks()
{
    tms used{};
    times(&used);
    return static_cast<double>(used.tms_utime + used.tms_stime);
}

void turn_for(RunLoop& loop, Time duration)
{
    const Time end = loop.clock().now() + duration;
    while (loop.clock().now() < end) loop.turn(end - loop.clock().now());
}

} // namespace

void measure_idleness(Limits& limits)
{
    using std::chrono::seconds;
    const SteadyClock clock;
    RunLoop loop(clock);
    const auto unit = EmbeddedUnit::create();
    const auto panel = QmR7ViewFactory(std::make_shared<Bundle>(R7_RESOURCES))
                           .uiViewForAudioUnit_withSize(unit->handle(), {});
    const auto x11 = X11Window::open({.size = panel->bounds().size()}).window;
    double ticks = NAN, bytes = NAN;
    if (x11) {
        x11->window().set_content_view(panel);
        loop.add(x11);
        turn_for(loop, seconds(1)); // shown, synchronised and painted
        const double ticks_before = clock_ticks();
        const auto sent_before = static_cast<double>(x11->bytes_sent());
        turn_for(loop, seconds(10));
        ticks = clock_ticks() - ticks_before;
        bytes = static_cast<double>(x11->bytes_sent()) - sent_before;
    } else {
        std::fputs("r7_limits: no display to open the panel on\n", stderr);
    }
    limits.at_most(0, ticks, "open panel, nothing happening for 10 s: clock ticks of the processor");
    limits.at_most(0, bytes, "open panel, nothing happening for 10 s: bytes sent to the display");
}

} // namespace r7::bench
