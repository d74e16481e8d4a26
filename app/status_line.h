// The status line: below the panel it tells what is being moved, or was last automated.
#pragma once

#include "app/status_text.h"
#include "app/status_view.h"
#include "host/panel_view.h"
#include "platform/window.h"

#include <memory>

namespace r7 {

/// A panel in a window with the line below it.
///
/// Hears the unit with a listener of its own, so that the user's moves and the host's automation arrive
/// alike; a curve that the panel writes arrives where somebody announces it (CurveAnnouncer). To be used on
/// one thread, over its current run loop.
class StatusLine final {
public:
    static constexpr double kHeight = 24.0; ///< of the line, in points

    /// Fills `window`, which is kHeight higher than the panel and outlives this: with the panel, bound to
    /// `unit` already, and the line.
    StatusLine(Window& window, const std::shared_ptr<QmR7View>& panel, const EmbeddedUnit& unit,
               const Bundle& bundle);
    ~StatusLine();
    StatusLine(const StatusLine&) = delete;
    StatusLine& operator=(const StatusLine&) = delete;

    const StatusText& text() const { return view_->text(); }

private:
    void listen();
    void heard(const AudioUnitEvent& event, float value);

    const EmbeddedUnit& unit_;
    ParameterValues values_{};
    std::shared_ptr<StatusView> view_;
    // A window of the panel's own, so that the panel fills it and its editors open where they belong.
    std::shared_ptr<Window> panel_window_;
    AUEventListenerRef listener_ = nullptr;
};

} // namespace r7
