// `r7 play`.
#include "app/play.h"

#include "app/open_overlay.h"
#include "app/resources.h"
#include "app/session_player.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

namespace r7 {

namespace {

std::optional<std::string> contents_of(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) return std::nullopt;
    std::string contents;
    std::array<char, 65536> piece;
    do {
        stream.read(piece.data(), piece.size());
        contents.append(piece.data(), static_cast<std::size_t>(stream.gcount()));
    } while (stream);
    if (stream.bad()) return std::nullopt;
    return contents;
}

void complain(const std::filesystem::path& file, const ScriptError& error)
{
    std::fprintf(stderr, "%s:%d: %s\n", file.c_str(), error.line, error.what.c_str());
}

// The scripts of all files, or nothing; then the reasons have been told.
std::optional<std::vector<Script>> read_scripts(const std::vector<std::filesystem::path>& files)
{
    std::vector<Script> scripts;
    for (const std::filesystem::path& file : files) {
        const std::optional<std::string> text = contents_of(file);
        if (!text) {
            std::fprintf(stderr, "%s: the file cannot be read\n", file.c_str());
            continue;
        }
        auto script = read_script(*text);
        if (const auto* error = std::get_if<ScriptError>(&script))
            complain(file, *error);
        else
            scripts.push_back(std::get<Script>(std::move(script)));
    }
    if (scripts.size() != files.size()) return std::nullopt;
    return scripts;
}

} // namespace

ExitStatus play_sessions(const PlayOptions& options, const std::filesystem::path& resources)
{
    const auto scripts = read_scripts(options.sessions);
    if (!scripts) return ExitStatus::usage;
    for (std::size_t i = 0; i < scripts->size(); ++i) {
        Transcript transcript(stdout);
        const auto stage = OffscreenPanel::open(std::make_shared<const Bundle>(resources), 1.0, &transcript);
        if (!stage) return no_resources(resources);
        transcript.begin([&] { return open_overlay(stage->panel()); });
        const auto failed = play_script((*scripts)[i], *stage, transcript, options.pictures);
        if (std::fflush(stdout) != 0) return ExitStatus::failure;
        if (failed) {
            complain(options.sessions[i], *failed);
            return ExitStatus::failure;
        }
    }
    return ExitStatus::done;
}

} // namespace r7
