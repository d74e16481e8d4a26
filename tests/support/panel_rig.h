// A panel over an embedded unit on a simulated clock, as a host would make it.
#pragma once

#include "host/view_factory.h"
#include "platform/run_loop.h"
#include "platform/window.h"
#include "unit/embedded_unit.h"

#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace r7 {

/// Keeps what the panel does to its unit, in order.
struct RecordingObserver final : UnitObserver {
    std::vector<std::pair<AudioUnitParameterID, float>> sets;
    std::vector<std::pair<AudioUnitPropertyID, UInt32>> writes;
    int deliveries = 0;

    void parameter_set(AudioUnitParameterID id, float value) override { sets.emplace_back(id, value); }
    void property_written(AudioUnitPropertyID id, UInt32 size) override { writes.emplace_back(id, size); }
    void will_deliver(const AudioUnitEvent&, float) override { ++deliveries; }
};

/// Everything that one panel needs. Members go in any order a test likes: reset what is to die first.
struct PanelRig {
    SimulatedClock clock;
    RunLoop loop{clock};
    RecordingObserver observer;
    std::shared_ptr<EmbeddedUnit> unit = EmbeddedUnit::create(&observer);
    std::shared_ptr<const Bundle> bundle = std::make_shared<Bundle>(R7_RESOURCES);
    QmR7ViewFactory factory{bundle};
    std::shared_ptr<QmR7View> panel;

    PanelRig() : panel(factory.uiViewForAudioUnit_withSize(unit->handle(), {}))
    {
        deliver();
        observer = {};
    }

    /// Long enough for every announcement to arrive.
    void deliver() { loop.advance(clock, std::chrono::milliseconds(60)); }

    /// One gesture with the primary button, in the middle of a control or at a point of it.
    static void drag(View& view, double dx, double dy, Modifiers modifiers = Modifiers::none)
    {
        const ViewRef kept = view.shared_from_this();
        press(view);
        view.mouseDragged({.delta_x = dx, .delta_y = dy, .modifiers = modifiers});
        view.mouseUp({});
    }
    static void press(View& view, double x_fraction = 0.5, int clicks = 1)
    {
        const Point at{view.bounds().width * x_fraction, view.bounds().height * 0.5};
        view.mouseDown({.location_in_window = view.convert_to_window(at), .click_count = clicks});
    }
};

} // namespace r7
