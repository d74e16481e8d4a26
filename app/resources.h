// Where the program finds the panel's resources.
#pragma once

#include "app/exit_status.h"

#include <filesystem>

namespace r7 {

/// The folder that belongs to this program: that of the source tree which it was built from, or else the
/// installed one, `../share/r7` beside the program's own folder. Both are found from where the program is, so
/// that a tree may be moved.
std::filesystem::path own_resources();

/// Complains on standard error that the panel cannot be loaded from `folder`, and why.
ExitStatus no_resources(const std::filesystem::path& folder);

} // namespace r7
