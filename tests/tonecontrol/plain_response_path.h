// The outline of a tone control's response in its plain form: the oracle of what the views build, and what
// that is measured against.
#pragma once

#include "platform/path.h"
#include "tonecontrol/objective_tone_control.h"
#include "tonecontrol/tone_mapping.h"

#include <cstddef>

namespace r7 {

/// Rebuilds `path` with so many points of the curve, each asked of the model.
inline void plain_response_path(const Qm_ObjectiveToneControl& model, const ToneMapping& mapping,
                                std::size_t points, Path& path)
{
    const Rect graph = mapping.graph_frame();
    path.remove_all_points();
    path.move_to(graph.origin());
    const auto step = static_cast<float>(graph.width * 0.01);
    auto x = static_cast<float>(graph.x);
    float db = 0.0f;
    for (std::size_t i = 0; i < points; ++i, x += step) {
        db = model.responseForFrequency(mapping.frequency_for_location(x));
        path.line_to({x, mapping.location_for_gain(db)});
    }
    if (db >= -40.0f) path.line_to({graph.right(), graph.y});
}

} // namespace r7
