// Every image of the panel and of the program, by name.
#include "resources/art/images.h"

#include "resources/art/icon.h"
#include "resources/art/knobs.h"
#include "resources/art/lamps.h"
#include "resources/art/plate.h"
#include "resources/art/rows.h"
#include "resources/art/screens.h"
#include "resources/art/switches.h"

namespace r7::art {

namespace {

constexpr KnobKind kKnobKinds[] = {KnobKind::red, KnobKind::big_rubber, KnobKind::small_rubber};

struct SwitchFamily {
    SwitchKind kind;
    const char* name;
};
constexpr SwitchFamily kSwitchFamilies[] = {{SwitchKind::push_button, "Push Button"},
                                            {SwitchKind::red_switch, "Matched Red Switch"}};

struct TiltName {
    Tilt tilt;
    const char* name;
};
constexpr TiltName kTilts[] = {{Tilt::left, " Left"}, {Tilt::flat, " Flat"}, {Tilt::right, " Right"}};

// The size of the frames of a family of switches.
Size size_of(SwitchKind kind, const InterfaceDescription& description)
{
    for (const SwitchRow& row : kSwitches) {
        const ViewDescription* const view = row.kind == kind ? description.find(row.outlet) : nullptr;
        if (view) return view->frame.size();
    }
    return {64.0, 32.0};
}

} // namespace

std::vector<ImageRow> all_images(const InterfaceDescription& description)
{
    const Canvas::Ground clear = Canvas::Ground::clear;
    std::vector<ImageRow> rows;
    rows.push_back({"r7-bg", description.panel_size, Canvas::Ground::opaque,
                    [&](Canvas& canvas) { paint_background(canvas, description); }});
    rows.push_back({"status-bar",
                    {description.panel_size.width, kStatusBarHeight},
                    Canvas::Ground::opaque,
                    [&](Canvas& canvas) { paint_status_bar(canvas, description); }});
    for (const KnobKind kind : kKnobKinds) {
        const KnobShape& shape = shape_of(kind);
        rows.push_back(
            {std::string(shape.image), {shape.picture, shape.picture}, clear, [kind](Canvas& canvas) {
                 paint_knob(canvas, kind);
             }});
    }
    for (const Marker marker : {Marker::held, Marker::at_rest})
        rows.push_back({marker == Marker::held ? "small-blue-dot_on" : "small-blue-dot_off",
                        {kMarkerPicture, kMarkerPicture},
                        clear,
                        [marker](Canvas& canvas) { paint_marker(canvas, marker); }});
    for (const LampRow& lamp : kLamps)
        rows.push_back(
            {std::string(lamp.image), {kLampPicture, kLampPicture}, clear, [&lamp](Canvas& canvas) {
                 paint_lamp(canvas, lamp);
             }});
    for (const auto& [kind, family] : kSwitchFamilies)
        for (const auto& [tilt, name] : kTilts)
            rows.push_back(
                {std::string(family) + name, size_of(kind, description), clear,
                 [kind = kind, tilt = tilt](Canvas& canvas) { paint_switch(canvas, kind, tilt); }});
    rows.push_back({"blue-bar", kBlueBarTile, clear, paint_blue_bar});
    rows.push_back({"LCD-grid", kLcdGridTile, clear, paint_lcd_grid});
    return rows;
}

std::vector<ImageRow> all_icons()
{
    std::vector<ImageRow> rows;
    for (const IconRow& icon : kIcons) {
        const auto size = static_cast<double>(icon.size);
        rows.push_back({"icon-" + std::to_string(icon.size),
                        {size, size},
                        Canvas::Ground::clear,
                        [&icon](Canvas& canvas) { paint_icon(canvas, icon); }});
    }
    return rows;
}

Canvas drawn(const ImageRow& row, int scale)
{
    Canvas canvas(row.size, scale, row.ground);
    row.paint(canvas);
    return canvas;
}

} // namespace r7::art
