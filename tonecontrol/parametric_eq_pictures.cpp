// The pictures that the tone control's editor is composed of, painted once.
#include "tonecontrol/parametric_eq_pictures.h"

#include "platform/graphics.h"

#include <initializer_list>
#include <string_view>
#include <utility>

namespace r7 {

namespace {

struct Label {
    float at;
    std::string_view text;
};

constexpr Label kFrequencyLabels[] = {
    {10.0f, "10"},   {20.0f, "20"},   {50.0f, "50"},   {100.0f, "100"},   {200.0f, "200"},   {500.0f, "500"},
    {1000.0f, "1k"}, {2000.0f, "2k"}, {5000.0f, "5k"}, {10000.0f, "10k"}, {20000.0f, "20k"},
};

/// The blank stands where a sign would. The uppermost is a dB low, meant: so it stays inside the view.
constexpr Label kGainLabels[] = {
    {0.0f, "0 dB"}, {10.0f, " 10"},  {-10.0f, "-10"}, {20.0f, " 20"},  {-20.0f, "-20"},
    {30.0f, " 30"}, {-30.0f, "-30"}, {39.0f, " 40"},  {-40.0f, "-40"},
};

constexpr Size kLabel{20.0, 25.0};
constexpr double kMargin = 30.0;

using Line = std::pair<Point, Point>;

ImageRef button_picture(std::initializer_list<Line> glyph)
{
    return Image::painted({30.0, 15.0}, [&](Graphics& graphics) {
        Path plate, strokes;
        plate.line_width = strokes.line_width = 2.0;
        plate.append_rect({0.0, 0.0, 30.0, 15.0});
        for (const auto& [from, to] : glyph) {
            strokes.move_to(from);
            strokes.line_to(to);
        }
        graphics.fill(plate, Color::device_rgba(0.0, 0.0, 1.0, 0.333).get());
        graphics.stroke(plate, Color::device_rgba(0.0, 0.0, 1.0, 1.0).get());
        graphics.stroke(strokes, Color::device_rgba(1.0, 1.0, 1.0, 1.0).get());
    });
}

} // namespace

ImageRef close_button_picture()
{
    return button_picture({{{10.0, 2.5}, {20.0, 12.5}}, {{10.0, 12.5}, {20.0, 2.5}}});
}

ImageRef reset_button_picture()
{
    return button_picture({{{10.0, 7.5}, {20.0, 7.5}}});
}

ImageRef graph_body_picture(Size size, const ToneMapping& mapping)
{
    return Image::painted(size, [&](Graphics& graphics) {
        Path margins;
        margins.append_rect({0.0, 0.0, kMargin, size.height});
        margins.append_rect({0.0, 0.0, size.width, kMargin});
        graphics.fill(margins, Color::device_white(0.25, 0.9).get());

        const TextAttributes text{.font_size = 9.0,
                                  .alignment = TextAlignment::center,
                                  .color = Color::device_rgba(0.0, 0.0, 0.0, 1.0)};
        graphics.draw_text("Frequency (Hz)", {size.width * 0.5 - 35.0, 1.0, 70.0, 15.0}, text);
        for (const auto& [hz, label] : kFrequencyLabels)
            graphics.draw_text(
                label, {mapping.location_for_frequency(hz) - 10.0, 2.0, kLabel.width, kLabel.height}, text);
        for (const auto& [db, label] : kGainLabels)
            graphics.draw_text(
                label, {5.0, mapping.location_for_gain(db) - 20.0, kLabel.width, kLabel.height}, text);
    });
}

} // namespace r7
