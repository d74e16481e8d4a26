// The panel and its unit: values in, values out, binding and the end.
#include "tests/support/panel_rig.h"

#include "host/parameter_values.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace r7 {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TEST(Panel, ShowsTheUnitsValuesOnceItIsBound)
{
    PanelRig rig;
    EXPECT_EQ(rig.panel->output_level->current_value(), 1.0);
    EXPECT_EQ(rig.panel->delay_cutoff_q_knob->current_value(), 0.5);
    EXPECT_EQ(rig.panel->end_vowel_mode->current_value(), 0.0);
    EXPECT_EQ(rig.panel->end_vowel_light->indicator_state(), 1);
    EXPECT_FALSE(rig.panel->delay_on_indicator_light->indicator_state());
    EXPECT_EQ(rig.panel->stage_one_data().pos_M, rig.unit->record(Stage::one).pos_M);
    EXPECT_TRUE(rig.observer.sets.empty());
}

TEST(Panel, TheWahLampIsSetBeforeTheParameterAndTheVowelLampsAfterTheirs)
{
    // What the lamps show at the moment at which the unit is told.
    struct Witness final : UnitObserver {
        QmR7View* panel = nullptr;
        std::vector<int> lamps;
        void parameter_set(AudioUnitParameterID id, float) override
        {
            if (id == 44) lamps.push_back(panel->start_vowel_light->indicator_state());
            if (id == 45) lamps.push_back(panel->end_vowel_light->indicator_state());
            if (id == 48) lamps.push_back(panel->wah_mode_light->indicator_state());
        }
        void property_written(AudioUnitPropertyID, UInt32) override {}
        void will_deliver(const AudioUnitEvent&, float) override {}
    } witness;
    PanelRig rig;
    const auto unit = EmbeddedUnit::create(&witness);
    witness.panel = rig.panel.get();
    rig.panel->setAU(unit->handle());
    rig.deliver();
    for (auto* push :
         {rig.panel->envelope_mode.get(), rig.panel->start_vowel_mode.get(), rig.panel->end_vowel_mode.get()})
        PanelRig::press(*push, 0.75);
    EXPECT_EQ(witness.lamps, (std::vector<int>{2, 1, 1}));
    EXPECT_EQ(rig.panel->start_vowel_light->indicator_state(), 2);
    rig.panel->setAU(nullptr);
}

TEST(Panel, LampsRoundHalvesToEvenAndModesTruncate)
{
    const struct {
        float value;
        std::int32_t lamp;
        std::optional<std::int32_t> mode;
    } rows[] = {
        {2.5f, 3, 2},
        {3.5f, 5, 3},
        {4.6f, 6, 4},
        {-0.5f, 1, 0},
        {-1.0f, 0, std::nullopt},
        {5.9f, 7, 5},
        {6.0f, 7, std::nullopt},
        {kNaN, 0, std::nullopt},
        {kInfinity, 0, std::nullopt},
        {-kInfinity, 0, std::nullopt},
        {1e38f, 0, std::nullopt},
        {2147483520.0f, 2147483521, std::nullopt},
        {-2147483648.0f, -2147483647, std::nullopt},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(lamp_for_value(row.value), row.lamp) << row.value;
        EXPECT_EQ(mode_position_for_value(row.value), row.mode) << row.value;
    }
}

TEST(Panel, RebindingListensToTheNewUnitOnly)
{
    PanelRig rig;
    RecordingObserver other_observer;
    const auto other = EmbeddedUnit::create(&other_observer);
    other->automate(31, 0.75f);
    rig.unit->automate(31, 0.25f);
    rig.panel->setAU(other->handle());
    rig.deliver();
    EXPECT_EQ(rig.panel->delay_feedback_knob->current_value(), 0.75);
    EXPECT_EQ(rig.observer.deliveries, 0);
    PanelRig::drag(*rig.panel->delay_feedback_knob, 1, 0);
    EXPECT_TRUE(rig.observer.sets.empty());
    EXPECT_EQ(other_observer.sets.size(), 1u);

    rig.panel->setAU(nullptr);
    rig.panel->delay_feedback_knob->set_current_value(0.5);
    PanelRig::drag(*rig.panel->delay_feedback_knob, 1, 0);
    EXPECT_EQ(other_observer.sets.size(), 1u);
    EXPECT_GT(rig.panel->delay_feedback_knob->current_value(), 0.5) << "an unbound knob still turns";

    // The unit that is bound already is left and bound anew.
    rig.panel->setAU(other->handle());
    rig.deliver();
    const auto before = rig.panel->event_listener();
    other_observer.deliveries = 0;
    rig.panel->setAU(other->handle());
    EXPECT_NE(rig.panel->event_listener(), before);
    rig.deliver();
    EXPECT_EQ(other_observer.deliveries, 54);
}

TEST(Panel, ThePanelMayGoFromInsideItsOwnCallback)
{
    // A unit whose host closes the panel as soon as a parameter is set.
    struct Closer final : UnitObserver {
        std::shared_ptr<QmR7View> panel;
        int sets = 0;
        void parameter_set(AudioUnitParameterID, float) override { ++sets, panel.reset(); }
        void property_written(AudioUnitPropertyID, UInt32) override {}
        void will_deliver(const AudioUnitEvent&, float) override {}
    };
    for (const bool in_window : {false, true}) {
        PanelRig rig;
        Closer closer;
        const auto unit = EmbeddedUnit::create(&closer);
        closer.panel = std::exchange(rig.panel, nullptr);
        closer.panel->setAU(unit->handle());
        rig.deliver();
        const std::weak_ptr<QmR7View> watched = closer.panel;
        const auto push = closer.panel->start_vowel_mode;
        auto window = std::make_shared<Window>(closer.panel->frame());
        if (in_window) window->set_content_view(closer.panel);
        PanelRig::press(*push, 0.75);
        window->set_content_view(nullptr);
        EXPECT_TRUE(watched.expired());
        push->mouseUp({});
        PanelRig::press(*push, 0.75);
        EXPECT_EQ(closer.sets, 1) << "a control of a panel that is gone still reached the unit";
        unit->automate(44, 3.0f);
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
        switch (pick(8)) {
        case 0:
            if (pair.window) pair.window->press(button, {.location_in_window = at});
            break;
        case 1:
            if (pair.window) pair.window->release(button, {.location_in_window = at});
            break;
        case 2:
            if (pair.window) pair.window->scroll({.location_in_window = at, .delta_y = 1});
            break;
        case 3:
            if (pair.unit) pair.unit->automate(static_cast<UInt32>(pick(54)), 0.5f);
            break;
        case 4:
            loop.advance(clock, std::chrono::milliseconds(pick(30)));
            break;
        case 5:
            if (round < 2000) break;
            switch (pick(3)) {
            case 0:
                pair.unit.reset();
                break;
            case 1:
                pair.panel.reset();
                break;
            default:
                pair.window.reset();
                break;
            }
            if (!pair.unit && !pair.panel && !pair.window)
                pairs.erase(pairs.begin() + (&pair - pairs.data()));
            break;
        default:
            if (pair.window)
                pair.window->drag(button, {.location_in_window = at, .delta_x = 2, .delta_y = -1});
        }
    }
    for (const auto& panel : watched) EXPECT_TRUE(panel.expired());
    loop.advance(clock, std::chrono::seconds(1));
}

} // namespace
} // namespace r7
