// Plays a session script: does what a user and a host would, and prints what came of it.
#pragma once

#include "app/offscreen_panel.h"
#include "app/session_script.h"
#include "app/transcript.h"

#include <filesystem>
#include <optional>

namespace r7 {

/// Performs the commands in order against a panel that nothing has happened to yet.
///
/// @param pictures  where the relative names of its pictures start; empty: the current directory
/// @return nothing where all is done; otherwise the command that failed, the last one performed. Only a
/// picture can
///         fail.
[[nodiscard]] std::optional<ScriptError> play_script(const Script& script, OffscreenPanel& stage,
                                                     Transcript& transcript,
                                                     const std::filesystem::path& pictures);

} // namespace r7
