// The fast response to the test sine against the plain one.
#pragma once

#include "tests/support/vertex_count.h"
#include "tests/waveshaper_model/plain_sine_response.h"
#include "tests/waveshaper_model/random_curves.h"

#include <array>

namespace r7::test {

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
