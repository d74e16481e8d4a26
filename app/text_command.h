// `r7 text`: one painted text.
#pragma once

#include "app/command_line.h"
#include "app/exit_status.h"

namespace CLI {
class App;
}

namespace r7 {

/// Adds the form `text` to a command line, which fills `options` when it is parsed. Numbers that a painted
/// text would ignore are errors here.
CLI::App* add_text_form(CLI::App& app, TextOptions& options);

/// Paints the words on a dark ground into a PNG file. Complaints go to standard error.
ExitStatus paint_text(const TextOptions& options, const std::filesystem::path& resources);

} // namespace r7
