// A panel over an embedded unit on a simulated clock, as a host would make it.
#pragma once

#include "host/view_factory.h"
#include "platform/run_loop.h"
#include "platform/window.h"
#include "tests/support/recording_observer.h"

#include <chrono>
#include <memory>

namespace r7 {

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
