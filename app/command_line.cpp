// The command line: its options and forms.
#include "app/command_line.h"

#include "app/number_text.h"
#include "app/text_command.h"

#include <CLI/CLI.hpp>

#include <sstream>

namespace r7 {

namespace {

/// An option `--scale N`, within its bounds.
template <typename Scale>
CLI::Option* add_scale(CLI::App& app, Scale& scale, const std::string& description)
{
    const auto read = [&scale](const std::string& text) {
        const auto number = number_from<double>(text);
        // Written so that a NaN is refused.
        if (!number || !(*number >= kSmallestScale && *number <= kLargestScale))
            throw CLI::ValidationError("--scale", "a number from 0.5 to 4 is needed, not " + text);
        scale = *number;
    };
    return app.add_option_function<std::string>("--scale", read, description)->type_name("N");
}

} // namespace

Request read_command_line(int count, const char* const* arguments)
{
    CLI::App app{"The panel of the R7 audio effect, in a window, over an embedded unit."};
    app.name("r7");
    app.set_version_flag("--version", "r7 " R7_VERSION);
    app.require_subcommand(0, 1);

    WindowOptions window;
    std::filesystem::path resources;
    auto* trace = app.add_flag("--trace", window.trace, "Print what the panel does, as sessions do");
    auto* no_status = app.add_flag_callback(
        "--no-status", [&] { window.status = false; }, "Leave out the status line below the panel");
    auto* scale = add_scale(app, window.scale, "Pixels for a point, 0.5 to 4 (default: the display's)");
    auto* folder =
        app.add_option("--resources", resources, "Where the panel's resources are")->type_name("DIR");

    PlayOptions play;
    CLI::App* play_form = app.add_subcommand("play", "Play session files, without a display");
    play_form->add_option("FILE", play.sessions, "Session files, played one after another")->required();
    play_form->add_option("--pictures", play.pictures, "Where relative picture names start")
        ->type_name("DIR");

    SnapshotOptions snapshot;
    CLI::App* snapshot_form = app.add_subcommand("snapshot", "Write one picture of the panel");
    snapshot_form->add_option("FILE.png", snapshot.file, "The picture")->required();
    add_scale(*snapshot_form, snapshot.scale, "Pixels for a point, 0.5 to 4 (default: 1)");

    TextOptions text;
    CLI::App* text_form = add_text_form(app, text);

    // What belongs to the window has no meaning without it.
    for (CLI::App* form : {play_form, snapshot_form, text_form})
        form->excludes(trace)->excludes(no_status)->excludes(scale)->excludes(folder);

    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError& error) {
        std::ostringstream answer, complaint;
        if (app.exit(error, answer, complaint) == 0) return Answer{answer.str()};
        return UsageError{complaint.str()};
    }
    if (play_form->parsed()) return play;
    if (snapshot_form->parsed()) return snapshot;
    if (text_form->parsed()) return text;
    if (folder->count() > 0) window.resources = resources;
    return window;
}

} // namespace r7
