// The status line: what it says after the hand and the host have done something.
#include "app/curve_announcer.h"
#include "app/status_line.h"
#include "host/view_factory.h"
#include "platform/offscreen/offscreen_window.h"
#include "tests/support/panel_rig.h"

#include <gtest/gtest.h>

#include <limits>

namespace r7 {
namespace {

struct StatusRig {
    SimulatedClock clock;
    RunLoop loop{clock};
    RecordingObserver observer;
    CurveAnnouncer announcer{&observer};
    std::shared_ptr<EmbeddedUnit> unit = EmbeddedUnit::create(&announcer);
    std::shared_ptr<const Bundle> bundle = std::make_shared<Bundle>(R7_RESOURCES);
    std::shared_ptr<QmR7View> panel = QmR7ViewFactory(bundle).uiViewForAudioUnit_withSize(unit->handle(), {});
    OffscreenWindow window{{100.0, 100.0, 960.0, 600.0 + StatusLine::kHeight}, 1.0};
    StatusLine line{window.window(), panel, *unit, *bundle};

    StatusRig()
    {
        announcer.begin(*panel);
        said();
    }
    std::string said()
    {
        loop.advance(clock, std::chrono::milliseconds(60));
        return line.text().name + ": " + line.text().value;
    }
};

TEST(StatusLine, TellsWhatTheHostAutomates)
{
    StatusRig rig;
    EXPECT_EQ(rig.said(), "Double click a display to open its editor: ")
        << "the panel's own start is no news";
    const struct {
        AudioUnitParameterID id;
        float value;
        const char* said;
    } rows[] = {
        {4, 0.7F, "Pre low-mid: 300 Hz, 0.0 dB, Q 0.70"},
        {5, 4.5F, "Pre low-mid: 300 Hz, +4.5 dB, Q 0.70"},
        {27, 999.5F, "Post high: 1.00 kHz, 0.0 dB, slope 0.50"},
        {38, std::numeric_limits<float>::quiet_NaN(), "Waveshaper one C: nan"},
        {50, 5.9F, "Waveshaper one mode: E"},
        {52, 0.0F, "Waveshaper two mode: -"},
        {44, 3.5F, "Start vowel: 5 of 10, light green"},
        {45, 9.6F, "End vowel: 9.60"},
        {48, 0.0F, "Envelope mode: 1 of 5, off"},
        {53, 1.0F, "Envelope mode: 1 of 5, off"},
    };
    for (const auto& [id, value, said] : rows) {
        rig.unit->automate(id, value);
        EXPECT_EQ(rig.said(), said);
    }
    rig.unit->take_level(Stage::one, 1.0);
    EXPECT_EQ(rig.said(), std::end(rows)[-1].said) << "input levels come all the time";
}

TEST(StatusLine, TellsWhatTheHandMovesAndLeavesThePanelAlone)
{
    StatusRig rig;
    PanelRig::drag(*rig.panel->delay_feedback_knob, 50.0, 0.0);
    EXPECT_EQ(rig.said(), "Delay feedback: 0.50");
    rig.panel->toggle_callback(*rig.panel->pre_tone_control_display);
    rig.panel->pre_tone_control->scrollWheel({.location_in_window = {286.0, 195.0}, .delta_y = 1.0});
    EXPECT_EQ(rig.said(), "Pre low-mid: 300 Hz, 0.0 dB, Q 0.85") << "one band, although all fifteen are sent";
    rig.panel->toggle_callback(*rig.panel->pre_tone_control);

    rig.panel->toggle_callback(*rig.panel->wave_shaper_two_display);
    EXPECT_EQ(rig.panel->overlay()->frame(), (Rect{100.0, 324.0, 560.0, 400.0})) << "over the panel's corner";
    rig.observer.deliveries = 0;
    rig.panel->zoomed_wave_shaper_display->send_update_signal();
    const std::string said = rig.said();
    EXPECT_TRUE(said.starts_with("Waveshaper two curve: half scale gives ")) << said;
    EXPECT_TRUE(said.ends_with("; ends at 1.00, 1.00")) << said;
    EXPECT_EQ(rig.observer.deliveries, 1) << "the panel does not hear of its own curve";
}

} // namespace
} // namespace r7
