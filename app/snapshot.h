// `r7 snapshot`: one picture of the panel.
#pragma once

#include "app/command_line.h"
#include "app/exit_status.h"

namespace r7 {

/// Writes what a panel that has just been opened shows. Complaints go to standard error.
ExitStatus take_snapshot(const SnapshotOptions& options, const std::filesystem::path& resources);

} // namespace r7
