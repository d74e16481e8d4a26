// The header of the plate: the name in cast letters, the leg of the R and the 7 at one angle.
#include "resources/art/header.h"

#include "resources/art/lettering.h"
#include "resources/art/palette.h"

#include <numbers>

namespace r7::art {

namespace {

constexpr double kHeight = 22.0, kStroke = 3.4;
constexpr double kLean = 0.46; // of the R's leg and of the 7, points across a point of height

void trace_letter(cairo_t* context)
{
    constexpr double kMiddle = 11.2, kBowl = 9.0, kLegTop = 6.2;
    const double outer = (kHeight - kMiddle + kStroke) * 0.5, inner = outer - kStroke;
    const double center = kHeight - outer;
    // The stem and the bowl, and the eye, the other way round.
    cairo_move_to(context, 0.0, 0.0);
    cairo_line_to(context, 0.0, kHeight);
    cairo_line_to(context, kBowl, kHeight);
    cairo_arc_negative(context, kBowl, center, outer, std::numbers::pi / 2, -std::numbers::pi / 2);
    cairo_line_to(context, kStroke, center - outer);
    cairo_line_to(context, kStroke, 0.0);
    cairo_close_path(context);
    cairo_move_to(context, kStroke, center - inner);
    cairo_line_to(context, kBowl, center - inner);
    cairo_arc(context, kBowl, center, inner, -std::numbers::pi / 2, std::numbers::pi / 2);
    cairo_line_to(context, kStroke, center + inner);
    cairo_close_path(context);
    // The leg.
    const double top = center - outer, across = kStroke * std::hypot(1.0, kLean);
    cairo_move_to(context, kLegTop, top + 0.5);
    cairo_line_to(context, kLegTop + across, top + 0.5);
    cairo_line_to(context, kLegTop + across + kLean * top, 0.0);
    cairo_line_to(context, kLegTop + kLean * top, 0.0);
    cairo_close_path(context);
}

void trace_number(cairo_t* context)
{
    constexpr double kLeft = 17.6, kFoot = 20.2;
    const double across = kStroke * std::hypot(1.0, kLean);
    cairo_move_to(context, kLeft, kHeight);
    cairo_line_to(context, kFoot + across + kLean * kHeight, kHeight);
    cairo_line_to(context, kFoot + across, 0.0);
    cairo_line_to(context, kFoot, 0.0);
    cairo_line_to(context, kFoot + kLean * (kHeight - kStroke), kHeight - kStroke);
    cairo_line_to(context, kLeft, kHeight - kStroke);
    cairo_close_path(context);
}

void fill_cast(Canvas& canvas, Point at, void (*trace)(cairo_t*), const Tint& top, const Tint& bottom)
{
    cairo_t* const context = canvas.context();
    const auto fill = [&](double dx, double dy, const auto& set_source) {
        cairo_save(context);
        cairo_translate(context, at.x + dx, at.y + dy);
        trace(context);
        set_source();
        cairo_fill(context);
        cairo_restore(context);
    };
    for (const double depth : {1.6, 0.8})
        fill(0.5 * depth, -0.75 * depth, [&] { canvas.set_source(with_alpha(kShadow, 0.45)); });
    fill(-0.25, 0.35, [&] { canvas.set_source(with_alpha(kBlueHot, 0.55)); });
    fill(0.0, 0.0, [&] {
        cairo_pattern_t* const metal = cairo_pattern_create_linear(0.0, kHeight, 0.0, 0.0);
        const auto stop = [&](double offset, const Tint& tint) {
            cairo_pattern_add_color_stop_rgb(metal, offset, srgb_from_linear(tint.red),
                                             srgb_from_linear(tint.green), srgb_from_linear(tint.blue));
        };
        stop(0.0, top);
        stop(1.0, bottom);
        cairo_set_source(context, metal);
        cairo_pattern_destroy(metal);
    });
}

} // namespace

void paint_header(Canvas& canvas)
{
    const double top = canvas.size().height;
    const Point name{24.0, top - 33.0};
    fill_cast(canvas, name, trace_letter, kNameTop, kNameBottom);
    fill_cast(canvas, name, trace_number, kNumberTop, kNumberBottom);
    print(canvas, "QUILLMERE", {944.0, top - 26.0}, Anchor::right, {9.6, 3.0, kLabel});
}

} // namespace r7::art
