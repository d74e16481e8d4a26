// The program r7.
#include "app/command_line.h"
#include "app/exit_status.h"
#include "app/panel_program.h"
#include "app/play.h"
#include "app/resources.h"
#include "app/snapshot.h"
#include "app/text_command.h"

#include <cstdio>

namespace r7 {

namespace {

ExitStatus serve(const WindowOptions& options)
{
    return show_panel(options, options.resources.value_or(own_resources()));
}

ExitStatus serve(const PlayOptions& options)
{
    return play_sessions(options, own_resources());
}

ExitStatus serve(const SnapshotOptions& options)
{
    return take_snapshot(options, own_resources());
}

ExitStatus serve(const TextOptions& options)
{
    return paint_text(options, own_resources());
}

ExitStatus serve(const Answer& answer)
{
    std::fputs(answer.text.c_str(), stdout);
    return ExitStatus::done;
}

ExitStatus serve(const UsageError& error)
{
    std::fprintf(stderr, "r7: %s", error.text.c_str());
    return ExitStatus::usage;
}

} // namespace

} // namespace r7

int main(int count, char** arguments)
{
    using namespace r7;
    ExitStatus status =
        std::visit([](const auto& request) { return serve(request); }, read_command_line(count, arguments));
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        std::fputs("r7: standard output cannot be written\n", stderr);
        if (status == ExitStatus::done) status = ExitStatus::failure;
    }
    return static_cast<int>(status);
}
