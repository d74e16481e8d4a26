// The response to the test sine in its plain form: the oracle of the fast one, and what it is measured
// against.
#pragma once

#include "waveshaper/sine_response.h"

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

} // namespace r7::test
