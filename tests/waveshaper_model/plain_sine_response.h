// The response to the test sine in its plain form: the oracle of the fast one, what it is measured against,
// and the comparison of the two.
#pragma once

#include "tests/support/vertex_count.h"
#include "tests/waveshaper_model/random_curves.h"
#include "waveshaper/sine_response.h"

#include <array>
#include <cmath>

namespace r7::test {

/// Steps through the phases and gives each vertex, the position of its phase and of its response, to
/// `vertex`.
template <class Amplitude, class Vertex>
void plain_sine_response(const CurveCoefficients& curve, Amplitude amplitude, float postgain,
                         const AmplitudeAxis& phase_axis, const AmplitudeAxis& out_axis, std::size_t vertices,
                         Vertex vertex)
{
    float phase = -3.1293209F;
    for (std::size_t i = 0; i < vertices; ++i) {
        const float sine = i == 0 ? 8.742278e-8F : std::sin(phase);
        const auto in = static_cast<float>(sine * amplitude);
        vertex(phase_axis.position(i == 0 ? -3.1415927F : phase),
               out_axis.position(curve.response_for_in_amplitude(in) * postgain));
        if (i > 0) phase += 0.012271847F;
    }
}

/// Counts a response's first vertices, each as two coordinates.
template <class Amplitude>
void compare_sine_response(const CurveCoefficients& curve, Amplitude amplitude, float postgain,
                           const AmplitudeAxis& axis, std::size_t vertices, VertexCount& count)
{
    std::array<float, kSineVertices> positions, heights;
    sine_positions(axis, std::span(positions).first(vertices));
    sine_response(curve, amplitude, postgain, axis, std::span(heights).first(vertices));
    plain_sine_response(curve, amplitude, postgain, axis, axis, vertices,
                        [&, i = std::size_t{0}](float position, float height) mutable {
                            count.add(position, positions[i]);
                            count.add(height, heights[i++]);
                        });
}

/// Compares so many vertices, and those that make the last response whole: of curves that a user may have
/// drawn, and of coefficients, amplitudes and gains that are anything.
inline VertexCount compare_sine_responses(unsigned seed, std::size_t vertices)
{
    Random random(seed);
    VertexCount count;
    while (count.all() < 2 * vertices) {
        const bool drawn = random.below(2) == 0;
        const CurveCoefficients curve = drawn ? random.curve().coefficients() : random.wild_coefficients();
        const double amplitude = drawn ? random.between(-3, 3) : random.wild();
        const float postgain = drawn ? random.between(0, 2) : static_cast<float>(random.wild());
        const AmplitudeAxis axis{random.between(-4, -0.5F), random.between(0.5F, 4), 5,
                                 random.between(10, 900)};
        const std::size_t shown = kSineVertices - random.below(10);
        compare_sine_response(curve, amplitude, postgain, axis, shown, count);
        compare_sine_response(curve, static_cast<float>(amplitude), postgain, axis, shown, count);
    }
    return count;
}

} // namespace r7::test
