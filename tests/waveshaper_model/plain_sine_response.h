// The response to the test sine in its plain form: the oracle of the fast one, and what it is measured
// against.
#pragma once

#include "waveshaper/sine_response.h"

#include <cmath>

namespace r7::test {

/// Steps through the phases and writes the position of each vertex's phase and response.
template <class Amplitude>
void plain_sine_response(const CurveCoefficients& curve, Amplitude amplitude, float postgain,
                         const AmplitudeAxis& phase_axis, const AmplitudeAxis& out_axis,
                         std::span<float> positions, std::span<float> heights)
{
    float phase = -3.1293209F;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const float sine = i == 0 ? 8.742278e-8F : std::sin(phase);
        const auto in = static_cast<float>(sine * amplitude);
        positions[i] = phase_axis.position(i == 0 ? -3.1415927F : phase);
        heights[i] = out_axis.position(curve.response_for_in_amplitude(in) * postgain);
        if (i > 0) phase += 0.012271847F;
    }
}

} // namespace r7::test
