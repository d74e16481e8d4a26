// `r7 play`: session files, one after another.
#pragma once

#include "app/command_line.h"
#include "app/exit_status.h"

namespace r7 {

/// Checks all files, then plays each against a panel of its own. Results go to standard output, complaints to
/// standard error.
ExitStatus play_sessions(const PlayOptions& options, const std::filesystem::path& resources);

} // namespace r7
