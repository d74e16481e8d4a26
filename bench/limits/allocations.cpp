// Setters, rebuilds and paints take no memory once everything has been shown.
#include "bench/limits/limits.h"

#include "platform/offscreen/offscreen_window.h"
#include "tests/support/counted_allocations.h"
#include "tests/support/panel_rig.h"

namespace r7::bench {

namespace {

/// The panel hears of one value after another for each parameter and level, and shows what comes of them; the
/// hidden editors are brought up to date, too.
void show_everything(PanelRig& rig, OffscreenWindow& window)
{
    const AudioUnit unit = rig.unit->handle();
    AudioUnitEvent event{};
    for (const float value : {0.0f, 1.0f, 2.0f, 3.0f, 4.0f, 5.0f, 0.25f, 1000.0f}) {
        event.mEventType = kAudioUnitEvent_ParameterValueChange;
        for (AudioUnitParameterID id = 0; id < kParameterCount; ++id) {
            event.mArgument.mParameter = {unit, id, kAudioUnitScope_Global, 0};
            rig.panel->_eventListener_event_value(nullptr, event, value);
        }
        event.mEventType = kAudioUnitEvent_PropertyChange;
        for (const Stage stage : {Stage::one, Stage::two}) rig.unit->take_level(stage, value);
        for (const UnitProperty property : kUnitProperties) {
            const auto id = static_cast<AudioUnitPropertyID>(property);
            event.mArgument.mProperty = {unit, id, kAudioUnitScope_Global, 0};
            rig.panel->_eventListener_event_value(nullptr, event, 0.0f);
        }
        for (const OutletRow& outlet : outlet_rows()) view_in(*rig.panel, outlet)->update_geometry();
        rig.panel->set_needs_display();
        window.picture();
    }
}

} // namespace

void measure_allocations(Limits& limits)
{
    PanelRig rig;
    OffscreenWindow window(rig.panel->frame(), 1.0);
    window.window().set_content_view(rig.panel);
    std::size_t count = 0;
    const auto count_once_shown = [&] {
        show_everything(rig, window);
        const std::size_t before = allocations();
        show_everything(rig, window);
        count += allocations() - before;
    };
    count_once_shown();
    // An editor at a time over the panel.
    PanelRig::press(*rig.panel->wave_shaper_one_display, 0.5, 2);
    count_once_shown();
    rig.panel->zoomed_wave_shaper_display->zoom_clicked();
    PanelRig::press(*rig.panel->pre_tone_control_display, 0.5, 2);
    count_once_shown();
    limits.at_most(0, static_cast<double>(count),
                   "allocations in setters, rebuilds and paints after the start");
}

} // namespace r7::bench
