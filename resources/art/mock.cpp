// A picture of the whole panel as it looks at work.
#include "resources/art/mock.h"

#include "resources/art/images.h"
#include "resources/art/knobs.h"
#include "resources/art/lamps.h"
#include "resources/art/lettering.h"
#include "resources/art/rows.h"
#include "resources/art/screens.h"
#include "resources/art/shapes.h"
#include "resources/art/switches.h"

#include <numbers>

namespace r7::art {

namespace {

// The lower left corner of a picture that is centred in a frame.
Point centered(const Rect& frame, Size picture)
{
    return {frame.x + (frame.width - picture.width) * 0.5, frame.y + (frame.height - picture.height) * 0.5};
}

void place_knobs(Canvas& panel, const InterfaceDescription& description)
{
    for (const KnobRow& row : kKnobs) {
        const ViewDescription* const view = description.find(row.outlet);
        if (!view) continue;
        const KnobShape& shape = shape_of(row.kind);
        const Size size{shape.picture, shape.picture};
        Canvas knob(size, panel.scale());
        paint_knob(knob, row.kind);
        panel.place(knob, centered(view->frame, size));

        const double angle = (225.0 - 270.0 * row.start) * std::numbers::pi / 180.0;
        const double radius = shape.picture * 0.5 * (1.0 - shape.marker_inset);
        const Point center = center_of(view->frame);
        Canvas marker({kMarkerPicture, kMarkerPicture}, panel.scale());
        paint_marker(marker, row.outlet == "delay_delay_knob" ? Marker::held : Marker::at_rest);
        panel.place(marker, {center.x + radius * std::cos(angle) - kMarkerPicture * 0.5,
                             center.y + radius * std::sin(angle) - kMarkerPicture * 0.5});
    }
}

void place_switches_and_lights(Canvas& panel, const InterfaceDescription& description)
{
    for (const SwitchRow& row : kSwitches) {
        const ViewDescription* const view = description.find(row.outlet);
        if (!view) continue;
        Canvas picture(view->frame.size(), panel.scale());
        paint_switch(picture, row.kind, Tilt::flat);
        panel.place(picture, view->frame.origin());
    }
    for (const LightRow& row : kLights) {
        const ViewDescription* const view = description.find(row.outlet);
        if (!view) continue;
        Canvas lamp({kLampPicture, kLampPicture}, panel.scale());
        paint_lamp(lamp, kLamps[row.lamps[static_cast<std::size_t>(row.start)]]);
        panel.place(lamp, centered(view->frame, lamp.size()));
    }
}

// A response with a boost and a cut, filled down to the lower edge with the pattern of the displays.
void fill_tone_curve(Canvas& panel, const Rect& frame)
{
    cairo_t* const context = panel.context();
    cairo_save(context);
    cairo_move_to(context, frame.x, frame.y);
    for (int i = 0; i <= 100; ++i) {
        const double t = i * 0.01;
        const double db = 12.0 * std::exp(-std::pow((t - 0.3) / 0.07, 2.0)) -
                          9.0 * std::exp(-std::pow((t - 0.62) / 0.1, 2.0)) + 6.0 * smooth_step(0.75, 0.95, t);
        cairo_line_to(context, frame.x + frame.width * t, frame.y + frame.height * (db + 40.0) / 80.0);
    }
    cairo_line_to(context, frame.right(), frame.y);
    cairo_close_path(context);
    cairo_clip(context);
    Canvas tile(kLcdGridTile, panel.scale());
    paint_lcd_grid(tile);
    panel.pave(tile);
    cairo_restore(context);
}

// A sine through a soft curve, and the letter of the mode.
void stroke_sine(Canvas& panel, const Rect& frame)
{
    const Rect graph = inset(frame, 5.0);
    cairo_t* const context = panel.context();
    for (int i = 0; i < 512; ++i) {
        const double phase = (i / 512.0 - 0.5) * 2.0 * std::numbers::pi;
        const double out = std::tanh(1.8 * std::sin(phase));
        cairo_line_to(context, graph.x + graph.width * i / 512.0, graph.y + graph.height * (out / 4.0 + 0.5));
    }
    cairo_set_source_rgb(context, 0.8, 0.15, 0.1);
    cairo_set_line_width(context, 2.0);
    cairo_stroke_preserve(context);
    cairo_set_source_rgba(context, 1.0, 1.0, 1.0, 0.5);
    cairo_set_line_width(context, 0.5);
    cairo_stroke(context);
    print(panel, "A", {center_of(frame).x, frame.y + 4.0}, Anchor::center, {9.0, 0.0, srgb(0x5555FF)});
}

} // namespace

Canvas mock_panel(const InterfaceDescription& description, int scale)
{
    Canvas panel = drawn(all_images(description).front(), scale);
    place_knobs(panel, description);
    place_switches_and_lights(panel, description);
    for (const DisplayRow& row : kDisplays) {
        const ViewDescription* const view = description.find(row.outlet);
        if (!view) continue;
        if (row.kind == DisplayKind::tone_control)
            fill_tone_curve(panel, view->frame);
        else
            stroke_sine(panel, view->frame);
    }
    return panel;
}

} // namespace r7::art
