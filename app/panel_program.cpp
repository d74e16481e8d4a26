// `r7`: the panel in a window.
#include "app/panel_program.h"

#include "app/curve_announcer.h"
#include "app/open_overlay.h"
#include "app/resources.h"
#include "app/status_line.h"
#include "app/stop_signals.h"
#include "app/transcript.h"
#include "host/view_factory.h"
#include "platform/run_loop.h"
#include "platform/x11/x11_window.h"
#include "unit/embedded_unit.h"

#include <csignal>
#include <cstdio>
#include <optional>
#include <vector>

namespace r7 {

namespace {

const char* reason(X11OpenStatus status)
{
    switch (status) {
    case X11OpenStatus::open:
        break;
    case X11OpenStatus::no_display:
        return "there is no display, or it lets nobody in";
    case X11OpenStatus::no_usable_visual:
        return "the display has no pixels of 32 bits in this machine's order";
    case X11OpenStatus::unusable_parent:
        return "the window around is gone";
    case X11OpenStatus::too_large:
        return "the window would be too large for the display";
    }
    return "";
}

// The program's picture, in the sizes that the resources have.
std::vector<ImageRef> icons_of(const Bundle& bundle)
{
    std::vector<ImageRef> icons;
    for (const char* name : {"icon-16", "icon-24", "icon-32", "icon-48", "icon-64", "icon-128", "icon-256"})
        icons.push_back(bundle.image_resource(name));
    return icons;
}

ExitStatus no_display(const char* why)
{
    std::fprintf(stderr, "r7: %s\n", why);
    return ExitStatus::no_display;
}

} // namespace

ExitStatus show_panel(const WindowOptions& options, const std::filesystem::path& resources)
{
    const SteadyClock clock;
    RunLoop loop(clock);
    Transcript transcript(stdout);
    CurveAnnouncer announcer(options.trace ? &transcript : nullptr);
    const auto unit = EmbeddedUnit::create(&announcer);
    const auto bundle = std::make_shared<const Bundle>(resources);
    const auto panel = QmR7ViewFactory(bundle).uiViewForAudioUnit_withSize(unit->handle(), {});
    if (!panel) return no_resources(resources);
    announcer.begin(*panel);
    // There is no sound here. A sine at full scale lets the waveshapers' displays show what a curve does.
    for (const Stage stage : {Stage::one, Stage::two}) unit->take_level(stage, 1.0);

    bool open = true;
    bool lost = false;
    Size size = panel->bounds().size();
    if (options.status) size.height += StatusLine::kHeight;
    X11WindowOptions wanted{.size = size, .title = "R7", .class_name = "r7"};
    wanted.scale = options.scale.value_or(0.0);
    wanted.icons = icons_of(*bundle);
    wanted.close_requested = [&open] { open = false; };
    wanted.connection_lost = [&open, &lost] {
        open = false;
        lost = true;
    };
    // A display that goes away shows in what it answers, and a reader of the trace in the file's state.
    std::signal(SIGPIPE, SIG_IGN);
    const auto [window, status] = X11Window::open(std::move(wanted));
    if (!window) return no_display(reason(status));
    std::optional<StatusLine> status_line;
    if (options.status)
        status_line.emplace(window->window(), panel, *unit, *bundle);
    else
        window->window().set_content_view(panel);
    loop.add(window);
    const auto signals = std::make_shared<StopSignals>([&open] { open = false; });
    loop.add(signals);

    if (options.trace) {
        std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
        transcript.begin([&] { return open_overlay(*panel); });
    }
    while (open && std::ferror(stdout) == 0) {
        loop.turn(std::nullopt);
        transcript.note_overlay();
    }
    return lost ? no_display("the display was lost") : ExitStatus::done;
}

} // namespace r7
