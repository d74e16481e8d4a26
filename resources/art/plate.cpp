// "r7-bg": the face plate. In order: the brushed plate, the recesses of the groups, what surrounds each
// control, the displays' glass, the header; and the status bar.
#include "resources/art/plate.h"

#include "resources/art/glass.h"
#include "resources/art/header.h"
#include "resources/art/knobs.h"
#include "resources/art/lettering.h"
#include "resources/art/palette.h"
#include "resources/art/recess.h"
#include "resources/art/rows.h"
#include "resources/art/shapes.h"

#include <algorithm>
#include <numbers>

namespace r7::art {

namespace {

const TextStyle kTitleStyle{9.6, 2.0, kTitle};
const TextStyle kLabelStyle{11.0, 0.0, kLabel};

// Fine streaks along the plate, one a row of pixels, each slowly changing along its way.
double grain(Point p, int scale)
{
    const int row = static_cast<int>(std::floor(p.y * scale));
    const double along = p.x / 90.0 + 0.5 * noise(row, 7);
    const int cell = static_cast<int>(std::floor(along));
    return std::lerp(noise(cell, row), noise(cell + 1, row), smooth_step(0.0, 1.0, along - cell));
}

// A brushed plate over the whole canvas, whose lower edge lies at `bottom` in a panel of that size.
void paint_plate(Canvas& canvas, const Size& panel, double bottom)
{
    const Size size = canvas.size();
    canvas.shade(
        canvas.bounds(),
        [&](Point p) {
            const double y = p.y + bottom;
            const Tint base = mix(kPlateBottom, kPlateTop, y / panel.height);
            const double from_light = std::hypot((p.x - 0.25 * panel.width) / panel.width,
                                                 (y - 0.95 * panel.height) / panel.height);
            const Tint plate =
                scaled(base, 1.10 - 0.22 * from_light + 0.035 * grain({p.x, y}, canvas.scale()));
            // The edges are broken: the upper and left ones catch the light.
            if (p.y > size.height - 1.0 || p.x < 1.0) return mix(plate, kEdgeLight, 0.5);
            if (p.y < 1.0 || p.x > size.width - 1.0) return mix(plate, kEdgeDark, 0.6);
            return plate;
        },
        1);
}

// The dark of the plate where a knob stands, and the knob's longer shadow.
void shade_below_knob(Canvas& canvas, const Rect& frame, Point center, const KnobShape& shape)
{
    canvas.shade(
        inset(frame, -8.0),
        [&](Point at) {
            const Point p{at.x - center.x, at.y - center.y};
            const double around = 1.0 - smooth_step(shape.radius - 1.0, shape.radius + 5.0, circle(p, 0.0));
            const double cast = 1.0 - smooth_step(-5.0, 6.0, circle({p.x - 4.0, p.y + 5.5}, shape.radius));
            return with_alpha(kShadow, std::max(0.45 * around, 0.40 * cast));
        },
        2);
}

void paint_knobs_surroundings(Canvas& canvas, const InterfaceDescription& description)
{
    for (const KnobRow& knob : kKnobs) {
        const ViewDescription* const view = description.find(knob.outlet);
        if (!view) continue;
        const KnobShape& shape = shape_of(knob.kind);
        const Point center = center_of(view->frame);
        shade_below_knob(canvas, view->frame, center, shape);
        print_scale(canvas, center, shape);
        print(canvas, knob.label, {center.x, view->frame.y - 12.0}, Anchor::center, kLabelStyle);
    }
}

void print_key(Canvas& canvas, const LightRow& light, Point middle)
{
    constexpr double kPitch = 12.0, kHalf = 4.0; // of the signs, in points
    const auto count = std::ranges::count_if(light.lamps, [](int lamp) { return lamp >= 0; });
    for (int i = 0; i < count; ++i) {
        const LampRow& lamp = kLamps[light.lamps[static_cast<std::size_t>(i)]];
        const Point center{std::floor(middle.x + (i - 0.5 * static_cast<double>(count - 1)) * kPitch),
                           middle.y};
        const bool is_lit = lamp.sign != Sign::none;
        const Tint tint = is_lit ? mix(srgb(lamp.color), kLabel, 0.2) : kTickMinor;
        canvas.shade({center.x - 6.0, center.y - 6.0, 12.0, 12.0}, [&](Point at) {
            const Point p{(at.x - center.x) * kSignExtent / kHalf, (at.y - center.y) * kSignExtent / kHalf};
            const double d = is_lit ? sign_distance(lamp.sign, p) : std::abs(circle(p, 5.6)) - 0.9;
            return d < 0.0 ? tint : kClear;
        });
    }
}

void print_label(Canvas& canvas, const Rect& frame, const LabelRow& row)
{
    const Point center = center_of(frame);
    const double middle = center.y - 4.0; // the baseline of capitals that stand on half the height
    switch (row.side) {
    case Side::below:
        return print(canvas, row.text, {center.x, frame.y - row.distance}, Anchor::center, kLabelStyle);
    case Side::left:
        return print(canvas, row.text, {frame.x - row.distance, middle}, Anchor::right, kLabelStyle);
    case Side::right:
        return print(canvas, row.text, {frame.right() + row.distance, middle}, Anchor::left, kLabelStyle);
    }
}

void print_keys(Canvas& canvas, const InterfaceDescription& description)
{
    for (const KeyRow& row : kKeys) {
        const ViewDescription* const first = description.find(row.first);
        const ViewDescription* const last = description.find(row.last);
        if (!first || !last) continue;
        const Point middle = center_of(enclosing(first->frame, last->frame));
        print_key(canvas, *std::ranges::find(kLights, row.first, &LightRow::outlet),
                  {middle.x, first->frame.top() + row.distance});
    }
}

void print_labels(Canvas& canvas, const InterfaceDescription& description)
{
    for (const LabelRow& row : kLabels)
        if (const ViewDescription* const view = description.find(row.outlet))
            print_label(canvas, view->frame, row);
}

void paint_groups(Canvas& canvas)
{
    for (const GroupRow& group : kGroups) {
        cut_recess(canvas, inset(group.room, -kGroupMargin), 8.0, 0.42);
        print(canvas, group.title, {group.room.x + 8.0, group.room.top() - 12.0}, Anchor::left, kTitleStyle);
    }
    for (const Rect& groove : kGrooves) cut_groove(canvas, groove);
}

} // namespace

void paint_background(Canvas& canvas, const InterfaceDescription& description)
{
    paint_plate(canvas, canvas.size(), 0.0);
    paint_groups(canvas);
    paint_knobs_surroundings(canvas, description);
    print_labels(canvas, description);
    print_keys(canvas, description);
    for (const DisplayRow& row : kDisplays)
        if (const ViewDescription* const view = description.find(row.outlet))
            paint_display(canvas, view->frame, row, kTitleStyle);
    paint_header(canvas);
}

void paint_status_bar(Canvas& canvas, const InterfaceDescription& description)
{
    paint_plate(canvas, description.panel_size, -kStatusBarHeight);
    const Rect room{16.0, 8.0, description.panel_size.width - 32.0, 9.0};
    cut_recess(canvas, inset(room, -kGroupMargin), 5.0, 0.42);
}

} // namespace r7::art
