// A graph of output over input amplitudes, in a view: which editor and response display lay out alike.
#pragma once

#include "platform/geometry.h"
#include "platform/path.h"
#include "waveshaper/amplitude_axis.h"
#include "waveshaper/sine_response.h"

#include <array>
#include <cstddef>
#include <span>

namespace r7 {

struct AmplitudeGraph {
    Rect frame; ///< in the view's points
    AmplitudeLimits limits;

    AmplitudeAxis in_axis() const
    {
        return {limits.in_amplitude_min, limits.in_amplitude_max, frame.x, frame.width};
    }
    AmplitudeAxis out_axis() const
    {
        return {limits.out_amplitude_min, limits.out_amplitude_max, frame.y, frame.height};
    }

    /// Where an input and an output amplitude lie, rounded to single precision.
    Point position_for_amplitudes(Point amplitudes) const
    {
        return {in_axis().position(amplitudes.x), out_axis().position(amplitudes.y)};
    }
    /// The inverse, rounded to single precision.
    Point amplitudes_for_position(Point position) const
    {
        return {in_axis().amplitude(position.x), out_axis().amplitude(position.y)};
    }
};

/// The part of a view that its graph takes: all but a margin of 5 points.
inline Rect graph_frame_in(const Rect& bounds)
{
    // The x stands for both coordinates of the origin, and is meant to.
    return {bounds.x + 5, bounds.x + 5, bounds.width - 10, bounds.height - 10};
}

/// Adds a curve's response to the first `vertices` of the test sine as one line, the phase running along the
/// input axis. `amplitude` and `postgain` are those of sine_response; its precision is the amplitude's.
template <class Amplitude>
void append_sine_response(Path& path, const AmplitudeGraph& graph, const CurveCoefficients& curve,
                          Amplitude amplitude, float postgain, std::size_t vertices)
{
    std::array<float, kSineVertices> position_room, height_room;
    const auto positions = std::span(position_room).first(vertices);
    const auto heights = std::span(height_room).first(vertices);
    sine_positions(graph.in_axis(), positions);
    sine_response(curve, amplitude, postgain, graph.out_axis(), heights);
    path.move_to({positions[0], heights[0]});
    path.append_lines(positions.subspan(1), heights.subspan(1));
}

} // namespace r7
