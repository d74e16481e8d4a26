// The command line of the program r7.
#pragma once

#include "platform/color.h"

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace r7 {

/// Pixels for a point that `--scale` may ask for.
inline constexpr double kSmallestScale = 0.5;
inline constexpr double kLargestScale = 4.0;

/// The panel in a window.
struct WindowOptions {
    bool trace = false;
    bool status = true;                               ///< the status line below the panel
    std::optional<double> scale{};                    ///< none: the display's
    std::optional<std::filesystem::path> resources{}; ///< none: the program's own
};

/// Sessions, off-screen.
struct PlayOptions {
    std::vector<std::filesystem::path> sessions;
    std::filesystem::path pictures; ///< where relative picture names start; empty: the current directory
};

/// One picture of the panel.
struct SnapshotOptions {
    std::filesystem::path file;
    double scale = 1.0;
};

/// One painted text. Lengths in points, one pixel each.
struct TextOptions {
    std::string words;
    std::filesystem::path file;
    float font_size = 48.0f;
    Rgba color{0.0, 0.0, 1.0, 1.0};
    float height_scale = 11.0f;
    float shade_scale = 18.0f;
    std::optional<int> width{};  ///< none: as the words need it
    std::optional<int> height{}; ///< none: of one line
};

/// Help or version was asked for: what to print.
struct Answer {
    std::string text;
};

/// The command line is wrong: what to complain.
struct UsageError {
    std::string text;
};

using Request = std::variant<WindowOptions, PlayOptions, SnapshotOptions, TextOptions, Answer, UsageError>;

/// What the arguments ask for; `arguments[0]` is the program's name.
Request read_command_line(int count, const char* const* arguments);

} // namespace r7
