// The panel and its unit: the order of what it does, binding and the end. Sessions pin the values.
#include "tests/support/panel_rig.h"

#include <gtest/gtest.h>

#include <random>

namespace r7 {
namespace {

TEST(Panel, TheWahLampIsSetBeforeTheParameterAndTheVowelLampsAfterTheirs)
{
    PanelRig rig;
    QmR7View& panel = *rig.panel;
    std::vector<int> lamps; // at the moments at which the unit is told
    rig.observer.on_set = [&](AudioUnitParameterID id) {
        const int start = panel.start_vowel_light->indicator_state();
        const int end = panel.end_vowel_light->indicator_state();
        lamps.push_back(id == 44 ? start : id == 45 ? end : panel.wah_mode_light->indicator_state());
    };
    for (QmKnobView* push :
         {panel.envelope_mode.get(), panel.start_vowel_mode.get(), panel.end_vowel_mode.get()})
        PanelRig::press(*push, 0.75);
    EXPECT_EQ(lamps, (std::vector<int>{2, 1, 1}));
    EXPECT_EQ(panel.start_vowel_light->indicator_state(), 2);
}

TEST(Panel, RebindingListensToTheNewUnitOnly)
{
    PanelRig rig;
    RecordingObserver other_observer;
    const auto other = EmbeddedUnit::create(&other_observer);
    other->automate(31, 0.75f);
    other->take_level(Stage::two, 0.75);
    rig.unit->automate(31, 0.25f);
    rig.panel->setAU(other->handle());
    rig.deliver();
    EXPECT_EQ(rig.panel->delay_feedback_knob->current_value(), 0.75);
    EXPECT_EQ(rig.panel->wave_shaper_two_display->shown_input_level(), 0.0) << "read before it is announced";
    EXPECT_EQ(rig.observer.deliveries, 0);
    PanelRig::drag(*rig.panel->delay_feedback_knob, 1, 0);
    EXPECT_EQ(rig.observer.sets, 0);
    EXPECT_EQ(other_observer.sets, 1);
}

TEST(Panel, ThePanelMayGoFromInsideItsOwnCallback)
{
    for (const bool in_window : {false, true}) {
        PanelRig rig;
        const std::weak_ptr<QmR7View> watched = rig.panel;
        const auto push = rig.panel->start_vowel_mode;
        auto window = std::make_shared<Window>(rig.panel->frame());
        if (in_window) window->set_content_view(rig.panel);
        // A host that closes the panel as soon as a parameter is set.
        rig.observer.on_set = [&](AudioUnitParameterID) { rig.panel.reset(); };
        PanelRig::press(*push, 0.75);
        window->set_content_view(nullptr);
        EXPECT_TRUE(watched.expired());
        push->mouseUp({});
        PanelRig::press(*push, 0.75);
        EXPECT_EQ(rig.observer.sets, 1) << "a control of a panel that is gone still reached the unit";
        rig.unit->automate(44, 3.0f);
        rig.deliver();
    }
}

TEST(Panel, FiftyPanelsGoInAnyOrderInMidDragToo)
{
    SimulatedClock clock;
    RunLoop loop(clock);
    std::mt19937 random(20);
    const auto pick = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    const auto bundle = std::make_shared<Bundle>(R7_RESOURCES);
    struct Pair {
        std::shared_ptr<EmbeddedUnit> unit = EmbeddedUnit::create();
        std::shared_ptr<QmR7View> panel;
        std::shared_ptr<Window> window;
    };
    std::vector<Pair> pairs(50);
    std::vector<std::weak_ptr<QmR7View>> watched;
    for (Pair& pair : pairs) {
        pair.panel = QmR7ViewFactory(bundle).uiViewForAudioUnit_withSize(pair.unit->handle(), {});
        pair.window = std::make_shared<Window>(pair.panel->frame());
        pair.window->set_content_view(pair.panel);
        watched.push_back(pair.panel);
    }
    // Each lives from a few rounds to many, and loses unit, panel and window in a random order.
    for (int round = 0; !pairs.empty(); ++round) {
        Pair& pair = pairs[pick(pairs.size())];
        const Point at{static_cast<double>(pick(960)), static_cast<double>(pick(600))};
        const auto button = pick(2) == 0 ? MouseButton::primary : MouseButton::secondary;
        const auto what = pick(8);
        if (what == 0 && round >= 2000) {
            const auto which = pick(3);
            if (which == 0) pair.unit.reset();
            if (which == 1) pair.panel.reset();
            if (which == 2) pair.window.reset();
        }
        if (what == 1 && pair.unit) pair.unit->automate(static_cast<UInt32>(pick(54)), 0.5f);
        if (what == 2) loop.advance(clock, std::chrono::milliseconds(pick(30)));
        if (Window* const window = pair.window.get()) {
            if (what == 3) window->press(button, {.location_in_window = at});
            if (what == 4) window->release(button, {.location_in_window = at});
            if (what == 5) window->scroll({.location_in_window = at, .delta_y = 1});
            if (what >= 6) window->drag(button, {.location_in_window = at, .delta_x = 2, .delta_y = -1});
        }
        std::erase_if(pairs, [](const Pair& p) { return !p.unit && !p.panel && !p.window; });
    }
    for (const auto& panel : watched) EXPECT_TRUE(panel.expired());
    loop.advance(clock, std::chrono::seconds(1));
}

} // namespace
} // namespace r7
