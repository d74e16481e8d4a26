// What a repaint costs that need not be of the whole panel.
#include "bench/limits/limits.h"
#include "bench/limits/ratio.h"

#include "platform/offscreen/offscreen_window.h"
#include "tests/support/panel_rig.h"

namespace r7::bench {

namespace {

double panel_to_knob(double pixels_per_point)
{
    PanelRig rig;
    OffscreenWindow window(rig.panel->frame(), pixels_per_point);
    window.window().set_content_view(rig.panel);
    // As in use: both waveshapers show what bent curves make of a sine of full scale.
    for (const Stage stage : {Stage::one, Stage::two}) {
        rig.unit->take_curve(
            stage, {{{0, 0}, {0.1, 0.4}, {0.3, 0.7}, {0.4, 0.6}, {0.5, 0.5}, {0.7, 0.6}, {0.8, 0.9}}});
        rig.unit->take_level(stage, 1.0);
    }
    rig.deliver();
    const auto repaint = [&window](View& view) {
        view.set_needs_display();
        window.picture();
    };
    return ratio([&] { repaint(*rig.panel); }, [&] { repaint(*rig.panel->delay_depth_knob); });
}

} // namespace

void measure_painting(Limits& limits)
{
    limits.at_least(150, panel_to_knob(2.0), "repaint of the panel / of a knob, at two pixels a point");
    limits.at_least(100, panel_to_knob(1.0), "repaint of the panel / of a knob, at one pixel a point");
}

} // namespace r7::bench
