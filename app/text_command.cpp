// `r7 text`.
#include "app/text_command.h"

#include "app/number_text.h"
#include "controls/painted_text_view.h"
#include "platform/offscreen/offscreen_window.h"
#include "platform/text.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <memory>

namespace r7 {

namespace {

constexpr float kLargestFontSize = 1000.0f;
// Of a picture whose size follows from the text, per point of the font's size.
constexpr double kMargin = 0.5; // at the left and at the right
constexpr double kLineHeight = 1.25;

/// An option `name N` whose numbers have to satisfy `accepts`.
template <typename Number, typename Value, typename Accepts>
void add_number(CLI::App& form, const std::string& name, Value& value, const std::string& range,
                const std::string& description, Accepts accepts)
{
    const auto read = [=, &value](const std::string& text) {
        const auto number = number_from<Number>(text);
        if (!number || !accepts(*number))
            throw CLI::ValidationError(name, "a number " + range + " is needed, not " + text);
        value = *number;
    };
    form.add_option_function<std::string>(name, read, description + ", " + range)->type_name("N");
}

/// "R,G,B", each from 0 to 1.
std::optional<Rgba> color_from(const std::string& text)
{
    std::array<double, 3> parts{};
    std::size_t start = 0;
    for (double& part : parts) {
        const bool is_last = &part == &parts.back();
        const std::size_t end = is_last ? text.size() : text.find(',', start);
        if (end == std::string::npos) return std::nullopt;
        const auto number = number_from<double>(text.substr(start, end - start));
        if (!number || !(*number >= 0.0 && *number <= 1.0)) return std::nullopt;
        part = *number;
        start = end + 1;
    }
    return Rgba{parts[0], parts[1], parts[2], 1.0};
}

double whole_pixels(double length)
{
    return std::clamp(std::ceil(length), 1.0, double{kMostImagePixels});
}

Size picture_size(const TextOptions& options)
{
    const double needed = width_of_text(options.words, options.font_size) + 2.0 * kMargin * options.font_size;
    return {options.width ? *options.width : whole_pixels(needed),
            options.height ? *options.height : whole_pixels(kLineHeight * options.font_size)};
}

} // namespace

CLI::App* add_text_form(CLI::App& app, TextOptions& options)
{
    CLI::App* const form = app.add_subcommand("text", "Paint a line of text into a picture");
    form->add_option("WORDS", options.words, "The text")->required();
    form->add_option("FILE.png", options.file, "The picture")->required();
    const auto read_color = [&options](const std::string& text) {
        const auto color = color_from(text);
        if (!color)
            throw CLI::ValidationError("--color", "three numbers from 0 to 1 are needed, not " + text);
        options.color = *color;
    };
    form->add_option_function<std::string>("--color", read_color, "The paint (default: 0,0,1)")
        ->type_name("R,G,B");
    add_number<float>(*form, "--size", options.font_size, "above 0 and up to 1000",
                      "Font size in points (default: 48)",
                      [](float n) { return n > 0.0f && n <= kLargestFontSize; });
    add_number<float>(*form, "--height", options.height_scale, "above 0 and below 300",
                      "Pixels from an edge to the top of the relief (default: 11)",
                      [](float n) { return n > 0.0f && n < 300.0f; });
    add_number<float>(*form, "--shade", options.shade_scale, "above 0.001 and below 200",
                      "Steepness of the relief (default: 18)",
                      [](float n) { return n > 0.001f && n < 200.0f; });
    const auto is_side = [](int n) { return n >= 1 && n <= kMostImagePixels; };
    add_number<int>(*form, "--width", options.width, "from 1 to 4096",
                    "Pixels (default: as the text needs them)", is_side);
    add_number<int>(*form, "--height-px", options.height, "from 1 to 4096", "Pixels (default: one line)",
                    is_side);
    return form;
}

ExitStatus paint_text(const TextOptions& options, const std::filesystem::path& resources)
{
    const Size size = picture_size(options);
    const Rect frame{0.0, 0.0, size.width, size.height};
    const auto view = std::make_shared<QmR7PaintedTextView>(frame, Bundle(resources));
    view->set_text_font_size_paint_color_height_scale_shade_scale(
        options.words, options.font_size, std::make_shared<const Color>(options.color), options.height_scale,
        options.shade_scale);
    if (!view->image()) {
        std::fprintf(stderr, "r7: %s: the picture of the ball is missing or unusable\n",
                     (resources / "lightball.tiff").c_str());
        return ExitStatus::no_resources;
    }
    OffscreenWindow screen(frame, 1.0);
    screen.window().background_color = Color::device_white(0.13, 1.0);
    screen.window().set_content_view(view);
    if (screen.picture().write_png(options.file)) return ExitStatus::done;
    std::fprintf(stderr, "r7: the picture %s cannot be written\n", options.file.c_str());
    return ExitStatus::failure;
}

} // namespace r7
