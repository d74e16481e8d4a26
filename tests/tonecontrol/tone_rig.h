// A tone control's view in a window, its fifteen values, and a count of what the user's acts told.
#pragma once

#include "platform/window.h"
#include "tests/support/recording_graphics.h"
#include "tonecontrol/parametric_eq_response_view.h"
#include "tonecontrol/parametric_eq_view.h"

#include <limits>

namespace r7 {

inline constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

/// Frequency, level and width of each band in turn.
using Tone = ToneControlView;
constexpr struct {
    void (Tone::*set)(float);
    float (Tone::*get)() const;
    float value;
} kValues[] = {
    {&Tone::setFreqLow, &Tone::freqLow, 137},
    {&Tone::setLevelLow, &Tone::levelLow, 6},
    {&Tone::setSlopeLow, &Tone::slopeLow, 0.6f},
    {&Tone::setFreqLowMid, &Tone::freqLowMid, 411},
    {&Tone::setLevelLowMid, &Tone::levelLowMid, -9},
    {&Tone::setQLowMid, &Tone::qLowMid, 0.75f},
    {&Tone::setFreqMid, &Tone::freqMid, 1234},
    {&Tone::setLevelMid, &Tone::levelMid, 11},
    {&Tone::setQMid, &Tone::qMid, 0.3f},
    {&Tone::setFreqHighMid, &Tone::freqHighMid, 3456},
    {&Tone::setLevelHighMid, &Tone::levelHighMid, -4},
    {&Tone::setQHighMid, &Tone::qHighMid, 0.9f},
    {&Tone::setFreqHigh, &Tone::freqHigh, 7890},
    {&Tone::setLevelHigh, &Tone::levelHigh, 3},
    {&Tone::setSlopeHigh, &Tone::slopeHigh, 0.5f},
};

struct Counter final : ActionTarget {
    int calls = 0;
    static void count(ActionTarget& target, View&) { ++static_cast<Counter&>(target).calls; }
};

/// The editor's graph is 600 points wide and 400 high, 30 points from the left and lower edges.
template <typename V>
struct ToneRig {
    std::shared_ptr<Window> window = std::make_shared<Window>(Rect{0, 0, 660, 430});
    std::shared_ptr<V> view = std::make_shared<V>(Rect{0, 0, 660, 430});
    std::shared_ptr<Counter> updates = std::make_shared<Counter>(), toggles = std::make_shared<Counter>();
    RecordingGraphics graphics;

    ToneRig()
    {
        window->set_content_view(view);
        view->set_toggle_callback_onObject(&Counter::count, toggles);
        if constexpr (requires { view->send_update_signal(); })
            view->set_callback_onObject(&Counter::count, updates);
        for (const auto& [set, get, value] : kValues) (*view.*set)(value);
        redraw_requested();
    }

    bool redraw_requested() { return !window->take_dirty_region().is_empty(); }

    /// What paints the view; valid until it is asked for again.
    const RecordingGraphics& drawn()
    {
        graphics.calls.clear();
        view->update_geometry();
        view->drawRect(graphics, view->bounds());
        return graphics;
    }
};

using Editor = Qm_ParametricEQView;
using Display = QM_R7_ParametericEQ_Response_View;

} // namespace r7
