// A tone control's view in a window, with fifteen values of its own.
#pragma once

#include "host/tone_rows.h"
#include "platform/window.h"
#include "tests/support/recording_graphics.h"
#include "tests/tonecontrol_model/tone_designs.h"
#include "tonecontrol/parametric_eq_response_view.h"
#include "tonecontrol/parametric_eq_view.h"

#include <limits>

namespace r7 {

inline constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

using Tone = ToneControlView;

/// Frequency, width and level of each band, as kToneValueRows sets them.
inline constexpr float kRigValues[kToneValues] = {137, 0.6f, 6,    411, 0.75f, -9,   1234, 0.3f,
                                                  11,  3456, 0.9f, -4,  7890,  0.5f, 3};

/// Designs the bands from the values that ToneRig gives its view.
inline void design_rig_values(Qm_ObjectiveToneControl& model)
{
    for (std::size_t band = 0; band < kToneBands; ++band) {
        const float* const values = &kRigValues[3 * band];
        (model.*test::kToneDesigns[band])(values[0], values[2], values[1]);
    }
}

/// The editor's graph is 600 points wide and 400 high, 30 points from the left and lower edges.
template <typename V>
struct ToneRig {
    std::shared_ptr<Window> window = std::make_shared<Window>(Rect{0, 0, 660, 430});
    std::shared_ptr<V> view = std::make_shared<V>(Rect{0, 0, 660, 430});
    RecordingGraphics graphics;

    ToneRig()
    {
        window->set_content_view(view);
        for (std::size_t i = 0; i < kToneValues; ++i) (*view.*kToneValueRows[i].set)(kRigValues[i]);
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
