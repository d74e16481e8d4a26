// `r7`: the panel in a window.
#pragma once

#include "app/command_line.h"
#include "app/exit_status.h"

namespace r7 {

/// Shows a panel over a fresh unit on the display that the environment names, until the user closes it,
/// SIGINT or SIGTERM asks for its end, or the display is lost. Complaints go to standard error; the trace,
/// line by line, to standard output.
ExitStatus show_panel(const WindowOptions& options, const std::filesystem::path& resources);

} // namespace r7
