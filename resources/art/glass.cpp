// The displays' glass: dark, set into the plate, with a faint grid behind the curves.
#include "resources/art/glass.h"

#include "resources/art/palette.h"
#include "resources/art/recess.h"
#include "resources/art/shapes.h"

#include <numbers>

namespace r7::art {

namespace {

const TextStyle kGridStyle{9.15, 0.0, kGridLetter};

void paint_glass(Canvas& canvas, const Rect& glass)
{
    constexpr double kCorner = 6.0;
    cut_recess(canvas, inset(glass, -1.0), kCorner + 1.0, 1.0);
    canvas.shade(
        glass,
        [&](Point p) {
            const auto distance = [&](double x, double y) { return rounded_box({x, y}, glass, kCorner); };
            if (distance(p.x, p.y) >= 0.0) return kClear;
            const double up = (p.y - glass.y) / glass.height;
            Tint tint = mix(kGlassBottom, kGlassTop, up);
            const double shadow = smooth_step(-7.0, 2.0, distance(p.x - 2.0, p.y + 3.0));
            tint = over(with_alpha(kShadow, 0.7 * shadow), tint);
            // The room, reflected in the upper left of the pane.
            const double sheen = smooth_step(0.55, 1.6, up + 0.5 * (1.0 - (p.x - glass.x) / glass.width));
            return mix(tint, kSky, 0.030 * sheen);
        },
        2);
}

// A line of one device pixel, on whole pixels, at the nearest place to x (or y).
class Grid final {
public:
    Grid(Canvas& canvas, const Rect& area) : canvas_(canvas), area_(area) {}

    void vertical(double x, double strength) { line(x, true, strength); }
    void horizontal(double y, double strength) { line(y, false, strength); }

private:
    void line(double at, bool is_vertical, double strength)
    {
        const double scale = canvas_.scale(), pixel = 1.0 / scale;
        const double on_pixel = std::floor(at * scale) / scale;
        if (is_vertical && (on_pixel < area_.x || on_pixel >= area_.right())) return;
        canvas_.set_source(with_alpha(kGridLine, strength));
        if (is_vertical)
            cairo_rectangle(canvas_.context(), on_pixel, area_.y, pixel, area_.height);
        else
            cairo_rectangle(canvas_.context(), area_.x, on_pixel, area_.width, pixel);
        cairo_fill(canvas_.context());
    }

    Canvas& canvas_;
    Rect area_;
};

// Frequencies 10 to 22050 Hz, logarithmic, over the whole width; gains -40 to 40 dB over the whole height.
void print_tone_grid(Canvas& canvas, const Rect& frame)
{
    constexpr double kLowest = 10.0, kHighest = 22050.0, kGainRange = 40.0;
    const auto x_of = [&](double hz) {
        return frame.x + frame.width * std::log(hz / kLowest) / std::log(kHighest / kLowest);
    };
    const auto y_of = [&](double db) {
        return frame.y + frame.height * (db + kGainRange) / (2.0 * kGainRange);
    };
    Grid grid(canvas, frame);
    for (const double decade : {10.0, 100.0, 1000.0, 10000.0})
        for (int digit = 1; digit < 10; ++digit)
            if (digit * decade > kLowest) grid.vertical(x_of(digit * decade), digit == 1 ? 0.34 : 0.11);
    for (const double db : {-20.0, 0.0, 20.0}) grid.horizontal(y_of(db), db == 0.0 ? 0.42 : 0.22);

    const struct {
        double hz;
        const char* text;
    } decades[] = {{100.0, "100"}, {1000.0, "1k"}, {10000.0, "10k"}};
    for (const auto& [hz, text] : decades)
        print(canvas, text, {std::floor(x_of(hz)) + 4.0, frame.top() - 10.0}, Anchor::left, kGridStyle);
    print(canvas, "+20 dB", {frame.x + 4.0, std::floor(y_of(20.0)) + 3.0}, Anchor::left, kGridStyle);
}

// The black window that the view puts its mode letter into, 10 x 15 points at the bottom of the frame's
// middle.
void cut_letter_window(Canvas& canvas, const Rect& frame)
{
    constexpr double kEdge = 1.0;
    const Rect window{center_of(frame).x - 12.0, frame.y - 1.0, 24.0, 17.0};
    canvas.shade(inset(window, -kEdge), [&](Point p) {
        const double d = rounded_box(p, window, 3.0);
        return d < 0.0 ? kShadow : d < kEdge ? with_alpha(kGridLine, 0.34) : kClear;
    });
}

// Amplitudes -pi to pi and -2 to 2 over a graph that is inset by 5 points.
void print_waveshaper_grid(Canvas& canvas, const Rect& frame)
{
    const Rect graph = inset(frame, 5.0);
    const auto y_of = [&](double out) { return graph.y + graph.height * (out / 4.0 + 0.5); };
    Grid grid(canvas, graph);
    for (const double in : {-1.0, 0.0, 1.0})
        grid.vertical(graph.x + graph.width * (in / (2.0 * std::numbers::pi) + 0.5), in == 0.0 ? 0.42 : 0.22);
    for (const double out : {-1.0, 0.0, 1.0}) grid.horizontal(y_of(out), out == 0.0 ? 0.42 : 0.22);
    print(canvas, "+1", {graph.x, std::floor(y_of(1.0)) + 3.0}, Anchor::left, kGridStyle);
    print(canvas, "-1", {graph.x, std::floor(y_of(-1.0)) - 10.0}, Anchor::left, kGridStyle);
    cut_letter_window(canvas, frame);
}

} // namespace

void paint_display(Canvas& canvas, const Rect& frame, const DisplayRow& row, const TextStyle& title)
{
    paint_glass(canvas, inset(frame, -kGlassRim));
    if (row.kind == DisplayKind::tone_control)
        print_tone_grid(canvas, frame);
    else
        print_waveshaper_grid(canvas, frame);
    print(canvas, row.title, {frame.x, frame.top() + 12.0}, Anchor::left, title);
}

} // namespace r7::art
