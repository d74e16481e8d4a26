// The panel without a display: for sessions and snapshots.
#pragma once

#include "host/panel_view.h"
#include "platform/offscreen/offscreen_window.h"
#include "platform/run_loop.h"
#include "unit/embedded_unit.h"

#include <memory>

namespace r7 {

/// A panel that fills an off-screen window, bound to a fresh unit, over a clock of its own that moves only
/// when it is told.
class OffscreenPanel final {
public:
    /// The first synchronisation has been delivered. Null, with the reason logged, where the panel cannot be
    /// loaded.
    /// @param scale     pixels for a point of the window's picture
    /// @param observer  of the unit; outlives the panel, or null
    static std::unique_ptr<OffscreenPanel> open(const std::shared_ptr<const Bundle>& bundle, double scale,
                                                UnitObserver* observer = nullptr);

    QmR7View& panel() { return *panel_; }
    EmbeddedUnit& unit() { return *unit_; }
    OffscreenWindow& window() { return *window_; }

    /// Lets time pass and the panel hear what is due.
    void advance(Time duration) { loop_.advance(clock_, duration); }

private:
    explicit OffscreenPanel(UnitObserver* observer) : unit_(EmbeddedUnit::create(observer)) {}

    SimulatedClock clock_;
    RunLoop loop_{clock_};
    std::shared_ptr<EmbeddedUnit> unit_;
    std::shared_ptr<QmR7View> panel_;
    std::unique_ptr<OffscreenWindow> window_;
};

} // namespace r7
